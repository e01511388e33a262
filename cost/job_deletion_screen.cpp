#include "cost/job_deletion_screen.h"

#include "core/locators.h"
#include "core/system.h"
#include "core/text.h"
#include "cost/job_deletion.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/desktop.h"
#include "screens/report/list_report.h"
#include "screens/report/report_window.h"
#include "screens/search/job_searches.h"
#include "screens/selectors/job_directory.h"

namespace {

constexpr const char* words = "OK TO DELETE";
constexpr const char* instruction =
    "Type the words: OK TO DELETE in text box to the right to continue.";

OpenTable openList(const Session& session)
{
    OpenTable list = openTable(session, "ZORUSER.mdb", "DELJOBLIST");
    list.rows.Index("DELJOBLIST");
    return list;
}

JobDirectory directoryOf(const Entry& entry)
{
    return JobDirectory(entry.session().JobSitePath);
}

int companyIn(const Entry& entry)
{
    return static_cast<int>(entry.number("CONO"));
}

// Tells what is wrong with the company; true when nothing is.
bool isCompany(Entry& entry)
{
    QString refusal;
    if (entry.isBlank("CONO") || companyIn(entry) == 0)
        refusal = "Blank Company Number. Must Enter a Co. Number.";
    else if (!directoryOf(entry).companyName(companyIn(entry)))
        refusal = "Cannot Find Company Number: " + entry["CONO"].trimmed();
    if (refusal.isEmpty())
        return true;
    entry.setFocus("CONO");
    showCritical("Invalid Company Number", refusal);
    return false;
}

class DeletionRules : public EntryRules
{
public:
    explicit DeletionRules(JobNoFormat format) : m_format(std::move(format)) {}

    Step beforeWrite(Entry& entry) override
    {
        if (!isCompany(entry))
            return Step::Stay;
        const QString JOBNO = storedJobNo(entry["JOBNO"], m_format);
        QString title = "Invalid Job Number";
        QString refusal;
        if (dnIsBlank(JOBNO)) {
            refusal = "Blank Job Number. Must Enter a Job Number.";
        } else if (!directoryOf(entry).jobName(companyIn(entry), JOBNO)) {
            refusal = "Cannot Find Job Number: " + entry["JOBNO"].trimmed();
        } else if (entry.isTaken("DELJOBLIST", {{"CONO", companyIn(entry)}, {"JOBNO", JOBNO}})) {
            title = "Cannot Update";
            refusal = "The Job Number is on the List Already.";
        }
        if (refusal.isEmpty()) {
            entry.give("JOBNO", JOBNO);
            return Step::Write;
        }
        entry.setFocus("JOBNO");
        showCritical(title, refusal);
        return Step::Stay;
    }

private:
    JobNoFormat m_format;
};

QString searchCompany(const Entry& entry)
{
    const QString path = entry.session().JobSitePath;
    return directoryOf(entry).companyAt(zorSearchCompany(path));
}

QString searchJob(const Entry& entry)
{
    const QString path = entry.session().JobSitePath;
    return directoryOf(entry).jobAt(zorSearchJob(path, static_cast<qint16>(companyIn(entry))));
}

QString jobName(const BrowseSession& list, storage::Recordset& rows)
{
    storage::Recordset& jobs = list.beside("JOBLIST");
    return jobs.Seek("=", rows["CONO"].value(), rows["JOBNO"].value())
               ? trimmedTextOf(jobs["JOBNAME"])
               : QString();
}

void begin(BrowseSession& list)
{
    if (list.list().isEmpty())
        return showCritical("Job List is Empty",
                            "List of Job Numbers to Delete is Empty. Cannot Continue.");
    openScreen(new ReportWindow(jobDeletionRun(), list.session()));
}

// ---- the run

struct Job
{
    int CONO;
    QString JOBNO;
};

std::vector<Job> jobsToDelete(const Session& session)
{
    std::vector<Job> jobs;
    OpenTable list = openList(session);
    for (bool more = list.rows.RecordCount() > 0 && list.rows.MoveFirst(); more;
         more = list.rows.MoveNext())
        jobs.push_back({intOf(list.rows["CONO"]), textOf(list.rows["JOBNO"])});
    return jobs;
}

std::optional<ReportRefusal> checkWords(const ReportRun& run)
{
    if (run.selection["txtVERIFY"].trimmed().toUpper() == words)
        return {};
    return ReportRefusal{"Cannot Delete", instruction};
}

// False when the run was stopped.
bool deleteOne(const Job& job, ReportRun& run, ReportLines& lines)
{
    const QString head = "Company Number: " + QString::number(job.CONO) +
                         " Job Number: " + job.JOBNO.trimmed() + " on " +
                         System::current().now().toString("MM/dd/yyyy");
    bool goesOn = true;
    const auto add = [&](const QString& name, const QString& text) {
        goesOn = lines.add({.cells = {name, text}, .keys = {head}}) && goesOn;
    };
    const bool isWhole =
        deleteJob(run.session().JobSitePath, job.CONO, job.JOBNO,
                  {.deleted =
                       [&](const QString& name, int count) {
                           run.showStatus("Deleting " + name + "...");
                           add(name, deletionCountText(count));
                       },
                   .remark = [&](const QString& remark) { add(remark, {}); },
                   .proceed =
                       [&](const QString& name, int count) {
                           run.showStatus("Deleting " + name + ": " + QString::number(count));
                           return goesOn && run.proceed();
                       }});
    if (!isWhole) {
        lines.note("Cancelled. What is Listed Above Has Been Deleted.");
        return false;
    }
    OpenTable list = openList(run.session());
    if (list.rows.Seek("=", job.CONO, job.JOBNO))
        list.rows.Delete();
    return goesOn && run.proceed();
}

}  // namespace

