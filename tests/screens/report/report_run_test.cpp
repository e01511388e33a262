#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "core/storage/storage_error.h"
#include "screens/report/list_report.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

struct Payment
{
    const char* code;
    const char* order;
    double amount;
    bool isShown = true;
};

const std::vector<Payment> somePayments = {{"5100", "1001", 10.25},
                                           {"5100", "1002", 20.5},
                                           {"5100", "1003", 5, false},
                                           {"6200", "1001", 1}};

// Payments by G/L number, with a subtotal for each and a total.
ReportSpec paymentReport(std::vector<Payment> payments = somePayments)
{
    const auto plan = [](const ReportRun&) -> ReportPlan {
        return {
            .title = "Payment Activity by G/L Number",
            .headingLines = {"From 03/01/2026 to 03/07/2026"},
            .columns = {{.heading = "G/L Number", .width = 1400},
                        {.heading = "PO Number", .width = 1400},
                        {.heading = "Paid\nAmount PRD",
                         .width = 1800,
                         .mask = "##,###,###.00",
                         .isTotalled = true}},
            .levels = {{.totalCaption = "G/L Number Subtotal:"}},
            .reportTotalCaption = "Report Total:",
        };
    };
    const auto walk = [payments = std::move(payments)](ReportRun&, ReportLines& lines) {
        for (const Payment& payment : payments)
            if (!lines.add({.cells = {payment.code, payment.order,
                                      storage::Currency{qRound64(payment.amount * 10000)}},
                            .keys = {payment.code},
                            .isShown = payment.isShown}))
                return;
    };
    return {.name = "frmTEST", .caption = "Test Report", .print = listReport(plan, walk)};
}

// A printed form of so many pages, a row each.
ReportSpec formReport(int pageCount, std::function<void(ReportRun&, int)> afterPage = {})
{
    return {
        .name = "frmTEST",
        .caption = "Test Form",
        .print =
            [pageCount, afterPage](ReportRun& run) {
                if (!dnReportBegin(run, "l", {.left = 0, .right = 700}))
                    return;
                for (int page = 1; page <= pageCount; ++page) {
                    if (page > 1)
                        run.pages.newPage();
                    run.pages.writeText("Form " + QString::number(page));
                    if (afterPage)
                        afterPage(run, page);
                    if (!run.proceed())
                        break;
                }
                dnReportEnd(run);
            },
    };
}

class ReportRuns : public ::testing::Test
{
protected:
    FixedSystem machine;
    ScriptedMessages user;
    ScriptedDialogs dialogs;
};

// The cells of a workbook's first sheet, as an independent program reads them.
QStringList rowsOfWorkbook(const QString& path)
{
    QProcess reader;
    reader.start("/usr/bin/python3", {READ_WORKBOOK, path});
    EXPECT_TRUE(reader.waitForFinished());
    const QJsonArray sheets = QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
    QStringList rows;
    for (const QJsonValue& row : sheets[0].toObject()["rows"].toArray()) {
        QStringList cells;
        for (const QJsonValue& cell : row.toArray())
            cells.append(cell[0].toString() + ' ' + cell[1].toVariant().toString());
        rows.append(cells.join('|').remove("blank "));
    }
    return rows;
}

TEST_F(ReportRuns, GiveEachLineOnceToPaperAndWorkbookWithSubtotals)
{
    const QTemporaryDir folder;
    ReportSpec spec = paymentReport();
    spec.workbookName = [](const ReportRun&) { return "Payments.xls"; };
    Session session;
    session.UserSettingsPath = folder.path();
    ReportRun run(spec, session);
    run.begin();
    EXPECT_FALSE(QFile::exists(run.workbookPath())) << "none was asked for";
    QString status;
    run.onChange = [&] { status = run.isRunning() ? run.processText() : status; };
    run.selection.tick("ckbCreateExcel");
    run.begin();
    EXPECT_EQ(status, "Preparing to Create Spreadsheet...");

    // A hidden line counts in the totals.
    EXPECT_EQ(linesOn(run.pages, 1).mid(0, 11),
              QStringList({"Payment Activity by G/L Number", "From 03/01/2026 to 03/07/2026",
                           "Paid", "G/L Number|PO Number", "Amount PRD", "5100|1001|10.25",
                           "5100|1002|20.50", "G/L Number Subtotal:|35.75", "6200|1001|1.00",
                           "G/L Number Subtotal:|1.00", "Report Total:|36.75"}));
    EXPECT_EQ(run.workbookPath(), folder.filePath("Payments.xls"));
    EXPECT_EQ(
        rowsOfWorkbook(run.workbookPath()),
        QStringList({"||text Paid", "text G/L Number|text PO Number|text Amount PRD",
                     "text 5100|text 1001|number 10.25", "text 5100|text 1002|number 20.5",
                     "text G/L Number Subtotal:||number 35.75", "text 6200|text 1001|number 1",
                     "text G/L Number Subtotal:||number 1", "text Report Total:||number 36.75"}));
}

