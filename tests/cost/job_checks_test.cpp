#include "cost/job_checks.h"

#include <gtest/gtest.h>

#include "tests/support/test_installation.h"

namespace {

const QString job = "      12";
const QString other = "      13";

class JobChecks : public testing::Test
{
protected:
    JobChecks()
    {
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 7}});
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 7}, {"JOBNO", job}});
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 7}, {"JOBNO", other}});
    }
    void add(const char* file, const char* table) const
    {
        site.addRow(file, table, {{"CONO", 7}, {"JOBNO", job}});
    }
    const QString path() const { return site.siteFolder(); }

    TestInstallation site;
};

TEST_F(JobChecks, KeepACompanyThatHasJobs)
{
    EXPECT_EQ(refuseCompanyNumberChange(path(), 7, 12)->text.section('\n', 0, 0),
              "You have changed the Company Number from  7 to 12.");
    EXPECT_FALSE(refuseCompanyNumberChange(path(), 7, 7)) << "the number stays";
    EXPECT_FALSE(refuseCompanyNumberChange(path(), 8, 12));
    EXPECT_TRUE(refuseCompanyDeletion(path(), 7));
    EXPECT_FALSE(refuseCompanyDeletion(path(), 8));
}

TEST_F(JobChecks, KeepAJobThatHasTimecardsOrPositions)
{
    add("ZORVEX.mdb", "REQLIST");
    add("MAIN.mdb", "CCALIST");
    EXPECT_FALSE(refuseJobDeletion(path(), 7, job)) << "documents and codes stay behind";
    add("MAIN.mdb", "PCLIST");
    EXPECT_TRUE(refuseJobDeletion(path(), 7, job)
                    ->text.endsWith("all related Position Codes have been deleted."));
    EXPECT_TRUE(jobNumberChangeError(path(), 7, job, other)
                    .startsWith("You have changed the Job # from 12 to 13."));
    EXPECT_EQ(jobNumberChangeError(path(), 7, job, job), "");
    EXPECT_EQ(jobNumberChangeError(path(), 7, other, job), "");
    add("MAIN.mdb", "TCLIST");
    EXPECT_EQ(refuseJobDeletion(path(), 7, job)->text,
              "Job Number 12 cannot be deleted.\n"
              "Timecard Items related to this Job Number have been detected.\n"
              "The Job Number cannot be deleted until\n"
              "all related TiMecard Items have been deleted.");
}

TEST_F(JobChecks, KnowWhereDefaultsMayStand)
{
    EXPECT_EQ(jobDefaultsCompanyError(path(), 0), "Company Number is Zero.");
    EXPECT_EQ(jobDefaultsCompanyError(path(), 8), "Cannot Find Company Number: 8");
    EXPECT_EQ(jobDefaultsCompanyError(path(), 7), "");
    EXPECT_EQ(jobDefaultsJobError(path(), 7, "        "), "Job Number is Empty.");
    EXPECT_EQ(jobDefaultsJobError(path(), 7, "      99"), "Cannot Find Job Number: 99");
    EXPECT_EQ(jobDefaultsAddError(path(), 7, job), "");
    add("ZORVEX.mdb", "JOB_NO_DEFAULTS");
    EXPECT_EQ(jobDefaultsAddError(path(), 7, job),
              "Cannot Add New Defaults.\nDefaults Exist for Company/Job Pair: 7/12");
    EXPECT_EQ(jobDefaultsPairError(path(), 7, job, 7, job), "");
    EXPECT_EQ(jobDefaultsPairError(path(), 7, job, 7, other), "");
    EXPECT_EQ(jobDefaultsPairError(path(), 7, other, 7, job),
              "Defaults Exist for Company/Job Pair: 7/12");
    add("ZORVEX.mdb", "REQLIST");
    EXPECT_EQ(jobDefaultsPairError(path(), 7, job, 7, other),
              "Requisitions Exist for Company/Job Pair: 7/12\n"
              "Cannot Change Company/Job Number Pair");
}

}  // namespace
