#include "multiuser/run_log.h"
#include "screens/browse/browse_grid.h"
#include "screens/logs/error_log.h"
#include "screens/logs/log_prints.h"
#include "screens/report/report_run.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class LogScreens : public ::testing::Test
{
protected:
    LogScreens() { session.UserSettingsPath = site.userFolder(); }

    QStringList shownIn(frmZORERRLOG01& screen) const
    {
        const QAbstractItemModel* rows = screen.grid().view()->model();
        QStringList lines;
        for (int row = 0; row < rows->rowCount(); ++row)
            if (const QString text = rows->index(row, 1).data().toString(); !text.isEmpty())
                lines += text;
        return lines;
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    Session session;
};

TEST_F(LogScreens, ShowTheLinesInTheOrderOfEntry)
{
    {
        ErrorLog log(site.userFolder());
        log.add("zebra");
        log.add("apple");
        log.add("mango");
    }
    frmZORERRLOG01 screen(session, "Upload");
    EXPECT_EQ(screen.windowTitle(), "View Upload Error Log");
    screen.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownIn(screen), (QStringList{"zebra", "apple", "mango", "End of List"}));
    press(screen, "cmdExit");
    EXPECT_FALSE(screen.isVisible());
}

TEST_F(LogScreens, MoveThroughTheLinesByButtonsAndKeys)
{
    constexpr int count = 120;
    {
        ErrorLog log(site.userFolder());
        for (int line = 1; line <= count; ++line)
            log.add(QString("line %1").arg(line));
    }
    frmZORERRLOG01 screen(session, "Upload");
    screen.show();
    QCoreApplication::processEvents();
    const auto first = [&] { return shownIn(screen).value(0); };
    const auto page = static_cast<int>(shownIn(screen).size());
    ASSERT_GT(page, 3);
    ASSERT_LT(page, count);
    EXPECT_EQ(first(), "line 1");
    control<QToolButton>(screen, "cmdBPGDN").click();
    const QString second = first();
    EXPECT_NE(second, "line 1");
    control<QToolButton>(screen, "cmdBPGUP").click();
    EXPECT_EQ(first(), "line 1");
    control<QToolButton>(screen, "cmdBEND").click();
    EXPECT_TRUE(shownIn(screen).contains("line 120"));
    const QString top = first();
    control<QToolButton>(screen, "cmdBUPARROW").click();
    control<QToolButton>(screen, "cmdBDNARROW").click();
    EXPECT_TRUE(shownIn(screen).contains("line 120"));
    for (int step = 0; step < page; ++step)
        control<QToolButton>(screen, "cmdBUPARROW").click();
    EXPECT_NE(first(), top) << "the list goes on above";
    control<QToolButton>(screen, "cmdBHOME").click();
    EXPECT_EQ(first(), "line 1");
    control<QToolButton>(screen, "cmdBPGDN").click();
    EXPECT_EQ(first(), second);
    QTest::qWait(300);  // the place in the list is shown with a delay
}

TEST_F(LogScreens, SayThatALogIsEmpty)
{
    frmZORERRLOG01 screen(session, "Upload");
    screen.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownIn(screen).value(0), "List is Empty");

    ReportRun errors(frmZORERRLOG02("Upload"), session);
    errors.begin();
    EXPECT_EQ(linesOn(errors.pages, 1).value(0), "Error Log is Empty.");
    EXPECT_FALSE(linesOn(errors.pages, 1).contains("Error Message")) << "no heads over nothing";
    EXPECT_EQ(errors.processText(), "Report Finished, Press 'P' to Print");
    ReportRun activity(frmZORPRINTACT(), session);
    activity.begin();
    EXPECT_EQ(linesOn(activity.pages, 1).value(0), "Activity Log is Empty.");
}

TEST_F(LogScreens, PrintLinesInArialUnderTheHeadsOfEachPage)
{
    constexpr int count = 150;
    {
        ActivityLog log(site.userFolder());
        for (int line = 1; line <= count; ++line)
            log.add(QString("Row %1 mended").arg(line));
    }
    ReportRun run(frmZORPRINTACT(), session);
    run.begin();
    ASSERT_GT(run.pages.pageCount(), 1);
    QStringList printed;
    for (int page = 1; page <= run.pages.pageCount(); ++page) {
        const QStringList lines = linesOn(run.pages, page);
        EXPECT_EQ(lines.value(0), "Activity");
        EXPECT_EQ(lines.value(1), QString("Printing Page: %1").arg(page));
        EXPECT_EQ(lines.value(2), "Activity") << "of the column";
        printed += lines.filter(" mended");
        int foot = 0;
        for (const PlacedText& text : textsOf(run.pages, page)) {
            EXPECT_EQ(text.font.family, FontFamily::Arial) << text.text.toStdString();
            foot = std::max(foot, text.y);
            EXPECT_TRUE(!text.text.contains("mended") || text.y < run.pages.pageHeight() - 1200);
        }
        EXPECT_GT(foot, run.pages.pageHeight() - 1000) << "the strip at the foot";
    }
    ASSERT_EQ(printed.size(), count);
    EXPECT_EQ(printed.first(), "Row 1 mended");
    EXPECT_EQ(printed.last(), "Row 150 mended");
}

TEST_F(LogScreens, PrintEveryLineWhole)
{
    const QString longLine = QString("word ").repeated(50).trimmed();
    ErrorLog(site.userFolder()).add(longLine);
    ReportRun run(frmZORERRLOG02("Upload"), session);
    EXPECT_EQ(run.spec().caption, "Print Upload Error Log");
    run.begin();
    const QString page = linesOn(run.pages, 1).join(' ');
    EXPECT_TRUE(page.contains("Upload Error Log"));
    EXPECT_TRUE(page.contains("Error Message"));
    EXPECT_EQ(page.count("word"), 50);
}

}  // namespace