TEST_F(ReportRuns, GiveEveryWorkbookTwoHeadRows)
{
    const QTemporaryDir folder;
    const auto plan = [](const ReportRun&) -> ReportPlan {
        return {.title = "Log", .columns = {{.heading = "Item", .width = 3000}}};
    };
    const auto walk = [](ReportRun&, ReportLines& lines) { lines.add({.cells = {"one"}}); };
    Session session;
    session.UserSettingsPath = folder.path();
    ReportRun run({.name = "frmTEST",
                   .print = listReport(plan, walk),
                   .workbookName = [](const ReportRun&) { return "Log.xls"; }},
                  session);
    run.selection.tick("ckbCreateExcel");
    run.begin();
    EXPECT_EQ(rowsOfWorkbook(run.workbookPath()), QStringList({"", "text Item", "text one"}));
}

TEST_F(ReportRuns, PrintOnWhenTheWorkbookCannotBeWritten)
{
    const QTemporaryDir folder;
    ReportSpec spec = paymentReport();
    spec.workbookName = [](const ReportRun&) { return "Payments.xls"; };
    Session session;
    session.UserSettingsPath = folder.filePath("gone");
    ReportRun run(spec, session);
    run.selection.tick("ckbCreateExcel");
    user.expect("Cannot Create Spreadsheet",
                "Cannot write the workbook " + run.workbookPath() + ": No such file or directory");
    run.begin();
    EXPECT_TRUE(linesOn(run.pages, 1).contains("Report Total:|36.75"));
}

