// ZORVEX.mdb: the code tables that documents and inventory items refer to.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field GLCODES_fields[] = {
    integer("CONO", "company"),
    text("GLCODE", 10, "G/L code"),
    text("Desc", 50, "description"),
};
inline constexpr Index GLCODES_indexes[] = {
    {"GLCODES", {"CONO", "GLCODE"}},
    {"GLDESC", {"CONO", "Desc"}},
};
inline constexpr Table GLCODES = {"GLCODES", "General ledger codes of a company", GLCODES_fields,
                                  GLCODES_indexes};

inline constexpr Field MCLIST_fields[] = {
    longInteger("MCTAG", "the code's tag"),
    text("MCODE", 1, "material code"),
    text("MCNAME", 30, "description"),
    text("SHIPPERCODE", 10, "shipper code, in rows of the shipper code screen"),
    text("SHIPPERDESC", 30, "its description"),
};
inline constexpr Index MCLIST_indexes[] = {
    {"MCODE", {"MCODE"}},
    {"SHIPPERCODE", {"SHIPPERCODE"}},
};
inline constexpr Table MCLIST = {"MCLIST", "Material codes", MCLIST_fields, MCLIST_indexes};

inline constexpr Field TERMSCODES_fields[] = {
    longInteger("TERMSCODETAG", "the code's tag"),
    text("TERMSCODE", 2, "terms code, upper case"),
    text("TCNAME", 30, "description"),
    integer("DAYSB4DUE", "days from the invoice date to the due date"),
    integer("DAYSDISALLOW", "days from the invoice date until the discount lapses"),
    single("DISCOUNTRATE", "discount in percent"),
};
inline constexpr Index TERMSCODES_indexes[] = {
    {"TERMSCODES", {"TERMSCODE"}},
    {"TERMSCODETAG", {"TERMSCODETAG"}, true},
};
inline constexpr Table TERMSCODES = {"TERMSCODES", "Vendors' terms of payment", TERMSCODES_fields,
                                     TERMSCODES_indexes};

inline constexpr Field INVCODES_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("INVCODE", 10, "invoice code, upper case"),
    text("DESC", 30, "description"),
    text("UOM", 3, "unit of measure"),
};
inline constexpr Index INVCODES_indexes[] = {
    {"INVCODES", {"CONO", "JOBNO", "INVCODE"}},
};
inline constexpr Table INVCODES = {"INVCODES", "Invoice codes of a job for billing the client",
                                   INVCODES_fields, INVCODES_indexes};

inline constexpr Field REQTYPES_fields[] = {
    text("REQTYPE", 1, "requisition type"),
    text("RTNAME", 30, "description"),
};
inline constexpr Index REQTYPES_indexes[] = {
    {"REQTYPE", {"REQTYPE"}},
};
inline constexpr Table REQTYPES = {"REQTYPES", "Requisition types", REQTYPES_fields,
                                   REQTYPES_indexes};

inline constexpr Field SHIPTOITEMS_fields[] = {
    text("SHIPTO", 50, "text for the ship to field of documents"),
};
inline constexpr Index SHIPTOITEMS_indexes[] = {
    {"SHIPTOITEMS", {"SHIPTO"}},
};
inline constexpr Table SHIPTOITEMS = {"SHIPTOITEMS", "Ship to texts to choose from",
                                      SHIPTOITEMS_fields, SHIPTOITEMS_indexes};

inline constexpr Field SHIPVIAITEMS_fields[] = {
    text("SHIPVIA", 50, "text for the ship via field of documents"),
};
inline constexpr Index SHIPVIAITEMS_indexes[] = {
    {"SHIPVIAITEMS", {"SHIPVIA"}},
};
inline constexpr Table SHIPVIAITEMS = {"SHIPVIAITEMS", "Ship via texts to choose from",
                                       SHIPVIAITEMS_fields, SHIPVIAITEMS_indexes};

inline constexpr Field WHODIDITITEMS_fields[] = {
    text("WHODIDIT", 30, "name for the requisitioned by field of documents"),
};
inline constexpr Index WHODIDITITEMS_indexes[] = {
    {"WHODIDITITEMS", {"WHODIDIT"}},
};
inline constexpr Table WHODIDITITEMS = {"WHODIDITITEMS", "Requisitioners to choose from",
                                        WHODIDITITEMS_fields, WHODIDITITEMS_indexes};

