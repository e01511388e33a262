// The buffers in ZORUSER.mdb that the cost, purchase history, log and invoicing reports fill and
// then walk by an index. Each run begins by emptying its buffer, which drops the unique mark of an
// index, so none has one. Amounts that a report adds up are currency: sums stay exact.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VEXPAR_fields[] = {
    text("GLCODE", 10, "G/L number of the line"),
    text("COSTCODEA", 15, "cost code of group A, or of the one group that the report is for"),
    text("COSTCODEB", 15, "cost code of group B, or of the second group chosen"),
    text("COSTCODEC", 15, "cost code of group C"),
    text("APPROVER", 30, "client approver of the order"),
    text("PONO", 16, "purchase order number"),
    text("Name", 40, "vendor name"),
    text("VENNO", 10, "vendor number"),
    text("VINVNO", 20, "vendor's invoice number of the line or of the payment"),
    text("VENINVDATE", 10, "vendor invoice date of a payment, MM/DD/YYYY"),
    currency("AMTPRD", "committed in the period"),
    currency("AMTJTD", "committed job to date"),
    currency("PAYPRD", "paid in the period"),
    currency("PAYJTD", "paid job to date"),
    text("SCODE", 1, "C for a commitment, P for a payment"),
};
inline constexpr Index VEXPAR_indexes[] = {
    {"VEXPARGL", {"GLCODE", "PONO", "VINVNO"}},
    {"VEXPARCC", {"COSTCODEA", "PONO", "VINVNO"}},
    {"VEXPARCCGL", {"COSTCODEA", "GLCODE", "PONO", "VINVNO"}},
    {"VEXPAR3CC", {"COSTCODEA", "COSTCODEB", "COSTCODEC", "PONO", "VINVNO"}},
    {"VEXPAR3CCGL", {"COSTCODEA", "COSTCODEB", "COSTCODEC", "GLCODE", "PONO", "VINVNO"}},
    {"VEXPARAPPCC", {"APPROVER", "COSTCODEA", "PONO", "VINVNO"}},
    {"VEXPARCC2", {"COSTCODEA", "COSTCODEB", "PONO", "VINVNO"}},
};
inline constexpr Table VEXPAR = {"VEXPAR", "Payment activity, one row per commitment or payment",
                                 VEXPAR_fields, VEXPAR_indexes};

