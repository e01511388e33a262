#include "cost/cost_prints.h"

#include "core/cost_code_groups.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/text.h"
#include "cost/job_settings.h"
#include "screens/data/data_spec.h"
#include "screens/entry/entry.h"
#include "screens/report/data_sheet.h"
#include "screens/report/list_report.h"
#include "screens/selectors/job_directory.h"

using Kind = EntryField::Kind;

namespace {

QString companyText(int CONO)
{
    return dnFormat(CONO, "##");
}

// "Tulsa, OK 74101-2210", as far as there is something.
void addCompanies(ReportRun& run, ReportLines& lines)
{
    OpenTable open = openTable(run.session(), "MAIN.mdb", "COLIST");
    storage::Recordset& company = open.rows;
    company.Index("CONO");
    run.expectRows(company.RecordCount());
    for (bool more = company.RecordCount() > 0 && company.MoveFirst(); more;
         more = company.MoveNext()) {
        QStringList address;
        for (const QString& line : {trimmedTextOf(company["ADDRESS1"]),
                                    trimmedTextOf(company["ADDRESS2"]), placeLine(company)})
            if (!line.isEmpty())
                address.append(line);
        if (!lines.add({.cells = {company["CONO"].value(), trimmedTextOf(company["CONAME"]),
                                  address.join('\n'), trimmedTextOf(company["VOICE"]),
                                  trimmedTextOf(company["FAX"])}}))
            return;
    }
}

// Calls for each job of the company, in the order of their numbers, until one gives false.
void walkJobs(const Session& session, int CONO,
              const std::function<bool(storage::Recordset& job)>& take)
{
    OpenTable open = openTable(session, "MAIN.mdb", "JOBLIST");
    storage::Recordset& job = open.rows;
    job.Index("JOBLIST");
    for (bool more = job.Seek(">=", CONO); more && dnInbounds(job, {{"CONO", CONO}});
         more = job.MoveNext())
        if (!take(job))
            return;
}

QString groupText(const CostCodeSettings& group)
{
    if (!group.isDefined())
        return "(none)";
    QString text = group.name + ", " + (group.type == "N" ? "numbers only" : "characters") +
                   ", size " + QString::number(group.size);
    return group.clientName.isEmpty() ? text : text + ", client code " + group.clientName;
}

// What the settings screen shows of the job, line by line.
void addSettings(std::vector<SheetLine>& lines, const Session& session, storage::Recordset& job)
{
    std::vector<EntryField> fields;
    for (const DataSection& section : frmZORJOB03({}).sections)
        fields.insert(fields.end(), section.fields.begin(), section.fields.end());
    Entry entry(fields, session);
    entry.begin("V", job, {});
    for (int i = 0; i < entry.count(); ++i) {
        const EntryField& field = entry.field(i);
        QString caption = field.caption;
        caption.remove('&');
        QString value = entry.text(i);
        if (field.kind == Kind::Heading) {
            lines.push_back({.label = caption, .value = {}, .isHead = true});
            continue;
        }
        if (field.kind == Kind::Box) {
            lines.push_back({.label = value == "-1" ? "Yes" : "No", .value = caption});
            continue;
        }
        for (const EntryChoice& choice : field.choices)
            if (choice.value == value)
                value = choice.text;
        lines.push_back({.label = caption, .value = value});
    }
}

bool addSheet(DataSheets& sheets, const Session& session, storage::Recordset& job)
{
    std::vector<SheetLine> lines = {
        {.label = "Job Number:", .value = trimmedTextOf(job["JOBNO"])},
        {.label = "Job Name:", .value = trimmedTextOf(job["JOBNAME"])},
        {.label = "Remarks:", .value = trimmedTextOf(job["REMARKS"])},
        {.label = "Cost Code Groups", .value = {}, .isHead = true},
    };
    for (const CostCodeGroup& group : costCodeGroups)
        lines.push_back(
            {.label = group.title() + ':', .value = groupText(costCodeSettingsOf(job, group))});
    addSettings(lines, session, job);
    return sheets.add(lines);
}

// The sheets of the jobs that are wanted.
std::function<void(ReportRun&)> jobSheets(int CONO,
                                          const std::function<bool(storage::Recordset&)>& wants)
{
    return [=](ReportRun& run) {
        DataSheets sheets(run, {.reportName = "Job Number Information",
                                .headingLines = {companyLine(run.session(), CONO)}});
        if (sheets.isOpen())
            walkJobs(run.session(), CONO, [&](storage::Recordset& job) {
                return !wants(job) || addSheet(sheets, run.session(), job);
            });
    };
}

ReportPlan jobListPlan(const Session& session, int CONO)
{
    return {.title = "Job Numbers",
            .headingLines = {companyLine(session, CONO)},
            .columns = {{.heading = "Job Number", .width = 1400},
                        {.heading = "Job Name", .width = 4500},
                        {.heading = "Remarks", .width = 5000, .wraps = true}}};
}

}  // namespace

QString companyLine(const Session& session, int CONO)
{
    return "Company: " + companyText(CONO) + ' ' +
           JobDirectory(session.JobSitePath).companyName(CONO).value_or("");
}

QString jobLine(const Session& session, int CONO, const QString& JOBNO)
{
    return "Job Number: " + JOBNO.trimmed() + ' ' +
           JobDirectory(session.JobSitePath).jobName(CONO, JOBNO).value_or("");
}

ReportSpec frmZORCO03()
{
    const ReportPlan plan{
        .title = "Company Numbers",
        .columns = {{.heading = "Company", .width = 1000, .mask = "##", .isCentred = true},
                    {.heading = "Company Name", .width = 3200},
                    {.heading = "Address", .width = 3600, .wraps = true},
                    {.heading = "Phone", .width = 1500},
                    {.heading = "Fax", .width = 1500}}};
    return {.name = "frmZORCO03",
            .caption = "Print Company Numbers",
            .print = listReport([plan](const ReportRun&) { return plan; }, addCompanies)};
}

ReportSpec frmZORJOB04(int CONO, const QString& JOBNO)
{
    ReportSpec screen{.name = "frmZORJOB04", .caption = "Print Job Numbers"};
    screen.begins = {
        {.name = "cmdReport1",
         .caption = "&D/S for: " + JOBNO.trimmed(),
         .print = jobSheets(
             CONO, [JOBNO](storage::Recordset& job) { return textOf(job["JOBNO"]) == JOBNO; }),
         .check = [JOBNO](const ReportRun&) -> std::optional<ReportRefusal> {
             if (dnNotBlank(JOBNO))
                 return {};
             return ReportRefusal{"No Current Job Number",
                                  "To Print a Data Sheet for One Job Number\n"
                                  "Highlight it in the List of Job Numbers."};
         }},
        {.name = "cmdReport2",
         .caption = "Data Sheets for &All Job Numbers",
         .print = jobSheets(CONO, [](storage::Recordset&) { return true; })},
        {.name = "cmdReport3",
         .caption = "&List of Job Numbers",
         .print =
             listReport([CONO](const ReportRun& run) { return jobListPlan(run.session(), CONO); },
                        [CONO](ReportRun& run, ReportLines& lines) {
                            walkJobs(run.session(), CONO, [&lines](storage::Recordset& job) {
                                return lines.add({.cells = {trimmedTextOf(job["JOBNO"]),
                                                            trimmedTextOf(job["JOBNAME"]),
                                                            trimmedTextOf(job["REMARKS"])}});
                            });
                        })},
    };
    return screen;
}
