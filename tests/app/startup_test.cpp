#include "app/startup.h"

#include <gtest/gtest.h>

#include <QDir>

#include "app/job_site_check.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class Window : public StartupHost, public WatchHost
{
public:
    void showShutdownNotice() override { events += "shutdown notice"; }
    void showSplash(const QString& versionText) override { events += "splash " + versionText; }
    QString caption() const override { return title; }
    void setCaption(const QString& caption) override { title = caption; }
    void setTimerInterval(int milliseconds) override
    {
        events += "timer " + QString::number(milliseconds);
    }
    bool splashIsOpen() const override { return false; }
    void closeSplash() override {}
    void showMainWindow() override {}
    QString jobSitePath() const override { return {}; }
    void showWarning() override {}
    void endProcess() override {}

    QString title = "Zorvane Suite - Vexley Module";
    QStringList events;
};

const char* const applicationStartup = "Errors were encountered during application startup. \n\n";

QString cannotFind(const QString& path)
{
    return "Cannot find the database file: " + path + '\n';
}

QString criticalUserFile(const QString& path)
{
    return cannotFind(path) +
           "This is a CRITICAL database and must be present\nfor this application to run properly.";
}

class StartupTest : public ::testing::Test
{
protected:
    LoadResult load() { return startup.load(); }
    void expectStartupErrors(const QString& text)
    {
        user.expect("Startup Error", applicationStartup + text);
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    Session session;
    Window window;
    WatchTimer timer{window};
    Startup startup{session, timer, window};
};

TEST_F(StartupTest, FillsTheSession)
{
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(session.JobSitePath, site.siteFolder());
    EXPECT_EQ(session.JobSiteName, "NORTH YARD");
    EXPECT_EQ(session.SiteTag, 1);
    EXPECT_EQ(session.UserName, "pat");
    EXPECT_EQ(session.UserTag, 1);
    EXPECT_EQ(session.SessionTag, 1'005'042);
    EXPECT_EQ(session.UserSettingsPath, site.userFolder());
    EXPECT_EQ(session.ModuleCode, "M");
    EXPECT_FALSE(session.EcoSysXref);
    EXPECT_EQ(window.title, "Zorvane Suite - Vexley Module    Job Site: NORTH YARD");
    EXPECT_EQ(window.events, (QStringList{"timer 500", "splash Version 5.6.0", "timer 1000"}));
}

TEST_F(StartupTest, AShutdownMarkerBesideTheProgramEndsItBeforeAnythingIsOpened)
{
    site.makeMarker(site.programFolder(), "SHUTDOWNVEX.txt");
    site.removeFile("VEXPATH.mdb");
    EXPECT_EQ(load(), LoadResult::EndProcess);
    EXPECT_EQ(window.events, QStringList{"shutdown notice"});
}

TEST_F(StartupTest, MissingLocatorsEndTheProgram)
{
    const QString here = QDir::currentPath();
    site.removeFile("DBPATHS.mdb");
    user.expect("Startup Error",
                "Critical Errors Encountered. Cannot Continue. \n\nThe database "
                "file " +
                    here + "/DBPATHS.mdb is missing.\n");
    EXPECT_EQ(load(), LoadResult::EndProcess);

    site.removeFile("VEXPATH.mdb");
    user.expect("Startup Error",
                "Critical Errors Encountered. Cannot Continue. \n\nThe database "
                "file " +
                    here + "/VEXPATH.mdb is missing.\nThe database file " + here +
                    "/DBPATHS.mdb is missing.\n");
    EXPECT_EQ(load(), LoadResult::EndProcess);
}

TEST_F(StartupTest, AnEmptyVEXPATHGetsTheDefaultJobSiteWhichIsThenUndefined)
{
    site.emptyTable("VEXPATH.mdb", "VEXPATH");
    expectStartupErrors("Job Site is Currently Undefined.\n\n" +
                        cannotFind("C:\\ZORDATA\\ZORVEX\\ZORSYS.mdb"));
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(site.first("VEXPATH.mdb", "VEXPATH", "Path").toString(), "C:\\ZORDATA\\ZORVEX");
    EXPECT_EQ(session.JobSiteName, "Undefined");
    EXPECT_EQ(window.title, "Zorvane Suite - Vexley Module    Job Site: Undefined");
}

TEST_F(StartupTest, AnEmptyDBPATHSGetsItsFirstJobSite)
{
    site.emptyTable("DBPATHS.mdb", "DBPATHS");
    site.emptyTable("DBPATHS.mdb", "DBTAGS");
    expectStartupErrors("Job Site is Currently Undefined.\n\n");
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_TRUE(site.first("DBPATHS.mdb", "DBPATHS", "PathText")
                    .toString()
                    .startsWith("C:\\Zorvane Suite\\ZORDATA"));
    EXPECT_EQ(site.first("DBPATHS.mdb", "DBPATHS", "DBTAG").toInt(), 1);
    EXPECT_EQ(site.first("DBPATHS.mdb", "DBTAGS", "DBTAG").toInt(), 2);
    EXPECT_EQ(site.rowCount("DBPATHS.mdb", "DBTAGS"), 1);
}

TEST_F(StartupTest, MissingJobSiteFilesAreNamedInOrder)
{
    QString text;
    for (const char* file :
         {"MAIN.mdb", "DOWNLOAD.mdb", "ZORVEX.mdb", "ZORDLU.mdb", "ZORSYS.mdb"}) {
        site.removeFile(file);
        text += cannotFind(site.pathOf(file));
        expectStartupErrors(text);
        EXPECT_EQ(load(), LoadResult::Loaded);
        EXPECT_TRUE(user.allCame());
    }
    EXPECT_EQ(session.UserTag, 1) << "the load goes on";
}

TEST_F(StartupTest, AJobSiteStoredWithATrailingSeparatorIsNotFoundInTheList)
{
    site.setFirst("VEXPATH.mdb", "VEXPATH", "Path", site.siteFolder() + "/");
    expectStartupErrors("Job Site is Currently Undefined.\n\n");
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(session.JobSitePath, site.siteFolder()) << "cut only after the list was read";
}

TEST_F(StartupTest, OfTwoRowsWithOnePathTheStartTakesTheFirstAndChoosingTakesTheLast)
{
    site.addRow("DBPATHS.mdb", "DBPATHS",
                {{"PATHNAME", "AGAIN"}, {"PathText", site.siteFolder()}, {"DBTAG", 9}});
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(session.JobSiteName, "NORTH YARD");
    EXPECT_EQ(session.SiteTag, 1);

    startup.takeJobSite(site.siteFolder());
    EXPECT_EQ(session.JobSiteName, "AGAIN");
    EXPECT_EQ(session.SiteTag, 9);
    EXPECT_EQ(window.title, "Zorvane Suite - Vexley Module    Job Site: AGAIN");
}

TEST_F(StartupTest, AChoiceThatCannotBeStoredLeavesTheSessionWhereItWas)
{
    ASSERT_EQ(load(), LoadResult::Loaded);
    const QString other = site.copyFolder(site.siteFolder(), "other");
    site.removeFile("VEXPATH.mdb");
    EXPECT_THROW(startup.takeJobSite(other), storage::StorageError);
    EXPECT_EQ(session.JobSitePath, site.siteFolder());
    EXPECT_EQ(session.SiteTag, 1);
}

TEST_F(StartupTest, AChosenJobSiteIsThisMachinesFromThenOn)
{
    ASSERT_EQ(load(), LoadResult::Loaded);
    const QString other = site.copyFolder(site.siteFolder(), "other");
    site.addRow("DBPATHS.mdb", "DBPATHS",
                {{"PATHNAME", "SOUTH YARD"}, {"PathText", other}, {"DBTAG", 2}});
    startup.takeJobSite(other);
    EXPECT_EQ(session.JobSiteName, "SOUTH YARD");
    EXPECT_EQ(session.SiteTag, 2);
    EXPECT_EQ(site.first("VEXPATH.mdb", "VEXPATH", "Path").toString(), other);

    startup.takeJobSite("  ");
    EXPECT_EQ(session.JobSitePath, other) << "a cancelled choice keeps the site";

    QFile::remove(other + "/ZORSYS.mdb");
    user.expect("Cannot Find Database",
                "Cannot find the database file: ZORSYS.mdb\n"
                "Verify that ZORSYS.mdb is under the Path:\n" +
                    other +
                    "\nas defined for the database: SOUTH YARD\n"
                    "To change a path for a database select the option:\n"
                    "'Browse List of Databases' under the File menu. \n"
                    "If the path is correct make sure the database\n"
                    "file: ZORSYS.mdb is located under the path. \n");
    startup.takeJobSite(" ");
}

TEST_F(StartupTest, TheEcoSysDataIsFoundThroughTheJobSite)
{
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "ECOSYSXREF", true);
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "SITETYPE", 3);
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "PROJTAG", 44);
    expectStartupErrors(cannotFind(site.pathOf("EDUPATH.mdb")));
    load();
    EXPECT_TRUE(session.EcoSysXref);
    EXPECT_EQ(session.SiteType, 3);
    EXPECT_EQ(session.ProjTag, 44);

    site.open("EDUPATH.mdb", "EDUPATH");
    expectStartupErrors("EcoSys Database Path is Undefined.\n");
    load();

    site.addRow("EDUPATH.mdb", "EDUPATH", {{"Path", " "}});
    expectStartupErrors("EcoSys Database Path is Empty.\n");
    load();

    const QString folder = site.makeFolder("ecosys");
    site.setFirst("EDUPATH.mdb", "EDUPATH", "Path", folder);
    expectStartupErrors(cannotFind(folder + "/EDUMAIN.mdb"));
    load();
    EXPECT_EQ(session.EcoSysPath, folder);

    site.makeMarker(folder, "EDUMAIN.mdb");
    EXPECT_EQ(load(), LoadResult::Loaded);
}

