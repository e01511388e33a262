#include "app/main_window.h"

#include <gtest/gtest.h>

#include "app/screen_table.h"
#include "core/storage/file_paths.h"
#include "screens/desktop.h"
#include "screens/user_layout.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class MainWindowTest : public ::testing::Test
{
protected:
    // Loads without waiting for the splash.
    void load()
    {
        whenModalOpens([](QDialog& splash) {
            EXPECT_EQ(splash.objectName(), "frmVEXSplash");
            EXPECT_EQ(labelText(splash, "lblVersion"), "Version 5.6.0");
            QTest::keyClick(&splash, Qt::Key_Space);
        });
        ASSERT_EQ(window.load(), LoadResult::Loaded);
        window.show();
    }

    QAction& entry(const QString& name) { return control<QAction>(window, name); }
    QMdiArea& desktop() { return *window.findChild<QMdiArea*>(); }
    QMdiSubWindow* frameOf(const QString& name)
    {
        for (QMdiSubWindow* frame : desktop().subWindowList())
            if (frame->widget() && frame->widget()->objectName() == name)
                return frame;
        return nullptr;
    }
    // Deletes what waits for it, as the event loop would.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    int ended = 0;
    frmVEXMAIN window{[this] { ++ended; }};
};

TEST_F(MainWindowTest, EveryEntryOfTheTableIsInItsMenuUnderItsNameAndCaption)
{
    EXPECT_EQ(menuTable().size(), 126U);
    QHash<int, QString> menuOfDepth;
    for (const MenuEntry& wanted : menuTable()) {
        QAction& action = entry(wanted.name);
        EXPECT_EQ(action.text(), wanted.caption);
        QWidget* expectedMenu = wanted.depth == 0
                                    ? static_cast<QWidget*>(window.menuBar())
                                    : &control<QMenu>(window, menuOfDepth[wanted.depth - 1]);
        EXPECT_TRUE(expectedMenu->actions().contains(&action)) << wanted.name;
        menuOfDepth[wanted.depth] = wanted.name;
    }
    EXPECT_EQ(window.menuBar()->actions().size(), 10);
    EXPECT_EQ(entry("miLOGS").text(), "&1 - Requisition && PO Logs");
}

TEST_F(MainWindowTest, NoTwoEntriesOfAMenuShareAKey)
{
    QList<QList<QAction*>> menus = {window.menuBar()->actions()};
    for (const QMenu* menu : window.findChildren<QMenu*>())
        menus.append(menu->actions());
    for (const QList<QAction*>& actions : menus) {
        QSet<QString> keys;
        for (const QAction* action : actions) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_TRUE(key.isEmpty() || !keys.contains(key)) << action->text().toStdString();
            keys.insert(key);
        }
    }
}

TEST_F(MainWindowTest, TheSessionIsShownAfterTheLoad)
{
    load();
    EXPECT_EQ(window.windowTitle(), "Zorvane Suite - Vexley Module    Job Site: NORTH YARD");
    EXPECT_EQ(labelText(window, "lblUserName"), "User: pat");
    EXPECT_EQ(labelText(window, "lblJobSiteName"), "Job Site: NORTH YARD");
}

TEST_F(MainWindowTest, ItsTimerShowsTheWindowAndEndsTheProcessUnderAnOpenBox)
{
    whenModalOpens([](QDialog& splash) { splash.close(); });
    ASSERT_EQ(window.load(), LoadResult::Loaded);
    control<QTimer>(window, "tmrMAIN").setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isVisible(); }));
    site.makeMarker(site.siteFolder(), "SHUTDOWNVEX.txt");
    QDialog box;
    QTimer::singleShot(3000, &box, &QDialog::reject);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &box, [&] {
        if (ended > 0)
            box.accept();
    });
    look.start(5);
    EXPECT_EQ(box.exec(), QDialog::Accepted) << "the marker was not seen under the box";
}

