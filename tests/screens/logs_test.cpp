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
    control<QToolButton>(screen, "cmdBEND").click();
    control<QToolButton>(screen, "cmdBUPARROW").click();
    control<QToolButton>(screen, "cmdBHOME").click();
    QTest::qWait(300);  // the place in the list is shown with a delay
    EXPECT_EQ(shownIn(screen).value(0), "zebra");
    press(screen, "cmdExit");
    EXPECT_FALSE(screen.isVisible());
}

TEST_F(LogScreens, SayThatALogIsEmpty)
{
    frmZORERRLOG01 screen(session, "Upload");
    screen.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownIn(screen).value(0), "List is Empty");

    ReportRun errors(frmZORERRLOG02("Upload"), session);
    errors.begin();
    EXPECT_TRUE(linesOn(errors.pages, 1).contains("Error Log is Empty."));
    ReportRun activity(frmZORPRINTACT(), session);
    activity.begin();
    EXPECT_TRUE(linesOn(activity.pages, 1).contains("Activity Log is Empty."));
    ActivityLog(site.userFolder()).add("Row 1 mended");
    ReportRun filled(frmZORPRINTACT(), session);
    filled.begin();
    const QStringList lines = linesOn(filled.pages, 1);
    for (const char* line : {"Activity", "Printing Page: 1", "Row 1 mended"})
        EXPECT_TRUE(lines.contains(line)) << line;
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
