// Files of sibling modules, told only as far as this module reads and writes them; real files may
// hold further tables and fields. XILXREF, which stands in ZORXIL.mdb too, is in main_tables.h.
#pragma once

#include "core/schema/schema.h"

namespace schema {

// EDUPATH.mdb, XILPATH.mdb, WIFTPATH.mdb, GRUDPATH.mdb: where the sibling's data lies.
inline constexpr Field SIBLINGPATH_fields[] = {
    text("Path", 255, "folder of the sibling's files"),
};
inline constexpr Table EDUPATH = {
    "EDUPATH", "Folder of the EcoSys data, one row", SIBLINGPATH_fields, {}};
inline constexpr Table XILPATH = {
    "XILPATH", "Folder of the electronic invoicing data, one row", SIBLINGPATH_fields, {}};
inline constexpr Table WIFTPATH = {
    "WIFTPATH", "Folder of a sibling's data, one row", SIBLINGPATH_fields, {}};
inline constexpr Table GRUDPATH = {
    "GRUDPATH", "Folder of a sibling's data, one row", SIBLINGPATH_fields, {}};

// EDUMAIN.mdb, of the EcoSys download utility.
inline constexpr Field PROJECTS_fields[] = {
    longInteger("PROJTAG", "the project's tag"),
    text("PROJCODE", 10, "project code"),
    text("PROJNAME", 50, "project name"),
};
inline constexpr Index PROJECTS_indexes[] = {
    {"PROJECTS", {"PROJCODE"}},
};
inline constexpr Table PROJECTS = {"PROJECTS", "EcoSys projects", PROJECTS_fields,
                                   PROJECTS_indexes};

inline constexpr Field EDUCCXREF_fields[] = {
    longInteger("PROJTAG", "project"),
    integer("SITETYPE", "type of the job site"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("COSTCODEA", 15, "cost code of group A; empty is a value"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
};
inline constexpr Index EDUCCXREF_indexes[] = {
    {"EDUCCXREF", {"CONO", "JOBNO", "COSTCODEA", "COSTCODEB", "COSTCODEC"}},
};
inline constexpr Table EDUCCXREF = {"EDUCCXREF", "Cost code combinations known to EcoSys",
                                    EDUCCXREF_fields, EDUCCXREF_indexes};

// ZORBRQ.mdb, of the equipment module.
inline constexpr Field BRQTAGS_fields[] = {
    longInteger("CATTAG", "next tag of an equipment category"),
    longInteger("SCTAG", "next tag of a subcategory"),
    longInteger("SCDTAG", "next tag of a subcategory rate"),
    longInteger("FTTAG", "next tag of a fuel type"),
};
inline constexpr Table BRQTAGS = {
    "BRQTAGS", "Counters of equipment tags, one row", BRQTAGS_fields, {}};

inline constexpr Field CATCODES_fields[] = {
    longInteger("CATTAG", "the category's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("CATCODE", 10, "category code"),
    text("CATNAME", 50, "description"),
};
inline constexpr Index CATCODES_indexes[] = {
    {"CATCODES", {"CONO", "JOBNO", "CATCODE"}},
    {"CATTAG", {"CATTAG"}, true},
};
inline constexpr Table CATCODES = {"CATCODES", "Equipment categories of a job", CATCODES_fields,
                                   CATCODES_indexes};

inline constexpr Field SUBCATS_fields[] = {
    longInteger("SCTAG", "the subcategory's tag"),
    longInteger("CATTAG", "owning category"),
    text("SCCODE", 10, "subcategory code"),
    text("SCNAME", 50, "description"),
};
inline constexpr Index SUBCATS_indexes[] = {
    {"SUBCATS", {"CATTAG", "SCCODE"}},
    {"SCTAG", {"SCTAG"}, true},
};
inline constexpr Table SUBCATS = {"SUBCATS", "Equipment subcategories", SUBCATS_fields,
                                  SUBCATS_indexes};

inline constexpr Field SCRATES_fields[] = {
    longInteger("SCDTAG", "the rate's tag"),
    longInteger("SCTAG", "owning subcategory"),
    text("SCDNAME", 50, "description"),
};
inline constexpr Index SCRATES_indexes[] = {
    {"SCRATES", {"SCTAG"}},
    {"SCDTAG", {"SCDTAG"}, true},
};
inline constexpr Table SCRATES = {"SCRATES", "Rates of an equipment subcategory", SCRATES_fields,
                                  SCRATES_indexes};

inline constexpr Field SCRDETAIL_fields[] = {
    longInteger("SCDTAG", "owning rate"),
    text("FDATE", 10, "date from which the amount holds"),
    text("LDATE", 8, "its sort form"),
    doubleFloat("RATE", "amount"),
};
inline constexpr Index SCRDETAIL_indexes[] = {
    {"SCRDETAIL", {"SCDTAG", "LDATE"}},
};
inline constexpr Table SCRDETAIL = {"SCRDETAIL", "Amounts of a subcategory rate by date",
                                    SCRDETAIL_fields, SCRDETAIL_indexes};

inline constexpr Field FUELTYPES_fields[] = {
    longInteger("FTTAG", "the fuel type's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("FTCODE", 10, "fuel type"),
    text("FTNAME", 50, "description"),
};
inline constexpr Index FUELTYPES_indexes[] = {
    {"FUELTYPES", {"CONO", "JOBNO", "FTCODE"}},
    {"FTTAG", {"FTTAG"}, true},
};
inline constexpr Table FUELTYPES = {"FUELTYPES", "Fuel types of a job", FUELTYPES_fields,
                                    FUELTYPES_indexes};

inline constexpr Field ROLBRATES_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    doubleFloat("RATE", "rate"),
};
inline constexpr Index ROLBRATES_indexes[] = {
    {"ROLBRATES", {"CONO", "JOBNO"}},
};
inline constexpr Table ROLBRATES = {"ROLBRATES", "Repair order labour rates of a job",
                                    ROLBRATES_fields, ROLBRATES_indexes};

inline constexpr Field ETINV_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
};
inline constexpr Index ETINV_indexes[] = {
    {"ETINV", {"CONO", "JOBNO"}},
};
inline constexpr Table ETINV = {"ETINV", "Equipment usage items of invoices", ETINV_fields,
                                ETINV_indexes};

inline constexpr Field ETLIST_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("COSTCODEA", 15, "cost code of group A"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
};
inline constexpr Index ETLIST_indexes[] = {
    {"ETLIST", {"CONO", "JOBNO"}},
};
inline constexpr Table ETLIST = {"ETLIST", "Equipment usage items", ETLIST_fields, ETLIST_indexes};

inline constexpr Field BRQWOLIST_fields[] = {
    longInteger("BRQWOTAG", "the work order's tag"),
    text("BRQWONO", 10, "work order number"),
    text("REMARKS", 40, "remarks"),
    text("EQNO", 20, "equipment number"),
};
inline constexpr Index BRQWOLIST_indexes[] = {
    {"BRQWOTAG", {"BRQWOTAG"}, true},
    {"BRQWONO", {"BRQWONO"}},
};
inline constexpr Table BRQWOLIST = {"BRQWOLIST", "Equipment maintenance work orders",
                                    BRQWOLIST_fields, BRQWOLIST_indexes};

inline constexpr Field BRQROLIST_fields[] = {
    longInteger("BRQROTAG", "the repair order's tag"),
    text("BRQRONO", 10, "repair order number"),
    text("FDATE", 10, "date"),
    text("UNITNO", 20, "unit number"),
    text("INSTRUCTIONS", 100, "instructions"),
};
inline constexpr Index BRQROLIST_indexes[] = {
    {"BRQROTAG", {"BRQROTAG"}, true},
    {"BRQRONO", {"BRQRONO"}},
};
inline constexpr Table BRQROLIST = {"BRQROLIST", "Equipment repair orders", BRQROLIST_fields,
                                    BRQROLIST_indexes};

inline constexpr Field BRQROMAT_fields[] = {
    longInteger("BRQROMTAG", "the line's tag"),
    longInteger("BRQROTAG", "owning repair order"),
    longInteger("ILCTAG", "branch of the item"),
    longInteger("ISNTAG", "inventory item"),
    text("FDATE", 10, "date of use"),
    single("QTY", "quantity used"),
};
inline constexpr Index BRQROMAT_indexes[] = {
    {"BRQROMAT", {"BRQROTAG"}},
    {"BRQROMTAG", {"BRQROMTAG"}, true},
    {"BRQROMISNTAG", {"ISNTAG"}},
};
inline constexpr Table BRQROMAT = {"BRQROMAT", "Material lines of equipment repair orders",
                                   BRQROMAT_fields, BRQROMAT_indexes};

}  // namespace schema