void autoFillJobDeletion(BrowseSession& list)
{
    Entry& entry = list.entry();
    if (!isCompany(entry))
        return;
    const std::vector<CodeChoice> jobs = directoryOf(entry).jobs(companyIn(entry));
    if (jobs.empty())
        return showCritical("No Items Found", "Cannot Find Any Job Numbers");
    const int CONO = companyIn(entry);
    const JobNoFormat format = directoryOf(entry).jobNoFormat();
    OpenTable open = openList(list.session());
    storage::Recordset& rows = open.rows;
    for (const CodeChoice& job : jobs) {
        const QString JOBNO = storedJobNo(job.code, format);
        if (rows.Seek("=", CONO, JOBNO))
            continue;
        rows.AddNew();
        rows["CONO"] = CONO;
        rows["JOBNO"] = JOBNO;
        rows.Update();
    }
    list.cancel();
    list.list().rebuild();
}

BrowseSpec frmZORDELJOBNO(const JobNoFormat& format)
{
    return {
        .name = "frmZORDELJOBNO",
        .caption = "Delete Job Numbers and All Related Data",
        .file = "ZORUSER.mdb",
        .table = "DELJOBLIST",
        .index = "DELJOBLIST",
        .columns = {{.field = "CONO",
                     .length = 2,
                     .heading = "Company Number",
                     .width = 1800,
                     .entry = "txtCONO",
                     .search = searchCompany},
                    {.field = "JOBNO",
                     .length = format.size,
                     .heading = "Job Number",
                     .width = 1800,
                     .entry = "txtJOBNO",
                     .keys = {.upperCase = true},
                     .search = searchJob},
                    {.field = {},
                     .length = 50,
                     .heading = "Job Name",
                     .width = 4500,
                     .shows = jobName,
                     .isPrinted = false}},
        .besides = {{"MAIN.mdb", "JOBLIST", "JOBLIST"}},
        .rules = std::make_shared<DeletionRules>(format),
        .deleteQuestion =
            [](storage::Recordset& rows) {
                return "OK to Take Job Number " + trimmedTextOf(rows["JOBNO"]) + " off the List?";
            },
        .commands = {{.name = "cmdBegin", .caption = "&Begin", .run = begin, .key = Qt::Key_B},
                     {.name = "cmdAutoFill",
                      .caption = "Auto &Fill",
                      .run = autoFillJobDeletion,
                      .inEntryMode = true}},
        .readsAnewInFront = true,
    };
}

QWidget* newJobDeletion(const ScreenContext& context)
{
    const JobNoFormat format = zorGetJobNoFormat(context.session.JobSitePath);
    return format.size < 1 ? nullptr : new BrowseWindow(frmZORDELJOBNO(format), context);
}

ReportSpec jobDeletionRun()
{
    ReportSpec screen{.name = "frmZORDELJOBNO",
                      .caption = "Delete Job Numbers and All Related Data"};
    screen.fields = {
        {.kind = ReportField::Kind::Text, .name = "txtVERIFY", .caption = instruction}};
    screen.begins = {{.name = "cmdGO",
                      .caption = "&Delete Now",
                      .print = listReport(
                          [](const ReportRun&) -> ReportPlan {
                              return {.moduleName = "Labor Tracking Module",
                                      .title = "Results from Job Number Deletion",
                                      .columns = {{.heading = "Data", .width = 5000},
                                                  {.heading = "Result", .width = 3500}},
                                      .levels = {{.totalCaption = {}, .hasHead = true}}};
                          },
                          [](ReportRun& run, ReportLines& lines) {
                              for (const Job& job : jobsToDelete(run.session()))
                                  if (!deleteOne(job, run, lines))
                                      return;
                          }),
                      .check = checkWords}};
    screen.finishedText = "Job Number and All Related Data Has Been Deleted";
    return screen;
}
