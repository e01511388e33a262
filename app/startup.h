// The load step of the main window: decides whether the program may run at all, gathers what is
// wrong, and leaves the session filled in. Also takes another job site later.
#pragma once

#include <QTime>

#include "app/watch_timer.h"
#include "core/session.h"

// What the load step asks of the main window.
class StartupHost
{
public:
    virtual ~StartupHost() = default;

    virtual void showShutdownNotice() = 0;                    // back when it is closed
    virtual void showSplash(const QString& versionText) = 0;  // back when it has gone
    virtual QString caption() const = 0;
    virtual void setCaption(const QString& caption) = 0;
};

enum class LoadResult {
    Loaded,
    Failed,      // the user was told; the session holds what was filled in until then
    EndProcess,  // the user was told
};

class Startup
{
public:
    Startup(Session& session, WatchTimer& timer, StartupHost& host)
        : m_session(session), m_timer(timer), m_host(host)
    {
    }

    LoadResult load();

    // Takes the folder as the job site of this machine; a blank one keeps the present site, whose
    // files are looked at anew. Fails as the store does.
    void takeJobSite(const QString& chosenPath);

private:
    bool locatorsAreThere();
    void loadSession();
    void readJobSite();
    void nameJobSite();
    void findJobSiteFiles();
    void findUserSettings();
    QString readUserSettingsPath();
    void setCaption();

    Session& m_session;
    WatchTimer& m_timer;
    StartupHost& m_host;
};

// The number of this run of the program: user, minute and second of the start. Overflow for a user
// number above 2147.
qint32 sessionTagOf(qint32 userTag, QTime start);
