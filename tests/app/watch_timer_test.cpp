#include "app/watch_timer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

// The main window as the timer sees it: notes what it is told.
class Window : public WatchHost
{
public:
    void setTimerInterval(int milliseconds) override { interval = milliseconds; }
    bool splashIsOpen() const override { return splash; }
    void closeSplash() override { splash = false; }
    void showMainWindow() override { ++shown; }
    QString jobSitePath() const override { return folder; }
    void showWarning() override
    {
        ++warnings;
        if (whileWarning)
            whileWarning();
    }
    void endProcess() override { ++ended; }

    int interval = 0;
    bool splash = true;
    int shown = 0;
    int warnings = 0;
    int ended = 0;
    QString folder;
    std::function<void()> whileWarning;
};

class WatchTimerTest : public ::testing::Test
{
protected:
    void tick(int times)
    {
        for (int i = 0; i < times; ++i)
            timer.tick();
    }
    // A watching timer: the main window is shown, the marker files have just been looked for.
    void watch()
    {
        timer.beginStartPhase();
        window.splash = false;
        timer.watchFromNowOn();
        tick(2);
    }
    void put(const char* marker)
    {
        QFile file(site.filePath(marker));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void take(const char* marker) { QFile::remove(site.filePath(marker)); }

    QTemporaryDir site;
    Window window;
    WatchTimer timer{window};
};

TEST_F(WatchTimerTest, TheSplashGoesAtTheThirdTick)
{
    timer.beginStartPhase();
    EXPECT_EQ(window.interval, 500);
    tick(2);
    EXPECT_TRUE(window.splash);
    EXPECT_EQ(window.shown, 0);
    tick(1);
    EXPECT_FALSE(window.splash);
    EXPECT_EQ(window.shown, 1);
    tick(5);
    EXPECT_EQ(window.shown, 1);
}

TEST_F(WatchTimerTest, ASplashThatHasGoneEndsTheStartPhaseAtTheNextTick)
{
    timer.beginStartPhase();
    window.splash = false;
    tick(1);
    EXPECT_EQ(window.shown, 1);
}

TEST_F(WatchTimerTest, TheLoadMaySetTheWatchPhaseBeforeTheMainWindowIsShown)
{
    timer.beginStartPhase();
    window.splash = false;
    timer.watchFromNowOn();
    EXPECT_EQ(window.interval, 1000);
    EXPECT_EQ(window.shown, 0);
    tick(1);
    EXPECT_EQ(window.shown, 1);
}

TEST_F(WatchTimerTest, MarkersAreLookedForEveryHalfMinute)
{
    window.folder = site.path();
    watch();
    put(warningMarker);
    tick(28);
    EXPECT_EQ(window.warnings, 0);
    tick(1);
    EXPECT_EQ(window.warnings, 1);
    tick(28);
    EXPECT_EQ(window.warnings, 1);
    tick(1);
    EXPECT_EQ(window.warnings, 2);
}

TEST_F(WatchTimerTest, TheWarningComesBeforeTheShutdown)
{
    window.folder = site.path();
    watch();
    put(warningMarker);
    put(shutdownMarker);
    tick(300);
    EXPECT_EQ(window.warnings, 10);
    EXPECT_EQ(window.ended, 0);

    take(warningMarker);
    tick(18);
    EXPECT_EQ(window.ended, 0);
    tick(1);
    EXPECT_EQ(window.ended, 1);
}

TEST_F(WatchTimerTest, TicksWhileAWarningIsUpDoNotOpenAnother)
{
    window.folder = site.path();
    watch();
    put(warningMarker);
    window.whileWarning = [this] { tick(60); };
    tick(29);
    EXPECT_EQ(window.warnings, 1);
}

TEST_F(WatchTimerTest, WithoutAJobSiteNothingIsLookedFor)
{
    put(shutdownMarker);
    watch();
    tick(100);
    EXPECT_EQ(window.ended, 0);
}

}  // namespace
