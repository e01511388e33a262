#include "inventory/issue_summary.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/ledger_reports.h"
#include "screens/report/buffer_report.h"
#include "screens/search/inventory_searches.h"
#include "screens/selectors/report_selectors.h"

namespace {

constexpr char mask[] = "#######.00";

QDate dateIn(const ReportRun& run, const char* name)
{
    return QDate::fromString(dnFixDate(run.selection[name]), "MM/dd/yyyy");
}

QString shown(const IssuePeriod& period)
{
    return period.begin.toString("MM/dd/yyyy") + " - " + period.end.toString("MM/dd/yyyy");
}

std::optional<CodeRow> seriesIn(const ReportRun& run, const char* name)
{
    return codeRow(run.session().JobSitePath, seriesCodes, run.selection["ILCTAG"].toInt(),
                   run.selection[name]);
}

QString refusalOf(const ReportRun& run)
{
    const QString begin = run.selection["txtBSERIESCODE"].trimmed();
    const QString end = run.selection["txtESERIESCODE"].trimmed();
    if (!begin.isEmpty() && !seriesIn(run, "txtBSERIESCODE"))
        return "Cannot Find Series Code: " + begin;
    if (end.isEmpty())
        return "Ending Series Code is Empty.";
    if (!seriesIn(run, "txtESERIESCODE"))
        return "Cannot Find Series Code: " + end;
    if (!dateIn(run, "txtBDATE").isValid())
        return "Invalid Beginning Date: " + run.selection["txtBDATE"];
    if (!dateIn(run, "txtEDATE").isValid())
        return "Invalid Ending Date: " + run.selection["txtEDATE"];
    return dateIn(run, "txtEDATE") < dateIn(run, "txtBDATE")
               ? "Ending Date is Less Than Beginning Date"
               : QString();
}

std::optional<ReportRefusal> check(const ReportRun& run)
{
    if (const auto refusal = checkReportSelectors(run))
        return refusal;
    const QString text = refusalOf(run);
    return text.isEmpty()
               ? std::nullopt
               : std::optional<ReportRefusal>({.title = "Cannot Print Report", .text = text});
}

IssueSummaryRequest requestOf(const ReportRun& run)
{
    return {.jobSitePath = run.session().JobSitePath,
            .ILCTAG = run.selection["ILCTAG"].toInt(),
            .beginSERIESCODE = run.selection["txtBSERIESCODE"].trimmed(),
            .endSERIESCODE = run.selection["txtESERIESCODE"].trimmed(),
            .begin = dateIn(run, "txtBDATE"),
            .end = dateIn(run, "txtEDATE"),
            .activity = run.selection.isTicked("ckbVEXISROPT1")   ? IssueActivity::OnlyWith
                        : run.selection.isTicked("ckbVEXISROPT2") ? IssueActivity::OnlyWithout
                                                                  : IssueActivity::All};
}

QString titleOf(IssueActivity activity)
{
    const QString title = "Issue Summary Report";
    if (activity == IssueActivity::OnlyWith)
        return title + " - Only Items with Activity for Period";
    return activity == IssueActivity::OnlyWithout ? title + " - Items with No Activity for Period"
                                                  : title;
}

// A column of the buffer; no field: filled in by hand at a count.
struct IssueColumn
{
    schema::FieldName field;
    const char* heading;
    int width;
    bool isNumber = false;
};
const IssueColumn issueColumns[] = {
    {"SERIESCODE", "Series", 600},
    {"BINNO", "Bin No.", 750},
    {"PARTNO", "Part Number", 1500},
    {"MFGPARTNO", "MFG Part #", 1400},
    {"SUBCATCODE", "Sub. Cat.", 650},
    {"SHORTDESC", "Description", 2600},
    {"MINIMUM", "Min", 800, true},
    {"Maximum", "Max", 800, true},
    {"AVAILABLE", "Qty. On Hand", 900, true},
    {"ONORDER", "Qty.  On Order", 900, true},
    {"VENNO", "Vendor Number", 950},
    {"ISSUED", "Qty. Issued", 850, true},
    {"MONTHTODATE", "Month to Date", 850, true},
    {"LASTMONTH", "Last Month", 850, true},
    {"LAST12MONTHS", "Last 12 Months", 900, true},
    {"MONTHAVERAGE", "Monthly Average", 900, true},
    {"WHOLESALE", "Unit Cost", 900, true},
    {"EXTCOST", "Ext. Cost", 950, true},
    {{}, " On Hand", 800},
    {{}, "Difference", 850},
};

ReportPlan planOf(const ReportRun& run)
{
    const IssueSummaryRequest request = requestOf(run);
    const auto branch = codeRowAt(request.jobSitePath, branchCodes, request.ILCTAG);
    const IssuePeriods periods = issuePeriods(request.end);
    ReportPlan plan{.title = titleOf(request.activity),
                    .headingLines = {"for Branch Code: " +
                                         (branch ? branch->code + " - " + branch->name : QString()),
                                     "Period: " + shown({request.begin, request.end}) +
                                         "    Month to Date: " + shown(periods.monthToDate) +
                                         "    Last Month: " + shown(periods.lastMonth) +
                                         "    Last 12 Months: " + shown(periods.last12Months)},
                    .orientation = "L",
                    .columns = {}};
    for (const IssueColumn& column : issueColumns)
        plan.columns.push_back({.heading = headingInTwoRows(column.heading),
                                .width = column.width,
                                .mask = column.isNumber ? QString(mask) : QString(),
                                .workbookHeading = column.heading});
    return plan;
}

ReportWalk walk()
{
    return bufferWalk(
        {.file = "ZORUSER.mdb",
         .table = "INVISR",
         .index = "INVISR",
         .status = "Adding up what was issued...",
         .fill =
             [](ReportRun& run, OpenTable& buffer) {
                 return fillIssueSummary(requestOf(run), buffer, [&run] { return run.proceed(); });
             },
         .cells =
             [](const ReportRun&, const storage::Recordset& rows) {
                 ReportCells cells;
                 for (const IssueColumn& column : issueColumns)
                     cells.push_back(column.field.isNone() ? storage::Value(QString())
                                     : column.isNumber
                                         ? rows[column.field].value()
                                         : storage::Value(trimmedTextOf(rows[column.field])));
                 return cells;
             }});
}

QString searchSeries(const ReportSelection& selection, const Session& session)
{
    const QString found = zorSearchSeries(session.JobSitePath, selection["ILCTAG"].toInt());
    OpenTable series = openTable(session, "ZORVEX.mdb", "SERIESCODES");
    return goToFound(series.rows, found) ? trimmedTextOf(series.rows["SERIESCODE"]) : QString();
}

}  // namespace

