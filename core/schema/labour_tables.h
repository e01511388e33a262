// Labour tables of MAIN.mdb. They belong to the labour module; this one only clones and deletes
// their rows with the job, so real files may hold further fields.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field TCLIST_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("COSTCODEA", 15, "cost code of group A"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
};
inline constexpr Index TCLIST_indexes[] = {
    {"TCCOJOB", {"CONO", "JOBNO"}},
};
inline constexpr Table TCLIST = {"TCLIST", "Timecard items", TCLIST_fields, TCLIST_indexes};

inline constexpr Field PCLIST_fields[] = {
    longInteger("PCTAG", "the position code's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("PCCODE", 10, "position code"),
    text("PCNAME", 50, "description"),
};
inline constexpr Index PCLIST_indexes[] = {
    {"PCLIST", {"CONO", "JOBNO", "PCCODE"}},
    {"PCTAG", {"PCTAG"}, true},
};
inline constexpr Table PCLIST = {"PCLIST", "Position codes of a job", PCLIST_fields,
                                 PCLIST_indexes};

inline constexpr Field CCLIST_fields[] = {
    longInteger("CCTAG", "the class code's tag"),
    longInteger("PCTAG", "owning position code"),
    text("CCCODE", 10, "class code"),
    text("CCNAME", 50, "description"),
};
inline constexpr Index CCLIST_indexes[] = {
    {"CCLIST", {"PCTAG", "CCCODE"}},
    {"CCTAG", {"CCTAG"}, true},
};
inline constexpr Table CCLIST = {"CCLIST", "Labour class codes of a position code", CCLIST_fields,
                                 CCLIST_indexes};

inline constexpr Field CCRATES_fields[] = {
    longInteger("CCTAG", "owning class code"),
    text("FDATE", 10, "date from which the rate holds"),
    text("LDATE", 8, "its sort form"),
    doubleFloat("RATE", "rate per hour"),
};
inline constexpr Index CCRATES_indexes[] = {
    {"CCRATES", {"CCTAG", "LDATE"}},
};
inline constexpr Table CCRATES = {"CCRATES", "Rates of a class code by date", CCRATES_fields,
                                  CCRATES_indexes};

inline constexpr Field CCUNION_fields[] = {
    longInteger("CCTAG", "owning class code"),
    text("FDATE", 10, "date from which the benefit holds"),
    text("LDATE", 8, "its sort form"),
    doubleFloat("RATE", "benefit per hour"),
};
inline constexpr Index CCUNION_indexes[] = {
    {"CCUNION", {"CCTAG", "LDATE"}},
};
inline constexpr Table CCUNION = {"CCUNION", "Benefits of a class code by date", CCUNION_fields,
                                  CCUNION_indexes};

inline constexpr Field UALIST_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("UACODE", 10, "agreement code"),
    text("UANAME", 50, "description"),
};
inline constexpr Index UALIST_indexes[] = {
    {"UALIST", {"CONO", "JOBNO", "UACODE"}},
};
inline constexpr Table UALIST = {"UALIST", "Agreement codes of a job", UALIST_fields,
                                 UALIST_indexes};

inline constexpr Field EXTCOSTCATS_fields[] = {
    longInteger("ECCTAG", "the category's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("ECCCODE", 10, "category code"),
    text("ECCNAME", 50, "description"),
};
inline constexpr Index EXTCOSTCATS_indexes[] = {
    {"EXTCOSTCATS", {"CONO", "JOBNO", "ECCCODE"}},
    {"ECCTAG", {"ECCTAG"}, true},
};
inline constexpr Table EXTCOSTCATS = {"EXTCOSTCATS", "External cost categories of a job",
                                      EXTCOSTCATS_fields, EXTCOSTCATS_indexes};

inline constexpr Field EXTCOSTRATES_fields[] = {
    longInteger("ECRTAG", "the rate's tag"),
    longInteger("ECCTAG", "owning category"),
    text("FDATE", 10, "date from which the rate holds"),
    text("LDATE", 8, "its sort form"),
    doubleFloat("RATE", "rate"),
};
inline constexpr Index EXTCOSTRATES_indexes[] = {
    {"EXTCOSTRATES", {"ECCTAG", "LDATE"}},
    {"ECRTAG", {"ECRTAG"}, true},
};
inline constexpr Table EXTCOSTRATES = {"EXTCOSTRATES", "Rates of an external cost category",
                                       EXTCOSTRATES_fields, EXTCOSTRATES_indexes};

inline constexpr Field EXTCOSTITEMS_fields[] = {
    longInteger("ECCTAG", "category of the cost"),
    text("FDATE", 10, "date of the cost"),
    text("LDATE", 8, "its sort form"),
    doubleFloat("AMOUNT", "amount"),
};
inline constexpr Index EXTCOSTITEMS_indexes[] = {
    {"EXTCOSTITEMS", {"ECCTAG", "LDATE"}},
};
inline constexpr Table EXTCOSTITEMS = {"EXTCOSTITEMS", "Costs booked under an external category",
                                       EXTCOSTITEMS_fields, EXTCOSTITEMS_indexes};

}  // namespace schema
