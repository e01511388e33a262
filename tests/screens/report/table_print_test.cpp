#include "screens/report/table_print.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "screens/report/report_window.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class TablePrints : public ::testing::Test
{
protected:
    TablePrints() { session.JobSitePath = site.siteFolder(); }

    void addCodes(int company, int count)
    {
        OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
        codes.workspace.BeginTrans();
        for (int i = 0; i < count; ++i) {
            codes.rows.AddNew();
            codes.rows["CONO"] = company;
            codes.rows["GLCODE"] = QString("%1").arg(5000 + i);
            codes.rows["Desc"] = QString("Account %1").arg(i);
            codes.rows.Update();
        }
        codes.workspace.CommitTrans();
    }

    TablePrint codesOf(int company) const
    {
        return {.file = "ZORVEX.mdb",
                .table = "GLCODES",
                .index = "GLCODES",
                .windowTitle = "Print G/L Codes",
                .reportName = "List of G/L Codes",
                .fields = "GLCODE|DESC|",
                .types = "C|C",
                .lengths = "10|50",
                .headings = "G/L Code|Description",
                .widths = "1400|4000",
                .formats = "-^|-",
                .keys = {{company, "CONO"}}};
    }

    std::unique_ptr<ReportRun> printed(const TablePrint& print)
    {
        auto run = std::make_unique<ReportRun>(tablePrintReport(print, session), session);
        run->begin();
        return run;
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    ScriptedDialogs dialogs;
    Session session;
};

// The lines between the column heads and the foot.
QStringList rowsOn(const ReportRun& run, int page, const QString& firstHeading)
{
    QStringList lines = linesOn(run.pages, page);
    while (!lines.isEmpty() && !lines[0].startsWith(firstHeading))
        lines.removeFirst();
    return lines.mid(1, lines.size() - 2);
}

TEST_F(TablePrints, ListTheRowsOfTheirKeysInOrder)
{
    addCodes(1, 2);
    addCodes(2, 3);
    addCodes(3, 1);
    TablePrint print = codesOf(2);
    print.headingLine = "Company: 2";
    const auto run = printed(print);
    EXPECT_EQ(placesOn(run->pages, 1).section('\n', 10),
              "4815 600 List of G/L Codes\n"
              "5431 999 Company: 2\n"
              "3764 1465 G/L Code\n"
              "6379 1465 Description\n"
              "3879 1718 5000\n"
              "4870 1718 Account 0\n"
              "3879 1968 5001\n"
              "4870 1968 Account 1\n"
              "3879 2218 5002\n"
              "4870 2218 Account 2\n");
    EXPECT_EQ(run->processText(), "Report Finished, Press 'P' to Print");

    // A bookmark says where to begin.
    OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
    codes.rows.Index("GLCODES");
    ASSERT_TRUE(codes.rows.Seek("=", 2, "5001"));
    print.bookmark = codes.rows.Bookmark();
    EXPECT_EQ(rowsOn(*printed(print), 1, "G/L Code"),
              QStringList({"5001|Account 1", "5002|Account 2"}));

    // No rows of the key: a document without rows.
    const auto none = printed(codesOf(9));
    EXPECT_EQ(none->pages.pageCount(), 1);
    EXPECT_TRUE(rowsOn(*none, 1, "G/L Code").isEmpty());
    EXPECT_EQ(none->processText(), "Report Finished, Press 'P' to Print");
}

TEST_F(TablePrints, ShowNumbersByTheirMaskAndBooleansAsWords)
{
    site.addRow("ZORVEX.mdb", "INVCATALOG",
                {{"ICNTAG", 1}, {"WHOLESALE", 1234.5}, {"MARKUP", 0.5}, {"INACTIVE", true}});
    site.addRow("ZORVEX.mdb", "INVCATALOG",
                {{"ICNTAG", 2}, {"WHOLESALE", 2.0}, {"MARKUP", 3.0}, {"INACTIVE", false}});
    const TablePrint print = {.file = "ZORVEX.mdb",
                              .table = "INVCATALOG",
                              .windowTitle = "Print",
                              .reportName = "Items",
                              .fields = "ICNTAG|WHOLESALE|MARKUP|INACTIVE|ICNTAG",
                              .types = "N|N|N|B|N",
                              .headings = "Tag|Wholesale|Markup|Inactive|Hidden",
                              .widths = "1000|1500|1500|1000|0",
                              .formats = "N##|###,###.00|-|-|-"};
    const auto run = printed(print);
    EXPECT_EQ(rowsOn(*run, 1, "Tag"), QStringList({"1|1,234.50|0.5|Yes", "2|2.00|3|No"}));
    EXPECT_EQ(run->expectedRows(), 2);
}

TEST_F(TablePrints, TurnWhenTheirColumnsAreTooWide)
{
    TablePrint print = codesOf(1);
    print.widths = "5000|6240";
    EXPECT_EQ(printed(print)->pages.page(1).width, 12240) << "fits exactly";
    print.widths = "5000|6241";
    const auto turned = printed(print);
    EXPECT_EQ(turned->pages.page(1).width, 15840);
    EXPECT_FALSE(turned->pages.isLandscape()) << "the next run begins upright";
    addCodes(1, 1);
    print.widths = "12000|12000";
    const auto narrowed = printed(print);
    for (const PlacedText& text : textsOf(narrowed->pages, 1))
        EXPECT_LE(text.x + text.width, 15840 - 500) << text.text.toStdString();
    EXPECT_EQ(rowsOn(*narrowed, 1, "G/L Code"), QStringList("5000|Account 0"));
}

TEST_F(TablePrints, KeepRowsWhoseKeyDiffersInCase)
{
    for (const char* code : {"a1", "A1", "B1"})
        site.addRow("ZORVEX.mdb", "GLCODES", {{"CONO", code[0] == 'a' ? 1 : 2}, {"GLCODE", code}});
    TablePrint print = codesOf(1);
    print.index = "";
    print.fields = "GLCODE";
    print.widths = "1400";
    print.headings = "G/L Code";
    print.keys = {{"A1", "GLCODE"}};
    EXPECT_EQ(rowsOn(*printed(print), 1, "G/L Code"), QStringList({"a1", "A1"}));
}

TEST_F(TablePrints, BreakPagesAndRepeatTheirHeads)
{
    addCodes(1, 130);
    const auto run = printed(codesOf(1));
    ASSERT_EQ(run->pages.pageCount(), 3);
    QStringList rows;
    for (int page = 1; page <= 3; ++page) {
        rows += rowsOn(*run, page, "G/L Code");
        EXPECT_EQ(linesOn(run->pages, page)[0], "List of G/L Codes");
        EXPECT_TRUE(linesOn(run->pages, page).last().endsWith("Page|" + QString::number(page)));
        for (const PlacedText& text : textsOf(run->pages, page)) {
            if (text.text.startsWith("Account")) {
                EXPECT_LE(text.y + 184, 15840 - 1200);
            }
        }
    }
    ASSERT_EQ(rows.size(), 130);
    for (int i = 0; i < 130; ++i)
        EXPECT_EQ(rows[i], QString("%1|Account %2").arg(5000 + i).arg(i));
}

TEST_F(TablePrints, CutLongTitlesAtBlanks)
{
    TablePrint print = codesOf(1);
    print.reportName = QString("Inventory ").repeated(12).trimmed();
    const auto run = printed(print);
    const QStringList lines = linesOn(run->pages, 1);
    EXPECT_EQ(lines[0] + ' ' + lines[1], print.reportName);
    EXPECT_GT(lines[1].size(), 5);
}

TEST_F(TablePrints, TellKeysThatCannotBe)
{
    TablePrint four = codesOf(1);
    four.keys = {{1, "CONO"}, {"A", "GLCODE"}, {"B", "DESC"}, {"C", "CONO"}};
    user.expect("Error: dnSearch", "Invalid Key Count in dnPrint");
    EXPECT_EQ(printed(four)->pages.pageCount(), 0);
    TablePrint gap = codesOf(1);
    gap.keys = {{1, "CONO"}, {"", ""}, {"B", "DESC"}};
    user.expect("Error: dnSearch", "Invalid Key Count in dnPrint");
    EXPECT_EQ(printed(gap)->pages.pageCount(), 0);
    user.expect("Error: dnSearch", "Invalid Key Count in dnPrint");
    const std::unique_ptr<ReportWindow> window(newTablePrintWindow(gap, session));
    window->show();
    EXPECT_FALSE(control(*window, "cmdBegin").isVisible());
    EXPECT_TRUE(control(*window, "CmdExit").isVisible());
}

TEST_F(TablePrints, OpenAsAScreenAndSayWhenTheirFileIsGone)
{
    addCodes(1, 3);
    const std::unique_ptr<ReportWindow> window(newTablePrintWindow(codesOf(1), session));
    EXPECT_EQ(window->objectName(), "frmdnPrint");
    EXPECT_EQ(window->windowTitle(), "Print G/L Codes");
    window->show();
    press(*window, "cmdBegin");
    EXPECT_EQ(labelText(*window, "lblProcess"), "Report Finished, Press 'P' to Print");

    TablePrint gone = codesOf(1);
    gone.file = "NOSUCH.mdb";
    user.expect("Error Displaying Form",
                "Error Loading Form: frmdnPrint\n\nError Number: 3024\n\nError Description: "
                "Could not find file '" +
                    site.siteFolder() + "/NOSUCH.mdb'.");
    const std::unique_ptr<ReportWindow> failed(newTablePrintWindow(gone, session));
    failed->show();
    EXPECT_TRUE(control<QPushButton>(*failed, "cmdBegin").isHidden());
    press(*failed, "CmdExit");
    EXPECT_FALSE(failed->isVisible());
}

TEST_F(TablePrints, OfFiftyThousandRowsStopInTheMiddle)
{
    addCodes(1, 50'000);
    const std::unique_ptr<ReportWindow> window(newTablePrintWindow(codesOf(1), session));
    window->show();
    // The user presses Cancel, again and again, once the second page is there.
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, window.get(), [&] {
        auto& begin = control<QPushButton>(*window, "cmdBegin");
        if (window->run().pages.pageCount() >= 2 && begin.text() == "&Cancel")
            begin.click();
    });
    hand.start(1);
    press(*window, "cmdBegin");
    hand.stop();
    EXPECT_EQ(labelText(*window, "lblProcess"), "Report STOPPED BY USER (INCOMPLETE)");
    EXPECT_GE(window->run().pages.pageCount(), 2);
    EXPECT_LT(window->run().rowCount(), 50'000);
    EXPECT_EQ(control<QPushButton>(*window, "cmdBegin").text(), "&Max View");

    const QTemporaryDir folder;
    dialogs.printTo = folder.filePath("stopped.pdf");
    QTest::keyClick(window.get(), Qt::Key_P);
    EXPECT_GT(QFileInfo(folder.filePath("stopped.pdf")).size(), 1000) << "what was made is printed";
}

}  // namespace
