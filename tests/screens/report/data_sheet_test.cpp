// Data sheets, and the screens that print several things.
#include "screens/report/data_sheet.h"

#include <gtest/gtest.h>

#include "screens/report/report_window.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/window_helpers.h"

namespace {

ReportSpec sheetReport(const std::vector<std::vector<SheetLine>>& sheets, bool ownPages)
{
    return {.name = "frmTEST", .print = [=](ReportRun& run) {
                DataSheets pages(run, {.reportName = "Vendor Data Sheet", .ownPages = ownPages});
                for (const auto& sheet : sheets)
                    if (!pages.isOpen() || !pages.add(sheet))
                        return;
            }};
}

TEST(DataSheets, BeginAPageEachOrShareOneAsLongAsTheyHaveTheRoom)
{
    const std::vector<std::vector<SheetLine>> sheets = {
        {{"Number:", "A1"},
         {"Remarks:", QString(30, 'w') + ' ' + QString(30, 'x') + ' ' + QString(30, 'y') + ' ' +
                          QString(30, 'z')}},
        {{.label = "Address", .value = {}, .isHead = true}, {"City:", "Reno\nNevada"}}};
    ReportRun own(sheetReport(sheets, true), {});
    own.begin();
    ASSERT_EQ(own.pages.pageCount(), 2);
    const QStringList first = linesOn(own.pages, 1);
    EXPECT_TRUE(first.contains("Vendor Data Sheet"));
    int remarks = 0;
    for (const PlacedText& text : textsOf(own.pages, 1)) {
        EXPECT_LE(text.x + text.width, own.pages.pageWidth()) << text.text.toStdString();
        remarks += text.text.contains(QRegularExpression("[wxyz]{30}"));
    }
    EXPECT_GT(remarks, 1) << "a long value goes on below";
    EXPECT_TRUE(linesOn(own.pages, 2).contains("Nevada"));

    ReportRun shared(sheetReport(sheets, false), {});
    shared.begin();
    EXPECT_EQ(shared.pages.pageCount(), 1);
    ReportRun many(sheetReport(std::vector(40, sheets[1]), false), {});
    many.begin();
    EXPECT_GT(many.pages.pageCount(), 2);
    for (int page = 1; page <= many.pages.pageCount(); ++page)
        for (const PlacedText& text : textsOf(many.pages, page))
            EXPECT_LT(text.y, many.pages.pageHeight() - 500);
}

TEST(ReportScreens, WithSeveralCommandsPrintWhatWasAsked)
{
    ScriptedMessages user;
    QString printed;
    const auto prints = [&](const QString& what) {
        return [&printed, what](ReportRun& run) {
            printed += what;
            dnReportBegin(run, "P");
            dnReportEnd(run);
        };
    };
    ReportWindow window({.name = "frmTEST",
                         .begins = {{"cmdDataSheet", "&Data Sheet", prints("one"),
                                     [](const ReportRun&) -> std::optional<ReportRefusal> {
                                         return ReportRefusal{"No Current Vendor", "None."};
                                     }},
                                    {"cmdPrintAll", "&All", prints("all")},
                                    {"cmdPrintReport", "&List", prints("list")}}},
                        {});
    window.show();
    EXPECT_FALSE(control<QPushButton>(window, "cmdBegin").isVisible());
    user.expect("No Current Vendor", "None.");
    press(window, "cmdDataSheet");
    EXPECT_EQ(printed, "");
    press(window, "cmdPrintAll");
    EXPECT_EQ(control<QPushButton>(window, "cmdBegin").text(), "&Max View");
    press(window, "cmdPrintReport");
    EXPECT_EQ(printed, "alllist");
    press(window, "cmdBegin");
    EXPECT_FALSE(control<QPushButton>(window, "cmdPrintAll").isVisible()) << "paper alone";
}

}  // namespace
