#include "screens/report/report_window.h"

#include <gtest/gtest.h>

#include "screens/report/page_preview.h"
#include "screens/report/page_view.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/window_helpers.h"

namespace {

// Three pages, with two fields; `between` happens in the middle of the run.
ReportSpec testReport(std::function<void(ReportRun&)> between = {})
{
    return {
        .name = "frmTEST",
        .caption = "Test Report",
        .fields = {{.kind = ReportField::Kind::Text, .name = "txtINVNO", .caption = "&Invoice"},
                   {.kind = ReportField::Kind::Date, .name = "txtBDATE", .caption = "&From"},
                   {.kind = ReportField::Kind::Box,
                    .name = "ckbVEXPAROPT",
                    .caption = "&Only Activity for Period?",
                    .value = "-1"},
                   {.kind = ReportField::Kind::Choice,
                    .name = "optVEXCCGROUP",
                    .caption = "&Group",
                    .value = "2",
                    .choices = {"A", "B", "C"}}},
        .print =
            [between](ReportRun& run) {
                if (!dnReportBegin(run, "P"))
                    return;
                for (int page = 1; page <= 3; ++page) {
                    if (page > 1)
                        run.pages.newPage();
                    run.pages.writeText("Invoice " + run.selection["txtINVNO"]);
                    if (page == 2 && between)
                        between(run);
                    if (!run.proceed())
                        break;
                }
                dnReportEnd(run);
            },
    };
}

QString beginCaption(const ReportWindow& window)
{
    return control<QPushButton>(window, "cmdBegin").text();
}

class ReportWindows : public ::testing::Test
{
protected:
    FixedSystem machine;
    ScriptedMessages user;
    ScriptedDialogs dialogs;
};

TEST_F(ReportWindows, AreIdleThenRunningThenFinished)
{
    QString captionWhileRunning;
    bool fieldsWhileRunning = true;
    const ReportWindow* shown = nullptr;
    ReportWindow window(testReport([&](ReportRun& run) {
                            run.showStatus("half way");
                            captionWhileRunning = beginCaption(*shown);
                            fieldsWhileRunning = control(*shown, "txtINVNO").isEnabled();
                        }),
                        {});
    shown = &window;
    window.show();
    EXPECT_EQ(beginCaption(window), "&Begin");
    EXPECT_EQ(labelText(window, "lblPaperSize"), "Paper Size: Letter, 8½ x 11 in.");
    EXPECT_FALSE(control(window, "lblProcess").isVisible());
    EXPECT_FALSE(control(window, "VSPrinter").isVisible());
    QTest::keyClick(&window, Qt::Key_P);  // nothing to print yet: no dialog comes

    type(window, "txtINVNO", "77");
    press(window, "cmdBegin");
    EXPECT_EQ(captionWhileRunning, "&Cancel");
    EXPECT_FALSE(fieldsWhileRunning);
    EXPECT_EQ(beginCaption(window), "&Max View");
    EXPECT_EQ(labelText(window, "lblProcess"), "Report Finished, Press 'P' to Print");
    EXPECT_TRUE(control(window, "VSPrinter").isVisible());
    EXPECT_EQ(labelText(window, "lblPAGE"), "Page 1 of 3");
    EXPECT_EQ(textsOf(window.run().pages, 3)[0].text, "Invoice 77");

    // Another selection can be printed without leaving the screen.
    type(window, "txtINVNO", "78");
    EXPECT_EQ(beginCaption(window), "&Begin");
    press(window, "cmdBegin");
    EXPECT_EQ(textsOf(window.run().pages, 1)[0].text, "Invoice 78");
}

TEST_F(ReportWindows, ToggleMaxViewAndRestore)
{
    ReportWindow window(testReport(), {});
    window.show();
    press(window, "cmdBegin");
    const int before = control(window, "VSPrinter").height();
    press(window, "cmdBegin");
    EXPECT_EQ(beginCaption(window), "&Restore");
    EXPECT_FALSE(control(window, "txtINVNO").isVisible());
    for (const char* name : {"cmdBegin", "CmdExit", "lblProcess"})
        EXPECT_TRUE(control(window, name).isVisible()) << name;
    QCoreApplication::processEvents();
    EXPECT_GT(control(window, "VSPrinter").height(), before);
    press(window, "cmdBegin");
    EXPECT_EQ(beginCaption(window), "&Max View");
    EXPECT_TRUE(control(window, "txtINVNO").isVisible());
}

TEST_F(ReportWindows, TakeTheKeysOfPagesAndPrint)
{
    ReportWindow window(testReport(), {});
    window.show();
    press(window, "cmdBegin");
    auto& page = control<QAbstractScrollArea>(window, "VSPrinterPage");
    const auto placeAfter = [&](int key, QWidget* where) {
        QTest::keyClick(where, Qt::Key(key));
        return labelText(window, "lblPAGE");
    };
    EXPECT_EQ(placeAfter(Qt::Key_PageDown, &page), "Page 2 of 3");
    EXPECT_EQ(placeAfter(Qt::Key_End, &window), "Page 3 of 3");
    EXPECT_EQ(placeAfter(Qt::Key_PageDown, &page), "Page 3 of 3");
    EXPECT_EQ(placeAfter(Qt::Key_Home, &page), "Page 1 of 3");
    EXPECT_EQ(placeAfter(Qt::Key_PageUp, &window), "Page 1 of 3");
    control<QSlider>(window, "sldPAGE").setValue(2);
    EXPECT_EQ(labelText(window, "lblPAGE"), "Page 2 of 3");

    const double before = window.preview().view().zoom();
    QTest::keyClick(&page, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&control(window, "txtINVNO"), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(window.preview().view().zoom(), before * 1.4);
    press(window, "cmdFitPage");
    EXPECT_LT(window.preview().view().zoom(), before);

    dialogs.printTo = "";  // the dialog comes and is left
    QTest::keyClick(&page, Qt::Key_P);
    // In a field a P is a letter.
    QTest::keyClicks(&control<QLineEdit>(window, "txtINVNO"), "P");
    EXPECT_EQ(window.run().selection["txtINVNO"], "P");
}

TEST_F(ReportWindows, CancelWhenExitIsPressedWhileTheyRun)
{
    ReportWindow* shown = nullptr;
    ReportWindow window(testReport([&](ReportRun&) { press(*shown, "CmdExit"); }), {});
    shown = &window;
    window.show();
    press(window, "cmdBegin");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(labelText(window, "lblProcess"), "Report STOPPED BY USER (INCOMPLETE)");
    EXPECT_EQ(window.run().pages.pageCount(), 2);
    press(window, "CmdExit");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ReportWindows, CloseOnlyWhenTheRunHasEnded)
{
    ReportWindow* shown = nullptr;
    bool stayed = false;
    ReportWindow window(testReport([&](ReportRun&) { stayed = !shown->close(); }), {});
    shown = &window;
    window.show();
    press(window, "cmdBegin");
    EXPECT_TRUE(stayed);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ReportWindows, KeepTheSelectionThatTheirFieldsShow)
{
    ReportWindow window(testReport(), {});
    const ReportSelection& selection = window.run().selection;
    EXPECT_TRUE(control<QCheckBox>(window, "ckbVEXPAROPT").isChecked());
    EXPECT_EQ(control<QComboBox>(window, "optVEXCCGROUP").currentText(), "B");
    control<QCheckBox>(window, "ckbVEXPAROPT").click();
    EXPECT_FALSE(selection.isTicked("ckbVEXPAROPT"));
    auto& choice = control<QComboBox>(window, "optVEXCCGROUP");
    QTest::keyClick(&choice, Qt::Key_Down);
    EXPECT_EQ(selection["optVEXCCGROUP"], "3");
    auto& date = control<QLineEdit>(window, "txtBDATE");
    QTest::keyClicks(&date, "=");
    EXPECT_EQ(selection["txtBDATE"], "03/07/2026");
    QTest::keyClicks(&date, "+");
    EXPECT_EQ(selection["txtBDATE"], "03/08/2026");
}

TEST_F(ReportWindows, AskForChoicesAnewAndOpenLookUps)
{
    using Kind = ReportField::Kind;
    ReportSpec spec = testReport();
    spec.fields = {
        {.kind = Kind::Text,
         .name = "txtJOBNO",
         .caption = "&Job",
         .value = "A",
         .search = [](const ReportSelection& selection,
                      const Session&) { return selection["txtJOBNO"] + "1 "; }},
        {.kind = Kind::Choice,
         .name = "optGROUP",
         .caption = "&Group",
         .value = "3",
         .choicesFor = [](const ReportSelection& selection, const Session&) -> QStringList {
             const QString job = selection["txtJOBNO"];
             if (job == "A1")
                 return {job + " one"};
             return {job + " one", job + " two", job + " three"};
         }}};
    ReportWindow window(spec, {});
    window.show();
    auto& group = control<QComboBox>(window, "optGROUP");
    EXPECT_EQ(group.currentText(), "A three");
    press(window, "cmdBegin");
    EXPECT_EQ(beginCaption(window), "&Max View");
    QTest::keyClicks(&control<QLineEdit>(window, "txtJOBNO"), "?");
    EXPECT_EQ(window.run().selection["txtJOBNO"], "A1");
    EXPECT_EQ(control<QLineEdit>(window, "txtJOBNO").text(), "A1");
    EXPECT_EQ(group.currentText(), "A1 one");
    EXPECT_EQ(window.run().selection["optGROUP"], "1") << "the third one is gone";
    EXPECT_EQ(beginCaption(window), "&Begin") << "another selection can be printed";
    QTest::mouseClick(&control<QToolButton>(window, "txtJOBNOSearch"), Qt::LeftButton);
    EXPECT_EQ(window.run().selection["txtJOBNO"], "A11");
}

TEST_F(ReportWindows, TakeWhatIsTypedWhenBeginIsPressedByItsKey)
{
    ReportWindow window(testReport(), {});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto& date = control<QLineEdit>(window, "txtBDATE");
    date.setFocus();
    QTest::keyClicks(&date, "3/8/26");
    control<QPushButton>(window, "cmdBegin").click();  // as its key does: the keyboard stays
    EXPECT_EQ(window.run().selection["txtBDATE"], "03/08/2026");
    EXPECT_EQ(beginCaption(window), "&Max View");
    EXPECT_EQ(date.text(), "03/08/2026") << "repaired as if it had been left";
}

}  // namespace