TEST_F(ReportRuns, LeaveTheOldWorkbookWhenTheyAreStopped)
{
    const QTemporaryDir folder;
    QFile old(folder.filePath("Payments.xls"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const auto plan = [](const ReportRun&) -> ReportPlan {
        return {.title = "Log", .columns = {{.heading = "Item", .width = 3000}}};
    };
    const auto walk = [](ReportRun& run, ReportLines& lines) {
        lines.add({.cells = {"one"}});
        run.requestCancel();
        EXPECT_FALSE(lines.add({.cells = {"two"}}));
    };
    Session session;
    session.UserSettingsPath = folder.path();
    ReportRun stopped({.name = "frmTEST",
                       .print = listReport(plan, walk),
                       .workbookName = [](const ReportRun&) { return "Payments.xls"; }},
                      session);
    stopped.selection.tick("ckbCreateExcel");
    stopped.begin();
    EXPECT_EQ(stopped.processText(), "Report STOPPED BY USER (INCOMPLETE)");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("Payments.xls"));
    EXPECT_EQ(QFileInfo(old).size(), 3);
}

TEST_F(ReportRuns, SayWhenThereIsNothing)
{
    ReportRun run(paymentReport({}), {});
    run.begin();
    const QStringList lines = linesOn(run.pages, 1);
    EXPECT_TRUE(lines.contains("No Items Found"));
    EXPECT_TRUE(lines.contains("Report Total:|.00"));
    EXPECT_EQ(run.processText(), "Report Finished, Press 'P' to Print");
}

TEST_F(ReportRuns, CarryHeadsAndPageTotalsOverPages)
{
    const auto plan = [](const ReportRun&) -> ReportPlan {
        return {
            .title = "Log",
            .columns = {{.heading = "Item", .width = 3000},
                        {.heading = "Amount", .width = 1500, .mask = "###", .isTotalled = true}},
            .levels = {{.totalCaption = "Subtotal:", .hasHead = true}},
            .pageTotalCaption = "Page Total:",
            .firstPage = 5};
    };
    const auto walk = [](ReportRun&, ReportLines& lines) {
        for (int i = 0; i < 60; ++i)
            lines.add(
                {.cells = {"Item " + QString::number(i), 1}, .keys = {"A"}, .heads = {"Vendor A"}});
    };
    ReportRun run({.name = "frmTEST", .print = listReport(plan, walk)}, {});
    run.begin();
    ASSERT_EQ(run.pages.pageCount(), 2);
    const QStringList first = linesOn(run.pages, 1);
    const QStringList second = linesOn(run.pages, 2);
    EXPECT_EQ(first[2], "Vendor A");
    EXPECT_EQ(second[2], "Vendor A (continued)");
    const auto rowsOf = [](const QStringList& lines) { return lines.filter("Item ").size(); };
    EXPECT_EQ(rowsOf(first) + rowsOf(second), 60);
    EXPECT_TRUE(first.contains("Page Total:|" + QString::number(rowsOf(first))));
    EXPECT_TRUE(second.contains("Page Total:|" + QString::number(rowsOf(second))));
    EXPECT_TRUE(second.contains("Subtotal:|60"));
    EXPECT_TRUE(first.last().endsWith("Page|5"));
    EXPECT_TRUE(second.last().endsWith("Page|6"));
}

TEST_F(ReportRuns, SetThePageUpAndBringItBack)
{
    ReportRun run(formReport(2), {});
    bool wasRunning = false;
    run.onChange = [&] { wasRunning = wasRunning || run.isRunning(); };
    run.begin();
    EXPECT_TRUE(wasRunning);
    EXPECT_EQ(run.state(), ReportRun::State::Finished);
    EXPECT_EQ(run.pages.page(1).width, 15840) << "l is L";
    EXPECT_FALSE(run.pages.isLandscape());
    EXPECT_EQ(run.pages.margins.left, 500) << "0 is the default";
    EXPECT_EQ(run.pages.margins.right, 700);
    EXPECT_EQ(placesOn(run.pages, 2), "500 500 Form 2\n");
}

TEST_F(ReportRuns, StepThroughTheirPagesAndStayWithin)
{
    ReportRun run(formReport(3), {});
    run.begin();
    const auto pageAfter = [&](int key) {
        EXPECT_TRUE(dnReportKeys(run.pages, key));
        return run.pages.previewPage();
    };
    EXPECT_EQ(pageAfter(Qt::Key_PageUp), 1);
    EXPECT_EQ(pageAfter(Qt::Key_PageDown), 2);
    EXPECT_EQ(pageAfter(Qt::Key_End), 3);
    EXPECT_EQ(pageAfter(Qt::Key_PageDown), 3);
    EXPECT_EQ(pageAfter(Qt::Key_Home), 1);
    EXPECT_FALSE(dnReportKeys(run.pages, Qt::Key_A));
}

TEST_F(ReportRuns, StopWhenTheUserAsksAndKeepThePagesMade)
{
    ReportRun run(formReport(100,
                             [](ReportRun& self, int page) {
                                 if (page == 3)
                                     self.requestCancel();
                             }),
                  {});
    run.requestCancel();  // of no run: nothing
    run.begin();
    EXPECT_EQ(run.processText(), "Report STOPPED BY USER (INCOMPLETE)");
    EXPECT_EQ(run.pages.pageCount(), 3);
    run.selectionChanged();
    EXPECT_EQ(run.state(), ReportRun::State::Idle);
    EXPECT_EQ(run.pages.pageCount(), 3) << "they can still be looked at";
}

TEST_F(ReportRuns, LetEventsInBetweenRowsAndOnlyNowAndThen)
{
    int wakes = 0;
    QElapsedTimer elapsed;
    ReportRun run(formReport(1,
                             [&](ReportRun& self, int) {
                                 self.expectRows(10);
                                 elapsed.start();
                                 while (elapsed.elapsed() < 200)
                                     self.proceed();
                             }),
                  {});
    QTimer::singleShot(0, [&] { ++wakes; });
    int changes = 0;
    run.onChange = [&] { ++changes; };
    run.begin();
    EXPECT_EQ(wakes, 1);
    EXPECT_LE(changes, 14);
}

TEST_F(ReportRuns, RefuseAndFailWithoutHarm)
{
    ReportSpec refused = formReport(1);
    refused.check = [](const ReportRun& run) -> std::optional<ReportRefusal> {
        if (run.selection["txtINVNO"].isEmpty())
            return ReportRefusal{.text = "Errors Detected: 1"};
        return {};
    };
    ReportRun run(refused, {});
    user.expect("Cannot Print Report", "Errors Detected: 1");
    run.begin();
    EXPECT_EQ(run.state(), ReportRun::State::Idle);
    run.selection.set("txtINVNO", "7");
    run.begin();
    EXPECT_EQ(run.state(), ReportRun::State::Finished);

    ReportRun broken(formReport(5,
                                [](ReportRun&, int page) {
                                    if (page == 2)
                                        throw storage::StorageError(storage::ErrorNumber::Damaged,
                                                                    "It is damaged.");
                                }),
                     {});
    user.expect("Error", "Error Number: 3049\nError Description: It is damaged.");
    broken.begin();
    EXPECT_EQ(broken.state(), ReportRun::State::Finished);
    EXPECT_EQ(broken.pages.pageCount(), 2);
    EXPECT_EQ(broken.processText(), "Report STOPPED BY AN ERROR (INCOMPLETE)");

    ReportSpec noPaper = formReport(1);
    noPaper.paper = PaperSize{0, 0, 0};
    ReportRun unprintable(noPaper, {});
    user.expect("Printer Error", "Printer Problem Detected");
    unprintable.begin();
    EXPECT_EQ(unprintable.state(), ReportRun::State::Idle);
}

TEST_F(ReportRuns, TakeThePaperOfThePrinter)
{
    QString caption;
    dialogs.paper = {595, 842};
    EXPECT_TRUE(dnReportPaperSize(ReportRun(formReport(1), {}).pages, caption));
    EXPECT_EQ(caption, "Paper Size: A4, 210 x 297 mm");
    dialogs.paper = {612, 792};
    EXPECT_FALSE(dnReportPaperSize(ReportRun(formReport(1), {}).pages, caption));
    EXPECT_EQ(caption, "Paper Size: Letter, 8½ x 11 in.");
    dialogs.paper = {500, 500};
    ReportRun odd(formReport(1), {});
    dnReportPaperSize(odd.pages, caption);
    EXPECT_EQ(caption, "Paper Size: Invalid Size Detected");
    odd.begin();
    EXPECT_EQ(odd.processText(), "Report Finished, Press 'P' to Print");
}

TEST_F(ReportRuns, CountTheRowsOfEachStepByItself)
{
    QStringList seen;
    ReportRun run(formReport(1,
                             [&](ReportRun& self, int) {
                                 self.expectRows(3);
                                 for (int row = 0; row < 3; ++row)
                                     self.proceed();
                                 seen.append(self.progressText());
                                 self.expectRows(1200);
                                 self.proceed();
                                 seen.append(self.progressText());
                                 self.expectRows(0);
                                 self.proceed();
                                 seen.append(self.progressText());
                             }),
                  {});
    run.begin();
    EXPECT_EQ(seen, QStringList({"3 of 3", "1 of 1,200", "1"}));
}

TEST_F(ReportRuns, RefuseToRunInsideEachOther)
{
    ReportRun inner(formReport(1), {});
    ReportRun outer(formReport(2,
                               [&](ReportRun&, int page) {
                                   if (page == 1)
                                       inner.begin();
                               }),
                    {});
    user.expect("Cannot Print Report",
                "Another Report is Being Printed. Wait for its End or Cancel it.");
    outer.begin();
    EXPECT_EQ(inner.state(), ReportRun::State::Idle);
    EXPECT_EQ(outer.pages.pageCount(), 2);
    inner.begin();
    EXPECT_EQ(inner.state(), ReportRun::State::Finished);
}

// A field of each kind, remembered in a field of each type that there is for them.
ReportSpec rememberingReport()
{
    using Kind = ReportField::Kind;
    ReportSpec spec = formReport(1);
    spec.fields = {{.kind = Kind::Box, .name = "ckbVEXPAROPT", .setting = "VEXPAROPT"},
                   {.kind = Kind::Date, .name = "txtBDATE", .setting = "BDATE"},
                   {.kind = Kind::Choice,
                    .name = "optVEXCCGROUP",
                    .value = "A",
                    .setting = "VEXCCGROUP",
                    .choices = {"Group A", "Group B"},
                    .choiceValues = {"A", "B"}},
                   {.kind = Kind::Own,
                    .name = "tqCoJobNumber1",
                    .settings = {{"CONO", "CONOPAIR"}, {"JOBNO", "JOBNOPAIR"}}}};
    spec.workbookName = [](const ReportRun&) { return "Remembered.xls"; };
    spec.workbookSetting = "MAKEEXCELVEXPAR03";
    return spec;
}

TEST_F(ReportRuns, RememberTheirFieldsForTheUserAndTheSite)
{
    const TestInstallation site;
    Session session;
    session.UserSettingsPath = site.userFolder();
    session.SiteTag = 1;
    const std::vector<std::pair<QString, QString>> chosen = {
        {"ckbVEXPAROPT", "-1"}, {"txtBDATE", "03/01/2026"}, {"optVEXCCGROUP", "B"},
        {"CONO", "12"},         {"JOBNO", "    1001"},      {"ckbCreateExcel", "-1"}};
    ReportRun first(rememberingReport(), session);
    EXPECT_EQ(first.selection["optVEXCCGROUP"], "A") << "nothing is remembered";
    EXPECT_EQ(first.selection["CONO"], "");
    for (const auto& [name, value] : chosen)
        first.selection.set(name, value);
    EXPECT_EQ(ReportRun(rememberingReport(), session).selection["CONO"], "") << "not begun";
    first.begin();
    const ReportRun second(rememberingReport(), session);
    for (const auto& [name, value] : chosen)
        EXPECT_EQ(second.selection[name], value) << name.toStdString();

    first.selection.set("JOBNO", "much longer than the field");
    first.selection.set("optVEXCCGROUP", "");
    first.begin();
    const ReportRun third(rememberingReport(), session);
    EXPECT_EQ(third.selection["JOBNO"], "    1001") << "what does not fit is not written";
    EXPECT_EQ(third.selection["optVEXCCGROUP"], "A") << "nothing is remembered again";

    session.SiteTag = 2;
    EXPECT_EQ(ReportRun(rememberingReport(), session).selection["CONO"], "") << "another site";
    session.UserSettingsPath = site.userFolder() + "/gone";
    user.expect("Error", "Could not Retreive User Settings.");
    ReportRun homeless(rememberingReport(), session);
    user.expect("Error", "Could not Save User Settings.");
    homeless.begin();
    EXPECT_EQ(homeless.state(), ReportRun::State::Finished);
}

TEST_F(ReportRuns, CarryACellDeeperThanAPageOverToTheNext)
{
    QStringList words;
    for (int i = 0; i < 200; ++i)
        words.append("WORD" + QString::number(i));
    const auto plan = [](const ReportRun&) -> ReportPlan {
        return {.title = "Log",
                .columns = {{.heading = "Item", .width = 1500},
                            {.heading = "Comment", .width = 1500, .wraps = true}}};
    };
    const auto walk = [words](ReportRun&, ReportLines& lines) {
        lines.add({.cells = {"first", "short"}});
        lines.add({.cells = {"deep", words.join('\n')}});
        lines.add({.cells = {"last", "short"}});
    };
    ReportRun run({.name = "frmTEST", .print = listReport(plan, walk)}, {});
    run.begin();
    QStringList printed;
    QStringList items;
    for (int page = 1; page <= run.pages.pageCount(); ++page)
        for (const PlacedText& text : textsOf(run.pages, page)) {
            if (text.text.startsWith("WORD")) {
                printed.append(text.text);
                EXPECT_LT(text.y, 15840 - 1200);
            }
            if (text.text == "deep" || text.text == "last")
                items.append(text.text);
        }
    EXPECT_EQ(printed, words);
    EXPECT_EQ(items, QStringList({"deep", "last"}));
}

}  // namespace
