// The list and the data sheets of a job's cost codes.
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/text.h"
#include "cost/cost_codes.h"
#include "cost/cost_prints.h"
#include "screens/report/data_sheet.h"
#include "screens/report/list_report.h"

namespace {

// A group's codes of one job.
struct JobCodes
{
    CostCodeGroup group;
    int CONO;
    QString JOBNO;

    // Calls for each, in the order of their codes, until one gives false.
    void walk(ReportRun& run, const std::function<bool(storage::Recordset&)>& take) const
    {
        OpenTable codes = openTable(run.session(), "MAIN.mdb", group.table);
        storage::Recordset& rows = codes.rows;
        forEachWithin(rows, group.table, {{"CONO", CONO}, {"JOBNO", JOBNO}},
                      [&] { return take(rows); });
    }

    CostCodeSettings settings(const Session& session) const
    {
        const auto job = costCodeSettingsOf(session.JobSitePath, CONO, JOBNO);
        return job ? (*job)[static_cast<size_t>(group.letter - 'A')] : CostCodeSettings{};
    }

    QString clientCaption(const Session& session) const
    {
        const QString name = settings(session).clientName;
        return name.isEmpty() ? "Invoicing Code" : name;
    }

    QStringList headingLines(const Session& session) const
    {
        return {companyLine(session, CONO), jobLine(session, CONO, JOBNO),
                group.title() + ": " + settings(session).name};
    }

    ReportPlan listPlan(const Session& session) const
    {
        return {.title = group.title() + " Cost Code List",
                .headingLines = headingLines(session),
                .columns = {{.heading = "Cost Code", .width = 1700},
                            {.heading = "Description", .width = 3600},
                            {.heading = clientCaption(session), .width = 1600},
                            {.heading = "Non-Reim", .width = 900, .isCentred = true},
                            {.heading = "G/L Code", .width = 1200},
                            {.heading = "Mat Code", .width = 900},
                            {.heading = "A/P Code", .width = 1300}}};
    }
};

QString yesOrNo(const storage::Field& field)
{
    return field.value().toBool() ? "Y" : "N";
}

void addList(const JobCodes& codes, ReportRun& run, ReportLines& lines)
{
    codes.walk(run, [&](storage::Recordset& rows) {
        return lines.add({.cells = {trimmedTextOf(rows[codes.group.code]),
                                    trimmedTextOf(rows[codes.group.description]),
                                    trimmedTextOf(rows[codes.group.clientCode]),
                                    yesOrNo(rows["NONREIM"]), trimmedTextOf(rows["GLCODE"]),
                                    trimmedTextOf(rows["MCODE"]), trimmedTextOf(rows["APCODE"])}});
    });
}

std::vector<SheetLine> sheetOf(storage::Recordset& rows, const CostCodeGroup& group,
                               const QString& clientCaption)
{
    return {{.label = "Cost Code:", .value = trimmedTextOf(rows[group.code])},
            {.label = "Description:", .value = trimmedTextOf(rows[group.description])},
            {.label = clientCaption + ':', .value = trimmedTextOf(rows[group.clientCode])},
            {.label = "Non-Reimbursable:", .value = yesOrNo(rows["NONREIM"])},
            {.label = "G/L Code:", .value = trimmedTextOf(rows["GLCODE"])},
            {.label = "Mat Code:", .value = trimmedTextOf(rows["MCODE"])},
            {.label = "A/P Code:", .value = trimmedTextOf(rows["APCODE"])},
            {.label = "Staff Upload Code:", .value = trimmedTextOf(rows["STAFFULC"])},
            {.label = "Craft Upload Code:", .value = trimmedTextOf(rows["CRAFTULC"])},
            {.label = "PO LI Ref:", .value = trimmedTextOf(rows["POLIREF"])},
            {.label = "Reviewer:", .value = trimmedTextOf(rows["REVIEWER"])},
            {.label = "Plant:", .value = trimmedTextOf(rows["PLANTCODE"])},
            {.label = "Location:", .value = trimmedTextOf(rows["Location"])}};
}

// The sheets of the codes that are wanted; a few stand on each page.
std::function<void(ReportRun&)> codeSheets(const JobCodes& codes,
                                           const std::function<bool(storage::Recordset&)>& wants)
{
    return [=](ReportRun& run) {
        const QString caption = codes.clientCaption(run.session());
        DataSheets sheets(run, {.reportName = codes.group.title() + " Cost Code Information",
                                .headingLines = codes.headingLines(run.session()),
                                .ownPages = false});
        if (sheets.isOpen())
            codes.walk(run, [&](storage::Recordset& rows) {
                return !wants(rows) || sheets.add(sheetOf(rows, codes.group, caption));
            });
    };
}

}  // namespace

ReportSpec frmPLGCCG02(const CostCodeGroup& group, int CONO, const QString& JOBNO,
                       const QString& code)
{
    const JobCodes codes{group, CONO, JOBNO};
    ReportSpec screen{.name = "frmPLGCCG02", .caption = "Print Cost Codes"};
    screen.begins = {
        {.name = "cmdReport1",
         .caption = "Print &List",
         .print = listReport(
             [codes](const ReportRun& run) { return codes.listPlan(run.session()); },
             [codes](ReportRun& run, ReportLines& lines) { addList(codes, run, lines); })},
        {.name = "cmdReport2",
         .caption = "Costcode &Datasheet",
         .print = codeSheets(
             codes, [=](storage::Recordset& rows) { return textOf(rows[group.code]) == code; }),
         .check = [code](const ReportRun&) -> std::optional<ReportRefusal> {
             if (dnNotBlank(code))
                 return {};
             return ReportRefusal{"No Current Cost Code",
                                  "To Print a Data Sheet for One Cost Code\n"
                                  "Highlight it in the List of Cost Codes."};
         }},
        {.name = "cmdReport3",
         .caption = "DataSheets for &All Costcodes",
         .print = codeSheets(codes, [](storage::Recordset&) { return true; })},
    };
    return screen;
}
