// What happens to a purchase order line after it is ordered: receipts, vendors' invoices, payment
// detail and procurement status.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field RECEIVED_fields[] = {
    longInteger("RECTAG", "record tag"),
    longInteger("RQITAG", "purchase order line"),
    longInteger("POTAG", "purchase order"),
    integer("POITEMNO", "the line's item number when the receipt was entered"),
    single("QTYREC", "quantity received"),
    single("QTYRTN", "quantity returned, never posted to inventory"),
    single("QTYBKO", "quantity back-ordered, never posted to inventory"),
    text("DATEREC", 10, "date received, MM/DD/YYYY"),
    text("LDATEREC", 8, "date received, YYYYMMDD"),
    text("REFTEXT", 30, "reference, such as a packing slip number"),
    text("Location", 30, "where the goods were put"),
};
inline constexpr Index RECEIVED_indexes[] = {
    {"RECPO", {"POTAG", "LDATEREC"}},
    {"RECPOITEMNO", {"POTAG", "POITEMNO"}},
    {"RECRQI", {"RQITAG"}},
};
inline constexpr Table RECEIVED = {"RECEIVED", "Receipts, one row per delivery of an order line",
                                   RECEIVED_fields, RECEIVED_indexes};

inline constexpr Field APINVOICES_fields[] = {
    longInteger("APINVTAG", "record tag"),
    integer("CONO", "company number"),
    text("JOBNO", 8, "job number, stored form"),
    longInteger("VENTAG", "vendor; 0 when none"),
    text("INVOICENO", 20, "the vendor's invoice number"),
    longInteger("VEXDLTAG", "number of its download batch; 0 when none"),
    doubleFloat("INVOICEAMT", "invoice total as keyed, not tied to its lines"),
    text("INVOICEFDATE", 10, "invoice date, MM/DD/YYYY"),
    doubleFloat("SUB2DISCOUNT", "amount subject to discount"),
    longInteger("TERMSCODETAG", "terms; 0 when none"),
    text("INVVOICEDUEDATE", 10, "due date"),
    text("DISCOUNTDATE", 10, "last date at which the discount may be taken"),
    doubleFloat("DISCOUNTAMT", "discount amount"),
    text("INVCOMMENT", 100, "comment"),
};
inline constexpr Index APINVOICES_indexes[] = {
    {"APINVTAG", {"APINVTAG"}, true},
    {"APINVVEN", {"VENTAG", "INVOICEFDATE"}},
    {"APINVNO", {"INVOICENO"}},
};
inline constexpr Table APINVOICES = {"APINVOICES", "A/P invoices, one row per vendor invoice",
                                     APINVOICES_fields, APINVOICES_indexes};

inline constexpr Field APIITEMS_fields[] = {
    longInteger("APINVITEMTAG", "record tag"),
    longInteger("APINVTAG", "owning invoice"),
    integer("ITEMNO", "line number within the invoice; deletions leave gaps"),
    doubleFloat("QTY", "quantity; 0 marks a comment line"),
    text("UNIT", 5, "unit of measure"),
    text("SHORTDESC", 70, "description"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "units the price is for: blank or e 1, d 12, g 144, c 100, m 1000"),
    doubleFloat("AMOUNT", "line amount, rounded to cents"),
    text("COSTCODEA", 15, "cost code of group A, stored form"),
    text("COSTCODEB", 15, "cost code of group B, stored form"),
    text("COSTCODEC", 15, "cost code of group C, stored form"),
    text("MCODE", 1, "material code"),
    text("GLCODE", 10, "G/L code"),
};
inline constexpr Index APIITEMS_indexes[] = {
    {"APIITEMS", {"APINVTAG", "ITEMNO"}},
};
inline constexpr Table APIITEMS = {"APIITEMS", "Distribution lines of A/P invoices",
                                   APIITEMS_fields, APIITEMS_indexes};