TEST_F(StartupTest, WithoutUSERPATHTheDefaultSettingsFolderIsTaken)
{
    site.removeFile("USERPATH.mdb");
    const QString database = "C:\\Zorvane Suite\\ZORUSER\\ZORUSER.mdb";
    expectStartupErrors("Cannot Find the Database File: \n" + QDir::currentPath() +
                        "/USERPATH.mdb\nUser Settings Default Database:\n" + database +
                        "\nwill be used.\n" + criticalUserFile(database));
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(session.UserSettingsPath, "C:\\Zorvane Suite\\ZORUSER");
}

TEST_F(StartupTest, AnEmptyUSERPATHGetsARowForTheUser)
{
    site.emptyTable("USERPATH.mdb", "USERPATH");
    const QString database = "C:\\Zorvane Suite\\ZORUSER\\ZORUSER.mdb";
    expectStartupErrors(
        "Location for User Settings Database is Undefined.\nUser Settings Default Database:\n" +
        database + "\nwill be used.\n" + criticalUserFile(database));
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(site.first("USERPATH.mdb", "USERPATH", "USERTAG").toInt(), 1);
    EXPECT_EQ(site.first("USERPATH.mdb", "USERPATH", "Path").toString(),
              "C:\\Zorvane Suite\\ZORUSER");
}

