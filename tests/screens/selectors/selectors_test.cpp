#include "screens/date_field.h"
#include "screens/selectors/company_selector.h"
#include "screens/selectors/job_date_selector.h"
#include "screens/selectors/job_list_selector.h"
#include "screens/selectors/job_selector.h"
#include "screens/selectors/report_selectors.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

// A window with a field before and one behind the control, so that there is somewhere to go.
class SelectorTest : public testing::Test
{
protected:
    SelectorTest()
    {
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 1}, {"CONAME", "Northern Builders"}});
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 12}, {"CONAME", "Harbour Works"}});
        addJob(1, "    1001", "Bridge");
        addJob(1, "    1002", "Tunnel");
        addJob(12, "    1002", "Quay");
        auto* layout = new QVBoxLayout(&window);
        elsewhere = new QLineEdit;
        layout->addWidget(elsewhere);
    }
    void addJob(int company, const QString& job, const QString& name) const
    {
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", company}, {"JOBNO", job}, {"JOBNAME", name}});
    }
    template <class Control>
    Control& show(Control* made)
    {
        window.layout()->addWidget(made);
        QObject::connect(made, &Selector::entered, made, [this] { events += "in "; });
        QObject::connect(made, &Selector::left, made, [this] { events += "out "; });
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        elsewhere->setFocus();
        events.clear();
        return *made;
    }
    // Types into a field as a user does who comes into it, and leaves it with Tab.
    void enter(const QString& field, const QString& text) const
    {
        auto& edit = control<QLineEdit>(window, field);
        edit.setFocus(Qt::TabFocusReason);
        edit.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
        if (edit.completer())
            edit.completer()->popup()->hide();
        QTest::keyClick(&edit, Qt::Key_Tab);
    }

    TestInstallation site;
    ScriptedMessages user;
    FixedSystem machine;  // 03/07/2026
    QWidget window;
    QLineEdit* elsewhere;
    QString events;
};

TEST_F(SelectorTest, ShowsTheCompanysNameAndRefusesOthers)
{
    auto& company = show(new tqCoNumber);
    EXPECT_FALSE(company.IsValid()) << "no path yet";
    company.setDBPath(site.siteFolder());
    company.setCoNumber(12);
    EXPECT_TRUE(company.IsValid());
    EXPECT_EQ(labelText(window, "lblCONAME"), "Harbour Works");

    enter("txtCONO", "7");
    EXPECT_FALSE(company.IsValid());
    EXPECT_EQ(labelText(window, "lblCONAME"), "Company Not Found");
    enter("txtCONO", "99999");
    EXPECT_EQ(company.CoNumber(), 0) << "more than a company number can be";
    EXPECT_FALSE(company.IsValid());
    enter("txtCONO", "x1y");
    EXPECT_EQ(company.CoNumber(), 1) << "digits only";
    EXPECT_TRUE(company.IsValid());
    enter("txtCONO", "");
    EXPECT_FALSE(company.IsValid());
    EXPECT_EQ(labelText(window, "lblCONAME"), "");
}

TEST_F(SelectorTest, TellsOnceWhenItIsEnteredAndLeft)
{
    auto& job = show(new tqCoJobNumber);
    job.setDBPath(site.siteFolder());
    bool validWhenLeft = false;
    QObject::connect(&job, &Selector::left, [&] { validWhenLeft = job.IsValid(); });

    EXPECT_FALSE(job.toolTip().isEmpty());
    job.setActive(true);
    EXPECT_TRUE(job.toolTip().isEmpty());
    job.setActive(false);
    EXPECT_EQ(job.toolTip(), "Click Anywhere on this Control to Activate It.");

    QTest::mouseClick(&control<QLabel>(window, "lblJOBNAME"), Qt::LeftButton);
    EXPECT_EQ(events, "in ") << "a click anywhere";
    QTest::keyClicks(QApplication::focusWidget(), "1");
    control<QLineEdit>(window, "txtJOBNO").setFocus();
    EXPECT_EQ(events, "in ") << "from field to field is no event";
    QTest::keyClicks(QApplication::focusWidget(), "1001");
    elsewhere->setFocus();
    EXPECT_EQ(events, "in out ");
    EXPECT_TRUE(validWhenLeft) << "what was typed last counts";
}

TEST_F(SelectorTest, ChecksTheJobWithItsCompany)
{
    auto& job = show(new tqCoJobNumber);
    job.setDBPath(site.siteFolder());
    job.setCoNumber(1);
    job.setJobNo("    1002");
    EXPECT_TRUE(job.IsValid());
    EXPECT_EQ(labelText(window, "lblJOBNAME"), "Tunnel");
    enter("txtCONO", "12");
    EXPECT_TRUE(job.IsValid());
    EXPECT_EQ(labelText(window, "lblJOBNAME"), "Quay") << "the other company's job";
    enter("txtJOBNO", "1001");
    EXPECT_FALSE(job.IsValid());
    EXPECT_EQ(labelText(window, "lblJOBNAME"), "Job Number Not Found");
    EXPECT_EQ(job.JobNo(), "    1001") << "in its stored form";
    enter("txtCONO", "1");
    EXPECT_TRUE(job.IsValid());
}

