// Screens of one record: what they check and write, what they give up and tell when they close.
#include <gtest/gtest.h>

#include "core/window_registry.h"
#include "multiuser/record_locks.h"
#include "multiuser/users.h"
#include "screens/data/data_session.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

// Branches, as if they had a screen of their own.
DataSpec branchScreen()
{
    return {
        .name = "frmBranch",
        .caption = "Branches",
        .table = "ILCLIST",
        .index = "ILCCODE",
        .sections = {{.fields = {{.name = "txtILCCODE",
                                  .field = "ILCCODE",
                                  .caption = "&Code:",
                                  .keys = {.upperCase = true},
                                  .check = inOrder({required("ILCCODE", "Code is Empty."),
                                                    unusedCode("ILCCODE", "Duplicate Code.")}),
                                  .left =
                                      [](Entry& entry) {
                                          entry.setText("ILCNAME", "Branch " + entry["ILCCODE"]);
                                      }},
                                 {.name = "txtILCNAME",
                                  .field = "ILCNAME",
                                  .caption = "&Name:",
                                  .check = required("ILCNAME", "Name is Empty.")},
                                 {.kind = EntryField::Kind::Shown,
                                  .name = "lblBoth",
                                  .shows =
                                      [](const Entry& entry) {
                                          return entry["ILCCODE"] + entry["ILCNAME"];
                                      }}}}},
        .tag = {.field = "ILCTAG"},
        .lock = "BRANCHES",
        .deleteTest =
            [](const Session&, storage::Recordset& rows) {
                return textOf(rows["ILCCODE"]) == "C" ? QString("In use.") : QString();
            },
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
        .abandonQuestion = Message{.kind = MessageKind::Question,
                                   .title = "Verify Exit",
                                   .text = "Abandon Changes?",
                                   .buttons = Buttons::YesNo},
    };
}

class DataScreens : public testing::Test
{
protected:
    DataScreens()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        session.UserName = TestInstallation::userName;
        session.UserTag = 1;
        session.SessionTag = 5;
        site.emptyTable("ZORVEX.mdb", "ILCLIST");
        for (const auto& [tag, code] : {std::pair{11, "A"}, {12, "B"}, {13, "C"}})
            site.addRow("ZORVEX.mdb", "ILCLIST",
                        {{"ILCTAG", tag}, {"ILCCODE", code}, {"ILCNAME", "x"}});
        list = dnSetWINTAG(session.UserSettingsPath);
    }
    DataRecord record(const QString& mode, int tag = 0)
    {
        if (mode != "A") {
            EXPECT_FALSE(dnRecordLock(tag, "BRANCHES", 1, session.UserName, 5));
        }
        return {
            .mode = mode, .index = "ILCTAG", .keys = {{"ILCTAG", tag}}, .winTag = list, .tag = tag};
    }
    qint32 left() const { return dnGetHOTTAG(session.UserSettingsPath, list); }
    bool isLocked() const { return site.rowCount("ZORNET.mdb", "RECORDLOCKS") > 0; }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
    qint16 list = 0;
};

TEST_F(DataScreens, AddARecordOnceAllItsFieldsAreFine)
{
    DataSession screen(branchScreen(), session, record("A"));
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "Branches - Add");
    user.expect("Cannot Update", "Errors Detected: \n\nCode is Empty.\nName is Empty.");
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(screen.entry().focus(), 0);
    screen.entry().setText("ILCCODE", "b");
    screen.entry().leave(0);
    EXPECT_EQ(screen.entry().errors().text(), "Duplicate Code.\nName is Empty.");
    EXPECT_EQ(screen.entry()["ILCNAME"], "") << "a wrong field changes no other";
    screen.entry().setText("ILCCODE", "d");
    screen.entry().leave(0);
    EXPECT_EQ(screen.entry()["ILCNAME"], "Branch D");
    EXPECT_EQ(screen.entry().field(2).shows(screen.entry()), "DBranch D");
    user.expect("Verify Exit", "Abandon Changes?", Answer::No);
    EXPECT_FALSE(screen.mayLeave());
    EXPECT_TRUE(screen.update());
    EXPECT_TRUE(screen.mayLeave()) << "nothing is unsaved";
    screen.close();
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ILCLIST"), 4);
    EXPECT_GT(left(), 0) << "the list shows the new record";
    EXPECT_EQ(dnGetWINACTION(session.UserSettingsPath, list), 1);
}

TEST_F(DataScreens, GiveTheLockUpOnEveryWayOut)
{
    for (const bool updates : {true, false}) {
        DataSession screen(branchScreen(), session, record("E", 12));
        ASSERT_TRUE(screen.open());
        ASSERT_TRUE(isLocked());
        screen.entry().setText("ILCNAME", "changed");
        if (updates) {
            EXPECT_TRUE(screen.update());
            screen.close();
        }
        // else the window is taken down as it is
    }
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(left(), 12);
    user.expect("No Active Record.", "Another user has deleted this record.");
    {
        DataSession gone(branchScreen(), session, record("E", 99));
        EXPECT_FALSE(gone.open());
    }
    EXPECT_FALSE(isLocked());
    DataSession view(branchScreen(), session,
                     {.mode = "V", .index = "ILCTAG", .keys = {{"ILCTAG", 12}}});
    ASSERT_TRUE(view.open());
    EXPECT_EQ(view.entry()["ILCNAME"], "changed");
    user.expect("Changes Not Allowed", "Changes Not Allowed When Viewing.");
    EXPECT_FALSE(view.update());
}

TEST_F(DataScreens, DeleteAfterAQuestionAndLeaveTheListOnTheNextRecord)
{
    {
        DataSession screen(branchScreen(), session, record("D", 13));
        ASSERT_TRUE(screen.open());
        user.expect("Cannot Delete", "In use.");
        EXPECT_FALSE(screen.update());
    }
    DataSession screen(branchScreen(), session, record("D", 12));
    ASSERT_TRUE(screen.open());
    user.expect("Confirm Delete.", "OK to Delete?", Answer::Cancel);
    EXPECT_FALSE(screen.update());
    user.expect("Confirm Delete.", "OK to Delete?", Answer::Ok);
    EXPECT_TRUE(screen.update());
    screen.close();
    EXPECT_EQ(left(), 13);
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ILCLIST"), 2);
}

TEST_F(DataScreens, KeepAnEntryWhoseRecordAnotherUserDeleted)
{
    DataSession screen(branchScreen(), session, record("E", 12));
    ASSERT_TRUE(screen.open());
    screen.entry().setText("ILCNAME", "kept");
    OpenTable others = site.open("ZORVEX.mdb", "ILCLIST");
    others.rows.Index("ILCTAG");
    ASSERT_TRUE(others.rows.Seek("=", 12));
    others.rows.Delete();
    user.expect("Cannot Update",
                "Another user has deleted this record.\nUpdate again to add it anew, or Cancel.");
    EXPECT_FALSE(screen.update());
    EXPECT_TRUE(screen.update());
    others.rows.Index("ILCCODE");
    ASSERT_TRUE(others.rows.Seek("=", "B"));
    EXPECT_EQ(textOf(others.rows["ILCNAME"]), "kept");
}

}  // namespace
