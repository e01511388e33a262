#include "cost/jobs.h"

#include "core/text.h"
#include "cost/cost_prints.h"
#include "cost/job_checks.h"
#include "cost/job_clone_window.h"
#include "cost/job_settings.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/job_searches.h"

namespace {

// In an entry a job number stands without the blanks of its stored form.
QString checkNumber(const Entry& entry, const JobNoFormat& format)
{
    const QString JOBNO = storedJobNo(entry["JOBNO"], format);
    if (dnIsBlank(JOBNO))
        return "Empty Job Number Detected.";
    const bool isTaken = entry.isTakenInParent("JOBLIST", {{"JOBNO", JOBNO}});
    if (isTaken && entry.isAdding())
        return "Duplicate Job Number Detected. The job number you have entered\n"
               "already exists for the Company Number in another record.";
    if (isTaken)
        return "Duplicate Job Number Detected. The Job Number you have entered\n"
               "already exists for the above Company Number in another record.";
    if (entry.isAdding() || !entry.goToRecord())
        return {};
    return jobNumberChangeError(entry.session().JobSitePath, entry.parentKey("CONO").toInt(),
                                textOf(entry.rows()["JOBNO"]), JOBNO);
}

class JobRules : public EntryRules
{
public:
    explicit JobRules(JobNoFormat format) : m_format(std::move(format)) {}
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        rows["JOBNO"] = storedJobNo(entry["JOBNO"], m_format);
    }

private:
    JobNoFormat m_format;
};

QString deleteTest(const BrowseSession& list, storage::Recordset& rows)
{
    const std::optional<Refusal> refusal =
        refuseJobDeletion(list.session().JobSitePath, intOf(rows["CONO"]), textOf(rows["JOBNO"]));
    return refusal ? refusal->text : QString();
}

// The list stands on the job that a command is about.
DataRecord jobInHand(BrowseSession& list)
{
    storage::Recordset& rows = list.list().rows();
    return {.mode = "E",
            .index = "JOBLIST",
            .keys = {{"CONO", rows["CONO"].value()}, {"JOBNO", rows["JOBNO"].value()}}};
}

QString jobText(BrowseSession& list)
{
    storage::Recordset& rows = list.list().rows();
    return trimmedTextOf(rows["JOBNO"]) + ' ' + trimmedTextOf(rows["JOBNAME"]);
}

void openCostCodes(BrowseSession& list)
{
    openDataScreen(frmZORJOB02(jobText(list)), list.session(), jobInHand(list));
}

void openSettings(BrowseSession& list)
{
    openDataScreen(frmZORJOB03(jobText(list)), list.session(), jobInHand(list));
}

void openClone(BrowseSession& list)
{
    const JobNoFormat format = zorGetJobNoFormat(list.session().JobSitePath);
    if (format.size < 1)
        return;
    storage::Recordset& rows = list.list().rows();
    frmZORJOB05 clone(list.session(), format,
                      {.CONO = intOf(rows["CONO"]),
                       .JOBNO = textOf(rows["JOBNO"]),
                       .name = trimmedTextOf(rows["JOBNAME"])});
    clone.exec();
    list.list().rebuild();
}

void openPrint(BrowseSession& list)
{
    const bool isOnJob = list.list().isOnRecord() && list.list().goToCurrent();
    openScreen(
        new ReportWindow(frmZORJOB04(list.parentKey("CONO").toInt(),
                                     isOnJob ? textOf(list.list().rows()["JOBNO"]) : QString()),
                         list.session()));
}

}  // namespace

BrowseSpec frmZORJOB01(const JobNoFormat& format)
{
    return {
        .name = "frmZORJOB01",
        .caption = "Job Numbers",
        .file = "MAIN.mdb",
        .table = "JOBLIST",
        .index = "JOBLIST",
        .parent = companyParent(),
        .columns =
            {{.field = "JOBNO",
              .length = format.size,
              .heading = "Job Number",
              .width = 1700,
              .entry = "txtJOBNO",
              .tidy = [format](const QString& text) { return storedJobNo(text, format).trimmed(); },
              .check = [format](const Entry& entry) { return checkNumber(entry, format); }},
             {.field = "JOBNAME",
              .length = 50,
              .heading = "Job Name",
              .width = 5000,
              .entry = "txtJOBNAME",
              .check = required("JOBNAME", "Job Name is Empty")},
             {.field = "REMARKS",
              .length = 100,
              .heading = "Remarks",
              .width = 5500,
              .entry = "txtREMARKS"}},
        .rules = std::make_shared<JobRules>(format),
        .deleteQuestion =
            [](storage::Recordset& rows) {
                return "OK to Delete Job Number: " + trimmedTextOf(rows["JOBNO"]) + ' ' +
                       trimmedTextOf(rows["JOBNAME"]) + '?';
            },
        .deleteTest = deleteTest,
        .search =
            [](const BrowseSession& list) {
                return zorSearchJob(list.session().JobSitePath,
                                    static_cast<qint16>(list.parentKey("CONO").toInt()));
            },
        .print = {.run = openPrint},
        .commands = {{.name = "cmdCostcodes",
                      .caption = "&Costcodes",
                      .run = openCostCodes,
                      .key = Qt::Key_C,
                      .needsRecord = true},
                     {.name = "cmdSettings",
                      .caption = "Se&ttings",
                      .run = openSettings,
                      .key = Qt::Key_T,
                      .needsRecord = true},
                     {.name = "cmdClone",
                      .caption = "Clo&ne",
                      .run = openClone,
                      .key = Qt::Key_N,
                      .needsRecord = true}},
    };
}

QWidget* newJobNumbers(const ScreenContext& context)
{
    const JobNoFormat format = zorGetJobNoFormat(context.session.JobSitePath);
    return format.size < 1 ? nullptr : new BrowseWindow(frmZORJOB01(format), context);
}