TEST_F(MainWindowTest, OnlyAClickOnTheEmptyAreaCascades)
{
    load();
    window.resize(1000, 700);
    window.show();
    entry("miNETSET").trigger();
    QMdiSubWindow* frame = frameOf("frmNETSET");
    ASSERT_TRUE(frame);
    frame->move(200, 150);
    settle();
    QTest::mouseClick(frame->widget(), Qt::RightButton, {}, {2, 2});
    EXPECT_EQ(frame->pos(), QPoint(200, 150));
    QTest::mouseClick(desktop().viewport(), Qt::LeftButton, {}, {5, 600});
    EXPECT_NE(frame->pos(), QPoint(200, 150));
}

TEST_F(MainWindowTest, AShutdownMarkerShowsItsNoticeAndNothingElse)
{
    site.makeMarker(site.programFolder(), "SHUTDOWNVEX.txt");
    whenModalOpens([](QDialog& notice) {
        EXPECT_EQ(notice.objectName(), "frmZORShutdown");
        EXPECT_EQ(notice.windowTitle(), "Application Shutdown Notice");
        EXPECT_EQ(labelText(notice, "lblModuleName"), "Vexley Module");
        press(notice, "cmdOK");
    });
    EXPECT_EQ(window.load(), LoadResult::EndProcess);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, EntriesThatAreNotBuiltSaySo)
{
    load();
    const QSet<QString> own = {"miSelectDB",     "miUSERSET",  "miHelpAbout", "miExit",
                               "miHorizontally", "miVertical", "miCascade"};
    for (const MenuEntry& menuEntry : menuTable()) {
        QAction& action = entry(menuEntry.name);
        if (action.menu() || own.contains(menuEntry.name) || findScreen(menuEntry.screen))
            continue;
        if (*menuEntry.right)
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", 1}, {"UAICODE", menuEntry.right}});
        user.expect("Option Not Ready", "Development is Pending on this Option.");
        action.trigger();
        EXPECT_TRUE(user.allCame()) << menuEntry.name;
    }
}

TEST_F(MainWindowTest, AnEntryWhoseRightIsRefusedOpensNothing)
{
    load();
    site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                {{"UAITAG", 7}, {"UAICODE", "VEN01"}, {"Desc", "Vendors"}});
    site.addRow("ZORNET.mdb", "USERRIGHTS", {{"USERTAG", 1}, {"UAITAG", 7}, {"ALLOWED", false}});
    bool shown = false;
    whenModalOpens([&](QDialog& refusal) {
        shown = true;
        EXPECT_EQ(refusal.objectName(), "frmDNNETNoAccess");
        EXPECT_EQ(refusal.windowTitle(), "Access Denied");
        EXPECT_EQ(labelText(refusal, "lblUSERNAME"), "pat");
        EXPECT_EQ(labelText(refusal, "lblProcess"), "Vendors");
        QTest::keyClick(&refusal, Qt::Key_Escape);
    });
    entry("miVEXVEN01").trigger();
    EXPECT_TRUE(shown);
    EXPECT_TRUE(desktop().subWindowList().isEmpty());
}

TEST_F(MainWindowTest, ClosedMenusLeaveTheMenuBarWhole)
{
    load();
    auto& menu = control<QMenu>(window, "miFile");
    menu.popup({0, 0});
    QTest::keyClick(&menu, Qt::Key_Escape);
    settle();
    EXPECT_EQ(window.menuBar()->actions().size(), 10);
}

TEST_F(MainWindowTest, SettingsOpenOnceCentredAndCloseWithTheirFrame)
{
    load();
    settle();
    entry("miNETSET").trigger();
    QMdiSubWindow* frame = frameOf("frmNETSET");
    ASSERT_TRUE(frame);
    const QSize area = desktop().viewport()->size();
    EXPECT_EQ(frame->pos(),
              QPoint((area.width() - frame->width()) / 2, (area.height() - frame->height()) / 2));
    entry("miNETSET").trigger();
    EXPECT_EQ(desktop().subWindowList().size(), 1);

    press(*frame, "cmdExit");
    settle();
    EXPECT_TRUE(desktop().subWindowList().isEmpty());

    entry("miNETSET").trigger();
    frame = frameOf("frmNETSET");
    ASSERT_TRUE(frame);
    frame->close();
    settle();
    EXPECT_TRUE(desktop().subWindowList().isEmpty());
}

