#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>

#include "core/storage/storage_error.h"
#include "screens/report/list_report.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"

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

// Lines as a workbook would be given them.
class RecordingSink : public ReportSink
{
public:
    void begin(const ReportPlan& plan) override { told.append("begin " + plan.title); }
    void head(size_t level, const QString& text) override
    {
        told.append(QString("head %1 %2").arg(level).arg(text));
    }
    void line(const ReportCells& cells) override { told.append("line " + cells[1].toString()); }
    void total(size_t level, const QString& caption, const ReportCells& sums) override
    {
        told.append(QString("%1 %2 %3").arg(level).arg(caption).arg(sums[2].toDouble()));
    }
    void note(const QString& text) override { told.append(text); }
    void end(bool isComplete) override { told.append(isComplete ? "end" : "cut"); }

    inline static QStringList told;
};

TEST_F(ReportRuns, GiveEachLineOnceToPaperAndWorkbookWithSubtotals)
{
    RecordingSink::told.clear();
    installWorkbookMaker([](const QString& path) -> std::unique_ptr<ReportSink> {
        RecordingSink::told.append(path);
        return std::make_unique<RecordingSink>();
    });
    ReportSpec spec = paymentReport();
    spec.workbookName = [](const ReportRun&) { return "Payments.xls"; };
    Session session;
    session.UserSettingsPath = "C:\\ZORUSER";
    ReportRun run(spec, session);
    run.selection.tick("ckbCreateExcel");
    run.begin();
    installWorkbookMaker(nullptr);

    // A hidden line counts in the totals.
    EXPECT_EQ(linesOn(run.pages, 1).mid(0, 9),
              QStringList({"Payment Activity by G/L Number", "From 03/01/2026 to 03/07/2026",
                           "Paid", "G/L Number|PO Number", "Amount PRD", "5100|1001|10.25",
                           "5100|1002|20.50", "G/L Number Subtotal:|35.75", "6200|1001|1.00"}));
    EXPECT_EQ(linesOn(run.pages, 1).mid(9, 2),
              QStringList({"G/L Number Subtotal:|1.00", "Report Total:|36.75"}));
    EXPECT_EQ(RecordingSink::told,
              QStringList({"C:\\ZORUSER\\Payments.xls", "begin Payment Activity by G/L Number",
                           "line 1001", "line 1002", "0 G/L Number Subtotal: 35.75", "line 1001",
                           "0 G/L Number Subtotal: 1", "1 Report Total: 36.75", "end"}));
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

}  // namespace
