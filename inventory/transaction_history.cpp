#include "inventory/transaction_history.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/storage/file_paths.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_search.h"
#include "inventory/ledger_reports.h"
#include "screens/report/buffer_report.h"
#include "screens/selectors/report_selectors.h"

namespace {

constexpr char bufferFile[] = "VEXREPORTS.mdb";
constexpr char quantityMask[] = "###,###.00";
constexpr char priceMask[] = "###,###,###.00";

bool hasItem(const ReportRun& run, const QString& PARTNO)
{
    OpenTable items = openTable(run.session(), "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVPARTNO");
    return items.rows.Seek("=", run.selection["ILCTAG"].toInt(), PARTNO);
}

QString refusalOf(const ReportRun& run)
{
    const QString begin = run.selection["txtBPARTNO"].trimmed();
    const QString end = run.selection["txtEPARTNO"].trimmed();
    if (!begin.isEmpty() && !hasItem(run, begin))
        return "Cannot Find Beginning Part Number: " + begin;
    if (end.isEmpty())
        return "Ending Part Number is Empty.";
    if (!hasItem(run, end))
        return "Cannot Find Ending Part Number: " + end;
    const QString beginDate = dnDateKey(run.selection["txtBDATE"]);
    const QString endDate = dnDateKey(run.selection["txtEDATE"]);
    if (dnIsBlank(beginDate))
        return "Invalid Beginning Date: " + run.selection["txtBDATE"];
    if (dnIsBlank(endDate))
        return "Invalid Ending Date: " + run.selection["txtEDATE"];
    return endDate < beginDate ? "Ending Date is Less Than Beginning Date" : QString();
}

std::optional<ReportRefusal> check(const ReportRun& run)
{
    if (const auto refusal = checkReportSelectors(run))
        return refusal;
    if (const QString text = refusalOf(run); !text.isEmpty())
        return ReportRefusal{.title = "Cannot Print Report", .text = text};
    return {};
}

ReportPlan planOf(const ReportRun& run)
{
    const auto branch =
        codeRowAt(run.session().JobSitePath, branchCodes, run.selection["ILCTAG"].toInt());
    const auto number = [](const QString& heading, int width, const char* mask) {
        return ReportColumn{.heading = headingInTwoRows(heading),
                            .width = width,
                            .mask = mask,
                            .workbookHeading = heading};
    };
    return {
        .title = "Inventory Transaction History",
        .headingLines = {branch ? "Branch Code: " + branch->code + " - " + branch->name : QString(),
                         dnPEDateRange(dnFixDate(run.selection["txtBDATE"]),
                                       dnFixDate(run.selection["txtEDATE"]), false)},
        .orientation = "L",
        .columns = {{.heading = "Part Number", .width = 1500},
                    {.heading = "Series\nCode", .width = 700, .workbookHeading = "Series Code"},
                    {.heading = "Sub Cat\nCode", .width = 750, .workbookHeading = "Sub Cat Code"},
                    {.heading = "UPC Code", .width = 1250},
                    {.heading = "Description", .width = 2500, .wraps = true},
                    number("Unit Price", 1000, priceMask),
                    {.heading = "Document", .width = 1900, .wraps = true},
                    {.heading = "Doc. Number", .width = 1250},
                    {.heading = "Doc. Date", .width = 1000},
                    number("Doc. Quantity", 1000, quantityMask),
                    number("On Order", 1000, quantityMask),
                    number("Available", 1000, quantityMask),
                    number("Amount", 1150, priceMask)}};
}

ReportWalk walk()
{
    return bufferWalk(
        {.file = bufferFile,
         .table = "TransactionHistory",
         .index = "TransactionHistory",
         .status = "Reading the transactions...",
         .fill =
             [](ReportRun& run, OpenTable& buffer) {
                 return fillTransactionHistory(
                     {.jobSitePath = run.session().JobSitePath,
                      .ILCTAG = run.selection["ILCTAG"].toInt(),
                      .beginPARTNO = run.selection["txtBPARTNO"].trimmed(),
                      .endPARTNO = run.selection["txtEPARTNO"].trimmed(),
                      .beginLDATE = dnDateKey(run.selection["txtBDATE"]),
                      .endLDATE = dnDateKey(run.selection["txtEDATE"])},
                     buffer, [&run] { return run.proceed(); });
             },
         .cells = [](const ReportRun& run, const storage::Recordset& rows) -> ReportCells {
             const bool isFull = run.selection.isTicked("ckbVEXINVP08PFD");
             const auto text = [&rows](schema::FieldName field) {
                 return trimmedTextOf(rows[field]);
             };
             return {text("PARTNO"),
                     text("SERIESCODE"),
                     text("SUBCATCODE"),
                     text("UPCCODE"),
                     isFull ? text("Desc") : text("SHORTDESC"),
                     rows["UNITPRICE"].value(),
                     text("DOCDESC"),
                     text("DOCNO"),
                     text("DOCFDATE"),
                     rows["QUANTITY"].value(),
                     rows["ONORDER"].value(),
                     rows["AVAILABLE"].value(),
                     rows["AMOUNT"].value()};
         }});
}

QString searchPartNumber(const ReportSelection& selection, const Session& session)
{
    const QString found = zorVEXINVSearch(session, {.ILCTAG = selection["ILCTAG"].toInt()});
    OpenTable items = openTable(session, "ZORVEX.mdb", "INVENTORY");
    return goToFound(items.rows, found) ? trimmedTextOf(items.rows["PARTNO"]) : QString();
}

}  // namespace

ReportSpec frmVEXINVP08()
{
    using Kind = ReportField::Kind;
    return {
        .name = "frmVEXINVP08",
        .caption = "Inventory Transaction History",
        .fields = {branchField(),
                   {.kind = Kind::Text,
                    .name = "txtBPARTNO",
                    .caption = "Be&ginning Part Number:",
                    .search = searchPartNumber},
                   {.kind = Kind::Text,
                    .name = "txtEPARTNO",
                    .caption = "&Ending Part Number:",
                    .search = searchPartNumber},
                   {.kind = Kind::Date,
                    .name = "txtBDATE",
                    .caption = "Beginning &Date:",
                    .setting = "BDATE"},
                   {.kind = Kind::Date,
                    .name = "txtEDATE",
                    .caption = "Ending D&ate:",
                    .setting = "EDATE"},
                   {.kind = Kind::Box,
                    .name = "ckbVEXINVP08PFD",
                    .caption = "Print &Full Descriptions?"},
                   {.kind = Kind::Box,
                    .name = "ckbVEXINVP08PPR",
                    .caption = "P&rint Paper Report?",
                    .value = "-1"}},
        .check = check,
        .print = listReport(planOf, walk()),
        .workbookName =
            [](const ReportRun& run) {
                return storage::joinPath(run.session().JobSitePath,
                                         "Inventory Transacton History.xls");
            },
        .workbookBox = "ckbVEXINVP08MAKEEXCEL",
        .paperBox = "ckbVEXINVP08PPR",
    };
}
