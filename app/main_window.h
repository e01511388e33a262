// The main window: menu, desktop and session. It opens every other screen and holds the one timer
// of the program.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "app/menu_table.h"
#include "app/startup.h"
#include "screens/desktop.h"

class DesktopArea;
class QLabel;
class frmVEXSplash;

class frmVEXMAIN : public QMainWindow, private StartupHost, private WatchHost, private Desktop
{
public:
    // `endProcess` must end the process at once, whatever is open.
    explicit frmVEXMAIN(std::function<void()> endProcess);
    ~frmVEXMAIN() override;

    // The load step. The window shows itself when the splash has gone.
    LoadResult load();

    const Session& session() const { return m_session; }

    // What a menu entry does: tests the right, opens the screen.
    void open(const MenuEntry& entry);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void buildStatusBar();
    void showSession();
    bool runOwnCommand(const QString& entryName);
    void openNamed(const MenuEntry& entry);
    void restorePlace();
    void savePlace() const;

    void selectJobSite();
    void editUserSettings();
    void showAbout();
    void exitProgram();
    void tileHorizontally();
    void tileVertically();
    void cascade();

    // StartupHost
    void showShutdownNotice() override;
    void showSplash(const QString& versionText) override;
    QString caption() const override { return windowTitle(); }
    void setCaption(const QString& caption) override;
    // WatchHost
    void setTimerInterval(int milliseconds) override;
    bool splashIsOpen() const override;
    void closeSplash() override;
    void showMainWindow() override { show(); }
    QString jobSitePath() const override { return m_session.JobSitePath; }
    void showWarning() override;
    void endProcess() override { m_endProcess(); }
    // Desktop
    void openScreen(QWidget* screen) override;

    Session m_session;
    WatchTimer m_watch{*this};
    Startup m_startup{m_session, m_watch, *this};
    std::function<void()> m_endProcess;
    QTimer m_timer;
    DesktopArea* m_area;
    QLabel* m_user = nullptr;
    QLabel* m_site = nullptr;
    QPointer<frmVEXSplash> m_splash;
    Desktop* m_desktopBefore;
};
