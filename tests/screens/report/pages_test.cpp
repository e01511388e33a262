#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include "screens/report/page_painting.h"
#include "screens/report/report_page.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_messages.h"

namespace {

// What an independent program reads in a PDF file.
QString readPdf(const QString& path, const QStringList& options = {})
{
    QProcess reader;
    reader.start("pdftotext", options + QStringList{"-layout", path, "-"});
    if (!reader.waitForFinished())
        ADD_FAILURE() << "pdftotext does not run: install poppler-utils";
    return QString::fromUtf8(reader.readAllStandardOutput());
}

PageDocument twoPages()
{
    PageDocument pages;
    pages.startDocument();
    dnReportPageFoot(pages, {.reportName = "Office Flow List"});
    pages.setFont("Times New Roman", 18);
    pages.setPosition(600, 600);
    pages.writeText("Efficient office flow: 5° ½ Größe");
    dnReportCell(pages, {600, 1200, 3000, 250}, "WELD NECK FLANGE");
    pages.setLandscape(true);
    pages.newPage();
    pages.setFont("Courier New", 10, true);
    pages.setPosition(600, 600);
    pages.writeText("SECOND PAGE 日本");
    pages.endDocument();
    return pages;
}

TEST(Pages, MeasureByTheDesignOfTheFonts)
{
    ASSERT_TRUE(pageFontsAreInstalled());
    // 0.6 em a character; 0.556 em a digit of Arial.
    EXPECT_EQ(textWidth(u"ABCDEFGHIJ", {FontFamily::CourierNew, false, 10}), 1201);
    EXPECT_EQ(textWidth(u"0123456789", {FontFamily::Arial, false, 10}), 1113);
    EXPECT_EQ(textWidth(u"iiii", {FontFamily::CourierNew, false, 8}),
              textWidth(u"WWWW", {FontFamily::CourierNew, true, 8}));
    EXPECT_EQ(fittingLength(u"ABCDEFGHIJ", {FontFamily::CourierNew, false, 10}, 600), 4);
    EXPECT_EQ(fontFamilyOf("TIMES NEW ROMAN"), FontFamily::TimesNewRoman);
}

TEST(Pages, BreakTextsAtBlanksAndLongWordsAnywhere)
{
    const PageFont font{FontFamily::CourierNew, false, 10};  // 120 twips a character
    EXPECT_EQ(wrappedLines("GATE VALVE  BRONZE", font, 1210),
              QStringList({"GATE VALVE", "BRONZE"}));
    EXPECT_EQ(wrappedLines("ABCDEFGHIJKL MN", font, 610), QStringList({"ABCDE", "FGHIJ", "KL MN"}));
    EXPECT_EQ(wrappedLines("ONE\r\nTWO\n\nSIX", font, 5000),
              QStringList({"ONE", "TWO", "", "SIX"}));
    EXPECT_EQ(wrappedLines("", font, 5000), QStringList(""));
}

TEST(Pages, KeepWhatIsDrawnWhereItIsDrawn)
{
    PageDocument pages;
    pages.writeText("before the start: dropped");
    pages.startDocument();
    pages.setFont("Courier New", 10);
    pages.style.penWidth = 0;
    pages.drawTextBox("LEFT", {1000, 2000, 1200, 300});
    pages.style.alignment = TextAlignment::Right;
    pages.drawTextBox("RIGHT", {1000, 3000, 1200, 300});
    pages.style.alignment = TextAlignment::Centre;
    pages.drawTextBox("TOO LONG FOR IT", {1000, 4000, 1200, 300});
    pages.setPosition(500, 5000);
    pages.writeText("MIDDLE");
    pages.endDocument();
    pages.writeText("after the end: dropped");
    EXPECT_EQ(placesOn(pages, 1),
              "1030 2036 LEFT\n"
              "1569 3036 RIGHT\n"
              "1059 4036 TOO LONG\n"
              "5759 5000 MIDDLE\n");
    EXPECT_EQ(pages.pageCount(), 1);
    pages.setPreviewPage(7);
    EXPECT_EQ(pages.previewPage(), 1);
}

TEST(Pages, BearTheStripAtTheirFoot)
{
    const FixedSystem machine;
    PageDocument pages;
    pages.startDocument();
    pages.setFont("Times New Roman", 14, true);
    dnReportPageFoot(pages, {.reportName = "Inventory Branch Codes"});
    EXPECT_EQ(pages.style.font.size, 14);
    pages.newPage();
    dnReportPageFoot(pages, {.reportName = "Log", .showsDate = false, .pageOverride = 41});
    EXPECT_EQ(linesOn(pages, 1),
              QStringList("Module|Vexley Module|Report|Inventory Branch Codes|Date|03/07/2026|"
                          "Time|09:05 am|Page|1"));
    EXPECT_EQ(linesOn(pages, 2),
              QStringList("Module|Vexley Module|Report|Log|Time|09:05 am|Page|41"));
    // Its cells reach exactly from margin to margin.
    const Page& page = pages.page(1);
    int left = 500;
    QList<int> widths;
    for (const PageOperation& operation : page.operations) {
        if (operation.kind != PageOperation::Kind::Rectangle)
            continue;
        EXPECT_EQ(operation.x, left);
        EXPECT_EQ(operation.y, 15840 - 500 - 200);
        widths.append(operation.width);
        left += operation.width;
    }
    EXPECT_EQ(left, 12240 - 500);
    EXPECT_EQ(widths, (QList<int>{760, 2380, 680, 3680, 440, 1000, 480, 900, 460, 460}));

    pages.newPage();
    dnReportPageFoot(pages, {.reportName = "Log", .pageOverride = 1234});
    EXPECT_TRUE(linesOn(pages, pages.currentPage()).last().endsWith("Page|1234"));
}

TEST(Pages, NarrowTheFontOfACellBeforeTheyCutItsText)
{
    PageDocument pages;
    pages.startDocument();
    const auto sizeOf = [&](const QString& text) {
        dnReportCell(pages, {0, 0, 1070, 250}, text);
        return textsOf(pages, 1).back().font.size;
    };
    EXPECT_EQ(sizeOf("1234567890"), 8);  // 960 twips
    EXPECT_EQ(sizeOf("12345678901"), 7);
    EXPECT_EQ(sizeOf("1234567890123"), 6);
    EXPECT_EQ(sizeOf("123456789012345678"), 6);
    EXPECT_EQ(textsOf(pages, 1).back().text, "1234567890123");
    const CellFlags wraps{.wraps = true};
    EXPECT_EQ(dnReportCell(pages, {0, 0, 1070, 250}, "SHORT", wraps), 250);
    const int depth = dnReportCell(pages, {0, 0, 1070, 250}, "GATE VALVE BRONZE THREADED", wraps);
    EXPECT_GT(depth, 500);
    EXPECT_EQ(reportCellDepth({0, 0, 1070, 250}, "GATE VALVE BRONZE THREADED", wraps), depth);
}

TEST(Pages, PutBoxesWithTheirLabelsAndBars)
{
    PageDocument pages;
    pages.startDocument();
    pages.setFont("Arial", 12, true);
    dnReportBoxField(pages, {1000, 2000, 1310, 500}, "PO No.", "ABCDEFGHIJKLMN");
    dnReportBoxField(pages, {1000, 3000, 3000, 500}, "Vendor", "Northern", {.large = true});
    // 120 twips a character, 1,210 of room: two lines fit; in a shallow box the first one stands.
    dnReportBoxField(pages, {1000, 4000, 1310, 700}, "Ship To", "ONE TWO THREE FOUR FIVE SIX",
                     {.wraps = true});
    dnReportBoxField(pages, {1000, 5000, 1310, 250}, "Note", "ONE TWO THREE", {.wraps = true});
    EXPECT_EQ(pages.style.font.size, 12) << "as before";
    dnReportBar(pages, {1000, 6000, 4000, 250}, "One line");
    dnReportBar(pages, {1000, 7000, 4000, 500}, "Upper", "Lower");
    pages.endDocument();
    const QStringList lines = placesOn(pages, 1).trimmed().split('\n');
    EXPECT_EQ(lines.mid(0, 8),
              QStringList({"1060 2020 PO No.", "1100 2200 ABCDEFGHIJ", "1060 3020 Vendor",
                           "1100 3120 Northern", "1060 4020 Ship To", "1100 4200 ONE TWO",
                           "1100 4427 THREE FOUR", "1060 5020 Note"}));
    EXPECT_EQ(lines.value(8), "1100 5200 ONE TWO");
    ASSERT_EQ(lines.size(), 12) << "nothing below a box";
    EXPECT_TRUE(lines[9].startsWith("1050 60")) << "within the band: " << lines[9].toStdString();
    EXPECT_TRUE(lines[10].endsWith("Upper") && lines[11].endsWith("Lower"));
    EXPECT_GT(lines[11].section(' ', 1, 1).toInt(), lines[10].section(' ', 1, 1).toInt());
}

TEST(Pages, NameTheirPaper)
{
    EXPECT_EQ(paperSizeText(letterPaper), "Letter, 8½ x 11 in.");
    EXPECT_EQ(paperSizeText(legalPaper), "Legal, 8½ x 14 in.");
    EXPECT_EQ(paperSizeText(a4Paper), "A4, 210 x 297 mm");
    EXPECT_EQ(paperSizeText({0, 9000, 9000}), "Invalid Size Detected");
    PageDocument pages;
    EXPECT_TRUE(pages.isReady());
    pages.setPaper({0, 0, 0});
    EXPECT_FALSE(pages.isReady());
}

TEST(Pages, BecomeAPdfFileThatAnotherProgramReads)
{
    const FixedSystem machine;
    const QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    const PageDocument pages = twoPages();
    ASSERT_EQ(writePdf(pages, path), "");
    const QStringList read = readPdf(path).split('\f');
    ASSERT_GE(read.size(), 2);
    for (const char* text : {"Efficient office flow: 5° ½ Größe", "WELD NECK FLANGE",
                             "Office Flow List", "03/07/2026"})
        EXPECT_TRUE(read[0].contains(text)) << text << '\n' << qPrintable(read[0]);
    EXPECT_TRUE(read[1].contains("SECOND PAGE")) << qPrintable(read[1]);
    EXPECT_FALSE(read[0].contains("SECOND"));
}

TEST(Pages, LeaveNoHalfFileWhereTheyCannotBeWritten)
{
    const QTemporaryDir folder;
    ScriptedMessages user;
    ScriptedDialogs dialogs;
    const QString path = folder.filePath("no such folder/report.pdf");
    dialogs.writeTo = path;
    user.expect("Cannot Write PDF File",
                "Cannot Write File: " + path + "\nNo such file or directory");
    savePdf(twoPages(), "Report");
    EXPECT_EQ(dialogs.lastSuggestion, "Report.pdf");
    EXPECT_FALSE(QFile::exists(path));

    // What stood under the name stays until all is written.
    const QString kept = folder.filePath("kept.pdf");
    QFile file(kept);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
    file.close();
    EXPECT_NE(writePdf(PageDocument(), kept), "");
    int asked = 0;
    EXPECT_NE(writePdf(twoPages(), kept, [&] { return ++asked < 2; }), "") << "stopped";
    EXPECT_EQ(QFileInfo(kept).size(), 3);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("kept.pdf"));
}

