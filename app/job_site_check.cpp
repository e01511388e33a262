#include "app/job_site_check.h"

#include <QFileInfo>

#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/text.h"

namespace {

using storage::joinPath;

QString cannotFindLine(const QString& path)
{
    return "Cannot find the database file: " + path + '\n';
}

bool siteHas(const QString& file, Session& session, bool reportAtOnce)
{
    const QString path = joinPath(session.JobSitePath, file);
    if (dnNotBlank(dnFileDir(path)))
        return true;
    if (reportAtOnce)
        zorCannotFindDatabase(session.JobSitePath, file, session.JobSiteName);
    else
        session.StartupErrors += cannotFindLine(path);
    return false;
}

void readEcoSysPath(Session& session)
{
    const OpenTable edupath = openTable(joinPath(session.JobSitePath, "EDUPATH.mdb"), "EDUPATH");
    if (edupath.rows.RecordCount() == 0) {
        session.StartupErrors += "EcoSys Database Path is Undefined.\n";
        return;
    }
    session.EcoSysPath = trimmedPath(edupath.rows);
    const QString database = joinPath(session.EcoSysPath, "EDUMAIN.mdb");
    if (dnIsBlank(session.EcoSysPath))
        session.StartupErrors += "EcoSys Database Path is Empty.\n";
    else if (dnIsBlank(dnFileDir(database)))
        session.StartupErrors += cannotFindLine(database);
}

}  // namespace

QString dnFileDir(const QString& path)
{
    return storage::pathExists(path) ? QFileInfo(storage::nativePath(path)).fileName() : QString();
}

void checkJobSite(Session& session, bool reportAtOnce)
{
    if (storage::endsInSeparator(session.JobSitePath))
        session.JobSitePath.chop(1);
    if (!siteHas("ZORSYS.mdb", session, reportAtOnce))
        return;
    const OpenTable settings =
        openTable(joinPath(session.JobSitePath, "ZORSYS.mdb"), "SYSSETTINGS");
    session.EcoSysXref = settings.rows["ECOSYSXREF"].value().toBool();
    if (!session.EcoSysXref)
        return;
    session.SiteType = static_cast<qint16>(settings.rows["SITETYPE"].value().toInt());
    session.ProjTag = settings.rows["PROJTAG"].value().toInt();
    if (siteHas("EDUPATH.mdb", session, reportAtOnce))
        readEcoSysPath(session);
}

void zorCannotFindDatabase(const QString& path, const QString& file, const QString& siteName)
{
    const QStringList lines = {
        "Cannot find the database file: " + file,
        "Verify that " + file + " is under the Path:",
        path,
        "as defined for the database: " + siteName,
        "To change a path for a database select the option:",
        "'Browse List of Databases' under the File menu. ",
        "If the path is correct make sure the database",
        "file: " + file + " is located under the path. ",
    };
    showCritical("Cannot Find Database", lines.join('\n') + '\n');
}
