// The main window's one timer. In the start phase it takes the splash away and shows the main
// window; from then on it looks every half minute for the marker files by which an administrator
// warns the users of a job site and shuts the module down for maintenance.
#pragma once

#include <QString>

inline constexpr char shutdownMarker[] = "SHUTDOWNVEX.txt";
inline constexpr char warningMarker[] = "WARNINGVEX.txt";

// What the timer asks of the main window.
class WatchHost
{
public:
    virtual ~WatchHost() = default;

    virtual void setTimerInterval(int milliseconds) = 0;  // and starts the timer
    virtual bool splashIsOpen() const = 0;
    virtual void closeSplash() = 0;
    virtual void showMainWindow() = 0;
    virtual QString jobSitePath() const = 0;
    virtual void showWarning() = 0;  // modally; ticks go on meanwhile
    // At once: no screen is asked, no record saved, no lock released.
    virtual void endProcess() = 0;
};

class WatchTimer
{
public:
    explicit WatchTimer(WatchHost& host) : m_host(host) {}

    // Half-second ticks; the splash goes at the third, or at the first that finds it gone.
    void beginStartPhase();
    // Ticks of a second. A start phase still running ends at the next tick.
    void watchFromNowOn();

    void tick();

private:
    void startTick();
    void lookForMarkers();

    WatchHost& m_host;
    bool m_starting = false;
    bool m_warning = false;
    int m_counter = 0;
    int m_limit = 0;
};
