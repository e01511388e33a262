// Documents that move or count stock: issue, return and transfer reports, physical inventories,
// adjustments, and out-of-stock reports.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field MIRLIST_fields[] = {
    longInteger("MIRTAG", "the report's tag"),
    text("MIRNO", 8, "report number, typed by the user, padded to 8"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    text("FDATE", 10, "document date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    longInteger("ILCTAG", "branch that the material leaves"),
    text("ISSUEDTO", 30, "person or party issued to"),
    text("MIRCOMMENT", 70, "comment"),
};
inline constexpr Index MIRLIST_indexes[] = {
    {"MIRTAG", {"MIRTAG"}, true},
    {"MIRNO", {"MIRNO"}, true},
};
inline constexpr Table MIRLIST = {"MIRLIST", "Material issue reports", MIRLIST_fields,
                                  MIRLIST_indexes};

inline constexpr Field MIRITEMS_fields[] = {
    longInteger("MIRITAG", "the line's tag"),
    longInteger("MIRTAG", "the report"),
    integer("ITEMNO", "line number, 1 upward"),
    longInteger("ICNTAG", "catalog item"),
    longInteger("ISNTAG", "the branch's item of that catalog item"),
    doubleFloat("QTY", "quantity issued"),
    text("UNIT", 5, "unit of measure"),
};
inline constexpr Index MIRITEMS_indexes[] = {
    {"MIRITEMS", {"MIRTAG", "ITEMNO"}},
    {"MIRITEMSICNTAG", {"MIRTAG", "ICNTAG"}},
};
inline constexpr Table MIRITEMS = {"MIRITEMS", "Lines of material issue reports", MIRITEMS_fields,
                                   MIRITEMS_indexes};

inline constexpr Field MRRLIST_fields[] = {
    longInteger("MRRTAG", "the report's tag"),
    text("MRRNO", 8, "report number, typed by the user, padded to 8"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    text("FDATE", 10, "document date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    longInteger("ILCTAG", "branch that the material leaves"),
    longInteger("VENTAG", "vendor returned to; 0 for none"),
    text("MRRCOMMENT", 70, "comment"),
};
inline constexpr Index MRRLIST_indexes[] = {
    {"MRRTAG", {"MRRTAG"}, true},
    {"MRRNO", {"MRRNO"}, true},
};
inline constexpr Table MRRLIST = {"MRRLIST", "Material return reports", MRRLIST_fields,
                                  MRRLIST_indexes};

inline constexpr Field MRRITEMS_fields[] = {
    longInteger("MRRITAG", "the line's tag"),
    longInteger("MRRTAG", "the report"),
    integer("ITEMNO", "line number, 1 upward"),
    longInteger("ICNTAG", "catalog item"),
    longInteger("ISNTAG", "the branch's item of that catalog item"),
    doubleFloat("QTY", "quantity returned"),
    text("UNIT", 5, "unit of measure"),
};
inline constexpr Index MRRITEMS_indexes[] = {
    {"MRRITEMS", {"MRRTAG", "ITEMNO"}},
    {"MRRITEMSICNTAG", {"MRRTAG", "ICNTAG"}},
};
inline constexpr Table MRRITEMS = {"MRRITEMS", "Lines of material return reports", MRRITEMS_fields,
                                   MRRITEMS_indexes};

inline constexpr Field MTRLIST_fields[] = {
    longInteger("MTRTAG", "the report's tag"),
    text("MTRNO", 8, "report number, typed by the user, padded to 8"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    text("FDATE", 10, "document date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    longInteger("FROMILCTAG", "branch that the material comes from"),
    longInteger("TOILCTAG", "branch that it goes to"),
    text("MTRCOMMENT", 70, "comment"),
};
inline constexpr Index MTRLIST_indexes[] = {
    {"MTRTAG", {"MTRTAG"}, true},
    {"MTRNO", {"MTRNO"}, true},
};
inline constexpr Table MTRLIST = {"MTRLIST", "Material transfer reports", MTRLIST_fields,
                                  MTRLIST_indexes};

inline constexpr Field MTRITEMS_fields[] = {
    longInteger("MTRITAG", "the line's tag"),
    longInteger("MTRTAG", "the report"),
    integer("ITEMNO", "line number, 1 upward"),
    longInteger("ICNTAG", "catalog item"),
    longInteger("FROMISNTAG", "item of the branch that the material comes from"),
    longInteger("TOISNTAG", "item of the branch that it goes to"),
    doubleFloat("QTY", "quantity transferred"),
    text("UNIT", 5, "unit of measure"),
};
inline constexpr Index MTRITEMS_indexes[] = {
    {"MTRITEMS", {"MTRTAG", "ITEMNO"}},
    {"MTRITEMSICNTAG", {"MTRTAG", "ICNTAG"}},
};
inline constexpr Table MTRITEMS = {"MTRITEMS", "Lines of material transfer reports",
                                   MTRITEMS_fields, MTRITEMS_indexes};

inline constexpr Field PILIST_fields[] = {
    longInteger("PITAG", "the count's tag"),
    longInteger("ILCTAG", "branch counted"),
    text("PIFDATE", 10, "date of the count, MM/DD/YYYY"),
    text("PILDATE", 8, "the same date as YYYYMMDD"),
    text("PIDESC", 50, "description"),
};
inline constexpr Index PILIST_indexes[] = {
    {"PITAG", {"PITAG"}, true},
    {"PILDATE", {"ILCTAG", "PILDATE"}},
};
inline constexpr Table PILIST = {"PILIST", "Physical inventories, one row per count of a branch",
                                 PILIST_fields, PILIST_indexes};

inline constexpr Field PIITEMS_fields[] = {
    longInteger("PITAG", "the count"),
    longInteger("ISNTAG", "the item"),
    longInteger("ILCTAG", "branch of the item"),
    single("PICOUNT", "quantity counted"),
    single("AVAILABLE", "quantity that the books showed at the count's date"),
};
inline constexpr Index PIITEMS_indexes[] = {
    {"PITAG", {"PITAG", "ISNTAG"}},
    {"ISNTAG", {"ISNTAG"}},
};
inline constexpr Table PIITEMS = {"PIITEMS", "Items of physical inventories", PIITEMS_fields,
                                  PIITEMS_indexes};

inline constexpr auto INVADJLIST_fields = withAuditFields({
    longInteger("INVADJTAG", "the adjustment's tag"),
    longInteger("ISNTAG", "the item adjusted"),
    longInteger("ILCTAG", "branch of the item"),
    text("FDATE", 10, "date of the adjustment, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    text("Desc", 50, "reason of the adjustment"),
    single("QUANTITY", "signed quantity"),
});
inline constexpr Index INVADJLIST_indexes[] = {
    {"INVADJLIST", {"ISNTAG"}},
};
inline constexpr Table INVADJLIST = {"INVADJLIST", "Adjustments of on-hand quantities",
                                     INVADJLIST_fields, INVADJLIST_indexes};

inline constexpr Field OSRLIST_fields[] = {
    longInteger("OSRTAG", "the report's tag"),
    longInteger("ILCTAG", "branch"),
    integer("CONO", "company that the orders are for"),
    text("JOBNO", 8, "job number, stored form"),
    text("OSRFDATE", 10, "date of the report, MM/DD/YYYY"),
    text("OSRLDATE", 8, "the same date as YYYYMMDD"),
    text("OSRDESC", 50, "description"),
};
inline constexpr Index OSRLIST_indexes[] = {
    {"OSRTAG", {"OSRTAG"}, true},
    {"OSRLDATE", {"ILCTAG", "OSRLDATE"}},
};
inline constexpr Table OSRLIST = {"OSRLIST", "Out-of-stock reports", OSRLIST_fields,
                                  OSRLIST_indexes};

inline constexpr Field OSRITEMS_fields[] = {
    longInteger("OSRTAG", "the report"),
    longInteger("ILCTAG", "branch of the item"),
    longInteger("ISNTAG", "the item"),
    single("AVAILABLE", "quantity on hand when compiled"),
    single("OSRCOUNT", "quantity to order, free to be changed after the compile"),
};
inline constexpr Index OSRITEMS_indexes[] = {
    {"OSRTAG", {"OSRTAG"}},
    {"OSRITEMS", {"OSRTAG", "ISNTAG"}},
};
inline constexpr Table OSRITEMS = {"OSRITEMS", "Items below their minimum", OSRITEMS_fields,
                                   OSRITEMS_indexes};

inline constexpr Field OSRPOLIST_fields[] = {
    longInteger("OSRTAG", "the report"),
    longInteger("VENTAG", "vendor to order from; 0 for items without one"),
    text("PONO", 16, "number that the purchase order is to have"),
    text("FDATE", 10, "date of the purchase order, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    text("Required", 10, "required by date"),
    text("COSTCODEA", 15, "cost code of group A for the lines, stored form"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
    longInteger("POTAG", "the purchase order made; 0 until then"),
    boolean("CREATED", "the purchase order has been made"),
};
inline constexpr Index OSRPOLIST_indexes[] = {
    {"OSRPOLIST", {"OSRTAG", "VENTAG"}},
};
inline constexpr Table OSRPOLIST = {"OSRPOLIST",
                                    "Purchase orders to make of out-of-stock reports, one a vendor",
                                    OSRPOLIST_fields, OSRPOLIST_indexes};

}  // namespace schema
