// The behaviour of browse-and-edit screens, held on a screen with a parent.
#include "screens/browse/browse_session.h"

#include <gtest/gtest.h>

#include "cost/gl_codes.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class BrowseSessionTest : public testing::Test
{
protected:
    BrowseSessionTest() { screen.open(); }

    Session session() const
    {
        Session now;
        now.JobSitePath = site.siteFolder();
        now.UserSettingsPath = site.userFolder();
        now.SiteTag = 1;
        return now;
    }
    void addCode(int company, const QString& code) const
    {
        site.addRow("ZORVEX.mdb", "GLCODES",
                    {{"CONO", company}, {"GLCODE", code}, {"Desc", "Text of " + code}});
    }
    void deleteAll() const { site.emptyTable("ZORVEX.mdb", "GLCODES"); }
    void chooseCompany(int company) { screen.setParent({{"CONO", company}}); }
    void type(const QString& code, const QString& description)
    {
        screen.entry().setText(0, code);
        screen.entry().setText(1, description);
    }
    QStringList codes() const
    {
        QStringList all;
        for (const BrowseLine& line : screen.list().lines())
            if (line.kind == BrowseLine::Kind::Record)
                all.append(line.cells[0]);
        return all;
    }

    TestInstallation site;
    ScriptedMessages user;
    BrowseSession screen{frmVEXGLC01(), session()};
};

const char* const duplicate =
    "Duplicate G/L Code Detected.\nThe G/L Code you have entered\n"
    "already exists for above Company Number.";

TEST_F(BrowseSessionTest, RefusesCommandsWithoutAParentOrARecord)
{
    user.expect("Error", "Invalid Company Number Detected.");
    screen.add();
    chooseCompany(1);
    const QString noRecord = "Highlighted Browse Bar Must be on a Current Record to Continue.";
    user.expect("No Active Record.", noRecord);
    screen.edit();
    user.expect("No Active Record.", noRecord);
    screen.remove();
    EXPECT_TRUE(screen.isBrowsing());
}

TEST_F(BrowseSessionTest, AddsEditsAndFindsTheRecordUnderTheHighlight)
{
    addCode(1, "2000");
    chooseCompany(1);
    screen.list().nextRow();
    screen.act();
    EXPECT_EQ(screen.EditMode, "A") << "Enter on the end of the list adds";
    EXPECT_EQ(screen.entryRow(), 1);
    type("1000", "Cash");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(codes(), (QStringList{"1000", "2000"}));
    EXPECT_EQ(screen.list().BrowseRow, 0) << "no more records above the new one";

    screen.act();
    EXPECT_EQ(screen.EditMode, "E");
    EXPECT_EQ(screen.entry().text(1), "Cash");
    type("3000", "Cash in hand");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(codes(), QStringList{"3000"}) << "it has moved, and stays on its row";
    ASSERT_TRUE(screen.list().goToCurrent());
    EXPECT_EQ(textOf(screen.list().rows()["Desc"]), "Cash in hand");
}

TEST_F(BrowseSessionTest, CountsTheErrorsAndWritesNothing)
{
    addCode(1, "1000");
    addCode(2, "2000");
    chooseCompany(1);
    screen.add();
    user.expect("Cannot Update", "Errors Detected: 2\nG/L Code is Empty.\nDescription is Empty.");
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(screen.entry().focus(), 0);
    type("1000", "again");
    user.expect("Cannot Update", QString("Errors Detected: 1\n") + duplicate);
    EXPECT_FALSE(screen.update());
    type("2000", "another company's code");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "GLCODES"), 3);
}

TEST_F(BrowseSessionTest, LetsACodeStayWhatItIsButNotBecomeAnothers)
{
    addCode(1, "1000");
    addCode(1, "2000");
    chooseCompany(1);
    screen.edit();
    type("2000", "x");
    screen.entry().leave(0);
    EXPECT_EQ(screen.entry().errors().FirstFieldInError(), 1);
    type("1000", "x");
    screen.entry().leave(0);
    EXPECT_EQ(screen.entry().errors().ErrorCount(), 0);
    EXPECT_TRUE(screen.update());
}

TEST_F(BrowseSessionTest, RefusesWhatTheColumnCannotHoldAndKeepsTheEntry)
{
    chooseCompany(1);
    screen.add();
    type("12345678901", "eleven characters for ten");
    user.expect(
        "Cannot Update",
        "Errors Detected: 1\nThe field 'GLCODE' is too small to accept the amount of data you "
        "attempted to add.");
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(screen.EditMode, "A");
    EXPECT_EQ(screen.entry().text(1), "eleven characters for ten");
}

TEST_F(BrowseSessionTest, CancelsWithoutATrace)
{
    addCode(1, "1000");
    chooseCompany(1);
    screen.edit();
    type("9999", "never written");
    screen.cancel();
    EXPECT_TRUE(screen.isBrowsing());
    EXPECT_EQ(codes(), QStringList{"1000"});
    EXPECT_EQ(site.first("ZORVEX.mdb", "GLCODES", "GLCODE"), storage::Value("1000"));
}

TEST_F(BrowseSessionTest, AsksBeforeItDeletesAndMovesOn)
{
    addCode(1, "1000");
    addCode(1, "2000");
    addCode(2, "3000");
    chooseCompany(1);
    screen.list().nextRow();
    const QString question = "OK to Delete G/L Code 2000 Text of 2000?";
    user.expect("Confirm Delete", question, Answer::Cancel);
    screen.remove();
    EXPECT_EQ(codes().size(), 2);
    user.expect("Confirm Delete", question);
    screen.remove();
    EXPECT_EQ(codes(), QStringList{"1000"}) << "the record before, not the other company's";
    EXPECT_EQ(screen.list().BrowseRow, 0);
    user.expect("Confirm Delete", "OK to Delete G/L Code 1000 Text of 1000?");
    screen.remove();
    EXPECT_TRUE(screen.list().isEmpty());
}

TEST_F(BrowseSessionTest, LosesNoEntryToAnotherUsersDeletion)
{
    addCode(1, "1000");
    chooseCompany(1);
    screen.edit();
    type("1000", "typed with care");
    deleteAll();
    user.expect("Cannot Update",
                "Another user has deleted this record.\n"
                "Update again to add it anew, or Cancel.");
    EXPECT_FALSE(screen.update());
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "GLCODES", "Desc"), storage::Value("typed with care"));

    deleteAll();
    screen.edit();
    EXPECT_TRUE(screen.isBrowsing()) << "nothing to edit, and the list shows it";
    EXPECT_TRUE(screen.list().isEmpty());
}

}  // namespace
