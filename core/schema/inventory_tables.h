// Inventory items, the catalog, the lists of part numbers, and the ledger of their movements.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr auto INVENTORY_fields = withAuditFields({
    longInteger("ISNTAG", "the item's tag"),
    longInteger("ILCTAG", "owning branch"),
    longInteger("SERIESTAG", "series code; 0 for none"),
    longInteger("SUBCATTAG", "subcategory; 0 for none"),
    longInteger("ICNTAG", "catalog item; 0 when not in the catalog"),
    text("PARTNO", 18, "part number, upper case, one item of it in a branch"),
    text("MFGPARTNO", 18, "manufacturer's part number, upper case"),
    memo("Desc", "full description, may hold line ends"),
    text("SHORTDESC", 50, "first 50 characters of Desc on one line, made at each save"),
    text("UOM", 5, "unit of measure"),
    text("UPCCODE", 14, "UPC code, one item of it in a branch unless blank"),
    doubleFloat("WHOLESALE", "wholesale price"),
    doubleFloat("MARKUP", "default markup in percent"),
    doubleFloat("RETAIL", "retail price"),
    doubleFloat("UNITPRICE", "unit price of the uploaded line that made the item"),
    longInteger("VENTAG", "preferred vendor; 0 for none"),
    longInteger("BINTAG", "bin; 0 for none"),
    single("AVAILABLE", "quantity on hand, result of the last replay of the ledger"),
    single("ONORDER", "quantity on order, from the same replay"),
    single("ISSUED", "quantity issued to repair orders, from the same replay"),
    single("INVADJUSTMENTS", "sum of adjustments since the last count, from the same replay"),
    single("Maximum", "quantity to order up to"),
    single("MINIMUM", "quantity below which the item is out of stock"),
    boolean("INACTIVE", "the item is out of use"),
    text("TAGGED", 1, "Y when tagged in the browse, else a blank"),
});
inline constexpr Index INVENTORY_indexes[] = {
    {"INVISNTAG", {"ISNTAG"}, true},
    {"INVPARTNO", {"ILCTAG", "PARTNO"}},
    {"INVSERIESPARTNO", {"ILCTAG", "SERIESTAG", "PARTNO"}},
    {"INVSUBPARTNO", {"ILCTAG", "SERIESTAG", "SUBCATTAG", "PARTNO"}},
    {"INVSHORTDESC", {"ILCTAG", "SHORTDESC"}},
    {"INVMFGPARTNO", {"ILCTAG", "MFGPARTNO"}},
    {"INVUPCCODE", {"ILCTAG", "UPCCODE"}},
    {"INVSERIESDESC", {"ILCTAG", "SERIESTAG", "SHORTDESC"}},
    {"INVSERIESUPCCODE", {"ILCTAG", "SERIESTAG", "UPCCODE"}},
    {"INVSUBDESC", {"ILCTAG", "SERIESTAG", "SUBCATTAG", "SHORTDESC"}},
    {"INVSUBUPCCODE", {"ILCTAG", "SERIESTAG", "SUBCATTAG", "UPCCODE"}},
    {"INVTAGGED", {"TAGGED"}},
    {"INVBINTAG", {"BINTAG"}},
    {"INVILCBINTAG", {"ILCTAG", "BINTAG"}},
    {"INVVENTAG", {"ILCTAG", "VENTAG"}},
    {"INVICNTAG", {"ILCTAG", "ICNTAG"}},
};
inline constexpr Table INVENTORY = {"INVENTORY", "Inventory items, one row per part of a branch",
                                    INVENTORY_fields, INVENTORY_indexes};

inline constexpr auto INVCATALOG_fields = withAuditFields({
    longInteger("ICNTAG", "the catalog item's tag"),
    text("ICNUMBER", 11, "I/C number, such as 000-000-001"),
    longInteger("SERIESTAG", "series code; 0 for none"),
    longInteger("SUBCATTAG", "subcategory; 0 for none"),
    text("PARTNO", 18, "part number, upper case, one of it in the catalog"),
    text("MFGPARTNO", 18, "manufacturer's part number, upper case"),
    memo("Desc", "full description, may hold line ends"),
    text("SHORTDESC", 50, "first 50 characters of Desc on one line, made at each save"),
    text("UOM", 5, "unit of measure"),
    text("UPCCODE", 14, "UPC code, one of it in the catalog unless blank"),
    doubleFloat("WHOLESALE", "wholesale price"),
    doubleFloat("MARKUP", "default markup in percent"),
    doubleFloat("RETAIL", "retail price"),
    longInteger("VENTAG", "preferred vendor; 0 for none"),
    boolean("INACTIVE", "the item is out of use"),
    text("TAGGED", 1, "Y when tagged in the browse, else a blank"),
});
inline constexpr Index INVCATALOG_indexes[] = {
    {"ICNTAG", {"ICNTAG"}, true},
    {"ICNPARTNO", {"PARTNO"}},
    {"ICNUPCCODE", {"UPCCODE"}},
    {"ICNSHORTDESC", {"SHORTDESC"}},
    {"ICNMFGPARTNO", {"MFGPARTNO"}},
    {"ICNSERIESPARTNO", {"SERIESTAG", "PARTNO"}},
    {"ICNSERIESDESC", {"SERIESTAG", "SHORTDESC"}},
    {"ICNSERIESUPCCODE", {"SERIESTAG", "UPCCODE"}},
    {"ICNSUBPARTNO", {"SERIESTAG", "SUBCATTAG", "PARTNO"}},
    {"ICNSUBDESC", {"SERIESTAG", "SUBCATTAG", "SHORTDESC"}},
    {"ICNSUBUPCCODE", {"SERIESTAG", "SUBCATTAG", "UPCCODE"}},
    {"ICNTAGGED", {"TAGGED"}},
};
inline constexpr Table INVCATALOG = {"INVCATALOG", "The company-wide catalog of parts",
                                     INVCATALOG_fields, INVCATALOG_indexes};

