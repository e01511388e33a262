#include "tools/new_files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include "core/keyed_access.h"
#include "core/storage/file_paths.h"
#include "core/tags.h"
#include "tools/command.h"
#include "tools/installation.h"

namespace {

using schema::Place;
using storage::Recordset;

constexpr char networkFolder[] = "ZORDATA\\ZORNET";

template <class Fill>
void addRow(const storage::Database& database, const QString& table, Fill fill)
{
    Recordset row = database.OpenRecordset(table);
    row.AddNew();
    fill(row);
    row.Update();
}

template <class Fill>
void addRow(const QString& path, const QString& table, Fill fill)
{
    const storage::Workspace workspace = storage::CreateWorkspace("wksNEW");
    addRow(workspace.OpenDatabase(path), table, fill);
}

// A name that every file system takes, in capitals so that the stored form is the folder's own.
QString folderName(const QString& name)
{
    static const QRegularExpression unfit("[^\\p{L}\\p{N}_-]+");
    const QString fit = name.trimmed().toUpper().replace(unfit, "_");
    if (QString(fit).remove('_').isEmpty())
        throw UsageError('\'' + name + "' has no letter or digit to name a folder by.");
    return fit;
}

void createFile(const schema::File& file, const QString& path)
{
    storage::Workspace workspace = storage::CreateWorkspace("wksNEW");
    const storage::Database database = workspace.CreateDatabase(path);
    workspace.BeginTrans();
    for (const schema::Table* table : file.tables) {
        storage::TableDef definition = storage::CreateTableDef(storage::definitionOf(*table));
        database.TableDefs().Append(definition);
    }
    workspace.CommitTrans();
}

// What a screen needs to find in a fresh job site. Tag counters make their rows at first use.
void fillJobSite(const QString& storedFolder)
{
    addRow(storage::joinPath(storedFolder, "ZORSYS.mdb"), "SYSSETTINGS", [](Recordset& row) {
        row["JOBNOTYPE"] = "C";
        row["JOBNOSIZE"] = 8;
        row["VEXCOL10TXT"] = "Check #";
        row["VEXCOL11TXT"] = "Check Date";
    });
    addRow(storage::joinPath(storedFolder, "ZORVEX.mdb"), "VEXCOUNTERS", [](Recordset& row) {
        row["REQNO"] = 1;
        row["PONO"] = 1;
    });
}

bool siteIsListed(const QString& name)
{
    const storage::Workspace workspace = storage::CreateWorkspace("wksDBPATHS");
    Recordset sites = workspace.OpenDatabase("DBPATHS.mdb").OpenRecordset("DBPATHS");
    sites.Index("DBPATHS");
    return sites.Seek("=", name);
}

void refuseWhereOneExists()
{
    for (const schema::File& file : schema::files)
        if (file.place == Place::Program && storage::pathExists(toText(file.name)))
            throw CommandFailure(QDir::currentPath() + " holds an installation: there is " +
                                 toText(file.name) + '.');
}

}  // namespace

void createFiles(Place place, const QString& storedFolder)
{
    const QString folder = storage::nativePath(storedFolder);
    for (const schema::File& file : schema::files)
        if (file.place == place && storage::pathExists(folder + '/' + toText(file.name)))
            throw CommandFailure("There is " + toText(file.name) + " in " + folder + " already.");
    if (!QDir().mkpath(folder))
        throw CommandFailure("Cannot make the folder " + folder + '.');
    for (const schema::File& file : schema::files)
        if (file.place == place)
            createFile(file, folder + '/' + toText(file.name));
}

NewJobSite createInstallation(const NewInstallation& wanted)
{
    refuseWhereOneExists();
    createFiles(Place::Program, QDir::currentPath());
    createFiles(Place::Network, networkFolder);
    addRow("NETPATH.mdb", "NETPATH", [](Recordset& row) { row["Path"] = networkFolder; });
    {
        storage::Workspace wksNET = storage::CreateWorkspace("wksNET");
        fillAccessItems(wksNET.OpenDatabase(storage::joinPath(networkFolder, "ZORNET.mdb")));
    }
    createUser(wanted.userName, "First user", true);
    const NewJobSite site = addJobSite(wanted.siteName);
    addRow("VEXPATH.mdb", "VEXPATH", [&](Recordset& row) { row["Path"] = site.storedPath; });
    storage::Workspace wksTEMP = storage::CreateWorkspace("wksTEMP");
    const storage::Database zordef = wksTEMP.OpenDatabase("ZORDEF.mdb");
    wksTEMP.BeginTrans();
    fillMasterDefinitions(zordef);
    wksTEMP.CommitTrans();
    return site;
}

NewJobSite addJobSite(const QString& name)
{
    NewJobSite site;
    site.name = name.trimmed().toUpper();
    site.storedPath = "ZORDATA\\" + folderName(name);
    if (siteIsListed(site.name))
        throw CommandFailure("There is a job site named " + site.name + " already.");
    createFiles(Place::JobSite, site.storedPath);
    fillJobSite(site.storedPath);
    site.tag = dnGetNewTag(" ", "DBTAG", "DBPATHS.mdb", "DBTAGS", 0);
    if (site.tag == 0)
        throw CommandFailure("No site number could be had; " + site.storedPath + " is not listed.");
    addRow("DBPATHS.mdb", "DBPATHS", [&](Recordset& row) {
        row["PATHNAME"] = site.name;
        row["PathText"] = site.storedPath;
        row["DBTAG"] = site.tag;
    });
    return site;
}

void createUser(const QString& loginName, const QString& remarks, bool administrator)
{
    const QString folder = "ZORUSER\\" + folderName(loginName);
    createFiles(Place::User, folder);
    const qint32 tag = dnGetNewTag(networkFolder, "USERTAG", "ZORNET.mdb", "NETTAGS", 0);
    if (tag == 0)
        throw CommandFailure("No user number could be had for " + loginName + '.');
    addRow(storage::joinPath(networkFolder, "ZORNET.mdb"), "USERLIST", [&](Recordset& row) {
        row["USERTAG"] = tag;
        row["UserName"] = loginName;
        row["REMARKS"] = remarks;
        row["ADMIN"] = administrator;
    });
    addRow("USERPATH.mdb", "USERPATH", [&](Recordset& row) {
        row["USERTAG"] = tag;
        row["Path"] = folder;
    });
}
