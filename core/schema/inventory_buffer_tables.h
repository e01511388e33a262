// Work tables of the inventory screens and of the inventory reports that gather before they print.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VEXINVLASTUPDATE_fields[] = {
    longInteger("SERIESTAG", "series code"),
    longInteger("SUBCATTAG", "subcategory"),
    text("PARTNO", 18, "part number"),
    memo("Desc", "full description"),
    text("UOM", 5, "unit of measure"),
    text("UPCCODE", 14, "UPC code"),
    doubleFloat("WHOLESALE", "wholesale price"),
    doubleFloat("MARKUP", "default markup in percent"),
    doubleFloat("RETAIL", "retail price"),
    longInteger("BINTAG", "bin"),
    longInteger("VENTAG", "the vendor last chosen, kept over items saved without one"),
};
inline constexpr Table VEXINVLASTUPDATE = {"VEXINVLASTUPDATE",
                                           "The inventory item that the user saved last, one row",
                                           VEXINVLASTUPDATE_fields,
                                           {}};

inline constexpr Field VEXINVCATLASTUPDATE_fields[] = {
    longInteger("SERIESTAG", "series code"),
    longInteger("SUBCATTAG", "subcategory"),
    text("PARTNO", 18, "part number"),
    memo("Desc", "full description"),
    text("UOM", 5, "unit of measure"),
    text("UPCCODE", 14, "UPC code"),
    doubleFloat("WHOLESALE", "wholesale price"),
    doubleFloat("MARKUP", "default markup in percent"),
    doubleFloat("RETAIL", "retail price"),
    longInteger("VENTAG", "the vendor last chosen, kept over items saved without one"),
};
inline constexpr Table VEXINVCATLASTUPDATE = {"VEXINVCATLASTUPDATE",
                                              "The catalog item that the user saved last, one row",
                                              VEXINVCATLASTUPDATE_fields,
                                              {}};

inline constexpr Field VEXINVCOPYBUF_fields[] = {
    text("PARTNO", 18, "part number of the item copied"),
    text("REMARK", 100, "what became of it"),
};
inline constexpr Index VEXINVCOPYBUF_indexes[] = {
    {"VEXINVCOPYBUF", {"PARTNO"}},
};
inline constexpr Table VEXINVCOPYBUF = {"VEXINVCOPYBUF",
                                        "Results of copying between branch and catalog",
                                        VEXINVCOPYBUF_fields, VEXINVCOPYBUF_indexes};

inline constexpr Field INVHISTORY_fields[] = {
    longInteger("LINENO", "order of entry, 1 upward"),
    text("DOCDESC", 50, "description of the document"),
    text("DOCNO", 16, "document number"),
    text("DOCFDATE", 10, "document date, MM/DD/YYYY"),
    text("DOCLDATE", 8, "the same date as YYYYMMDD"),
    single("QUANTITY", "quantity of the document line"),
    single("ONORDER", "on order after it"),
    single("AVAILABLE", "on hand after it"),
};
inline constexpr Index INVHISTORY_indexes[] = {
    {"INVHISTORY", {"LINENO"}},
};
inline constexpr Table INVHISTORY = {"INVHISTORY", "History of one inventory item, with balances",
                                     INVHISTORY_fields, INVHISTORY_indexes};

inline constexpr Index INVCATHISTORY_indexes[] = {
    {"INVCATHISTORY", {"LINENO"}},
};
inline constexpr Table INVCATHISTORY = {"INVCATHISTORY",
                                        "History of one catalog item over all branches",
                                        INVHISTORY_fields, INVCATHISTORY_indexes};

inline constexpr Field TransactionHistory_fields[] = {
    longInteger("LINENO", "order of entry, 1 upward"),
    text("PARTNO", 18, "part number"),
    text("SERIESCODE", 3, "series code"),
    text("SUBCATCODE", 4, "subcategory code"),
    text("UPCCODE", 14, "UPC code"),
    text("SHORTDESC", 50, "description on one line"),
    memo("Desc", "full description"),
    doubleFloat("UNITPRICE", "retail price of the item"),
    text("DOCDESC", 50, "description of the document"),
    text("DOCNO", 16, "document number"),
    text("DOCFDATE", 10, "document date, MM/DD/YYYY"),
    text("DOCLDATE", 8, "the same date as YYYYMMDD"),
    single("QUANTITY", "quantity of the document line"),
    single("ONORDER", "on order after it"),
    single("AVAILABLE", "on hand after it"),
    doubleFloat("AMOUNT", "retail price times quantity"),
};
inline constexpr Index TransactionHistory_indexes[] = {
    {"TransactionHistory", {"LINENO"}},
};
inline constexpr Table TransactionHistory = {"TransactionHistory",
                                             "Rows of the inventory transaction history report",
                                             TransactionHistory_fields, TransactionHistory_indexes};

inline constexpr Field INVISR_fields[] = {
    text("SERIESCODE", 3, "series code"),
    text("BINNO", 6, "bin number"),
    text("PARTNO", 18, "part number"),
    text("MFGPARTNO", 18, "manufacturer's part number"),
    text("SUBCATCODE", 4, "subcategory code"),
    text("SHORTDESC", 50, "description on one line"),
    single("MINIMUM", "quantity below which the item is out of stock"),
    single("Maximum", "quantity to order up to"),
    single("AVAILABLE", "quantity on hand"),
    single("ONORDER", "quantity on order"),
    text("VENNO", 10, "number of the preferred vendor"),
    single("ISSUED", "quantity issued in the period"),
    single("MONTHTODATE", "quantity issued in the month of the ending date"),
    single("LASTMONTH", "quantity issued in the month before"),
    single("LAST12MONTHS", "quantity issued in the twelve months before"),
    doubleFloat("MONTHAVERAGE", "monthly average of those, rounded to 2 places"),
    doubleFloat("WHOLESALE", "unit cost"),
    doubleFloat("EXTCOST", "unit cost times quantity issued, rounded to 2 places"),
};
inline constexpr Index INVISR_indexes[] = {
    {"INVISR", {"SERIESCODE", "BINNO", "PARTNO"}},
};
inline constexpr Table INVISR = {"INVISR", "Rows of the issue summary report", INVISR_fields,
                                 INVISR_indexes};

}  // namespace schema
