#include "app/main_window.h"

#include "app/desktop_area.h"
#include "app/screen_keys.h"
#include "app/screen_table.h"
#include "core/messages.h"
#include "core/text.h"
#include "multiuser/users.h"
#include "screens/command_runner.h"
#include "screens/help.h"
#include "screens/job_site_choice.h"
#include "screens/notices.h"
#include "screens/plain_notes.h"
#include "screens/report/report_run.h"
#include "screens/splash.h"
#include "screens/user_layout.h"
#include "screens/user_settings.h"

namespace {
constexpr char moduleName[] = "Vexley Module";
constexpr char placeKey[] = "frmVEXMAIN/geometry";
}  // namespace

frmVEXMAIN::frmVEXMAIN(std::function<void()> endProcess)
    : m_endProcess(std::move(endProcess)),
      m_area(new DesktopArea(moduleName)),
      m_desktopBefore(Desktop::install(this))
{
    setObjectName("frmVEXMAIN");
    setWindowTitle(m_session.MainTitle);
    resize(1200, 680);  // the widest lists fit, and the window a display of 1280
    setCentralWidget(m_area);
    buildMenus();
    buildStatusBar();
    new ScreenKeys(m_area);
    new HelpKey(this);
    m_timer.setParent(this);
    m_timer.setObjectName("tmrMAIN");
    connect(&m_timer, &QTimer::timeout, this, [this] { m_watch.tick(); });
    installRefusalScreen([](const QString& userName, const QString& process) {
        frmDNNETNoAccess(userName, process)->exec();
    });
    installLockedScreen([](const HeldLock& lock, bool mayRemove) {
        return frmDNNETRLocked(lock, mayRemove)->exec() == removesLock;
    });
}

frmVEXMAIN::~frmVEXMAIN()
{
    installRefusalScreen({});
    installLockedScreen({});
    Desktop::install(m_desktopBefore);
}

LoadResult frmVEXMAIN::load()
{
    const LoadResult result = m_startup.load();
    showSession();
    restorePlace();
    return result;
}

void frmVEXMAIN::buildMenus()
{
    QList<QMenu*> menus;  // the open one of each depth
    const std::span<const MenuEntry> table = menuTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        const MenuEntry& entry = table[i];
        menus.resize(entry.depth);
        if (entriesBelow(i).empty()) {
            QAction* action = menus.last()->addAction(entry.caption);
            action->setObjectName(entry.name);
            connect(action, &QAction::triggered, this, [this, &entry] { open(entry); });
            continue;
        }
        QMenu* menu = menus.isEmpty() ? menuBar()->addMenu(entry.caption)
                                      : menus.last()->addMenu(entry.caption);
        menu->setObjectName(entry.name);
        menu->menuAction()->setObjectName(entry.name);
        menus.append(menu);
    }
}

void frmVEXMAIN::buildStatusBar()
{
    m_user = new QLabel;
    m_user->setObjectName("lblUserName");
    m_site = new QLabel;
    m_site->setObjectName("lblJobSiteName");
    auto* keys = new QLabel("F10: menu    Ctrl+Tab: next screen    Ctrl+F4: close screen");
    for (QLabel* label : {m_user, m_site, keys})
        label->setContentsMargins(8, 2, 8, 2);
    statusBar()->addWidget(m_user);
    statusBar()->addWidget(m_site, 1);
    statusBar()->addPermanentWidget(keys);
}

void frmVEXMAIN::showSession()
{
    const bool loaded = dnNotBlank(m_session.JobSiteName);
    m_area->keepPlaces(UserLayout(m_session.UserSettingsPath));
    m_area->setSiteName(loaded ? m_session.JobSiteName : QString());
    m_user->setText(dnIsBlank(m_session.UserName) ? QString() : "User: " + m_session.UserName);
    m_site->setText(loaded ? "Job Site: " + m_session.JobSiteName : QString());
    m_site->setToolTip(m_session.JobSitePath);
}