TEST_F(StartupTest, AUserWithoutARowInUSERPATHGetsAHalfLoadedSession)
{
    machine.logIn("kim");
    user.expect("Error Loading VEX",
                "Error Loading VEX.\n\nError Number: 3021\nError Description: No current record.");
    EXPECT_EQ(load(), LoadResult::Failed);
    EXPECT_EQ(session.UserTag, 2);
    EXPECT_EQ(session.UserSettingsPath, "");
    EXPECT_EQ(window.title, "Zorvane Suite - Vexley Module");
    EXPECT_EQ(window.events.last(), "splash Version 5.6.0") << "the timer keeps its values";
}

TEST_F(StartupTest, AMissingZORUSERIsCritical)
{
    site.removeFile("ZORUSER.mdb");
    expectStartupErrors(criticalUserFile(site.pathOf("ZORUSER.mdb")));
    EXPECT_EQ(load(), LoadResult::Loaded);
}

TEST_F(StartupTest, AUserNumberAbove2147FailsTheLoad)
{
    EXPECT_EQ(sessionTagOf(2147, QTime(23, 59, 59)), 2'147'059'059);
    EXPECT_THROW(sessionTagOf(2148, QTime(0, 0, 0)), storage::StorageError);

    site.setFirst("ZORNET.mdb", "USERLIST", "USERTAG", 2148);
    user.expect("Error Loading VEX",
                "Error Loading VEX.\n\nError Number: 6\nError Description: Overflow");
    EXPECT_EQ(load(), LoadResult::Failed);
    EXPECT_EQ(session.UserTag, 2148);
    EXPECT_EQ(session.SessionTag, 0);
}

TEST_F(StartupTest, NothingStaysOpenAfterTheLoad)
{
    ASSERT_EQ(load(), LoadResult::Loaded);
    // The administrator replaces a locator; the next reading sees the new one.
    const QString folder = site.makeFolder("saved");
    QFile::rename(site.pathOf("VEXPATH.mdb"), folder + "/VEXPATH.mdb");
    EXPECT_FALSE(locatorExists("VEXPATH"));
    QFile::copy(folder + "/VEXPATH.mdb", site.pathOf("VEXPATH.mdb"));
    EXPECT_EQ(load(), LoadResult::Loaded);
    EXPECT_EQ(session.JobSitePath, site.siteFolder());
}

TEST_F(StartupTest, AnExistingFileIsToldByItsName)
{
    EXPECT_EQ(dnFileDir(site.siteFolder() + "\\main.MDB"), "MAIN.mdb");
    EXPECT_EQ(dnFileDir(site.siteFolder() + "\\none.mdb"), "");
    EXPECT_EQ(dnFileDir("Q:\\MAIN.mdb"), "");
    EXPECT_EQ(dnFileDir(" "), "");
}

}  // namespace