ReportSpec frmVEXINVISR()
{
    using Kind = ReportField::Kind;
    return {
        .name = "frmVEXINVISR",
        .caption = "Issue Summary Report",
        .fields = {branchField(),
                   {.kind = Kind::Text,
                    .name = "txtBSERIESCODE",
                    .caption = "Be&ginning Series Code:",
                    .search = searchSeries},
                   {.kind = Kind::Text,
                    .name = "txtESERIESCODE",
                    .caption = "&Ending Series Code:",
                    .search = searchSeries},
                   {.kind = Kind::Date,
                    .name = "txtBDATE",
                    .caption = "Beginning &Date:",
                    .setting = "BDATE"},
                   {.kind = Kind::Date,
                    .name = "txtEDATE",
                    .caption = "Ending D&ate:",
                    .setting = "EDATE"},
                   {.kind = Kind::Box,
                    .name = "ckbVEXISROPT1",
                    .caption = "Include &Only Activity for Period?"},
                   {.kind = Kind::Box,
                    .name = "ckbVEXISROPT2",
                    .caption = "Include Only Items with &No Activity for Period?"},
                   {.kind = Kind::Remark,
                    .name = "lblPaper",
                    .caption = "This Report Uses Legal Size Paper"}},
        .check = check,
        .print = listReport(planOf, walk()),
        .workbookName = [](const ReportRun&) { return QString("VEXISR.xls"); },
        .paper = legalPaper,
    };
}
