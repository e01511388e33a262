#include "cost/job_checks.h"

#include "core/locators.h"
#include "core/text.h"

namespace {

template <class... Keys>
bool hasRow(const QString& jobSitePath, const char* file, const char* table, const char* index,
            const Keys&... keys)
{
    OpenTable open = openTable(jobSitePath, file, table);
    open.rows.Index(index);
    return open.rows.Seek("=", keys...);
}

// As company numbers are always written.
QString companyText(int CONO)
{
    return QString("%1").arg(CONO, 2);
}

QString pairText(int CONO, const QString& JOBNO)
{
    return QString::number(CONO) + '/' + JOBNO.trimmed();
}

QString defaultsExist(int CONO, const QString& JOBNO)
{
    return "Defaults Exist for Company/Job Pair: " + pairText(CONO, JOBNO);
}

// `kind` as the first lines write it, `again` as the last one does.
Refusal jobKeptBy(const QString& JOBNO, const QString& kind, const QString& again)
{
    return {"Cannot Delete Record", "Job Number " + JOBNO.trimmed() + " cannot be deleted.\n" +
                                        kind +
                                        " related to this Job Number have been detected.\n"
                                        "The Job Number cannot be deleted until\nall related " +
                                        again + " have been deleted."};
}

}  // namespace

bool companyExists(const QString& jobSitePath, int CONO)
{
    return hasRow(jobSitePath, "MAIN.mdb", "COLIST", "CONO", CONO);
}

bool jobExists(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return hasRow(jobSitePath, "MAIN.mdb", "JOBLIST", "JOBLIST", CONO, JOBNO);
}

bool companyHasJobs(const QString& jobSitePath, int CONO)
{
    return hasRow(jobSitePath, "MAIN.mdb", "JOBLIST", "CONO", CONO);
}

bool jobHasTimecards(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return hasRow(jobSitePath, "MAIN.mdb", "TCLIST", "TCCOJOB", CONO, JOBNO);
}

bool jobHasPositions(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return hasRow(jobSitePath, "MAIN.mdb", "PCLIST", "PCLIST", CONO, JOBNO);
}

bool jobHasRequisitions(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return hasRow(jobSitePath, "ZORVEX.mdb", "REQLIST", "REQLIST", CONO, JOBNO);
}

bool jobHasDefaults(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return hasRow(jobSitePath, "ZORVEX.mdb", "JOB_NO_DEFAULTS", "JOB_NO_DEFAULTS", CONO, JOBNO);
}

std::optional<Refusal> refuseCompanyNumberChange(const QString& jobSitePath, int oldCONO,
                                                 int newCONO)
{
    if (oldCONO == newCONO || !companyHasJobs(jobSitePath, oldCONO))
        return {};
    return Refusal{"Cannot Update Record",
                   "You have changed the Company Number from " + companyText(oldCONO) + " to " +
                       companyText(newCONO) +
                       ".\nJob Numbers have been entered under the old company number.\n"
                       "The company number cannot be changed until all jobs\n"
                       "related to the company number have been deleted."};
}

std::optional<Refusal> refuseCompanyDeletion(const QString& jobSitePath, int CONO)
{
    if (!companyHasJobs(jobSitePath, CONO))
        return {};
    return Refusal{"Cannot Delete Record",
                   "Company Number " + companyText(CONO) +
                       " cannot be deleted.\n"
                       "Job Numbers related to this Company Number have been detected.\n"
                       "The Company Number cannot be deleted until\n"
                       "all related Job Numbers have been deleted."};
}

QString jobNumberChangeError(const QString& jobSitePath, int CONO, const QString& oldJOBNO,
                             const QString& newJOBNO)
{
    if (oldJOBNO == newJOBNO || !jobHasPositions(jobSitePath, CONO, oldJOBNO))
        return {};
    return "You have changed the Job # from " + oldJOBNO.trimmed() + " to " + newJOBNO.trimmed() +
           ".\nPosition Codes have been entered under the old Job #.\n"
           "The Job # cannot be changed until all Position Codes\n"
           "related to the Job # have been deleted.";
}

std::optional<Refusal> refuseJobDeletion(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    if (jobHasTimecards(jobSitePath, CONO, JOBNO))
        return jobKeptBy(JOBNO, "Timecard Items", "TiMecard Items");
    if (jobHasPositions(jobSitePath, CONO, JOBNO))
        return jobKeptBy(JOBNO, "Position Codes", "Position Codes");
    return {};
}

QString jobDefaultsCompanyError(const QString& jobSitePath, int CONO)
{
    if (CONO == 0)
        return "Company Number is Zero.";
    return companyExists(jobSitePath, CONO)
               ? QString()
               : "Cannot Find Company Number: " + QString::number(CONO);
}

QString jobDefaultsJobError(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    if (dnIsBlank(JOBNO))
        return "Job Number is Empty.";
    return jobExists(jobSitePath, CONO, JOBNO) ? QString()
                                               : "Cannot Find Job Number: " + JOBNO.trimmed();
}

QString jobDefaultsAddError(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return jobHasDefaults(jobSitePath, CONO, JOBNO)
               ? "Cannot Add New Defaults.\n" + defaultsExist(CONO, JOBNO)
               : QString();
}

QString jobDefaultsPairError(const QString& jobSitePath, int oldCONO, const QString& oldJOBNO,
                             int newCONO, const QString& newJOBNO)
{
    if (oldCONO == newCONO && oldJOBNO == newJOBNO)
        return {};
    if (jobHasDefaults(jobSitePath, newCONO, newJOBNO))
        return defaultsExist(newCONO, newJOBNO);
    if (jobHasRequisitions(jobSitePath, oldCONO, oldJOBNO))
        return "Requisitions Exist for Company/Job Pair: " + pairText(oldCONO, oldJOBNO) +
               "\nCannot Change Company/Job Number Pair";
    return {};
}
