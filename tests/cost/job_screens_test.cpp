// The list of a company's jobs, and the settings of one job.
#include <gtest/gtest.h>

#include "cost/job_settings.h"
#include "cost/jobs.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"

namespace {

class JobScreens : public testing::Test
{
protected:
    JobScreens()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        session.UserName = TestInstallation::userName;
        for (const char* table : {"COLIST", "JOBLIST", "PCLIST", "TCLIST"})
            site.emptyTable("MAIN.mdb", table);
        site.emptyTable("ZORUSER.mdb", "JOBDEFAULTS");
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 1}, {"CONAME", "Builders"}});
        for (const char* JOBNO : {"    1001", "    1002"})
            site.addRow("MAIN.mdb", "JOBLIST",
                        {{"CONO", 1},
                         {"JOBNO", JOBNO},
                         {"JOBNAME", "Yard"},
                         {"CCNAMEA", "Phase"},
                         {"CCTYPEA", "C"},
                         {"CCSIZEA", 6}});
    }
    void refuse(BrowseSession& list, const QString& text)
    {
        user.expect("Cannot Update", "Errors Detected: 1\n" + text);
        EXPECT_FALSE(list.update());
    }
    QStringList jobs() const
    {
        return rowsOf(site, "MAIN.mdb", "JOBLIST", {"CONO", "JOBNO", "JOBNAME"});
    }
    DataRecord job() const
    {
        return {.mode = "E", .index = "JOBLIST", .keys = {{"CONO", 1}, {"JOBNO", "    1001"}}};
    }
    static const DataCommand& command(const DataSession& screen, const QString& name)
    {
        for (const DataCommand& command : screen.spec().commands)
            if (command.name == name)
                return command;
        throw std::logic_error("no such command");
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(JobScreens, WriteJobNumbersInTheirStoredFormOnceEachInACompany)
{
    BrowseSession list(frmZORJOB01({.type = "C", .size = 8}), session);
    list.open();
    user.expect("Error", "Invalid Company Number Detected.");
    list.add();
    list.setParent({{"CONO", 1}});
    list.add();
    user.expect("Cannot Update",
                "Errors Detected: 2\nEmpty Job Number Detected.\nJob Name is Empty");
    EXPECT_FALSE(list.update());
    list.entry().setText("JOBNO", "1001");
    list.entry().setText("JOBNAME", "Mill");
    refuse(list,
           "Duplicate Job Number Detected. The job number you have entered\n"
           "already exists for the Company Number in another record.");
    list.entry().setText("JOBNO", "12a");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(jobs().last(), "1|     12A|Mill");

    // An edit: the own number is no duplicate, another's is, and position codes hold it.
    list.list().home();
    list.list().nextRow();
    list.edit();
    ASSERT_EQ(list.entry()["JOBNO"], "1001");
    list.entry().setText("JOBNO", "1002");
    refuse(list,
           "Duplicate Job Number Detected. The Job Number you have entered\n"
           "already exists for the above Company Number in another record.");
    site.addRow("MAIN.mdb", "PCLIST", {{"CONO", 1}, {"JOBNO", "    1001"}});
    list.entry().setText("JOBNO", "1009");
    refuse(list,
           "You have changed the Job # from 1001 to 1009.\n"
           "Position Codes have been entered under the old Job #.\n"
           "The Job # cannot be changed until all Position Codes\n"
           "related to the Job # have been deleted.");
    list.entry().setText("JOBNO", "1001");
    EXPECT_TRUE(list.update());
    EXPECT_TRUE(jobs().contains("1|    1001|Yard"));
}

TEST_F(JobScreens, NumberOnlyJobsHaveNoTextAndTheSizeOfTheSite)
{
    BrowseSession list(frmZORJOB01({.type = "N", .size = 4}), session);
    list.open();
    list.setParent({{"CONO", 1}});
    EXPECT_EQ(list.entry().lengthOf(0), 4);
    list.add();
    list.entry().setText("JOBNAME", "Mill");
    list.entry().setText("JOBNO", "abc");
    refuse(list, "Empty Job Number Detected.");
    list.entry().setText("JOBNO", "007");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(jobs().last(), "1|   7|Mill");
}

TEST_F(JobScreens, DeleteJobsWithDocumentsButNotWithTimecards)
{
    site.addRow("MAIN.mdb", "TCLIST", {{"CONO", 1}, {"JOBNO", "    1001"}});
    site.addRow("ZORVEX.mdb", "REQLIST", {{"CONO", 1}, {"JOBNO", "    1002"}, {"REQTAG", 5}});
    BrowseSession list(frmZORJOB01({}), session);
    list.open();
    list.setParent({{"CONO", 1}});
    user.expect("Cannot Delete",
                "Job Number 1001 cannot be deleted.\n"
                "Timecard Items related to this Job Number have been detected.\n"
                "The Job Number cannot be deleted until\n"
                "all related TiMecard Items have been deleted.");
    list.remove();
    list.list().nextRow();
    user.expect("Confirm Delete", "OK to Delete Job Number: 1002 Yard?", Answer::Ok);
    list.remove();
    EXPECT_EQ(jobs(), QStringList{"1|    1001|Yard"});
}

TEST_F(JobScreens, CostCodeSettingsPassThroughTheTemplateOneGroupAtATime)
{
    DataSession screen(frmZORJOB02("1001 Yard"), session, job());
    ASSERT_TRUE(screen.open());
    Entry& entry = screen.entry();
    const QString warning =
        "Warning! You have changed the Cost Code Size.  If the size is changed you must run the "
        "'Refresh Cost Codes Utility' after saving your new settings.";
    user.expect("Verify Load Defaults", "Load Default Settings for Group B Cost Codes?",
                Answer::Yes);
    user.expect("Load Defaults", "No Default Settings Have Been Set.");
    screen.run(command(screen, "cmdLoadDefaultsB"));
    user.expect("Verify Set Defaults", "Set Default Settings for Group A Cost Codes?", Answer::No);
    screen.run(command(screen, "cmdSetDefaultsA"));
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "JOBDEFAULTS"), 0);

    user.expect("Verify Set Defaults", "Set Default Settings for Group A Cost Codes?", Answer::Yes);
    screen.run(command(screen, "cmdSetDefaultsA"));
    site.setFirst("ZORUSER.mdb", "JOBDEFAULTS", "CCNAMEB", "Area");
    site.setFirst("ZORUSER.mdb", "JOBDEFAULTS", "CCTYPEB", "N");
    site.setFirst("ZORUSER.mdb", "JOBDEFAULTS", "CCSIZEB", 4);
    user.expect("Verify Load Defaults", "Load Default Settings for Group B Cost Codes?",
                Answer::Yes);
    user.expect("Warning", warning);
    screen.run(command(screen, "cmdLoadDefaultsB"));

    const int sizeA = entry.indexOf(schema::FieldName("CCSIZEA"));
    entry.leave(sizeA, true, false);
    entry.setText(sizeA, "16");
    EXPECT_EQ(entry.refusalOf(sizeA), "Cost Code Size Must Be Between 0 and 15.");
    entry.setText(sizeA, "8");
    user.expect("Warning", warning);
    entry.leave(sizeA);
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST",
                     {"CCNAMEA", "CCTYPEA", "CCSIZEA", "CCNAMEB", "CCTYPEB", "CCSIZEB"})
                  .first(),
              "Phase|C|8|Area|N|4");
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "JOBDEFAULTS", {"CCNAMEA", "CCTYPEA", "CCSIZEA"}),
              QStringList{"Phase|C|6"});
}

