// MAIN.mdb: the companies, jobs and cost codes of a job site, which all modules of the suite share.
// The labour tables of the same file stand in labour_tables.h.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field SYSTAGS_fields[] = {
    longInteger("UDSTAG", "next tag of a super cost code filter"),
    longInteger("UDSDTAG", "next tag of a node of such a filter"),
    longInteger("PCTAG", "next tag of a position code"),
    longInteger("CCTAG", "next tag of a class code"),
    longInteger("ECCTAG", "next tag of an external cost category"),
    longInteger("ECRTAG", "next tag of an external cost rate"),
};
inline constexpr Table SYSTAGS = {
    "SYSTAGS", "Counters of tags of shared records, one row", SYSTAGS_fields, {}};

inline constexpr Field SITEINFO_fields[] = {
    text("SITENAME", 50, "name of the job site"),
    text("REMARKS", 100, "free remark"),
};
inline constexpr Table SITEINFO = {
    "SITEINFO", "The job site's own description, one row", SITEINFO_fields, {}};

inline constexpr Field COLIST_fields[] = {
    integer("CONO", "company number, 1 to 99"),
    text("CONAME", 30, "company name"),
    text("ADDRESS1", 40, "first address line"),
    text("ADDRESS2", 40, "second address line"),
    text("CITY", 30, "city"),
    text("State", 2, "state"),
    text("ZIP", 10, "postal code"),
    text("PLUS4", 4, "extension of the postal code"),
    text("VOICE", 14, "phone number, (   )    -    when empty"),
    text("FAX", 14, "fax number, (   )    -    when empty"),
    text("COCSTEXT", 50, "default text of the company's signature line on crew sheets"),
    text("CLCSTEXT", 50, "default text of the client's signature line on crew sheets"),
    text("INFOLINE1", 70, "first free line of printed document heads"),
    text("INFOLINE2", 70, "second free line of printed document heads"),
    text("LOGOFILENAME", 20, "file name of the logo, relative to the ZORMedia folder"),
};
inline constexpr Index COLIST_indexes[] = {
    {"CONO", {"CONO"}},
};
inline constexpr Table COLIST = {"COLIST", "One row per company", COLIST_fields, COLIST_indexes};

inline constexpr Field JOBLIST_fields[] = {
    integer("CONO", "owning company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("JOBNAME", 50, "name of the job"),
    text("REMARKS", 100, "free remark"),
    text("CCNAMEA", 20, "caption of cost code group A; empty when the job does not use it"),
    text("CCNAMEB", 20, "caption of cost code group B"),
    text("CCNAMEC", 20, "caption of cost code group C"),
    integer("CCSIZEA", "width of a cost code of group A"),
    integer("CCSIZEB", "width of a cost code of group B"),
    integer("CCSIZEC", "width of a cost code of group C"),
    text("CCTYPEA", 1, "C character or N number only, group A"),
    text("CCTYPEB", 1, "C character or N number only, group B"),
    text("CCTYPEC", 1, "C character or N number only, group C"),
    text("CLCNAMEA1", 20, "caption of the client's code in group A; empty for the usual one"),
    text("CLCNAMEB1", 20, "caption of the client's code in group B"),
    text("CLCNAMEC1", 20, "caption of the client's code in group C"),
    single("TAXCOST", "default job cost constant"),
    text("COCSTEXT", 50, "text of the company's signature line"),
    text("CLCSTEXT", 50, "text of the client's signature line"),
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
    single("OTHRSLIMIT", "overtime limit in hours"),
    boolean("BRQUSEMETHOD2", "equipment usage method 2"),
    integer("CLONEDOW", "last day of a cloned timecard week: 0 Friday, 1 Saturday, 2 Sunday"),
};
inline constexpr Index JOBLIST_indexes[] = {
    {"JOBLIST", {"CONO", "JOBNO"}, true},
    {"CONO", {"CONO"}},
    {"JOBNAME", {"CONO", "JOBNAME"}},
};
inline constexpr Table JOBLIST = {"JOBLIST", "One row per job", JOBLIST_fields, JOBLIST_indexes};

// The three cost code groups are alike but for the group's letter in three names.
consteval std::array<Field, 17> costCodeFields(std::string_view code, std::string_view description,
                                               std::string_view clientCode)
{
    return {
        integer("CONO", "company"),
        text("JOBNO", 8, "job number in its stored form"),
        text(code, 15, "cost code in its stored form"),
        text(description, 50, "description"),
        text(clientCode, 15, "the client's code"),
        text("APCODE", 12, "accounts payable code"),
        text("STAFFULC", 8, "staff upload code"),
        text("CRAFTULC", 8, "craft upload code"),
        boolean("NONREIM", "not reimbursable"),
        text("GLCODE", 10, "default G/L code of line items with this cost code"),
        text("MCODE", 1, "default material code of such line items"),
        longInteger("WOTAG", "work order, equipment side"),
        integer("DLTAG", "download mark; 0 when never downloaded"),
        text("POLIREF", 20, "purchase order line item reference"),
        text("REVIEWER", 30, "reviewer"),
        text("PLANTCODE", 20, "plant"),
        text("Location", 30, "location"),
    };
}

inline constexpr auto CCALIST_fields = costCodeFields("COSTCODEA", "DESCA", "CUSTCODEA1");
inline constexpr Index CCALIST_indexes[] = {
    {"CCALIST", {"CONO", "JOBNO", "COSTCODEA"}, true},
    {"CCANAME", {"CONO", "JOBNO", "DESCA"}},
};
inline constexpr Table CCALIST = {"CCALIST", "Cost codes of group A, one row per code of a job",
                                  CCALIST_fields, CCALIST_indexes};

inline constexpr auto CCBLIST_fields = costCodeFields("COSTCODEB", "DESCB", "CUSTCODEB1");
inline constexpr Index CCBLIST_indexes[] = {
    {"CCBLIST", {"CONO", "JOBNO", "COSTCODEB"}, true},
    {"CCBNAME", {"CONO", "JOBNO", "DESCB"}},
};
inline constexpr Table CCBLIST = {"CCBLIST", "Cost codes of group B, one row per code of a job",
                                  CCBLIST_fields, CCBLIST_indexes};

inline constexpr auto CCCLIST_fields = costCodeFields("COSTCODEC", "DESCC", "CUSTCODEC1");
inline constexpr Index CCCLIST_indexes[] = {
    {"CCCLIST", {"CONO", "JOBNO", "COSTCODEC"}, true},
    {"CCCNAME", {"CONO", "JOBNO", "DESCC"}},
};
inline constexpr Table CCCLIST = {"CCCLIST", "Cost codes of group C, one row per code of a job",
                                  CCCLIST_fields, CCCLIST_indexes};

inline constexpr Field ZORTLCC_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("GROUPID", 1, "letter of the cost code group: A, B or C"),
    text("COSTCODE", 15, "cost code in its stored form"),
    text("Desc", 50, "description, copied when the list is filled"),
    boolean("PRINTME", "reports print this code"),
    boolean("ARCHIVED", "inactive"),
    boolean("TAGGED", "marked for the next command of the screen"),
};
inline constexpr Index ZORTLCC_indexes[] = {
    {"ZORTLCC", {"CONO", "JOBNO", "GROUPID", "COSTCODE"}},
};
inline constexpr Table ZORTLCC = {"ZORTLCC", "Target lists of cost codes that reports print",
                                  ZORTLCC_fields, ZORTLCC_indexes};

