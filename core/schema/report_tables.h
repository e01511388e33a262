// Tables that reports fill in files of the job site, for use outside the program or by several
// runs: purchase history, material cost, the detailed purchase order log.
#pragma once

#include "core/schema/schema.h"

namespace schema {

// The template ZORMPH.mdb is copied to the name that the user gives; the copy is filled. The five
// fields of a payment stay null on the row of a line without payments.
inline constexpr Field Purchase_History_fields[] = {
    longInteger("POTAG", "purchase order, tag in POLIST"),
    text("PO_Number", 16, "purchase order number"),
    integer("Release_Number", "release number of the payment"),
    text("PO_Date", 10, "purchase order date, MM/DD/YYYY"),
    text("Sort_Date", 8, "the same date, YYYYMMDD"),
    text("Vendor_Name", 40, "vendor name"),
    integer("Company_Number", "company"),
    text("Job_Number", 8, "job number, stored form"),
    currency("QUANTITY", "quantity"),
    text("UNIT", 5, "unit of measure"),
    memo("Item_Description", "line item description"),
    currency("Unit_Price", "unit price"),
    text("Unit_Factor", 1, "unit factor: blank, e, d, g, c or m"),
    currency("AMOUNT", "extended amount"),
    text("Vendor_Invoice", 20, "vendor's invoice number of the payment"),
    text("Batch_Number", 15, "check number of the payment"),
    text("Invoice_Number", 15, "client invoice number of the payment"),
    text("RFP_Date", 10, "check date of the payment, MM/DD/YYYY"),
};
inline constexpr Table Purchase_History = {
    "Purchase_History",
    "Lines bought and their payments, for the user's own analysis",
    Purchase_History_fields,
    {}};

// The template VEXCOST.mdb is copied to a file of its own for each job.
inline constexpr Field VEXCOST_fields[] = {
    text("CODE", 47, "the cost codes of groups A, B and C, trimmed and joined with dots"),
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    text("BDATE", 10, "beginning date of the period, MM/DD/YYYY"),
    text("EDATE", 10, "ending date of the period, MM/DD/YYYY"),
    doubleFloat("PRDAMT", "committed in the period"),
    doubleFloat("JTDAMT", "committed job to date"),
    doubleFloat("PRDPAY", "paid in the period"),
    doubleFloat("JTDPAY", "paid job to date"),
};
inline constexpr Index VEXCOST_indexes[] = {
    {"VEXCOST", {"CODE"}},
};
inline constexpr Table VEXCOST = {"VEXCOST",
                                  "Material cost of a job, one row per combination of codes",
                                  VEXCOST_fields, VEXCOST_indexes};

inline constexpr Field PurchaseReport_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number, stored form"),
    text("PONO", 16, "purchase order number"),
    text("FDATE", 10, "purchase order date, MM/DD/YYYY"),
    text("LDATE", 8, "the same date, YYYYMMDD"),
    longInteger("REQNO", "requisition number; 0 for a direct order"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("INTEND", 70, "intended use"),
    text("Status", 10, "status word of the order"),
    currency("POAMOUNT", "total of the order"),
    integer("POITEMNO", "item number in the order; 0 for an order without lines"),
    doubleFloat("QTY", "quantity; 0 for a description only"),
    text("UNIT", 5, "unit of measure"),
    memo("Desc", "full description of the line"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "unit factor: blank, e, d, g, c or m"),
    currency("AMOUNT", "extended amount of the line"),
};
inline constexpr Index PurchaseReport_indexes[] = {
    {"PurchaseReport", {"CONO", "JOBNO", "PONO", "POITEMNO"}},
};
inline constexpr Table PurchaseReport = {"PurchaseReport",
                                         "Purchase order log with detail, one row per line",
                                         PurchaseReport_fields, PurchaseReport_indexes};

}  // namespace schema
