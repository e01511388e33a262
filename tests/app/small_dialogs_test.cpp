#include <gtest/gtest.h>

#include <QDir>

#include "core/storage/storage_error.h"
#include "screens/folder_places.h"
#include "screens/folder_search.h"
#include "screens/job_site_choice.h"
#include "screens/load_error.h"
#include "screens/network_settings.h"
#include "screens/notices.h"
#include "screens/plain_notes.h"
#include "screens/qt_messages.h"
#include "screens/user_settings.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class SmallDialogs : public ::testing::Test
{
protected:
    SmallDialogs()
    {
        session.UserName = "pat";
        session.UserTag = 1;
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    Session session;
};

TEST_F(SmallDialogs, NoticesCloseAfterTenSecondsOrOnOk)
{
    frmZORWarning warning("Vexley Module");
    warning.show();
    EXPECT_EQ(warning.windowTitle(), "Application Shutdown Warning");
    EXPECT_EQ(labelText(warning, "lblText"), "Is About to be Shutdown for Database Maintenance");
    for (int tick = 1; tick < 20; ++tick)
        warning.tick();
    EXPECT_TRUE(warning.isVisible());
    warning.tick();
    EXPECT_FALSE(warning.isVisible());

    frmZORShutdown shutdown("Vexley Module");
    shutdown.show();
    EXPECT_EQ(labelText(shutdown, "lblText"), "Is Temporarily Shutdown for Database Maintenance");
    press(shutdown, "cmdOK");
    EXPECT_FALSE(shutdown.isVisible());
}

TEST_F(SmallDialogs, JobSitesAreListedByNameAndChosenByButtonKeyOrDoubleClick)
{
    site.addRow("DBPATHS.mdb", "DBPATHS",
                {{"PATHNAME", "EAST YARD"}, {"PathText", "C:\\EAST"}, {"DBTAG", 2}});
    const auto choose = [&](const std::function<void(QDialog&, QListWidget&)>& act) {
        frmDBPSelect dialog(session);
        auto& list = control<QListWidget>(dialog, "lstPATHNAME");
        EXPECT_EQ(list.count(), 2);
        EXPECT_EQ(list.item(0)->text(), "EAST YARD");
        EXPECT_EQ(list.currentRow(), 1) << "the present site";
        list.setCurrentRow(0);
        dialog.show();
        act(dialog, list);
        EXPECT_FALSE(dialog.isVisible());
        return dialog.selectedPath();
    };
    EXPECT_EQ(choose([](QDialog& d, QListWidget&) { press(d, "cmdSelect"); }), "C:\\EAST");
    EXPECT_EQ(choose([](QDialog&, QListWidget& l) { QTest::keyClick(&l, Qt::Key_Enter); }),
              "C:\\EAST");
    EXPECT_EQ(choose([](QDialog&, QListWidget& l) {
                  const QPoint row = l.visualItemRect(l.item(0)).center();
                  QTest::mouseClick(l.viewport(), Qt::LeftButton, {}, row);
                  QTest::mouseDClick(l.viewport(), Qt::LeftButton, {}, row);
              }),
              "C:\\EAST");
    EXPECT_EQ(choose([](QDialog& d, QListWidget&) { press(d, "cmdCancel"); }), "");
    EXPECT_EQ(choose([](QDialog&, QListWidget& l) { QTest::keyClick(&l, Qt::Key_Escape); }), "");
}

TEST_F(SmallDialogs, AJobSiteDeletedMeanwhileIsRefused)
{
    frmDBPSelect dialog(session);
    dialog.show();
    site.emptyTable("DBPATHS.mdb", "DBPATHS");
    user.expect("Invalid Selection", "Invalid Job Site Selected");
    press(dialog, "cmdSelect");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.selectedPath(), "");
}