inline constexpr Field UDSLIST_fields[] = {
    longInteger("UDSTAG", "the filter's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("UDSCODE", 6, "code of the filter, one of a kind in the job"),
    text("UDSNAME", 50, "description"),
    text("CCGL1", 1, "cost code group of level 1: A, B or C; blank for no such level"),
    text("CCGL2", 1, "cost code group of level 2"),
    text("CCGL3", 1, "cost code group of level 3"),
};
inline constexpr Index UDSLIST_indexes[] = {
    {"UDSLIST", {"CONO", "JOBNO", "UDSCODE"}},
    {"UDSNAME", {"CONO", "JOBNO", "UDSNAME"}},
    {"UDSTAG", {"UDSTAG"}, true},
};
inline constexpr Table UDSLIST = {"UDSLIST", "Super cost code filters, one row per filter",
                                  UDSLIST_fields, UDSLIST_indexes};

inline constexpr Field UDSLEVEL_fields[] = {
    longInteger("UDSDTAG", "the node's tag"),
    longInteger("OWNERTAG", "the filter at level 1, the parent node at levels 2 and 3"),
    text("COSTCODE", 15, "cost code in its stored form"),
};
inline constexpr Index UDSLEVEL1_indexes[] = {
    {"UDSCCL1", {"OWNERTAG", "COSTCODE"}},
};
inline constexpr Table UDSLEVEL1 = {"UDSLEVEL1", "Nodes of super cost code filters, level 1",
                                    UDSLEVEL_fields, UDSLEVEL1_indexes};
inline constexpr Index UDSLEVEL2_indexes[] = {
    {"UDSCCL2", {"OWNERTAG", "COSTCODE"}},
};
inline constexpr Table UDSLEVEL2 = {"UDSLEVEL2", "Nodes of super cost code filters, level 2",
                                    UDSLEVEL_fields, UDSLEVEL2_indexes};
inline constexpr Index UDSLEVEL3_indexes[] = {
    {"UDSCCL3", {"OWNERTAG", "COSTCODE"}},
};
inline constexpr Table UDSLEVEL3 = {"UDSLEVEL3", "Nodes of super cost code filters, level 3",
                                    UDSLEVEL_fields, UDSLEVEL3_indexes};

inline constexpr Field XILXREF_fields[] = {
    text("MODULEID", 3, "module that owns the row, such as VEX"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("ITEMA", 15, "cost code of group A"),
    text("ITEMB", 15, "cost code of group B"),
    text("ITEMC", 15, "cost code of group C"),
    text("COSTOBJECT", 30, "the client's cost object"),
    text("NACODE", 30, "the client's network activity code"),
};
inline constexpr Index XILXREF_indexes[] = {
    {"XILXREF", {"CONO", "JOBNO", "ITEMA", "ITEMB", "ITEMC"}},
    {"XILMODULEID", {"MODULEID", "CONO", "JOBNO", "ITEMA", "ITEMB", "ITEMC"}},
};
inline constexpr Table XILXREF = {"XILXREF",
                                  "Cost codes against the client's electronic invoicing codes",
                                  XILXREF_fields, XILXREF_indexes};

}  // namespace schema