TEST_F(MainWindowTest, TheKeysOfTheScreenInFrontGoBeforeThoseOfTheMenu)
{
    load();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    entry("miNETSET").trigger();
    QMdiSubWindow* frame = frameOf("frmNETSET");
    ASSERT_TRUE(frame);
    EXPECT_LT(frame->height(), 300) << "as small as its content";
    const auto pressAlt = [&](Qt::Key key) {
        QTest::keyClick(frame->focusWidget() ? frame->focusWidget() : frame, key, Qt::AltModifier);
    };
    pressAlt(Qt::Key_C);
    EXPECT_EQ(control<QPushButton>(*frame, "cmdAdd").text(), "&Cancel");
    pressAlt(Qt::Key_C);
    EXPECT_EQ(control<QPushButton>(*frame, "cmdAdd").text(), "&Add this User to List");
    EXPECT_FALSE(QApplication::activePopupWidget());

    pressAlt(Qt::Key_F);
    EXPECT_EQ(QApplication::activePopupWidget(), &control<QMenu>(window, "miFile"));
    control<QMenu>(window, "miFile").close();
}

TEST_F(MainWindowTest, F10OpensTheFirstMenuFromAScreenAndEscGoesBack)
{
    load();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    entry("miNETSET").trigger();
    QMdiSubWindow* frame = frameOf("frmNETSET");
    ASSERT_NE(nullptr, frame);
    QWidget* field = frame->focusWidget();
    ASSERT_NE(nullptr, field);
    QTest::keyClick(field, Qt::Key_F10);
    QWidget* menu = &control<QMenu>(window, "miFile");
    ASSERT_EQ(menu, QApplication::activePopupWidget());
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_EQ(window.menuBar(), QApplication::focusWidget());
    QTest::keyClick(window.menuBar(), Qt::Key_Escape);
    EXPECT_EQ(field, QApplication::focusWidget());
}

TEST_F(MainWindowTest, ScreensThatCloseThemselvesTakeTheirFrameAlong)
{
    load();
    auto* screen = new QWidget;
    screen->setObjectName("plain");
    openScreen(screen);
    ASSERT_TRUE(frameOf("plain"));
    screen->close();
    settle();
    EXPECT_FALSE(frameOf("plain"));
}

TEST_F(MainWindowTest, ScreensAreTiledInRowsAndInColumns)
{
    load();
    settle();
    for (int i = 0; i < 3; ++i)
        openScreen(new QWidget);
    settle();
    const QSize area = desktop().viewport()->size();
    entry("miHorizontally").trigger();
    int bottom = 0;
    for (const QMdiSubWindow* frame : desktop().subWindowList()) {
        EXPECT_EQ(frame->width(), area.width());
        EXPECT_EQ(frame->y(), bottom);
        bottom = frame->geometry().bottom() + 1;
    }
    EXPECT_EQ(bottom, area.height());

    entry("miVertical").trigger();
    int right = 0;
    for (const QMdiSubWindow* frame : desktop().subWindowList()) {
        EXPECT_EQ(frame->height(), area.height());
        EXPECT_EQ(frame->x(), right);
        right = frame->geometry().right() + 1;
    }
    EXPECT_EQ(right, area.width());

    entry("miCascade").trigger();
    QSet<QPair<int, int>> cascaded;
    for (const QMdiSubWindow* frame : desktop().subWindowList()) {
        cascaded.insert({frame->x(), frame->y()});
        EXPECT_LT(frame->width(), area.width());
        EXPECT_LT(frame->height(), area.height());
    }
    EXPECT_EQ(cascaded.size(), 3);

    for (QMdiSubWindow* frame : desktop().subWindowList())
        frame->setGeometry(300, 300, 100, 80);
    QTest::mouseClick(desktop().viewport(), Qt::LeftButton, {}, QPoint(5, area.height() - 5));
    for (const QMdiSubWindow* frame : desktop().subWindowList())
        EXPECT_NE(frame->pos(), QPoint(300, 300)) << "a click on the empty area cascades";
}