TEST_F(JobScreens, SettingsPassThroughTheTemplateButLimitAndTextsDoNot)
{
    DataSession screen(frmZORJOB03("1001 Yard"), session, job());
    ASSERT_TRUE(screen.open());
    Entry& entry = screen.entry();
    const EntryField& limit = entry.field(entry.indexOf(schema::FieldName("OTHRSLIMIT")));
    EXPECT_FALSE(limit.isLive(entry));
    entry.setText("CHECKOTHRS", "-1");
    EXPECT_TRUE(limit.isLive(entry));
    entry.setText("OTHRSLIMIT", "12.5");
    entry.setText("TAXCOST", "1.0825");
    entry.setText("CLONEDOW", "2");
    user.expect("Verify Set Defaults", "Set Default Settings?", Answer::Yes);
    screen.run(command(screen, "cmdSetDefaults"));
    EXPECT_TRUE(screen.update());
    const QStringList fields = {"CHECKOTHRS", "CLONEDOW", "OTHRSLIMIT", "TAXCOST"};
    const QStringList rows = rowsOf(site, "MAIN.mdb", "JOBLIST", fields);
    EXPECT_TRUE(rows.first().startsWith("-1|2|12.5|1.082")) << rows.first().toStdString();

    DataRecord other = job();
    other.keys[1].key = "    1002";
    DataSession second(frmZORJOB03("1002 Yard"), session, other);
    ASSERT_TRUE(second.open());
    user.expect("Verify Load Defaults", "Load Default Settings?", Answer::Yes);
    second.run(command(second, "cmdLoadDefaults"));
    EXPECT_TRUE(second.update());
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST", {"CHECKOTHRS", "CLONEDOW", "OTHRSLIMIT"}).last(),
              "-1|2|0");
}

}  // namespace