inline constexpr Field VEXPAYH_fields[] = {
    text("PONO", 16, "purchase order number"),
    text("PODATE", 10, "purchase order date, MM/DD/YYYY"),
    text("CMRNO", 10, "client requisition number"),
    text("Name", 40, "vendor name"),
    text("VENNO", 10, "vendor number"),
    text("VENINV", 20, "vendor's invoice number"),
    text("VENINVDATE", 10, "vendor invoice date, MM/DD/YYYY"),
    text("VENINVLDATE", 8, "the same date, YYYYMMDD"),
    text("CHECKNO", 15, "check number"),
    text("CHECKDATE", 10, "check date, MM/DD/YYYY"),
    text("CHECKLDATE", 8, "the same date, YYYYMMDD"),
    text("INVNO", 15, "client invoice number"),
    text("INVCODE", 10, "invoice code"),
    integer("RELNO", "release number"),
    integer("POITEMNO", "item number in the order"),
    single("QTY", "quantity billed"),
    text("UNIT", 5, "unit of measure"),
    memo("LONGDESC", "full description of the line, in one piece without line breaks"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "unit factor: blank, e, d, g, c or m"),
    doubleFloat("AMOUNT", "amount of the payment"),
    text("COSTCODEA", 15, "cost code of group A"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
    text("MCODE", 1, "material code"),
    text("GLCODE", 10, "G/L number"),
};
inline constexpr Index VEXPAYH_indexes[] = {
    {"VEXPAYHCHECKLDATE", {"CHECKLDATE"}},
    {"VEXPAYHPONO", {"PONO"}},
};
inline constexpr Table VEXPAYH = {"VEXPAYH", "Payment history and blank dates, one row per payment",
                                  VEXPAYH_fields, VEXPAYH_indexes};

inline constexpr Field VEXPHBCCBUF_fields[] = {
    text("COSTCODE", 15, "cost code of the group chosen"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("LDATE", 8, "purchase order date, YYYYMMDD"),
    text("FDATE", 10, "the same date, MM/DD/YYYY"),
    text("PONO", 16, "purchase order number"),
    longInteger("REQNO", "requisition number; 0 for a direct order"),
    doubleFloat("QTY", "quantity"),
    text("UNIT", 5, "unit of measure"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "unit factor: blank, e, d, g, c or m"),
    currency("AMOUNT", "extended amount"),
    text("SHORTDESC", 255, "first line of the description"),
};
inline constexpr Index VEXPHBCCBUF_indexes[] = {
    {"VEXPHBCCBUF", {"COSTCODE", "LDATE", "PONO"}},
};
inline constexpr Table VEXPHBCCBUF = {"VEXPHBCCBUF",
                                      "Purchase history by cost code, one row per line",
                                      VEXPHBCCBUF_fields, VEXPHBCCBUF_indexes};

inline constexpr Field VEXIJC1BUF_fields[] = {
    text("COSTCODE1", 15, "cost code of level 1"),
    text("COSTCODE2", 15, "cost code of level 2; blank without that level"),
    text("COSTCODE3", 15, "cost code of level 3; blank without that level"),
    text("PONO", 16, "purchase order number"),
    text("FDATE", 10, "purchase order date, MM/DD/YYYY"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    integer("POITEMNO", "item number in the order"),
    text("VINVNO", 20, "vendor's invoice number of the line"),
    doubleFloat("QTY", "quantity"),
    text("UNIT", 5, "unit of measure"),
    text("SHORTDESC", 255, "first line of the description"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "unit factor: blank, e, d, g, c or m"),
    currency("AMTPRD", "committed in the period"),
    currency("AMTJTD", "committed job to date"),
};
inline constexpr Index VEXIJC1BUF_indexes[] = {
    {"VEXIJC1BUF", {"COSTCODE1", "COSTCODE2", "COSTCODE3", "PONO", "POITEMNO"}},
};
inline constexpr Table VEXIJC1BUF = {"VEXIJC1BUF",
                                     "Internal cost reports, one row per purchase order line",
                                     VEXIJC1BUF_fields, VEXIJC1BUF_indexes};

inline constexpr Field VEXPOLOGBV_fields[] = {
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("PONO", 16, "purchase order number"),
    text("FDATE", 10, "purchase order date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date, YYYYMMDD"),
    text("INTEND", 70, "intended use"),
    currency("AMOUNT", "total of the order"),
};
inline constexpr Index VEXPOLOGBV_indexes[] = {
    {"VEXPOLOGBV", {"VENNO", "LDATE", "PONO"}},
};
inline constexpr Table VEXPOLOGBV = {"VEXPOLOGBV",
                                     "Purchase order log by vendor, one row per order",
                                     VEXPOLOGBV_fields, VEXPOLOGBV_indexes};

inline constexpr Field VEXINVBUF03_fields[] = {
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("PONO", 16, "purchase order number"),
    currency("AMOUNT", "amount invoiced to the client"),
};
inline constexpr Index VEXINVBUF03_indexes[] = {
    {"VEXINVBUF03", {"VENNO", "PONO"}},
};
inline constexpr Table VEXINVBUF03 = {"VEXINVBUF03",
                                      "Invoice summary by vendor, one row per vendor and order",
                                      VEXINVBUF03_fields, VEXINVBUF03_indexes};

inline constexpr Field VEXINVBUF04_fields[] = {
    text("INVCODE", 10, "invoice code"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("PONO", 16, "purchase order number"),
    currency("AMOUNT", "amount invoiced to the client"),
};
inline constexpr Index VEXINVBUF04_indexes[] = {
    {"VEXINVBUF04", {"INVCODE", "VENNO", "PONO"}},
};
inline constexpr Table VEXINVBUF04 = {"VEXINVBUF04",
                                      "Invoice summary by code, one row per code, vendor and order",
                                      VEXINVBUF04_fields, VEXINVBUF04_indexes};

inline constexpr Field VEXCIS_fields[] = {
    text("INVNO", 15, "client invoice number, or UNINVOICED"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    currency("AMOUNT", "sum of the payments"),
};
inline constexpr Index VEXCIS_indexes[] = {
    {"VEXCIS", {"INVNO", "CONO", "JOBNO"}},
};
inline constexpr Table VEXCIS = {"VEXCIS", "Client invoice summary, one row per invoice and job",
                                 VEXCIS_fields, VEXCIS_indexes};

inline constexpr Field VEXVIR_fields[] = {
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("VINVNO", 20, "vendor's invoice number"),
    text("VENINVDATE", 10, "vendor invoice date, MM/DD/YYYY"),
    currency("INVAMT", "sum of the invoice's payments of one line"),
    text("CHECKDATE", 10, "check date, shown as RFP date"),
    text("CHECKNO", 15, "check number, shown as batch number"),
};
inline constexpr Index VEXVIR_indexes[] = {
    {"VEXVIR", {"VENNO", "VINVNO"}},
};
inline constexpr Table VEXVIR = {"VEXVIR", "Vendor invoice report, one row per line and invoice",
                                 VEXVIR_fields, VEXVIR_indexes};

}  // namespace schema
