#include "cost/gl_codes.h"
#include "cost/invoice_codes.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_window.h"
#include "screens/selectors/company_selector.h"
#include "screens/selectors/job_selector.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class ParentBarTest : public testing::Test
{
protected:
    ParentBarTest()
    {
        context.session.JobSitePath = site.siteFolder();
        context.session.UserSettingsPath = site.userFolder();
        context.session.SiteTag = 1;
        for (const int company : {1, 2}) {
            site.addRow("MAIN.mdb", "COLIST", {{"CONO", company}, {"CONAME", "Builders"}});
            site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", company}, {"JOBNO", "    1001"}});
            site.addRow("ZORVEX.mdb", "GLCODES",
                        {{"CONO", company}, {"GLCODE", QString::number(company * 100)}});
        }
    }
    // Types a company above the list and goes to the list.
    static void chooseCompany(BrowseWindow& window, const QString& number)
    {
        auto& field = control<QLineEdit>(window, "txtCONO");
        field.setFocus(Qt::TabFocusReason);
        field.selectAll();
        QTest::keyClicks(&field, number);
        if (field.completer()->popup()->isVisible())
            field.completer()->popup()->hide();
        window.grid().takeFocus();
    }
    static QString focused()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    static QString firstCode(BrowseWindow& window)
    {
        return window.session().list().lines()[0].cells.value(0);
    }

    TestInstallation site;
    ScriptedMessages user;
    ScreenContext context;
};

TEST_F(ParentBarTest, ListFollowsTheCompanyAndRemembersIt)
{
    {
        BrowseWindow window(frmVEXGLC01(), context);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_FALSE(window.session().hasParent()) << "nothing was chosen yet";
        chooseCompany(window, "1");
        EXPECT_EQ(firstCode(window), "100");
        chooseCompany(window, "2");
        EXPECT_EQ(firstCode(window), "200");

        chooseCompany(window, "7");
        EXPECT_EQ(firstCode(window), "200") << "what is not valid keeps the last good list";
        EXPECT_EQ(labelText(window, "lblCONAME"), "Company Not Found");

        site.addRow("ZORVEX.mdb", "GLCODES", {{"CONO", 2}, {"GLCODE", "150"}});
        chooseCompany(window, "2");
        EXPECT_EQ(firstCode(window), "200") << "an unchanged choice does not read the list anew";
    }
    BrowseWindow again(frmVEXGLC01(), context);
    EXPECT_EQ(firstCode(again), "150");
    EXPECT_EQ(control<tqCoNumber>(again, "tqCoNumber1").CoNumber(), 2);
}

TEST_F(ParentBarTest, MovesRestWhileACompanyIsChosen)
{
    BrowseWindow window(frmVEXGLC01(), context);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.grid().takeFocus();
    EXPECT_TRUE(window.grid().movesEnabled());
    control<QLineEdit>(window, "txtCONO").setFocus();
    EXPECT_FALSE(window.grid().movesEnabled());
    EXPECT_TRUE(control<tqCoNumber>(window, "tqCoNumber1").Active());
    window.grid().takeFocus();
    EXPECT_TRUE(window.grid().movesEnabled());
    EXPECT_FALSE(control<tqCoNumber>(window, "tqCoNumber1").Active());
}

TEST_F(ParentBarTest, TheTabKeyLeadsRoundTheScreen)
{
    BrowseWindow window(frmVEXGLC01(), context);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    chooseCompany(window, "1");
    QStringList stops;
    constexpr int stopsAtMost = 20;
    for (int i = 0; i < stopsAtMost && !stops.contains(focused()); ++i) {
        stops.append(focused());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(focused(), "hsbMAIN") << "a ring";
    EXPECT_EQ(stops.last(), "txtCONO")
        << "the parent is one of it: " << stops.join(" ").toStdString();
}

TEST_F(ParentBarTest, PairIsKeptApartFromTheCompany)
{
    site.addRow("ZORVEX.mdb", "INVCODES", {{"CONO", 2}, {"JOBNO", "    1001"}, {"INVCODE", "X"}});
    {
        BrowseWindow window(frmVEXIC01(), context);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        chooseCompany(window, "2");
        EXPECT_FALSE(window.session().hasParent()) << "a company is half a pair";
        auto& job = control<QLineEdit>(window, "txtJOBNO");
        job.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&job, "1001");
        job.completer()->popup()->hide();
        window.grid().takeFocus();
        EXPECT_EQ(firstCode(window), "X");
    }
    BrowseWindow again(frmVEXIC01(), context);
    EXPECT_EQ(firstCode(again), "X");
    BrowseWindow codes(frmVEXGLC01(), context);
    EXPECT_FALSE(codes.session().hasParent()) << "the company alone is another setting";
}

}  // namespace
