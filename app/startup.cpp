#include "app/startup.h"

#include "app/job_site_check.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/system.h"
#include "core/text.h"
#include "core/whole_numbers.h"
#include "multiuser/users.h"

namespace {

using storage::joinPath;

bool isThere(const QString& path)
{
    return dnNotBlank(dnFileDir(path));
}

QString defaultUserSettingsNote()
{
    return QString("User Settings Default Database:\n%1\nwill be used.\n")
        .arg(joinPath(defaults::userPath, "ZORUSER.mdb"));
}

void addFirstJobSite(const OpenTable& sites)
{
    storage::Recordset rows = sites.rows;
    rows.AddNew();
    rows["PATHNAME"] = defaults::firstSiteName;
    rows["PathText"] = defaults::firstSitePath;
    rows["DBTAG"] = 1;
    rows.Update();

    storage::Recordset counter = sites.database.OpenRecordset("DBTAGS");
    if (counter.RecordCount() == 0)
        counter.AddNew();
    else
        counter.Edit();
    counter["DBTAG"] = 2;
    counter.Update();
}

// Takes name and number of the job site from its row in the list, if `rows` stands on that.
bool takeFromList(Session& session, const storage::Recordset& rows)
{
    if (trimmedTextOf(rows["PathText"]) != session.JobSitePath)
        return false;
    session.JobSiteName = trimmedTextOf(rows["PATHNAME"]);
    session.SiteTag = intOf(rows["DBTAG"]);
    return true;
}

}  // namespace

qint32 sessionTagOf(qint32 userTag, QTime start)
{
    const qint32 user = asLong(qint64(userTag) * 1'000'000);
    return asLong(qint64(user) + start.minute() * 1000 + start.second());
}

LoadResult Startup::load()
{
    if (isThere(shutdownMarker)) {
        m_host.showShutdownNotice();
        return LoadResult::EndProcess;
    }
    try {
        m_session = {};
        m_timer.beginStartPhase();
        m_host.showSplash(m_session.VersionText);
        m_session.MainTitle = m_host.caption();
        if (!locatorsAreThere())
            return LoadResult::EndProcess;
        loadSession();
        m_timer.watchFromNowOn();
        return LoadResult::Loaded;
    } catch (const storage::StorageError& error) {
        showCritical("Error Loading VEX", QString("Error Loading VEX.\n\nError Number: %1\n"
                                                  "Error Description: %2")
                                              .arg(error.number())
                                              .arg(error.description()));
        return LoadResult::Failed;
    }
}

bool Startup::locatorsAreThere()
{
    for (const char* name : {"VEXPATH", "DBPATHS"})
        if (!locatorExists(name))
            m_session.StartupErrors += "The database file " + locatorPath(name) + " is missing.\n";
    if (dnIsBlank(m_session.StartupErrors))
        return true;
    showCritical("Startup Error",
                 "Critical Errors Encountered. Cannot Continue. \n\n" + m_session.StartupErrors);
    return false;
}

void Startup::loadSession()
{
    readJobSite();
    findJobSiteFiles();
    checkJobSite(m_session, false);

    m_session.UserName = dnUserName();
    m_session.UserTag = dnUserTag(m_session.JobSitePath, m_session.UserName);
    m_session.SessionTag = sessionTagOf(m_session.UserTag, System::current().now().time());
    findUserSettings();

    if (dnNotBlank(m_session.StartupErrors))
        showCritical("Startup Error", "Errors were encountered during application startup. \n\n" +
                                          m_session.StartupErrors);
    setCaption();
}

void Startup::readJobSite()
{
    OpenTable chosen = openLocator("VEXPATH");
    const OpenTable sites = openLocator("DBPATHS");
    if (chosen.rows.RecordCount() == 0) {
        chosen.rows.AddNew();
        chosen.rows["Path"] = defaults::jobSitePath;
        chosen.rows.Update();
        chosen.rows.MoveFirst();
    }
    m_session.JobSitePath = trimmedPath(chosen.rows);
    m_session.JobSiteName = " ";
    if (sites.rows.RecordCount() == 0)
        addFirstJobSite(sites);
    storage::Recordset rows = sites.rows;
    for (bool more = rows.MoveFirst(); more; more = rows.MoveNext())
        if (takeFromList(m_session, rows))
            break;
}

void Startup::findJobSiteFiles()
{
    if (dnIsBlank(m_session.JobSiteName)) {
        m_session.JobSiteName = "Undefined";
        m_session.StartupErrors += "Job Site is Currently Undefined.\n\n";
        return;
    }
    for (const char* file : {"MAIN.mdb", "DOWNLOAD.mdb", "ZORVEX.mdb", "ZORDLU.mdb"}) {
        const QString path = joinPath(m_session.JobSitePath, file);
        if (!isThere(path))
            m_session.StartupErrors += "Cannot find the database file: " + path + '\n';
    }
}

void Startup::findUserSettings()
{
    m_session.UserSettingsPath = readUserSettingsPath();
    const QString database = joinPath(m_session.UserSettingsPath, "ZORUSER.mdb");
    if (!isThere(database))
        m_session.StartupErrors += missingUserDatabaseText(database);
}

QString Startup::readUserSettingsPath()
{
    if (!locatorExists("USERPATH")) {
        m_session.StartupErrors += "Cannot Find the Database File: \n" + locatorPath("USERPATH") +
                                   '\n' + defaultUserSettingsNote();
        return defaults::userPath;
    }
    const QString undefined =
        "Location for User Settings Database is Undefined.\n" + defaultUserSettingsNote();
    OpenTable users = openLocator("USERPATH");
    if (users.rows.RecordCount() == 0) {
        users.rows.AddNew();
        users.rows["USERTAG"] = m_session.UserTag;
        users.rows["Path"] = defaults::userPath;
        users.rows.Update();
        m_session.StartupErrors += undefined;
        return defaults::userPath;
    }
    users.rows.Index("USERTAG");
    if (!users.rows.Seek("=", m_session.UserTag))
        m_session.StartupErrors += undefined;
    // Fails for a user who is not in the list, and with it the load: without a folder of their own
    // users would write into each other's work tables.
    return trimmedPath(users.rows);
}

void Startup::takeJobSite(const QString& chosenPath)
{
    {
        OpenTable chosen = openLocator("VEXPATH");
        const OpenTable sites = openLocator("DBPATHS");
        const QString path = dnNotBlank(chosenPath) ? chosenPath.trimmed() : m_session.JobSitePath;
        chosen.rows.Edit();
        chosen.rows["PATH"] = path;
        chosen.rows.Update();
        // Only now: a session half in one job site would give out tags of the other.
        m_session.JobSitePath = path;

        m_session.JobSiteName = "Undefined";
        storage::Recordset rows = sites.rows;
        if (rows.RecordCount() > 0)
            for (bool more = rows.MoveFirst(); more; more = rows.MoveNext())
                takeFromList(m_session, rows);
        setCaption();
    }
    checkJobSite(m_session, true);
}

void Startup::setCaption()
{
    m_host.setCaption(m_session.MainTitle + "    Job Site: " + m_session.JobSiteName);
}