void frmVEXMAIN::open(const MenuEntry& entry)
{
    runCommand([&] {
        const bool mayRun = !*entry.right || dnOK2Access(entry.right, m_session.UserName, true);
        if (mayRun && !runOwnCommand(entry.name))
            openNamed(entry);
    });
}

bool frmVEXMAIN::runOwnCommand(const QString& entryName)
{
    static const QHash<QString, void (frmVEXMAIN::*)()> commands = {
        {"miSelectDB", &frmVEXMAIN::selectJobSite},
        {"miUSERSET", &frmVEXMAIN::editUserSettings},
        {"miHelpAbout", &frmVEXMAIN::showAbout},
        {"miExit", &frmVEXMAIN::exitProgram},
        {"miHorizontally", &frmVEXMAIN::tileHorizontally},
        {"miVertical", &frmVEXMAIN::tileVertically},
        {"miCascade", &frmVEXMAIN::cascade},
    };
    const auto command = commands.value(entryName);
    if (command)
        (this->*command)();
    return command;
}

void frmVEXMAIN::openNamed(const MenuEntry& entry)
{
    const ScreenFactory* factory = findScreen(entry.screen);
    if (!factory) {
        dnNotReady();
        return;
    }
    if (opensOneScreenOnly(entry) && m_area->bringToFront(entry.screen))
        return;
    QWidget* screen = factory->create({m_session, entry.mode, m_area->viewport()->size()});
    if (!screen)
        return;
    if (isUtility(entry))
        screen->setWindowTitle(m_session.JobSiteName + " - " + screen->windowTitle());
    openScreen(screen);
}

void frmVEXMAIN::openScreen(QWidget* screen)
{
    m_area->addScreen(screen, !isMaximized());
}

void frmVEXMAIN::selectJobSite()
{
    frmDBPSelect choice(m_session);
    choice.exec();
    m_startup.takeJobSite(choice.selectedPath());
}

void frmVEXMAIN::editUserSettings()
{
    frmUSERSET settings(m_session);
    settings.exec();
    m_session.UserSettingsPath = settings.userSettingsPath();
    m_area->keepPlaces(UserLayout(m_session.UserSettingsPath));
}

void frmVEXMAIN::showAbout()
{
    frmAboutView(QString("About ") + moduleName, moduleName, m_session.VersionText)->exec();
}

void frmVEXMAIN::exitProgram()
{
    ReportRun::cancelAll();  // one that lets events in would go on without a window
    savePlace();
    QCoreApplication::exit();
}

void frmVEXMAIN::tileHorizontally()
{
    m_area->tileHorizontally();
}
void frmVEXMAIN::tileVertically()
{
    m_area->tileVertically();
}
void frmVEXMAIN::cascade()
{
    m_area->cascadeSubWindows();
}

void frmVEXMAIN::closeEvent(QCloseEvent* event)
{
    event->accept();
    exitProgram();
}

void frmVEXMAIN::restorePlace()
{
    const QByteArray place = UserLayout(m_session.UserSettingsPath).value(placeKey).toByteArray();
    if (!place.isEmpty())
        restoreGeometry(place);
}

void frmVEXMAIN::savePlace() const
{
    UserLayout(m_session.UserSettingsPath).setValue(placeKey, saveGeometry());
}

void frmVEXMAIN::showShutdownNotice()
{
    frmZORShutdown(moduleName).exec();
}

void frmVEXMAIN::showSplash(const QString& versionText)
{
    frmVEXSplash splash(moduleName, versionText);
    m_splash = &splash;
    splash.exec();
}

void frmVEXMAIN::setCaption(const QString& caption)
{
    setWindowTitle(caption);
    showSession();
}

void frmVEXMAIN::setTimerInterval(int milliseconds)
{
    m_timer.start(milliseconds);
}

bool frmVEXMAIN::splashIsOpen() const
{
    return m_splash && m_splash->isVisible();
}

void frmVEXMAIN::closeSplash()
{
    if (m_splash)
        m_splash->close();
}

void frmVEXMAIN::showWarning()
{
    frmZORWarning(moduleName).exec();
}