inline constexpr Field JOB_NO_DEFAULTS_fields[] = {
    longInteger("JNDTAG", "the row's tag"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
    text("REQTYPE", 1, "requisition type of a new requisition"),
    text("SHIPTO", 50, "ship to of a new requisition"),
    text("SHIPVIA", 50, "ship via of a new requisition"),
    text("FOB", 20, "FOB of a new requisition"),
    text("TERMS", 20, "terms of a new requisition"),
    text("WHODIDIT", 30, "requisitioner of a new requisition"),
    longInteger("REQNO", "legacy counter; a cloned job gets 1"),
    integer("ITEM1",
            "first slot of the printed cost code column: 1 none, 2 job number, 3 to 5 "
            "cost codes A to C, 6 G/L number, 7 material code"),
    integer("ITEM2", "second slot"),
    integer("ITEM3", "third slot"),
    integer("ITEM4", "fourth slot"),
    integer("ITEM5", "fifth slot"),
    integer("ITEM6", "sixth slot"),
    text("REPLYTO", 30, "request for quotation: whom the vendor answers"),
    text("REPLYBY", 10, "request for quotation: date of the answer"),
    text("REPLYPHONE", 14, "request for quotation: phone number"),
    text("REPLYFAX", 14, "request for quotation: fax number"),
};
inline constexpr Index JOB_NO_DEFAULTS_indexes[] = {
    {"JOB_NO_DEFAULTS", {"CONO", "JOBNO"}},
    {"JNDTAG", {"JNDTAG"}, true},
};
inline constexpr Table JOB_NO_DEFAULTS = {"JOB_NO_DEFAULTS",
                                          "What a job's documents start from, one row per job",
                                          JOB_NO_DEFAULTS_fields, JOB_NO_DEFAULTS_indexes};

inline constexpr Field ILCLIST_fields[] = {
    longInteger("ILCTAG", "the branch's tag"),
    text("ILCCODE", 2, "branch code"),
    text("ILCNAME", 40, "description"),
};
inline constexpr Index ILCLIST_indexes[] = {
    {"ILCCODE", {"ILCCODE"}},
    {"ILCTAG", {"ILCTAG"}, true},
};
inline constexpr Table ILCLIST = {"ILCLIST", "Branches that keep an inventory", ILCLIST_fields,
                                  ILCLIST_indexes};

inline constexpr Field BINLIST_fields[] = {
    longInteger("ILCTAG", "owning branch"),
    longInteger("BINTAG", "the bin's tag"),
    text("BINNO", 6, "bin number"),
    text("BINNAME", 40, "description"),
};
inline constexpr Index BINLIST_indexes[] = {
    {"BINNO", {"ILCTAG", "BINNO"}},
    {"BINTAG", {"BINTAG"}, true},
};
inline constexpr Table BINLIST = {"BINLIST", "Bins of a branch", BINLIST_fields, BINLIST_indexes};

inline constexpr Field SERIESCODES_fields[] = {
    longInteger("ILCTAG", "owning branch; 0 for the catalog"),
    longInteger("SERIESTAG", "the series code's tag"),
    text("SERIESCODE", 3, "series code"),
    text("SERIESNAME", 40, "description"),
};
inline constexpr Index SERIESCODES_indexes[] = {
    {"SERIESCODE", {"ILCTAG", "SERIESCODE"}},
    {"SERIESTAG", {"SERIESTAG"}, true},
};
inline constexpr Table SERIESCODES = {"SERIESCODES", "Series codes of a branch", SERIESCODES_fields,
                                      SERIESCODES_indexes};

inline constexpr Field SUBCATEGORIES_fields[] = {
    longInteger("SERIESTAG", "owning series code"),
    longInteger("SUBCATTAG", "the subcategory's tag"),
    text("SUBCATCODE", 4, "subcategory code"),
    text("SUBCATNAME", 40, "description"),
};
inline constexpr Index SUBCATEGORIES_indexes[] = {
    {"SUBCATCODE", {"SERIESTAG", "SUBCATCODE"}},
    {"SUBCATEGORIES", {"SERIESTAG", "SUBCATNAME"}},
    {"SUBCATTAG", {"SUBCATTAG"}, true},
};
inline constexpr Table SUBCATEGORIES = {"SUBCATEGORIES", "Subcategories of a series code",
                                        SUBCATEGORIES_fields, SUBCATEGORIES_indexes};

}  // namespace schema
