// The list of jobs to be deleted, and the run over it.
#include "cost/job_deletion_screen.h"

#include <gtest/gtest.h>

#include "screens/browse/browse_session.h"
#include "screens/report/report_run.h"
#include "tests/support/table_rows.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"

namespace {

class JobDeletionScreen : public testing::Test
{
protected:
    JobDeletionScreen()
    {
        for (const char* table : {"COLIST", "JOBLIST", "CCALIST"})
            site.emptyTable("MAIN.mdb", table);
        for (const char* table : {"REQLIST", "POLIST", "RQILIST"})
            site.emptyTable("ZORVEX.mdb", table);
        for (const int CONO : {1, 2})
            site.addRow("MAIN.mdb", "COLIST", {{"CONO", CONO}, {"CONAME", "Builders"}});
        for (const char* JOBNO : {"    1001", "    1002"}) {
            site.addRow("MAIN.mdb", "JOBLIST",
                        {{"CONO", 1}, {"JOBNO", JOBNO}, {"JOBNAME", "Yard"}});
            site.addRow("MAIN.mdb", "CCALIST",
                        {{"CONO", 1}, {"JOBNO", JOBNO}, {"COSTCODEA", "  1"}, {"DESCA", "Walls"}});
        }
        list.open();
    }
    void enter(const QString& CONO, const QString& JOBNO)
    {
        list.entry().setNamed("txtCONO", CONO);
        list.entry().setNamed("txtJOBNO", JOBNO);
    }
    void refuse(const QString& title, const QString& text)
    {
        user.expect(title, text);
        EXPECT_FALSE(list.update());
        EXPECT_TRUE(user.allCame()) << text.toStdString();
    }
    QStringList listed() const
    {
        return rowsOf(site, "ZORUSER.mdb", "DELJOBLIST", {"CONO", "JOBNO"});
    }
    QStringList jobs() const { return rowsOf(site, "MAIN.mdb", "JOBLIST", {"JOBNO"}); }

    Session sessionOfSite() const
    {
        Session made;
        made.JobSitePath = site.siteFolder();
        made.UserSettingsPath = site.userFolder();
        made.SiteTag = 1;
        made.UserName = TestInstallation::userName;
        return made;
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session = sessionOfSite();
    BrowseSession list{frmZORDELJOBNO({.type = "C", .size = 8}), session};
};

TEST_F(JobDeletionScreen, ListsJobsThatAreThereOnceEach)
{
    list.add();
    refuse("Invalid Company Number", "Blank Company Number. Must Enter a Co. Number.");
    enter("9", "1001");
    refuse("Invalid Company Number", "Cannot Find Company Number: 9");
    enter("1", "");
    refuse("Invalid Job Number", "Blank Job Number. Must Enter a Job Number.");
    enter("1", "7");
    refuse("Invalid Job Number", "Cannot Find Job Number: 7");
    enter("1", "1001");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(listed(), QStringList{"1|    1001"});
    EXPECT_EQ(list.list().lines()[0].cells, (QStringList{"1", "1001", "Yard"}));
    list.add();
    enter("1", "1001");
    refuse("Cannot Update", "The Job Number is on the List Already.");

    enter("2", "");
    user.expect("No Items Found", "Cannot Find Any Job Numbers");
    autoFillJobDeletion(list);
    EXPECT_FALSE(list.isBrowsing());
    enter("1", "");
    autoFillJobDeletion(list);
    EXPECT_TRUE(list.isBrowsing());
    EXPECT_EQ(listed(), (QStringList{"1|    1001", "1|    1002"}));
}

TEST_F(JobDeletionScreen, BeginsOnlyWithAListAndTheWords)
{
    user.expect("Job List is Empty", "List of Job Numbers to Delete is Empty. Cannot Continue.");
    list.run(list.spec().commands.front());
    site.addRow("ZORUSER.mdb", "DELJOBLIST", {{"CONO", 1}, {"JOBNO", "    1001"}});
    ReportRun run(jobDeletionRun(), session);
    run.selection.set("txtVERIFY", "OK TO");
    user.expect("Cannot Delete",
                "Type the words: OK TO DELETE in text box to the right to continue.");
    run.begin();
    EXPECT_EQ(jobs().size(), 2);
    run.selection.set("txtVERIFY", " ok to delete ");
    run.begin();
    EXPECT_EQ(jobs(), QStringList{"    1002"});
    EXPECT_TRUE(listed().isEmpty());
    EXPECT_EQ(run.processText(), "Job Number and All Related Data Has Been Deleted");
    QStringList lines;
    for (int page = 1; page <= run.pages.pageCount(); ++page)
        lines += linesOn(run.pages, page);
    EXPECT_TRUE(lines.contains("Results from Job Number Deletion"));
    EXPECT_TRUE(lines.contains("Cost Code: Group A Cost Code|1 Record Deleted."))
        << lines.join('\n').toStdString();
    EXPECT_TRUE(lines.contains("Requisitions|No Items Found"));
    EXPECT_TRUE(lines.contains("Job Numbers|1 Record Deleted."));
    EXPECT_TRUE(lines.join('\n').contains("Labor Tracking Module"));
}

}  // namespace
