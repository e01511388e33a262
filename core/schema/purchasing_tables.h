// The documents of purchasing: requisitions, purchase orders, the line items that both share, and
// the small tables that only they use.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr auto REQLIST_fields = withAuditFields({
    longInteger("REQTAG", "record tag"),
    longInteger("REQNO", "requisition number, 1 to 99999, shown with five digits"),
    text("REQTYPE", 1, "requisition type, a code of REQTYPES"),
    integer("CONO", "company number"),
    text("JOBNO", 8, "job number, stored form"),
    longInteger("VENTAG", "vendor; 0 when none"),
    text("PONO", 16, "number of the purchase order it would produce or has produced first"),
    text("FDATE", 10, "requisition date, MM/DD/YYYY"),
    text("LDATE", 8, "requisition date, YYYYMMDD"),
    text("FOB", 20, "free on board terms"),
    text("TERMS", 20, "terms of payment"),
    text("PROMBY", 10, "promised by date, or blank"),
    text("Required", 10, "required by date, or blank"),
    text("WHODIDIT", 30, "who requisitioned it"),
    text("VCONTACT", 50, "vendor contact"),
    text("QLEVEL", 10, "Q level"),
    text("SHIPTO", 50, "where to deliver"),
    text("SHIPVIA", 50, "how to deliver"),
    text("INTEND", 70, "intended use of the material"),
    text("CMRNO", 10, "client requisition number"),
    text("APPROVER", 30, "client approver"),
    text("LOCDISPOSITION", 50, "location or disposition"),
    text("REIMB", 1, "reimbursable: Y, N or blank"),
    doubleFloat("AMOUNT", "sum of its line items, written when the line item screen closes"),
    longInteger("BRQWOTAG", "equipment work order it belongs to; 0 when none"),
    longInteger("BRQROTAG", "equipment repair order it belongs to; 0 when none"),
    text("Status", 10, "Open, Closed, Voided, Submitted or RFQ Sent; blank counts as Open"),
    boolean("OVERRIDEPOAF", "its purchase order number is typed, not formatted automatically"),
});
inline constexpr Index REQLIST_indexes[] = {
    {"REQTAG", {"REQTAG"}},
    {"REQLIST", {"CONO", "JOBNO", "REQNO"}},
    {"REQNO", {"REQNO"}, true},
    {"REQVEN", {"VENTAG", "LDATE"}},
};
inline constexpr Table REQLIST = {"REQLIST", "Requisitions, one row per requisition",
                                  REQLIST_fields, REQLIST_indexes};

// What describes a line, without its stamps: the clipboard holds the same.
inline constexpr Field lineItemFields[] = {
    longInteger("RQITAG", "record tag"),
    longInteger("REQTAG", "owning requisition; 0 for an order line without one"),
    longInteger("POTAG", "owning purchase order; 0 while the line is only requisitioned"),
    integer("REQITEMNO", "item number printed on the requisition"),
    integer("POITEMNO", "item number printed on the purchase order"),
    integer("REQLINENO", "position in the requisition"),
    integer("POLINENO", "position in the purchase order"),
    longInteger("ILCTAG", "branch; 0 when none"),
    longInteger("IBCTAG", "bin; 0 when none"),
    longInteger("ISNTAG", "inventory item; 0 when the line is not linked to inventory"),
    doubleFloat("QTY", "quantity; 0 marks a text line"),
    text("UNIT", 5, "unit of measure"),
    text("DOCTYPE", 3, "document reference kind, carried through copies"),
    text("VINVNO", 20, "vendor's invoice number"),
    memo("Desc", "full description, several lines"),
    text("SHORTDESC", 255, "first line of the description"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "units the price is for: blank or e 1, d 12, g 144, c 100, m 1000"),
    doubleFloat("AMOUNT", "extended amount, rounded to cents"),
    text("COSTCODEA", 15, "cost code of group A, stored form"),
    text("COSTCODEB", 15, "cost code of group B, stored form"),
    text("COSTCODEC", 15, "cost code of group C, stored form"),
    text("MCODE", 1, "material code"),
    text("GLCODE", 10, "G/L code"),
    text("ADJUSTMENT", 1, "not blank: an adjustment, prints a star on the document"),
    text("DRAWINGNO", 18, "part number, drawing number"),
    text("SALE", 1, "for sale: Y, N or blank"),
    text("ASSET", 1, "an asset: Y, N or blank"),
    doubleFloat("WHOLESALE", "wholesale price of an item added to inventory"),
    doubleFloat("MARKUP", "markup in percent of an item added to inventory"),
    doubleFloat("RETAIL", "retail price of an item added to inventory"),
    integer("REVNO", "revision of the purchase order that brought this line"),
    longInteger("BRQWOMTAG", "material row of an equipment work order; 0 when none"),
    longInteger("BRQROMTAG", "material row of an equipment repair order; 0 when none"),
};
inline constexpr auto RQILIST_fields = withAuditFields(lineItemFields);
// Line numbers are unique within a document that is numbered, but lines outside it bear owner 0
// and line 0, and copies and transfers bring doubles until the document is renumbered.
inline constexpr Index RQILIST_indexes[] = {
    {"RQITAG", {"RQITAG"}},
    {"RQIREQLINENO", {"REQTAG", "REQLINENO"}},
    {"RQIREQITEMNO", {"REQTAG", "REQITEMNO"}},
    {"RQIPOLINENO", {"POTAG", "POLINENO"}},
    {"RQIPOITEMNO", {"POTAG", "POITEMNO"}},
    {"REQTAGONLY", {"REQTAG"}},
    {"POTAGONLY", {"POTAG"}},
    {"RQIISNTAG", {"ISNTAG"}},
};
inline constexpr Table RQILIST = {
    "RQILIST", "Line items of requisitions and purchase orders, one row serving both",
    RQILIST_fields, RQILIST_indexes};