TEST_F(SelectorTest, TakesJobNumbersAsTheJobSiteWritesThem)
{
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOTYPE", "N");
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE", 5);
    addJob(1, "   77", "Small");
    auto& job = show(new tqCoJobNumber);
    job.setDBPath(site.siteFolder());
    enter("txtCONO", "1");
    enter("txtJOBNO", "a77");
    EXPECT_EQ(job.JobNo(), "   77");
    EXPECT_TRUE(job.IsValid());
    enter("txtJOBNO", "1234567");
    EXPECT_EQ(job.JobNo(), "12345");

    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOTYPE", "C");
    addJob(1, "  A-7", "Letters");
    job.setDBPath(site.siteFolder());
    enter("txtJOBNO", "a-7");
    EXPECT_EQ(job.JobNo(), "  A-7");
    EXPECT_TRUE(job.IsValid());
}

TEST_F(SelectorTest, SearchesByItsKeysAndButton)
{
    auto& job = show(new tqCoJobNumber);
    job.setDBPath(site.siteFolder());
    control<QLineEdit>(window, "txtCONO").setFocus();
    whenModalOpens([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Search Company Numbers");
        QTest::keyClicks(dialog.focusWidget(), "12");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClicks(&control<QLineEdit>(window, "txtCONO"), "?");
    EXPECT_EQ(job.CoNumber(), 12);
    whenModalOpens([](QDialog& dialog) {
        EXPECT_EQ(labelText(dialog, "lblSearchTitle"), "Job Numbers for Company: 12");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    QTest::mouseClick(&control<QToolButton>(window, "txtJOBNOSearch"), Qt::LeftButton);
    EXPECT_TRUE(job.IsValid());
    whenModalOpens([](QDialog& dialog) { dialog.reject(); });
    QTest::keyClicks(&control<QLineEdit>(window, "txtJOBNO"), "/");
    EXPECT_EQ(job.JobNo(), "    1002") << "a cancelled search changes nothing";
    EXPECT_TRUE(job.IsValid());
    EXPECT_EQ(events, "in ") << "the search window is no way out";
}

TEST_F(SelectorTest, OffersNumbersAndNamesThatContainWhatIsTyped)
{
    auto& job = show(new tqCoJobNumber);
    job.setDBPath(site.siteFolder());
    enter("txtCONO", "1");
    auto& edit = control<QLineEdit>(window, "txtJOBNO");
    edit.setFocus();
    EXPECT_EQ(labelText(window, "lblJOBNAME"), "");
    job.setJobNo("1001");
    edit.selectAll();
    QTest::keyClicks(&edit, "unn");
    EXPECT_EQ(labelText(window, "lblJOBNAME"), "") << "the name of what is not there any more";
    ASSERT_EQ(edit.completer()->completionCount(), 1);
    EXPECT_EQ(edit.completer()->currentCompletion(), "1002");
    addJob(1, "    2002", "Runner");
    QTest::keyClick(edit.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(edit.completer()->popup(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(job.IsValid());
    EXPECT_EQ(job.JobNo(), "    1002");
    EXPECT_FALSE(edit.hasFocus()) << "Enter went on";
}

TEST_F(SelectorTest, DateFieldTakesDateKeysAndFreeForms)
{
    auto& dates = show(new tqDateRange);
    auto& begin = control<DateField>(window, "txtBDATE");
    begin.setFocus();
    QTest::keyClicks(&begin, "+");
    EXPECT_EQ(dates.BeginDate(), "03/07/2026");
    QTest::keyClicks(&begin, "+");
    EXPECT_EQ(begin.text(), "03/08/2026");
    QTest::keyClicks(&begin, "--");
    EXPECT_EQ(begin.text(), "03/06/2026");
    QTest::keyClicks(&begin, "=");
    EXPECT_EQ(begin.text(), "03/07/2026");

    enter("txtBDATE", "1-2.26");
    EXPECT_EQ(begin.text(), "01/02/2026") << "written as dates are shown";
    enter("txtBDATE", "13/01/26");
    EXPECT_EQ(begin.text(), "13/01/26") << "what is no date stays to be mended";
    EXPECT_EQ(dates.BeginDate(), "          ");
    dates.setBeginDate("01/01/1900");
    EXPECT_EQ(begin.text(), "") << "the null date is no date";
}

TEST_F(SelectorTest, DateRangeRunsForward)
{
    auto& dates = show(new tqCoJobDateRange);
    EXPECT_FALSE(dates.IsValidDates()) << "two empty fields";
    dates.setBeginDate("12/31/2025");
    dates.setEndDate("01/01/2026");
    EXPECT_TRUE(dates.IsValidDates()) << "compared as dates, not as texts";
    EXPECT_EQ(labelText(window, "lblDateError"), "");
    enter("txtEDATE", "12/30/25");
    EXPECT_FALSE(dates.IsValidDates());
    EXPECT_EQ(labelText(window, "lblDateError"), "Beginning Date is After Ending Date.");
    enter("txtEDATE", "12/31/25");
    EXPECT_TRUE(dates.IsValidDates()) << "one day";
    EXPECT_FALSE(dates.IsValidPair());
    enter("txtEDATE", "99");
    EXPECT_EQ(labelText(window, "lblDateError"), "Ending Date is Invalid.");
}

TEST_F(SelectorTest, CalendarOpensOnTheDateAndWritesIt)
{
    auto& dates = show(new tqDateRange);
    dates.setEndDate("02/28/2024");
    auto& end = control<DateField>(window, "txtEDATE");
    end.setFocus();
    for (const auto& [key, modifier] :
         {std::pair{Qt::Key_F4, Qt::NoModifier}, std::pair{Qt::Key_Down, Qt::AltModifier}}) {
        const QDate before = QDate::fromString(end.date(), "MM/dd/yyyy");
        QTest::keyClick(&end, key, modifier);
        auto* popup = end.findChild<QFrame*>("txtEDATEPopup");
        ASSERT_TRUE(popup);
        auto* calendar = popup->findChild<QCalendarWidget*>();
        EXPECT_EQ(calendar->selectedDate(), before);
        Q_EMIT calendar->activated(before.addDays(1));
        EXPECT_EQ(end.text(), before.addDays(1).toString("MM/dd/yyyy"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(end.text(), "03/01/2024");
    EXPECT_EQ(events, "in ") << "the calendar is no way out";
}

TEST_F(SelectorTest, JobListHoldsEachValidJobOnce)
{
    auto& list = show(new tqJobList);
    list.setDBPath(site.siteFolder());
    list.setPairs({{1, "    1001"}});
    EXPECT_FALSE(list.isEntryUnfinished());
    enter("txtCONO", "1");
    enter("txtJOBNO", "1003");
    EXPECT_TRUE(list.isEntryUnfinished());
    user.expect("Error", "Invalid Company/Job Number Pair Detected.");
    press(window, "cmdAddJob");
    for (const char* job : {"1001", "1002", "1002"}) {
        enter("txtCONO", "1");
        enter("txtJOBNO", job);
        press(window, "cmdAddJob");
    }
    EXPECT_FALSE(list.isEntryUnfinished());
    const tqJobList::Pair first{1, "    1001"};
    const tqJobList::Pair second{1, "    1002"};
    EXPECT_EQ(list.pairs(), std::vector({first, second}));
    auto& rows = control<QTreeWidget>(window, "lstJobs");
    rows.setCurrentItem(rows.topLevelItem(0));
    press(window, "cmdRemoveJob");
    EXPECT_EQ(list.pairs(), std::vector({second}));
}

TEST_F(SelectorTest, IsAFieldOfReportsThatSetsTheSelectionAtEachKey)
{
    Session session;
    session.JobSitePath = site.siteFolder();
    ReportRun run({.name = "frmTEST", .print = [](ReportRun&) {}}, session);
    run.selection.set("CONO", "1");
    run.selection.set("JOBNO", "    1001");
    run.selection.set("BDATE", "03/01/2026");
    run.selection.set("EDATE", "03/07/2026");
    int changes = 0;
    auto* made = jobDateField().make(run.selection, session, [&] { ++changes; });
    show(static_cast<tqCoJobDateRange*>(made));
    EXPECT_FALSE(checkReportSelectors(run));
    EXPECT_EQ(run.selection["PERIOD"], "From 03/01/2026 to 03/07/2026");
    EXPECT_EQ(changes, 0) << "nobody has changed anything";

    auto& end = control<QLineEdit>(window, "txtEDATE");
    end.setFocus();
    end.setText("2/1/26");
    EXPECT_EQ(run.selection["EDATE"], "02/01/2026");
    EXPECT_FALSE(run.selection.isTicked("IsValidDates"));
    EXPECT_TRUE(run.selection.isTicked("IsValidPair"));
    EXPECT_GT(changes, 0);
    ASSERT_TRUE(checkReportSelectors(run));
    EXPECT_EQ(checkReportSelectors(run)->title, "Error Detected");
    enter("txtEDATE", "030826");
    enter("txtJOBNO", "1009");
    EXPECT_TRUE(run.selection.isTicked("IsValidDates"));
    EXPECT_FALSE(run.selection.isTicked("IsValid")) << "no such job";
    enter("txtJOBNO", "1002");
    EXPECT_EQ(run.selection["JOBNO"], "    1002");
    EXPECT_TRUE(run.selection.isTicked("IsValid"));
}

}  // namespace
