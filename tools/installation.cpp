#include "tools/installation.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "core/keyed_access.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "tools/command.h"

namespace {

using schema::Place;
using storage::Recordset;

template <class Visit>
void walk(Installation& installation, const QString& name, Visit visit)
{
    try {
        const storage::Workspace workspace = storage::CreateWorkspace("wks" + name);
        Recordset rows = workspace.OpenDatabase(name + ".mdb").OpenRecordset(name);
        if (rows.RecordCount() == 0) {
            installation.problems.append(name + ".mdb: the table is empty");
            return;
        }
        for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext())
            visit(rows);
    } catch (const storage::StorageError& error) {
        installation.problems.append(QString("%1.mdb: cannot be read: %2 (%3)")
                                         .arg(name, error.description())
                                         .arg(error.number()));
    }
}

void addFolder(Installation& installation, Place place, const QString& storedPath,
               const QString& name = {})
{
    const QString path = storage::nativePath(storedPath);
    const bool known = std::any_of(
        installation.folders.begin(), installation.folders.end(),
        [&](const SiteFolder& other) { return other.place == place && other.path == path; });
    if (!known)
        installation.folders.push_back({place, storedPath, path, name});
}

void testJobSiteInUse(Installation& installation)
{
    QString inUse;
    walk(installation, "VEXPATH", [&](Recordset& row) {
        if (inUse.isEmpty())
            inUse = trimmedTextOf(row["Path"]);
    });
    const bool listed = std::any_of(
        installation.folders.begin(), installation.folders.end(), [&](const SiteFolder& folder) {
            return folder.place == Place::JobSite && folder.storedPath == inUse;
        });
    if (!inUse.isEmpty() && !listed)
        installation.problems.append("VEXPATH.mdb: " + inUse + " is the folder of no job site");
}

// Sibling files lie where the job sites' own files or the locators do.
bool mayLieIn(const schema::File& file, Place place)
{
    return file.place == place ||
           (file.place == Place::Sibling && (place == Place::JobSite || place == Place::Program));
}

}  // namespace

Installation readInstallation()
{
    Installation installation;
    installation.folders.push_back({Place::Program, {}, QDir::currentPath(), {}});
    walk(installation, "NETPATH", [&](Recordset& row) {
        addFolder(installation, Place::Network, trimmedTextOf(row["Path"]));
    });
    walk(installation, "USERPATH",
         [&](Recordset& row) { addFolder(installation, Place::User, trimmedTextOf(row["Path"])); });
    walk(installation, "DBPATHS", [&](Recordset& row) {
        addFolder(installation, Place::JobSite, trimmedTextOf(row["PathText"]),
                  trimmedTextOf(row["PATHNAME"]));
    });
    testJobSiteInUse(installation);
    return installation;
}

SiteFolder jobSiteNamed(const Installation& installation, const QString& name)
{
    for (const SiteFolder& folder : installation.folders)
        if (folder.place == Place::JobSite && folder.name.compare(name, Qt::CaseInsensitive) == 0)
            return folder;
    throw CommandFailure("There is no job site named " + name + '.');
}

std::vector<SiteFile> filesOf(const SiteFolder& folder)
{
    std::vector<SiteFile> files;
    for (const schema::File& file : schema::files) {
        if (!mayLieIn(file, folder.place))
            continue;
        const QString path = storage::nativePath(storage::joinPath(folder.path, toText(file.name)));
        const bool required = file.place != Place::Sibling;
        if (required || QFileInfo::exists(path))
            files.push_back({&file, path, required});
    }
    return files;
}

QString shownPath(const QString& path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    return relative.startsWith("..") ? path : relative;
}
