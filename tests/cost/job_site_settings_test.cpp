// The settings of a job site: what is checked, asked, written and played, and the refresh of job
// numbers from there.
#include "cost/job_site_settings.h"
#include "core/sounds.h"
#include "screens/data/data_window.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/window_helpers.h"

namespace {

class JobSiteSettings : public testing::Test
{
protected:
    JobSiteSettings()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        site.emptyTable("ZORSYS.mdb", "SYSSETTINGS");
        site.addRow(
            "ZORSYS.mdb", "SYSSETTINGS",
            {{"JOBNOTYPE", "C"}, {"JOBNOSIZE", 6}, {"VEXUCASEONLY", true}, {"POLIMIT", 1234.5}});
        site.emptyTable("MAIN.mdb", "JOBLIST");
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 1}, {"JOBNO", "1001  "}});
        QDir().mkpath("ZORMedia");
    }
    QString stored(const QString& field) const
    {
        return rowsOf(site, "ZORSYS.mdb", "SYSSETTINGS", {field}).join(',');
    }
    void expectSaved() { user.expect("Changes Saved", "System Settings Have Been Updated."); }
    static void write(const QString& name, const QByteArray& content)
    {
        QFile file("ZORMedia/" + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray playedFile()
    {
        QFile file("ZORMedia/ErrorSound.wav");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(JobSiteSettings, HaveAFieldForEachColumnOfTheTable)
{
    DataSession screen(frmZORSYS(session), session, {.mode = "E"});
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "Settings for Job Site:  " + site.siteFolder());
    for (const auto& column : screen.rows().definition().fields)
        if (column.name != "EDUCCXREFVERIFY") {
            int shown = 0;
            for (int i = 0; i < screen.entry().count(); ++i)
                shown += !screen.entry().field(i).field.isNone() &&
                         screen.rows()[screen.entry().field(i).field].Name() == column.name;
            EXPECT_EQ(shown, 1) << column.name.toStdString();
        }
    EXPECT_EQ(screen.entry()["POLIMIT"], "1,234.50");
    EXPECT_TRUE(screen.entry().isTicked("VEXUCASEONLY"));
    EXPECT_TRUE(screen.mayLeave()) << "nothing was changed";
    screen.entry().setText("VEXCOL2TXT", "Lot");
    user.expect("Verify Exit", "Abandon Changes?", Answer::No);
    EXPECT_FALSE(screen.mayLeave());
}

TEST_F(JobSiteSettings, RefuseAFormThatCannotBeAndAskBeforeASmallerSize)
{
    DataSession screen(frmZORSYS(session), session, {.mode = "E"});
    ASSERT_TRUE(screen.open());
    Entry& entry = screen.entry();
    entry.setText("VEXCOL2TXT", "Lot");
    entry.setText("JOBNOTYPE", "x");
    user.expect("Invalid Job Number Type", "Type Must Be 'C' or 'N'");
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(entry.focus(), entry.indexOf(schema::FieldName("JOBNOTYPE")));
    entry.setText("JOBNOTYPE", "n");
    entry.setText("JOBNOSIZE", "9");
    user.expect("Invalid Job Number Size", "Size Must Be Between 1 and 8 Characters");
    screen.update();
    EXPECT_EQ(entry.focus(), entry.indexOf(schema::FieldName("JOBNOSIZE")));

    entry.setText("JOBNOSIZE", "5");
    const QString loss =
        "The New Job Number Size is less than the Old\nJob Number Size. If you have any Job "
        "Numbers\nin your database with a length greater then the new \nsize they will not be "
        "properly formatted and you will \nCORRUPT the database with INVALID JOB NUMBERS. \nIf "
        "your Job Numbers will fit in 5 spaces\nthen it is OK to save the new settings. \nSave New "
        "Settings?";
    user.expect("DATA MAY BE LOST", loss, Answer::No);
    screen.update();
    EXPECT_EQ(stored("JOBNOSIZE") + stored("VEXCOL2TXT"), "6~") << "nothing half written";
    user.expect("DATA MAY BE LOST", loss, Answer::Yes);
    expectSaved();
    EXPECT_FALSE(screen.update()) << "the screen stays";
    EXPECT_EQ(stored("JOBNOTYPE") + stored("JOBNOSIZE") + stored("VEXCOL2TXT"), "N5Lot");
    EXPECT_TRUE(screen.mayLeave());
    entry.setText("JOBNOSIZE", "8");
    expectSaved();
    screen.update();
    EXPECT_EQ(stored("JOBNOSIZE"), "8") << "a larger one needs no question";
}

TEST_F(JobSiteSettings, PlayTheChosenSoundAndMakeItThatOfErrors)
{
    QStringList played;
    const SoundPlayer before = installSoundPlayer([&](const QString& path) { played += path; });
    write("UhOh.wav", "uhoh");
    DataWindow window(frmZORSYS(session), session, {.mode = "E"});
    DataSession& screen = window.session();
    ASSERT_TRUE(screen.isLoaded());
    const DataCommand& play = screen.spec().commands[1];
    screen.run(play);
    EXPECT_TRUE(played.isEmpty());
    screen.entry().setText("ERRORSOUND", "UhOh.wav");
    screen.run(play);
    EXPECT_TRUE(played.value(0).endsWith("ZORMedia/UhOh.wav"));
    EXPECT_EQ(playedFile(), "(none)") << "only Update changes it";
    expectSaved();
    screen.update();
    EXPECT_EQ(playedFile(), "uhoh");
    screen.entry().setText("ERRORSOUND", "ding.wav");
    user.expect("Error Alert Sound", "Cannot Copy the Sound File: ZORMedia/ding.wav");
    expectSaved();
    screen.update();
    EXPECT_EQ(playedFile(), "uhoh") << "nothing was copied";
    screen.entry().setText("ERRORSOUND", "");
    expectSaved();
    screen.update();
    EXPECT_EQ(playedFile(), "(none)");
    installSoundPlayer(before);
}

TEST_F(JobSiteSettings, RefreshSavesTheFormAtOnceAndRewritesTheNumbers)
{
    DataSession screen(frmZORSYS(session), session, {.mode = "E"});
    ASSERT_TRUE(screen.open());
    screen.entry().setText("JOBNOTYPE", "N");
    screen.entry().setText("JOBNOSIZE", "8");
    const QString ready =
        "All Job Numbers will be reformatted for all \ndatabases located in: " +
        session.JobSitePath +
        "\nThis process must not be interrupted. If the \nprocess is interrupted for some reason "
        "you \nwill have to run the Job Number Refresh process \nagain to insure database "
        "integrity. \nOK to Proceed?";
    user.expect("Ready to Refresh", ready, Answer::Cancel);
    refreshJobNumbersFrom(screen);
    EXPECT_EQ(stored("JOBNOSIZE"), "6");
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST", {"JOBNO"}), QStringList{"1001  "});

    user.expect("Ready to Refresh", ready);
    user.expect("Settings Saved", "Job Number Settings Have Been Saved. Ready to Refresh.");
    user.expect("Process Finished.", "Job Numbers have been Refreshed.");
    refreshJobNumbersFrom(screen);
    EXPECT_EQ(stored("JOBNOTYPE") + stored("JOBNOSIZE"), "N8");
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST", {"JOBNO"}), QStringList{"    1001"});
    EXPECT_TRUE(screen.mayLeave()) << "both are saved";
}

TEST_F(JobSiteSettings, ARowThatIsMissingIsToldAndAdded)
{
    site.emptyTable("ZORSYS.mdb", "SYSSETTINGS");
    const QString end =
        "\nTo update the Job Number Settings\n"
        "Select Menu Option: Settings, 1 - Job Site Settings.";
    user.expect("Error",
                "Job Site Settings Table is Empty. \n"
                "Job Numbers can be 1 - 8 characters/digits long.\n"
                "The Default Setting of 8 Will be Used." +
                    end);
    user.expect("Error",
                "Job Number Type is Empty. \n"
                "Job Number Types can be 'C' or 'N' (Character/Number).\n"
                "The Default Setting of 'C' will be used." +
                    end);
    const std::unique_ptr<QWidget> window(newJobSiteSettings({.session = session}));
    ASSERT_TRUE(window);
    EXPECT_EQ(control<QLineEdit>(*window, "txtJOBNOSIZE").text(), "8");
    EXPECT_EQ(site.rowCount("ZORSYS.mdb", "SYSSETTINGS"), 1);
}

TEST_F(JobSiteSettings, UpdateLeavesTheUserOnHisPageAndFindsSettingsByTheirText)
{
    DataWindow window(frmZORSYS(session), session, {.mode = "E"});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QCoreApplication::processEvents();
    auto& pages = *window.findChild<QTabWidget*>();
    EXPECT_EQ(pages.currentIndex(), 0);
    auto& finder = control<QLineEdit>(window, "txtFindField");
    QTest::keyClicks(&finder, "signature blocks");
    EXPECT_EQ(pages.currentIndex(), 2);
    QTest::keyClick(&finder, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "ckbVEXPRTQCSIGBLK");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    expectSaved();
    press(window, "cmdUpdate");
    EXPECT_EQ(pages.currentIndex(), 2);
    EXPECT_EQ(stored("VEXPRTQCSIGBLK"), "-1");
    press(window, "cmdUSEDEFAULTS");
    EXPECT_EQ(control<QLineEdit>(window, "txtVEXCOL10TXT").text(), "Check #");
    user.expect("Verify Exit", "Abandon Changes?", Answer::Yes);
    press(window, "cmdCancel");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(stored("VEXCOL10TXT"), "");
}

}  // namespace