inline constexpr auto POLIST_fields = withAuditFields({
    longInteger("POTAG", "record tag"),
    longInteger("REQTAG", "source requisition; 0 for a direct order"),
    longInteger("REQNO", "number of that requisition"),
    integer("POSUFFIX", "running number within the requisition; 0 for a direct order"),
    text("PONO", 16, "purchase order number"),
    text("REQTYPE", 1, "type of the source requisition"),
    longInteger("VENTAG", "vendor; 0 when none"),
    integer("CONO", "company number"),
    text("JOBNO", 8, "job number, stored form"),
    text("FDATE", 10, "order date, MM/DD/YYYY, dates its inventory transactions too"),
    text("LDATE", 8, "order date, YYYYMMDD"),
    text("SHIPTO", 50, "where to deliver"),
    text("SHIPVIA", 50, "how to deliver"),
    text("FOB", 20, "free on board terms"),
    text("PROMBY", 10, "promised by date, or blank"),
    text("TERMS", 20, "terms of payment"),
    text("INTEND", 70, "intended use of the material"),
    text("Required", 10, "required by date, or blank"),
    text("WHODIDIT", 30, "who requisitioned it"),
    text("VCONTACT", 50, "vendor contact"),
    text("QLEVEL", 10, "Q level"),
    text("CMRNO", 10, "client requisition number"),
    text("APPROVER", 30, "client approver"),
    text("LOCDISPOSITION", 50, "location or disposition"),
    text("REIMB", 1, "reimbursable: Y, N or blank"),
    doubleFloat("AMOUNT", "sum of its line items, written when the line item screen closes"),
    text("Status", 10, "Open, Issued, Closed, Urgent, Critical or Voided; blank counts as Open"),
    integer("REVNO", "revision: the largest of its lines"),
    longInteger("VEXDLTAG", "number of its download batch; 0 when none"),
    longInteger("PONTAG", "addendum text to print; 0 for the default one"),
    longInteger("BRQWOTAG", "equipment work order it belongs to; 0 when none"),
    longInteger("BRQROTAG", "equipment repair order it belongs to; 0 when none"),
    boolean("OVERRIDEPOAF", "its number is typed, not formatted automatically"),
});
inline constexpr Index POLIST_indexes[] = {
    {"POTAG", {"POTAG"}},
    {"PONO", {"PONO"}, true},
    {"POLIST", {"CONO", "JOBNO", "PONO"}},
    {"POREQ", {"REQTAG"}},
    {"POVEN", {"VENTAG", "LDATE"}},
    {"POIJC", {"CONO", "JOBNO", "LDATE"}},
    {"POCMRNO", {"CMRNO"}},
    {"POVEXDLTAG", {"VEXDLTAG"}},
};
inline constexpr Table POLIST = {"POLIST", "Purchase orders, one row per order", POLIST_fields,
                                 POLIST_indexes};

inline constexpr Field PONOTETEXT_fields[] = {
    longInteger("PONTAG", "record tag"),
    text("PONTITLE", 50, "title, printed as the heading"),
    text("PONFDATE", 10, "start date, MM/DD/YYYY"),
    text("PONLDATE", 8, "start date, YYYYMMDD"),
    memo("PONTEXT", "the text"),
    boolean("PONDEFAULT", "the default text; at most one row is set"),
};
inline constexpr Index PONOTETEXT_indexes[] = {
    {"PONTAG", {"PONTAG"}, true},
};
inline constexpr Table PONOTETEXT = {"PONOTETEXT", "Addendum texts printed behind purchase orders",
                                     PONOTETEXT_fields, PONOTETEXT_indexes};

inline constexpr Field RSTLIST_fields[] = {
    longInteger("RSTTAG", "record tag"),
    text("RSTCODE", 10, "template code"),
    text("RSTNAME", 30, "description"),
    integer("QTYCOL", "column of the quantity, 1 for A to 52 for AZ; 0 unused, as all below"),
    integer("UNITCOL", "column of the unit of measure"),
    integer("DESCCOL1", "column of the first part of the description"),
    integer("DESCCOL2", "column of its second part"),
    integer("DESCCOL3", "column of its third part"),
    integer("UNITPRICECOL", "column of the unit price"),
    integer("UNITFACTCOL", "column of the unit factor"),
    integer("COSTCODEACOL", "column of the group A cost code"),
    integer("COSTCODEBCOL", "column of the group B cost code"),
    integer("COSTCODECCOL", "column of the group C cost code"),
    integer("MCODECOL", "column of the material code"),
    integer("GLCODECOL", "column of the G/L code"),
    integer("DRAWINGNOCOL", "column of the part number"),
};
inline constexpr Index RSTLIST_indexes[] = {
    {"RSTTAG", {"RSTTAG"}, true},
    {"RSTCODE", {"RSTCODE"}, true},
};
inline constexpr Table RSTLIST = {"RSTLIST",
                                  "Templates that tell which spreadsheet column feeds which field "
                                  "of an uploaded line item",
                                  RSTLIST_fields, RSTLIST_indexes};

}  // namespace schema