TEST(Pages, GoToThePrinterThatIsChosen)
{
    const FixedSystem machine;
    const QTemporaryDir folder;
    ScriptedDialogs dialogs;
    dialogs.printTo = "";
    EXPECT_FALSE(printDocument(twoPages()));
    const QString path = folder.filePath("printed.pdf");
    dialogs.printTo = path;
    EXPECT_TRUE(printDocument(twoPages()));
    const QStringList read = readPdf(path).split('\f');
    ASSERT_GE(read.size(), 2);
    EXPECT_TRUE(read[0].contains("WELD NECK FLANGE"));
    EXPECT_TRUE(read[1].contains("SECOND PAGE"));
}

TEST(Pages, PaintPicturesOnce)
{
    QImage logo(100, 50, QImage::Format_RGB32);
    logo.fill(Qt::red);
    PageDocument pages;
    pages.startDocument();
    pages.drawPicture(logo, {0, 0, 1000, 1000});
    pages.newPage();
    pages.drawPicture(logo, {0, 0, 1000, 1000});
    EXPECT_EQ(pages.page(1).operations[0].style, pages.page(2).operations[0].style);

    QImage paper(100, 100, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(0.1, 0.1);
    paintPage(painter, pages, 2);
    painter.end();
    EXPECT_EQ(paper.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(paper.pixelColor(50, 20), QColor(Qt::white)) << "proportions are kept";
}

}  // namespace
