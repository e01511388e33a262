#include "purchasing/document_columns.h"

#include "core/site_settings.h"
#include "purchasing/document_numbers.h"

namespace {

QString vendorText(const BrowseSession& list, storage::Recordset& rows, schema::FieldName field)
{
    const int tag = intOf(rows["VENTAG"]);
    if (tag == 0)
        return field == schema::FieldName("Name") ? QString(" <none>") : QString();
    storage::Recordset& vendors = list.beside("VENDORS");
    // Sought once for the row: the name stands beside the number. In each row anew, because another
    // user may have changed the vendor.
    const bool isThere = field == schema::FieldName("Name") && !vendors.BOF() && !vendors.EOF() &&
                         !vendors.NoMatch() && intOf(vendors["VENTAG"]) == tag;
    return isThere || vendors.Seek("=", tag) ? trimmedTextOf(vendors[field]) : QString("?????");
}

BrowseColumn vendorColumn(schema::FieldName field, const QString& heading, int length, int width)
{
    return {.field = "VENTAG",
            .length = length,
            .heading = heading,
            .width = width,
            .shows = [field](const BrowseSession& list, storage::Recordset& rows) {
                return vendorText(list, rows, field);
            }};
}

BrowseColumn markColumn(const State& state)
{
    return {.field = "VENTAG",
            .length = 1,
            .heading = "Tag",
            .width = 450,
            .alignment = Qt::AlignHCenter,
            .shows =
                [state](const BrowseSession& list, storage::Recordset& rows) {
                    return state->marked.contains(intOf(rows[kindOf(list).tag])) ? QString("T")
                                                                                 : QString();
                },
            .isPrinted = false};
}

BrowseColumn statusColumn()
{
    return {.field = "Status",
            .length = 10,
            .heading = "Status",
            .width = 950,
            .shows = [](const BrowseSession&, storage::Recordset& rows) { return statusOf(rows); }};
}

}  // namespace

QString statusOf(const storage::Recordset& rows)
{
    const QString status = trimmedTextOf(rows["Status"]);
    return status.isEmpty() ? QString("Open") : status;
}

RowTone toneOf(const QString& status)
{
    if (status == "Closed")
        return RowTone::Muted;
    if (status == "Voided" || status == "Critical")
        return RowTone::Bad;
    if (status == "Urgent" || status == "Submitted")
        return RowTone::Warning;
    return status == "Open" ? RowTone::Plain : RowTone::Good;
}

std::vector<BrowseColumn> requisitionColumns(const State& state)
{
    return {markColumn(state),
            {.field = "REQNO",
             .length = 5,
             .heading = "Req. #",
             .width = 750,
             .shows =
                 [](const BrowseSession&, storage::Recordset& rows) {
                     return shownRequisitionNumber(intOf(rows["REQNO"]));
                 }},
            numberColumn("CONO", 2, "Co", 400, "##"),
            {.field = "JOBNO", .length = 8, .heading = "Job No.", .width = 1000},
            {.field = "FDATE", .length = 10, .heading = "Date", .width = 1300},
            numberColumn("AMOUNT", 13, "Amount", 1400, "##,###,###.00"),
            statusColumn(),
            vendorColumn("VENNO", "Vendor #", 10, 1000),
            vendorColumn("Name", "Vendor Name", 40, 2900),
            {.field = "PONO",
             .length = 16,
             .heading = "PO No.",
             .width = 1700,
             .headingFor = [](const BrowseSession& list) -> QString {
                 return siteSwitch(list.session().JobSitePath, "VEXUSEPONOCOUNTER") ? "PO Base No."
                                                                                    : "PO No.";
             }}};
}

std::vector<BrowseColumn> orderColumns(const State& state)
{
    return {markColumn(state),
            statusColumn(),
            numberColumn("REVNO", 2, "Rev", 450, "#0"),
            {.field = "PONO", .length = 16, .heading = "PO No.", .width = 1700},
            numberColumn("CONO", 2, "Co", 400, "##"),
            {.field = "JOBNO", .length = 8, .heading = "Job No.", .width = 1000},
            {.field = "FDATE", .length = 10, .heading = "Date", .width = 1300},
            {.field = "CMRNO", .length = 10, .heading = "Cust. Req. #", .width = 1100},
            numberColumn("AMOUNT", 14, "Amount", 1450, "###,###,###.00"),
            {.field = "VEXDLTAG",
             .length = 5,
             .heading = "D/L #",
             .width = 650,
             .alignment = Qt::AlignRight,
             .shows =
                 [](const BrowseSession&, storage::Recordset& rows) {
                     const int tag = intOf(rows["VEXDLTAG"]);
                     return tag == 0 ? QString("-") : QString::number(tag);
                 }},
            vendorColumn("VENNO", "Vendor #", 10, 1000),
            vendorColumn("Name", "Vendor Name", 40, 2900)};
}
