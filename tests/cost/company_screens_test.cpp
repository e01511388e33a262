// Companies: what their data screen checks, keeps and refuses, and how the list follows it.
#include <gtest/gtest.h>

#include <QDir>

#include "core/window_registry.h"
#include "cost/companies.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"

namespace {

constexpr char noPhone[] = "(   )    -    ";

class CompanyScreens : public testing::Test
{
protected:
    CompanyScreens()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.UserName = TestInstallation::userName;
        site.emptyTable("MAIN.mdb", "COLIST");
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 7}, {"CONAME", "Seven"}});
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 12}, {"CONAME", "Twelve"}});
        QDir().mkpath("ZORMedia/logos");
        site.makeMarker(site.programFolder() + "/ZORMedia", "Seven.bmp");
        site.makeMarker(site.programFolder() + "/ZORMedia/logos", "blue.png");
    }
    DataSession open(const QString& mode, int CONO = 0) const
    {
        return DataSession(frmZORCO02(), session,
                           {.mode = mode, .index = "CONO", .keys = {{"CONO", CONO}}});
    }
    QStringList numbers() const { return rowsOf(site, "MAIN.mdb", "COLIST", {"CONO"}); }

    TestInstallation site;
    ScriptedMessages user;
    ScriptedDialogs dialogs;
    Session session;
};

TEST_F(CompanyScreens, RefuseNumberNameAndLogoInThisOrderAndWriteTheRest)
{
    DataSession screen = open("A");
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "Company Numbers - Add");
    Entry& entry = screen.entry();
    EXPECT_EQ(entry["VOICE"], noPhone);
    entry.setText("LOGOFILENAME", "none.bmp");
    const QString path = logoPath("none.bmp");
    EXPECT_EQ(path, site.programFolder() + "/ZORMedia/none.bmp");
    user.expect("Cannot Update",
                "Errors Detected: \n\nCompany Number is Empty.\nCompany Name is Empty.\n"
                "Cannot Find Image File: +" +
                    path);
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(entry.focus(), entry.indexOf(schema::FieldName("CONO")));

    for (const auto& [number, refusal] : {std::pair{"0", "Company Number is Zero."},
                                          {"12", "Duplicate Company Number Detected."}}) {
        entry.setText("CONO", number);
        EXPECT_EQ(entry.refusalOf(entry.indexOf(schema::FieldName("CONO"))), refusal);
    }
    entry.setText("CONO", "9");
    entry.setText("CONAME", "Nine");
    entry.setText("State", "tx");
    entry.setText("VOICE", "7135550142");
    entry.setText("LOGOFILENAME", "SEVEN.BMP");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(
        rowsOf(site, "MAIN.mdb", "COLIST", {"CONO", "CONAME", "State", "VOICE", "FAX"}).last(),
        QString("9|Nine|TX|(713) 555-0142|") + noPhone);
}

TEST_F(CompanyScreens, KeepThePartOfAPickedLogoBehindTheMediaFolder)
{
    DataSession screen = open("E", 7);
    ASSERT_TRUE(screen.open());
    Entry& entry = screen.entry();
    const EntryField& logo = entry.field(entry.indexOf(schema::FieldName("LOGOFILENAME")));
    dialogs.read = site.programFolder() + "/ZORMedia/logos/blue.png";
    EXPECT_TRUE(logo.choose(entry));
    EXPECT_EQ(dialogs.lastFolder, site.programFolder() + "/ZORMedia");
    EXPECT_EQ(entry["LOGOFILENAME"], "logos\\blue.png");
    EXPECT_EQ(entry.refusalOf(entry.indexOf(schema::FieldName("LOGOFILENAME"))), "");

    dialogs.read = "";
    EXPECT_FALSE(logo.choose(entry));
    EXPECT_EQ(entry["LOGOFILENAME"], "logos\\blue.png") << "a cancel changes nothing";

    dialogs.read = site.pathOf("MAIN.mdb");
    EXPECT_TRUE(logo.choose(entry));
    EXPECT_EQ(entry["LOGOFILENAME"], "") << "a file elsewhere empties the field";
}

TEST_F(CompanyScreens, KeepTheNumberAndTheRecordOfACompanyWithJobs)
{
    site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 7}, {"JOBNO", "    1001"}});
    {
        DataSession screen = open("E", 7);
        ASSERT_TRUE(screen.open());
        screen.entry().setText("CONO", "8");
        user.expect("Cannot Update Record",
                    "You have changed the Company Number from  7 to  8.\n"
                    "Job Numbers have been entered under the old company number.\n"
                    "The company number cannot be changed until all jobs\n"
                    "related to the company number have been deleted.");
        EXPECT_FALSE(screen.update());
        screen.entry().setText("CONO", "7");
        screen.entry().setText("CONAME", "Seven & Sons");
        EXPECT_TRUE(screen.update()) << "the name may change";
    }
    {
        DataSession screen = open("D", 7);
        ASSERT_TRUE(screen.open());
        user.expect("Cannot Delete",
                    "Company Number  7 cannot be deleted.\n"
                    "Job Numbers related to this Company Number have been detected.\n"
                    "The Company Number cannot be deleted until\n"
                    "all related Job Numbers have been deleted.");
        EXPECT_FALSE(screen.update());
    }
    DataSession screen = open("D", 12);
    ASSERT_TRUE(screen.open());
    user.expect("Confirm Delete", "Ok to Delete Company Number: 12?", Answer::Ok);
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(numbers(), QStringList{"7"});
}

TEST_F(CompanyScreens, ListFollowsToTheNumberThatTheScreenLeft)
{
    BrowseSpec spec = frmZORCO01();
    qint16 window = 0;
    spec.detail.open = [&window](BrowseSession&, const QString&, qint32 tag, qint16 winTag) {
        EXPECT_EQ(tag, 7) << "a company's number is its tag";
        window = winTag;
        return true;
    };
    BrowseSession list(spec, session);
    list.open();
    list.edit();
    DataSession screen(
        frmZORCO02(), session,
        {.mode = "E", .index = "CONO", .keys = {{"CONO", 7}}, .winTag = window, .tag = 7});
    ASSERT_TRUE(screen.open());
    screen.entry().setText("CONO", "30");
    ASSERT_TRUE(screen.update());
    screen.close();
    list.comeToFront();
    EXPECT_EQ(list.currentTag(), 30);
}

}  // namespace
