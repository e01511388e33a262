#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "screens/report/report_date.h"
#include "screens/report/report_selector.h"
#include "screens/report/select_file.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class ReportDialogs : public ::testing::Test
{
protected:
    ReportDialogs() { session.JobSitePath = site.siteFolder(); }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    Session session;
};

TEST_F(ReportDialogs, AskForADateWithItsKeysAndRepairIt)
{
    const auto answer = [](const QString& keys, const char* button) {
        whenModalOpens([=](QDialog& dialog) {
            auto& field = control<QLineEdit>(dialog, "txtFDATE");
            if (!keys.isEmpty()) {
                if (keys[0].isDigit())
                    field.clear();
                QTest::keyClicks(&field, keys);
            }
            press(dialog, button);
            if (dialog.isVisible())
                press(dialog, "cmdCancel");
        });
        return askReportDate();
    };
    EXPECT_EQ(answer("", "cmdOK"), "03/07/2026");
    EXPECT_EQ(answer("++", "cmdOK"), "03/09/2026");
    EXPECT_EQ(answer("-", "cmdOK"), "03/06/2026");
    EXPECT_EQ(answer("010226", "cmdOK"), "01/02/2026");
    EXPECT_EQ(answer("", "cmdCancel"), "");
    user.expect("Error Detected", "Invalid Date.");
    EXPECT_EQ(answer("13/45/26", "cmdOK"), "");
}

TEST_F(ReportDialogs, PickAFileOfThePatternByKeysAlone)
{
    site.makeMarker(site.siteFolder(), "b.xls");
    site.makeMarker(site.siteFolder(), "a.xls");
    site.makeMarker(site.siteFolder(), "notes.txt");
    const QString up = QFileInfo(site.siteFolder()).path();
    whenModalOpens([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "File Selection Form");
        EXPECT_EQ(labelText(dialog, "lblFileType"), "*.xls Files");
        EXPECT_FALSE(control(dialog, "cmdSelect").isEnabled());
        auto& folders = control<QListWidget>(dialog, "Dir1");
        folders.setCurrentItem(folders.findItems("site", Qt::MatchExactly).value(0));
        QTest::keyClick(&folders, Qt::Key_Return);
        auto& files = control<QListWidget>(dialog, "File1");
        ASSERT_EQ(files.count(), 2);
        QTest::keyClick(&files, Qt::Key_Down);
        QTest::keyClick(&files, Qt::Key_Down);
        EXPECT_EQ(labelText(dialog, "lblPATHNAME"), site.siteFolder() + "/b.xls");
        QTest::keyClick(&files, Qt::Key_Return);
    });
    EXPECT_EQ(selectFile("*.xls", up), site.siteFolder() + "/b.xls");
    whenModalOpens([](QDialog& dialog) { press(dialog, "cmdCancel"); });
    EXPECT_EQ(selectFile("*.xls", up), "");
}

TEST_F(ReportDialogs, SelectReportsByGroupAndTitle)
{
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "VEXCOL10TXT", "Batch #");
    QDir().mkdir("ZORMedia");
    QImage sample(40, 60, QImage::Format_RGB32);
    sample.fill(Qt::blue);
    ASSERT_TRUE(sample.save("ZORMedia/VEXIR03.jpg"));

    QStringList opened;
    frmVEXReportSelector selector(session, [&](const QString& name) {
        opened.append(name);
        return name == "frmVEXIR03";
    });
    selector.show();
    EXPECT_EQ(selector.windowTitle(), "Zorvane Suite - Vexley Module - Report Selection Form");
    auto& groups = control<QListWidget>(selector, "lstGroups");
    auto& titles = control<QListWidget>(selector, "lstTitles");
    EXPECT_FALSE(control(selector, "cmdSelect").isEnabled());
    groups.setCurrentRow(0);
    QTest::keyClick(&groups, Qt::Key_Down);
    ASSERT_EQ(groups.currentItem()->text(), "Invoicing Reports");
    titles.setCurrentRow(1);
    EXPECT_TRUE(control<QLabel>(selector, "imgSample").pixmap().isNull());
    titles.setCurrentRow(2);
    EXPECT_EQ(titles.currentItem()->text(), "Payment Detail by Batch #");
    EXPECT_FALSE(control<QLabel>(selector, "imgSample").pixmap().isNull());
    press(selector, "cmdSelect");

    groups.setCurrentRow(0);
    EXPECT_EQ(titles.item(0)->text(), "Requisition Log by Co./Job Number");
    titles.setCurrentRow(0);
    user.expect("Option Not Ready", "Development is Pending on this Option.");
    press(selector, "cmdSelect");
    EXPECT_EQ(opened, QStringList({"frmVEXIR03", "frmVEXREQLOG01"}));
}

}  // namespace