// The present number bears " <Current>" and a blank LDATE, so that it heads its item's list.
inline constexpr Field INVPNMASTER_fields[] = {
    longInteger("ILCTAG", "branch of the item; 0 for a number of the catalog"),
    longInteger("ISNTAG", "inventory item; 0 for a number of the catalog"),
    longInteger("ICNTAG", "catalog item; 0 for a number of a branch"),
    text("PARTNO", 18, "a part number that the item bears or has borne"),
    text("FDATE", 10, "date the number was superseded, or <Current> after a blank"),
    text("LDATE", 10, "the same date as YYYYMMDD, or ten blanks"),
};
inline constexpr Index INVPNMASTER_indexes[] = {
    {"INVPNMASTERLDATE", {"ILCTAG", "ISNTAG", "LDATE"}},
    {"INVPNMASTERISNTAG", {"ILCTAG", "ISNTAG", "PARTNO"}},
    {"INVPNMASTERPARTNO", {"ILCTAG", "PARTNO"}},
    {"ICNPNMASTERLDATE", {"ICNTAG", "LDATE"}},
    {"ICNPNMASTERICNTAG", {"ICNTAG", "PARTNO"}},
};
inline constexpr Table INVPNMASTER = {"INVPNMASTER", "Every part number that an item has borne",
                                      INVPNMASTER_fields, INVPNMASTER_indexes};

inline constexpr Field INVTRANS_fields[] = {
    longInteger("ILCTAG", "branch of the item at posting"),
    longInteger("ICNTAG", "catalog tag of the item at posting; 0 for none"),
    longInteger("ISNTAG", "the item"),
    text("DOCTYPE", 2, "kind of document: PI, PO, IA, MT, MR, MI or RO"),
    longInteger("DOCTAG", "tag of the document"),
    text("ITEMTYPE", 3, "kind of line: PII, RQI, REC, IAI, MTD, MTC, MRI, MII or ROI"),
    longInteger("ITEMTAG", "tag of the line; 0 for PII and IAI"),
    text("FDATE", 10, "document date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    single("QUANTITY", "as entered on the document; its type tells the effect's sign"),
};
// A posting without a former item adds a row unseen, so the row's identity is not enforced. Rows of
// one item and date replay in the same order whoever wrote them, hence the long INVTRANSISNTAG.
inline constexpr Index INVTRANS_indexes[] = {
    {"INVTRANSACTION", {"DOCTYPE", "DOCTAG", "ITEMTYPE", "ITEMTAG", "ISNTAG"}},
    {"INVTRANSISNTAG", {"ISNTAG", "LDATE", "DOCTYPE", "DOCTAG", "ITEMTYPE", "ITEMTAG"}},
    {"INVTRANSILCTAG", {"ILCTAG"}},
    {"INVTRANSICNTAG", {"ICNTAG"}},
};
inline constexpr Table INVTRANS = {"INVTRANS",
                                   "The ledger: one row per document line's effect on an item",
                                   INVTRANS_fields, INVTRANS_indexes};

inline constexpr Field ISSUED_fields[] = {
    longInteger("RQITAG", "purchase order line that the material was bought on"),
    longInteger("POTAG", "purchase order of the line"),
    text("FDATE", 10, "date released, MM/DD/YYYY"),
    text("LDATE", 8, "the same date as YYYYMMDD"),
    single("QTY", "quantity released"),
    text("ISSUEDTO", 30, "person or party issued to"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
};
inline constexpr Index ISSUED_indexes[] = {
    {"ISSUEDRQI", {"RQITAG"}},
};
inline constexpr Table ISSUED = {"ISSUED", "Material of a purchase order line issued to a job",
                                 ISSUED_fields, ISSUED_indexes};

}  // namespace schema