TEST_F(MainWindowTest, AnotherJobSiteIsChosenFromTheList)
{
    load();
    const QString other = site.copyFolder(site.siteFolder(), "other");
    site.addRow("DBPATHS.mdb", "DBPATHS",
                {{"PATHNAME", "SOUTH YARD"}, {"PathText", other}, {"DBTAG", 2}});
    whenModalOpens([](QDialog& choice) {
        auto& list = control<QListWidget>(choice, "lstPATHNAME");
        EXPECT_EQ(list.currentItem()->text(), "NORTH YARD");
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    entry("miSelectDB").trigger();
    EXPECT_EQ(window.session().JobSitePath, other);
    EXPECT_EQ(window.session().SiteTag, 2);
    EXPECT_EQ(window.windowTitle(), "Zorvane Suite - Vexley Module    Job Site: SOUTH YARD");
    EXPECT_EQ(labelText(window, "lblJobSiteName"), "Job Site: SOUTH YARD");

    whenModalOpens([](QDialog& choice) { QTest::keyClick(&choice, Qt::Key_Escape); });
    entry("miSelectDB").trigger();
    EXPECT_EQ(window.session().JobSitePath, other);
}

TEST_F(MainWindowTest, AFailureOfTheStoreInACommandIsShownAndTheProgramGoesOn)
{
    load();
    site.removeFile("VEXPATH.mdb");
    whenModalOpens([](QDialog& choice) { choice.reject(); });
    user.expect("Error", "Error Number: 3024\nError Description: Could not find file '" +
                             storage::nativePath("VEXPATH.mdb") + "'.");
    entry("miSelectDB").trigger();
    EXPECT_EQ(window.session().JobSiteName, "NORTH YARD");
}

TEST_F(MainWindowTest, TheUsersFolderComesBackFromTheSettings)
{
    load();
    const QString moved = site.copyFolder(site.userFolder(), "moved");
    whenModalOpens([&](QDialog& settings) {
        press(settings, "cmdUSERPATH");
        type(settings, "txtUSERPATH", moved);
        press(settings, "cmdUSERPATH");
        press(settings, "cmdExit");
    });
    entry("miUSERSET").trigger();
    EXPECT_EQ(window.session().UserSettingsPath, moved);
}

TEST_F(MainWindowTest, AboutNamesTheProgramAndItsVersion)
{
    load();
    bool shown = false;
    whenModalOpens([&](QDialog& about) {
        shown = true;
        EXPECT_EQ(about.objectName(), "frmAboutView");
        EXPECT_EQ(about.windowTitle(), "About Vexley Module");
        EXPECT_EQ(labelText(about, "lblModuleName"), "Vexley Module");
        EXPECT_EQ(labelText(about, "lblVersion"), "Version 5.6.0");
        QTest::keyClick(&about, Qt::Key_Return);
    });
    entry("miHelpAbout").trigger();
    EXPECT_TRUE(shown);
}

TEST_F(MainWindowTest, ThePlaceOfTheWindowIsRememberedForTheUser)
{
    load();
    window.resize(901, 602);
    QTimer::singleShot(0, &window, &QWidget::close);
    EXPECT_EQ(QCoreApplication::exec(), 0) << "closing the window ends the program";
    EXPECT_FALSE(
        UserLayout(site.userFolder()).value("frmVEXMAIN/geometry").toByteArray().isEmpty());
    frmVEXMAIN again([] {});
    again.restoreGeometry(UserLayout(site.userFolder()).value("frmVEXMAIN/geometry").toByteArray());
    EXPECT_EQ(again.size(), QSize(901, 602));

    QTimer::singleShot(0, &entry("miExit"), &QAction::trigger);
    EXPECT_EQ(QCoreApplication::exec(), 0) << "and so does its entry";

    UserLayout(site.userFolder() + "/none").setValue("frmVEXMAIN/geometry", "x");
    EXPECT_FALSE(QFileInfo::exists(site.userFolder() + "/none"));
}

}  // namespace
