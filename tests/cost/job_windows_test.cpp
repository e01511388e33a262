// Windows of the cost structure, driven by their keys: what stands on them beside the rules.
#include "core/window_registry.h"
#include "cost/companies.h"
#include "cost/job_clone_window.h"
#include "cost/job_settings.h"
#include "screens/data/data_window.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/window_helpers.h"

namespace {

class JobWindows : public testing::Test
{
protected:
    JobWindows()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        for (const char* table : {"COLIST", "JOBLIST", "CCALIST", "CCBLIST"})
            site.emptyTable("MAIN.mdb", table);
        site.emptyTable("ZORVEX.mdb", "JOB_NO_DEFAULTS");
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 1}, {"CONAME", "Builders"}});
        site.addRow("MAIN.mdb", "JOBLIST",
                    {{"CONO", 1}, {"JOBNO", "    1001"}, {"JOBNAME", "Yard"}, {"CCSIZEA", 6}});
        for (const char* table : {"CCALIST", "CCBLIST"})
            site.addRow("MAIN.mdb", table, {{"CONO", 1}, {"JOBNO", "    1001"}, {"DLTAG", 3}});
    }
    static void show(QWidget& window)
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QCoreApplication::processEvents();
    }
    static void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(JobWindows, LogoShowsAsSoonAsItsNameIsAnImage)
{
    QDir().mkpath("ZORMedia");
    site.makeMarker("ZORMedia", "text.png");
    QImage(40, 20, QImage::Format_RGB32).save("ZORMedia/logo.png");
    DataWindow window(frmZORCO02(), session, {.mode = "E", .index = "CONO", .keys = {{"CONO", 1}}});
    show(window);
    const auto& picture = control<QLabel>(window, "imgLOGO");
    auto& name = control<QLineEdit>(window, "txtLOGOFILENAME");
    const auto shown = [&](const QString& file) {
        name.setFocus();
        name.setText(file);
        key(Qt::Key_Tab);
        return picture.pixmap().isNull() ? picture.text() : QString("image");
    };
    EXPECT_EQ(shown("LOGO.PNG"), "image");
    EXPECT_EQ(shown("text.png"), "Not an Image File");
    EXPECT_EQ(shown("none.png"), "");
    EXPECT_TRUE(control<QWidget>(window, "tqErrorBox1").isVisible());
    EXPECT_EQ(shown(""), "");
}

TEST_F(JobWindows, EnterGoesOnFromEveryKindOfField)
{
    const DataRecord job{
        .mode = "E", .index = "JOBLIST", .keys = {{"CONO", 1}, {"JOBNO", "    1001"}}};
    {
        DataWindow window(frmZORJOB02("1001 Yard"), session, job);
        show(window);
        for (const char* next : {"cboCCTYPEA", "txtCCSIZEA"}) {
            key(Qt::Key_Return);
            EXPECT_EQ(QApplication::focusWidget()->objectName(), next);
        }
    }
    DataWindow window(frmZORJOB03("1001 Yard"), session, job);
    show(window);
    auto& box = control<QCheckBox>(window, "ckbCKBURDEN");
    box.setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "ckbVERIFYCC");
    EXPECT_FALSE(box.isChecked());
}

TEST_F(JobWindows, LimitLivesWhileItIsCheckedAndEscapeLeavesWithoutAWord)
{
    const DataRecord job{
        .mode = "E", .index = "JOBLIST", .keys = {{"CONO", 1}, {"JOBNO", "    1001"}}};
    {
        DataWindow window(frmZORJOB03("1001 Yard"), session, job);
        show(window);
        const auto& limit = control<QLineEdit>(window, "txtOTHRSLIMIT");
        EXPECT_FALSE(limit.isEnabled());
        control<QCheckBox>(window, "ckbCHECKOTHRS").click();
        EXPECT_TRUE(limit.isEnabled());
    }
    DataWindow window(frmZORJOB02("1001 Yard"), session, job);
    show(window);
    auto& size = control<QLineEdit>(window, "txtCCSIZEA");
    size.setFocus();
    QTest::keyClicks(&size, "9");
    key(Qt::Key_Escape);  // the table is closed when the field loses the keyboard
    EXPECT_TRUE(window.isHidden());
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST", {"CCSIZEA"}), QStringList{"6"});
}

TEST_F(JobWindows, CloneChecksAsksAndTellsEachStepOnItsLine)
{
    site.removeFile("ZORBRQ.mdb");
    frmZORJOB05 window(session, {}, {.CONO = 1, .JOBNO = "    1001", .name = "Yard"});
    show(window);
    EXPECT_FALSE(control<QCheckBox>(window, "ckbBRQCAT").isVisible());
    EXPECT_FALSE(control<QCheckBox>(window, "ckbBRQCAT").isChecked());
    control<QCheckBox>(window, "ckbCCB").click();
    type(window, "txtCONO", "5");
    user.expect("Cannot Find Company No.", "Cannot Find Target Company Number: 5");
    press(window, "cmdStart");
    type(window, "txtCONO", "1");
    type(window, "txtJOBNO", "1001");
    type(window, "txtJOBNAME", "Yard II");
    user.expect("Job Number Already Exists.",
                "Cannot Clone. Job Number Already in Job Number Table.");
    press(window, "cmdStart");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtJOBNO");
    type(window, "txtJOBNO", "77");
    user.expect("Are You Sure?", "Cannot Undo Clone Process. OK to Proceed?", Answer::No);
    press(window, "cmdStart");
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 1);
    user.expect("Are You Sure?", "Cannot Undo Clone Process. OK to Proceed?", Answer::Yes);
    press(window, "cmdStart");
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "JOBLIST", {"JOBNO", "JOBNAME"}).last(), "      77|Yard II");
    EXPECT_EQ(labelText(window, "lblProcess0"), "Adding New Record to Job Table");
    EXPECT_EQ(labelText(window, "lblProcess1"), "Cost Code Group A Cloned.");
    EXPECT_EQ(labelText(window, "lblProcess2"), "") << "not ticked";
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "CCALIST", {"JOBNO", "DLTAG"}).last(), "      77|0");
    EXPECT_EQ(site.rowCount("MAIN.mdb", "CCBLIST"), 1);
}

}  // namespace
