// ZORUSER.mdb: what the job number screens keep there, the template of a job's settings and the
// buffers of a job clone. A buffer has the shape of the table whose rows pass through it.
#pragma once

#include "core/schema/labour_tables.h"
#include "core/schema/main_tables.h"
#include "core/schema/schema.h"
#include "core/schema/sibling_tables.h"

namespace schema {

inline constexpr Field JOBDEFAULTS_fields[] = {
    text("CCNAMEA", 20, "caption of cost code group A"),
    text("CCNAMEB", 20, "caption of cost code group B"),
    text("CCNAMEC", 20, "caption of cost code group C"),
    integer("CCSIZEA", "width of a cost code of group A"),
    integer("CCSIZEB", "width of a cost code of group B"),
    integer("CCSIZEC", "width of a cost code of group C"),
    text("CCTYPEA", 1, "C character or N number only, group A"),
    text("CCTYPEB", 1, "C character or N number only, group B"),
    text("CCTYPEC", 1, "C character or N number only, group C"),
    text("CLCNAMEA1", 20, "caption of the client's code in group A"),
    text("CLCNAMEB1", 20, "caption of the client's code in group B"),
    text("CLCNAMEC1", 20, "caption of the client's code in group C"),
    boolean("ENABLECW", "timecard entry may change crew numbers"),
    boolean("ENABLEUA", "timecard entry may change agreement codes"),
    boolean("ENABLEPC", "timecard entry may change position and class codes"),
    boolean("ENABLETC", "timecard entry may change time codes"),
    boolean("ENABLEPR", "timecard entry may change rates"),
    boolean("ENABLEDT", "timecard entry may use double time"),
    boolean("AUTONEWL", "no new timecard line by itself"),
    boolean("CKBURDEN", "check the burden table"),
    boolean("VERIFYCC", "verify cost code combinations"),
    boolean("UPDEMPPC", "entered time updates the employee's position and class"),
    boolean("UPDEMPCC", "entered time updates the employee's job and cost codes"),
    boolean("UPDEMPCW", "entered time updates the employee's crew number"),
    boolean("CHECKSTHRS", "check the limit of 8 straight hours a day"),
    boolean("CHECKOTHRS", "check the overtime limit"),
    boolean("BRQUSEMETHOD2", "equipment usage method 2"),
    integer("CLONEDOW", "last day of a cloned timecard week: 0 Friday, 1 Saturday, 2 Sunday"),
};
inline constexpr Table JOBDEFAULTS = {
    "JOBDEFAULTS", "Template of a job's settings, one row", JOBDEFAULTS_fields, {}};

inline constexpr Table JCBUFCCALIST = {
    "JCBUFCCALIST", "Job clone: cost codes of group A", CCALIST_fields, {}};
inline constexpr Table JCBUFCCBLIST = {
    "JCBUFCCBLIST", "Job clone: cost codes of group B", CCBLIST_fields, {}};
inline constexpr Table JCBUFCCCLIST = {
    "JCBUFCCCLIST", "Job clone: cost codes of group C", CCCLIST_fields, {}};
inline constexpr Table JCBUFPCLIST = {
    "JCBUFPCLIST", "Job clone: position codes", PCLIST_fields, {}};
inline constexpr Table JCBUFCCLIST = {"JCBUFCCLIST", "Job clone: class codes", CCLIST_fields, {}};
inline constexpr Table JCBUFCCRATES = {
    "JCBUFCCRATES", "Job clone: class code rates", CCRATES_fields, {}};
inline constexpr Table JCBUFCCUNION = {
    "JCBUFCCUNION", "Job clone: class code benefits", CCUNION_fields, {}};
inline constexpr Table JCBUFEXTCOSTCATS = {
    "JCBUFEXTCOSTCATS", "Job clone: external cost categories", EXTCOSTCATS_fields, {}};
inline constexpr Table JCBUFEXTCOSTRATES = {
    "JCBUFEXTCOSTRATES", "Job clone: external cost rates", EXTCOSTRATES_fields, {}};
inline constexpr Table JCBUFUALIST = {
    "JCBUFUALIST", "Job clone: agreement codes", UALIST_fields, {}};
inline constexpr Table JCBUFCATCODES = {
    "JCBUFCATCODES", "Job clone: equipment categories", CATCODES_fields, {}};
inline constexpr Table JCBUFSUBCATS = {
    "JCBUFSUBCATS", "Job clone: equipment subcategories", SUBCATS_fields, {}};
inline constexpr Table JCBUFSCRATES = {
    "JCBUFSCRATES", "Job clone: subcategory rates", SCRATES_fields, {}};
inline constexpr Table JCBUFSCRDETAIL = {
    "JCBUFSCRDETAIL", "Job clone: subcategory rates by date", SCRDETAIL_fields, {}};
inline constexpr Table JCBUFFUELTYPES = {
    "JCBUFFUELTYPES", "Job clone: fuel types", FUELTYPES_fields, {}};
inline constexpr Table JCBUFROLBRATES = {
    "JCBUFROLBRATES", "Job clone: repair order labour rates", ROLBRATES_fields, {}};

}  // namespace schema