inline constexpr Field PAYMENTS_fields[] = {
    longInteger("PAYTAG", "record tag; 0 after a bulk post, until the order's payments are opened"),
    longInteger("RQITAG", "purchase order line"),
    longInteger("POTAG", "purchase order"),
    integer("POITEMNO", "the line's item number when the payment was entered"),
    text("VENINV", 20, "vendor invoice number, upper case"),
    text("VENINVDATE", 10, "vendor invoice date, MM/DD/YYYY"),
    single("QTY", "quantity billed"),
    text("UNIT", 5, "unit of measure"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "units the price is for: blank or e 1, d 12, g 144, c 100, m 1000"),
    doubleFloat("AMOUNT", "amount billed, two decimals"),
    integer("RELNO", "release, groups rows for one request for payment; 0 when none"),
    text("CHECKNO", 15, "check number; the job site settings may title it otherwise"),
    text("CHECKDATE", 10, "check date, MM/DD/YYYY; a row with a date counts as invoiced"),
    text("INVNO", 15, "client invoice number on which the cost is billed on, upper case"),
    text("INVCODE", 10, "invoice code of the order's company and job, upper case"),
};
inline constexpr Index PAYMENTS_indexes[] = {
    {"PAYTAG", {"PAYTAG"}},
    {"PAYPO", {"POTAG"}},
    {"PAYPORELNO", {"POTAG", "RELNO"}},
    {"PAYPOITEMNO", {"POTAG", "POITEMNO"}},
    {"PAYVENINV", {"VENINV"}},
    {"PAYRQI", {"RQITAG"}},
    {"PAYRQIVENINV", {"RQITAG", "VENINV"}},
    {"PAYINVNO", {"INVNO"}},
    {"PAYCHECKNO", {"CHECKNO"}},
};
inline constexpr Table PAYMENTS = {
    "PAYMENTS", "Payment detail, one row per billing of all or part of an order line",
    PAYMENTS_fields, PAYMENTS_indexes};

inline constexpr Field PROSTATUS_fields[] = {
    longInteger("PSTAG", "record tag"),
    longInteger("POTAG", "purchase order"),
    longInteger("RQITAG", "purchase order line"),
    integer("POITEMNO", "the line's item number when the status line was entered"),
    text("SHIPFDATE", 10, "ship date, MM/DD/YYYY"),
    text("SHIPLDATE", 8, "ship date, YYYYMMDD"),
    text("ETAFDATE", 10, "expected arrival, MM/DD/YYYY"),
    text("ETALDATE", 8, "expected arrival, YYYYMMDD"),
    text("DOAFDATE", 10, "date of arrival, MM/DD/YYYY"),
    text("DOALDATE", 8, "date of arrival, YYYYMMDD"),
    text("CARRIER", 30, "carrier"),
    text("TRACKINGNO", 30, "tracking number"),
    text("RECEIVEDBY", 30, "who took the goods in"),
    text("PROSTATUS", 10, "Pending, Ordered, Ongoing, Closed or Void; may be blank"),
};
inline constexpr Index PROSTATUS_indexes[] = {
    {"PSTAG", {"PSTAG"}, true},
    {"PSPOTAG", {"POTAG"}},
    {"PSRQITAG", {"RQITAG"}},
};
inline constexpr Table PROSTATUS = {"PROSTATUS", "Procurement status lines, several per order line",
                                    PROSTATUS_fields, PROSTATUS_indexes};

inline constexpr Field PSCOMMENTS_fields[] = {
    longInteger("PSTAG", "owning procurement status line"),
    text("PSCFDATE", 10, "comment date, MM/DD/YYYY"),
    text("PSCLDATE", 8, "comment date, YYYYMMDD"),
    text("PSCFTIME", 8, "comment time as typed, such as 01:05 PM"),
    text("PSCLTIME", 5, "comment time for sorting, hh:mm; every PM hour plus 12"),
    text("PSCOMMENT", 255, "the comment, with line breaks possible"),
    boolean("TAGGED", "marked on the comments screen"),
    boolean("PSCARCHIVE", "archived"),
};
inline constexpr Index PSCOMMENTS_indexes[] = {
    {"PSCOMMENTS", {"PSTAG", "PSCLDATE", "PSCLTIME"}},
};
inline constexpr Table PSCOMMENTS = {"PSCOMMENTS", "Comments on procurement status lines",
                                     PSCOMMENTS_fields, PSCOMMENTS_indexes};

}  // namespace schema
