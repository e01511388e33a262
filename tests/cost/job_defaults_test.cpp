// Job number defaults: one row a pair of company and job.
#include "cost/job_defaults.h"

#include <gtest/gtest.h>

#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"

namespace {

class JobDefaults : public testing::Test
{
protected:
    JobDefaults()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        session.UserName = TestInstallation::userName;
        for (const char* table : {"COLIST", "JOBLIST"})
            site.emptyTable("MAIN.mdb", table);
        site.emptyTable("ZORVEX.mdb", "JOB_NO_DEFAULTS");
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 1}, {"CONAME", "Builders"}});
        for (const char* JOBNO : {"    1001", "    1002", "    1003"})
            site.addRow("MAIN.mdb", "JOBLIST",
                        {{"CONO", 1}, {"JOBNO", JOBNO}, {"JOBNAME", "Yard"}});
        site.addRow("ZORVEX.mdb", "JOB_NO_DEFAULTS",
                    {{"JNDTAG", 5}, {"CONO", 1}, {"JOBNO", "    1001"}});
    }
    DataSession open(const QString& mode, int JNDTAG = 0) const
    {
        return DataSession(frmVEXJND02(session, format), session,
                           {.mode = mode, .index = "JNDTAG", .keys = {{"JNDTAG", JNDTAG}}});
    }
    void refuse(DataSession& screen, const QStringList& texts)
    {
        user.expect("Cannot Update", "Errors Detected: \n\n" + texts.join('\n'));
        EXPECT_FALSE(screen.update());
    }
    static void typePair(DataSession& screen, const QString& CONO, const QString& JOBNO)
    {
        screen.entry().setText("CONO", CONO);
        screen.entry().setText("JOBNO", JOBNO);
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
    JobNoFormat format;
};

TEST_F(JobDefaults, AddOneRowForAJobThatIsThere)
{
    DataSession screen = open("A");
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "Job Number Defaults - Add");
    EXPECT_EQ(screen.entry()["ITEM6"], "1") << "1 - (none)";
    refuse(screen, {"Company Number is Zero.", "Job Number is Empty."});
    typePair(screen, "2", "1001");
    refuse(screen, {"Cannot Find Company Number: 2", "Cannot Find Job Number: 1001"});
    typePair(screen, "1", "1001");
    refuse(screen, {"Cannot Add New Defaults.\nDefaults Exist for Company/Job Pair: 1/1001"});
    typePair(screen, "1", "1002");
    const Entry& entry = screen.entry();
    EXPECT_EQ(entry.field(entry.indexOf(QString("lblCONAME"))).shows(entry), "Builders");
    EXPECT_EQ(entry.field(entry.indexOf(QString("lblJOBNAME"))).shows(entry), "Yard");
    screen.entry().setText("SHIPTO", "Gate 4");
    screen.entry().setText("ITEM2", "7");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(
        rowsOf(site, "ZORVEX.mdb", "JOB_NO_DEFAULTS", {"CONO", "JOBNO", "SHIPTO", "ITEM1", "ITEM2"})
            .last(),
        "1|    1002|Gate 4|1|7");
}

TEST_F(JobDefaults, GoToAnotherPairOnlyWhileTheOldOneHasNoRequisitions)
{
    site.addRow("ZORVEX.mdb", "JOB_NO_DEFAULTS",
                {{"JNDTAG", 6}, {"CONO", 1}, {"JOBNO", "    1002"}});
    site.emptyTable("ZORVEX.mdb", "REQLIST");
    DataSession screen = open("E", 5);
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.entry()["ITEM1"], "1") << "what was never chosen is none";
    typePair(screen, "1", "1002");
    refuse(screen, {"Defaults Exist for Company/Job Pair: 1/1002"});
    site.addRow("ZORVEX.mdb", "REQLIST", {{"CONO", 1}, {"JOBNO", "    1001"}, {"REQTAG", 9}});
    typePair(screen, "1", "1003");
    refuse(screen, {"Requisitions Exist for Company/Job Pair: 1/1001\n"
                    "Cannot Change Company/Job Number Pair"});
    typePair(screen, "1", "1001");
    EXPECT_TRUE(screen.update()) << "the own pair is no other's";
    site.emptyTable("ZORVEX.mdb", "REQLIST");
    DataSession again = open("E", 5);
    ASSERT_TRUE(again.open());
    typePair(again, "1", "1003");
    EXPECT_TRUE(again.update());
    EXPECT_EQ(rowsOf(site, "ZORVEX.mdb", "JOB_NO_DEFAULTS", {"JNDTAG", "JOBNO"}),
              QStringList({"5|    1003", "6|    1002"}));
}

TEST_F(JobDefaults, ListNamesThePairAndARowIsDeletedOnItsOwn)
{
    BrowseSession list(frmVEXJND01(), session);
    list.open();
    EXPECT_EQ(list.spec().status(list), "Builders\nYard");
    {
        DataSession screen = open("D", 5);
        ASSERT_TRUE(screen.open());
        user.expect("Confirm Delete.", "OK to Delete?", Answer::Ok);
        EXPECT_TRUE(screen.update());
    }
    EXPECT_EQ(list.spec().status(list), "\n") << "gone under the highlight";
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "JOB_NO_DEFAULTS"), 0);
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 3);
}

}  // namespace