TEST_F(SmallDialogs, AScreenThatCannotLoadKeepsOnlyItsWayOut)
{
    site.removeFile("DBPATHS.mdb");
    user.expect("Error Displaying Form",
                "Error Loading Form: frmDBPSelect\n\nError Number: 3024\n\nError Description: "
                "Could not find file '" +
                    QDir::currentPath() + "/DBPATHS.mdb'.");
    frmDBPSelect dialog(session);
    dialog.show();
    EXPECT_TRUE(control(dialog, "lstPATHNAME").isHidden());
    EXPECT_TRUE(control(dialog, "cmdSelect").isHidden());
    press(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SmallDialogs, FoldersAreWalkedInTheirStoredForm)
{
    QDir().mkpath("drives/c/ZORDATA/SITE");
    site.copyFolder(site.siteFolder(), "program/drives/c/ZORDATA/SITE");
    QFile::link("/nowhere", "drives/q");

    frmDBPSearch search("C:\\ZORDATA\\GONE");
    search.show();
    auto& folders = control<QListWidget>(search, "dirFOLDER");
    auto& drive = control<QComboBox>(search, "drvDRIVE");
    EXPECT_EQ(labelText(search, "lblPATHNAME"), "C:\\ZORDATA")
        << "the nearest folder that is there";
    EXPECT_EQ(drive.currentText(), "C:");
    ASSERT_EQ(folders.count(), 2);
    folders.setCurrentRow(1);
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(labelText(search, "lblPATHNAME"), "C:\\ZORDATA\\SITE");
    EXPECT_FALSE(control<QListWidget>(search, "filFILES")
                     .findItems("ZORVEX.mdb", Qt::MatchExactly)
                     .isEmpty());

    user.expect("Drive Unavailable.", "Cannot access drive: Q:");
    const int unavailable = drive.findText("Q:");
    ASSERT_GE(unavailable, 0);
    drive.setCurrentIndex(unavailable);
    Q_EMIT drive.activated(unavailable);
    EXPECT_EQ(drive.currentText(), "C:");
    EXPECT_EQ(search.pathName(), "C:\\ZORDATA\\SITE");

    QTest::keyClick(&folders, Qt::Key_Backspace);
    QTest::keyClick(&folders, Qt::Key_Backspace);
    EXPECT_EQ(labelText(search, "lblPATHNAME"), "C:\\");
    QTest::keyClick(&folders, Qt::Key_Backspace);
    EXPECT_EQ(labelText(search, "lblPATHNAME"), "C:\\");
    press(search, "cmdSelect");
    EXPECT_EQ(search.result(), QDialog::Accepted);

    EXPECT_EQ(parentFolder("/srv/data"), "/srv");
    EXPECT_EQ(parentFolder("/srv"), "/");
    EXPECT_EQ(parentFolder("/"), "");
}

TEST_F(SmallDialogs, NetworkSettingsShowTheUserAndChangeThePath)
{
    frmNETSET dialog(session, "VEX");
    dialog.show();
    EXPECT_EQ(labelText(dialog, "lblMODULE"), "Vexley Module");
    EXPECT_EQ(labelText(dialog, "lblUSERNAME"), "pat");
    EXPECT_EQ(labelText(dialog, "lblUSERTAG"), "1");
    EXPECT_EQ(labelText(dialog, "lblNETPATH"), site.networkFolder());
    auto& change = control<QPushButton>(dialog, "cmdNETPATH");
    auto& add = control<QPushButton>(dialog, "cmdAdd");
    EXPECT_EQ(change.text(), "&Change Location (Path)");
    EXPECT_EQ(add.text(), "&Add this User to List");

    press(dialog, "cmdNETPATH");
    EXPECT_EQ(change.text(), "&Update Location Setting");
    EXPECT_EQ(add.text(), "&Cancel");
    type(dialog, "txtNETPATH", "C:\\ELSEWHERE");
    QTest::keyClick(&control(dialog, "txtNETPATH"), Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible()) << "Esc only cancels the edit";
    EXPECT_EQ(labelText(dialog, "lblNETPATH"), site.networkFolder());

    press(dialog, "cmdNETPATH");
    type(dialog, "txtNETPATH", "C:\\ELSEWHERE");
    QTest::keyClick(&control(dialog, "txtNETPATH"), Qt::Key_Return);
    EXPECT_EQ(site.first("NETPATH.mdb", "NETPATH", "Path").toString(), "C:\\ELSEWHERE");
    EXPECT_EQ(labelText(dialog, "lblNETPATH"), "C:\\ELSEWHERE");
    EXPECT_EQ(labelText(dialog, "lblUSERTAG"), "<none>");

    site.removeFile("NETPATH.mdb");
    user.expect("Cannot Continue", "The Database NETPATH.mdb is Missing.");
    press(dialog, "cmdNETPATH");
    EXPECT_EQ(change.text(), "&Change Location (Path)");

    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SmallDialogs, NetworkSettingsAddTheUserOnce)
{
    session.UserName = "Kim";
    frmNETSET dialog(session, "VEX");
    dialog.show();
    EXPECT_EQ(labelText(dialog, "lblUSERTAG"), "<none>");
    user.expect("User List Updated", "The User Name: kim has been added to the list of users.");
    press(dialog, "cmdAdd");
    EXPECT_EQ(labelText(dialog, "lblUSERTAG"), "2");
    user.expect("Cannot Update Record",
                "Duplicate User Name Detected.\nThe User Name you have entered already exists.");
    press(dialog, "cmdAdd");

    session.UserName = " ";
    frmNETSET nameless(session, "VEX");
    nameless.show();
    user.expect("Cannot Update Record", "Empty User Name Detected");
    press(nameless, "cmdAdd");
}

TEST_F(SmallDialogs, UserSettingsMoveToAFolderThatHoldsTheUsersDatabase)
{
    frmUSERSET dialog(session);
    dialog.show();
    EXPECT_EQ(labelText(dialog, "lblUSERPATH"), site.userFolder());
    press(dialog, "cmdUSERPATH");
    const QString empty = site.makeFolder("empty");
    type(dialog, "txtUSERPATH", empty);
    user.expect("Error", "Cannot find the database file: " + empty +
                             "/ZORUSER.mdb\nThis is a CRITICAL database and must be present\n"
                             "for this application to run properly.");
    press(dialog, "cmdUSERPATH");
    EXPECT_EQ(site.first("USERPATH.mdb", "USERPATH", "Path").toString(), site.userFolder());

    const QString moved = site.copyFolder(site.userFolder(), "moved");
    type(dialog, "txtUSERPATH", moved);
    press(dialog, "cmdUSERPATH");
    EXPECT_EQ(site.first("USERPATH.mdb", "USERPATH", "Path").toString(), moved);
    EXPECT_EQ(dialog.userSettingsPath(), moved);
    EXPECT_EQ(labelText(dialog, "lblUSERPATH"), moved);
}

TEST_F(SmallDialogs, UserSettingsGiveARowToAUserWhoHasNone)
{
    session.UserTag = 5;
    session.UserSettingsPath = "C:\\BEFORE";
    frmUSERSET dialog(session);
    dialog.show();
    EXPECT_EQ(labelText(dialog, "lblUSERPATH"), "C:\\ZORUSER");
    EXPECT_EQ(dialog.userSettingsPath(), "C:\\BEFORE");
    press(dialog, "cmdUSERPATH");
    type(dialog, "txtUSERPATH", site.userFolder());
    press(dialog, "cmdUSERPATH");
    OpenTable users = site.open("USERPATH.mdb", "USERPATH");
    users.rows.Index("USERTAG");
    ASSERT_TRUE(users.rows.Seek("=", 5));
    EXPECT_EQ(trimmedPath(users.rows), site.userFolder());
    EXPECT_EQ(users.rows.RecordCount(), 2);

    session.UserTag = 0;
    frmUSERSET nobody(session);
    nobody.show();
    EXPECT_EQ(labelText(nobody, "lblMESSAGE"), "User Number is Zero. Add User First.");
    EXPECT_FALSE(control(nobody, "cmdUSERPATH").isEnabled());
}

TEST_F(SmallDialogs, AFolderIsPickedInThePicker)
{
    frmUSERSET dialog(session);
    dialog.show();
    press(dialog, "cmdUSERPATH");
    whenModalOpens([&](QDialog& search) {
        EXPECT_EQ(labelText(search, "lblPATHNAME"), site.userFolder());
        QTest::keyClick(&control(search, "dirFOLDER"), Qt::Key_Backspace);
        press(search, "cmdSelect");
    });
    press(dialog, "cmdSelectPath");
    EXPECT_EQ(control<QLineEdit>(dialog, "txtUSERPATH").text(),
              QFileInfo(site.userFolder()).path());

    whenModalOpens([](QDialog& search) { QTest::keyClick(&search, Qt::Key_Escape); });
    press(dialog, "cmdSelectPath");
    EXPECT_EQ(control<QLineEdit>(dialog, "txtUSERPATH").text(),
              QFileInfo(site.userFolder()).path());
}

TEST_F(SmallDialogs, StandInTheMiddleOfTheWindowThatOpensThemAndInFrontOfIt)
{
    QWidget below;
    below.setGeometry(150, 150, 600, 440);
    below.show();
    below.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
    const auto note = frmDNNETNoAccess("pat", "Purchase Orders");
    whenModalOpens([&](QDialog& box) {
        EXPECT_EQ(box.windowHandle()->transientParent(), below.windowHandle());
        const QPoint apart = box.geometry().center() - below.geometry().center();
        EXPECT_LT(apart.manhattanLength(), 40) << "not in the middle";
        press(box, "cmdOK");
    });
    note->exec();
}

TEST_F(SmallDialogs, UpdateHistoryShowsBothStamps)
{
    const auto note =
        frmZORUpdateHistory({{"pat", "03/07/2026", "9:05 AM"}, {"<Empty>", "<Empty>", "<Empty>"}});
    EXPECT_EQ(note->windowTitle(), "Update Information");
    EXPECT_EQ(labelText(*note, "lblADDNAME"), "pat");
    EXPECT_EQ(labelText(*note, "lblADDTIME"), "9:05 AM");
    EXPECT_EQ(labelText(*note, "lblEDITDATE"), "<Empty>");
}

TEST_F(SmallDialogs, BoxesGiveTheAnswerOfTheirKeys)
{
    const auto answer = [](const Message& message, Qt::Key key) {
        QtMessages boxes;
        whenModalOpens([&](QDialog& box) {
            EXPECT_EQ(box.windowTitle(), message.title);
            QTest::keyClick(&box, key);
        });
        return boxes.show(message);
    };
    Message question = {.kind = MessageKind::Question, .title = "T", .text = "<b>?</b>"};
    question.buttons = Buttons::OkCancel;
    EXPECT_EQ(answer(question, Qt::Key_Return), Answer::Ok);
    EXPECT_EQ(answer(question, Qt::Key_Escape), Answer::Cancel);
    question.enterTakes = Answer::Cancel;
    EXPECT_EQ(answer(question, Qt::Key_Return), Answer::Cancel);
    question.buttons = Buttons::YesNo;
    question.enterTakes = Answer::No;
    EXPECT_EQ(answer(question, Qt::Key_Return), Answer::No);
    question.enterTakes = Answer::Yes;
    EXPECT_EQ(answer(question, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answer(question, Qt::Key_Escape), Answer::No);
    question.buttons = Buttons::YesNoCancel;
    EXPECT_EQ(answer(question, Qt::Key_Escape), Answer::Cancel);
}

}  // namespace
