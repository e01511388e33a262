#include "multiuser/users.h"

#include <QDir>
#include <QLocale>

#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/system.h"
#include "multiuser/network_database.h"

namespace {

const QString failed = "ERROR";

RefusalScreen refusalScreen;

bool seekUser(storage::Recordset& users, const QString& userName)
{
    users.Index("USERNAME");
    return users.Seek("=", userName);
}

// The counter holds the number to give next.
qint32 takeUserTag(const storage::Database& network)
{
    storage::Recordset counter = network.OpenRecordset("NETTAGS");
    qint32 tag = 1;
    if (counter.RecordCount() > 0) {
        counter.MoveFirst();
        tag = counter["USERTAG"].value().toInt();
        counter.Edit();
    } else {
        counter.AddNew();
    }
    counter["USERTAG"] = tag + 1;
    counter.Update();
    return tag;
}

qint32 enrol(const storage::Database& network, storage::Recordset& users, const QString& userName,
             const QString& remarks = {})
{
    const qint32 tag = takeUserTag(network);
    users.AddNew();
    users["USERTAG"] = tag;
    users["UserName"] = userName;
    if (!remarks.isEmpty()) {
        users["REMARKS"] = remarks;
        users["ADMIN"] = false;
    }
    users.Update();
    return tag;
}

// Why a process is closed to a user; what is wrong in the lists is always shown.
struct Refusal
{
    QString process;
    bool alwaysShown = false;
};

std::optional<Refusal> refusalFor(const QString& code, const QString& userName,
                                  const storage::Database& network)
{
    storage::Recordset users = network.OpenRecordset("USERLIST");
    if (!seekUser(users, userName))
        return Refusal{"Cannot Find User Name", true};

    storage::Recordset processes = network.OpenRecordset("USERACCESSITEMS");
    processes.Index("UAICODE");
    if (!processes.Seek("=", code))
        return Refusal{"Cannot Find UAI Code: " + code, true};

    storage::Recordset rights = network.OpenRecordset("USERRIGHTS");
    rights.Index("USERRIGHTS");
    const bool decided = rights.Seek("=", users["USERTAG"].value(), processes["UAITAG"].value());
    if (decided && !rights["ALLOWED"].value().toBool())
        return Refusal{processes["Desc"].value().toString().trimmed()};
    return std::nullopt;
}

}  // namespace

QString dnUserName()
{
    const QString name = System::current().loginName();
    const qsizetype end = name.indexOf(QChar(0));
    const QString cut = end < 0 ? name : name.left(end);
    return cut.isEmpty() ? "Guest" : cut;
}

QString dnNetPath(bool quiet)
{
    if (!locatorExists("NETPATH")) {
        showCritical("ERROR",
                     "The database NETPATH.mdb is missing.\nThis database must be located in\n"
                     "the same folder as the application file (*.exe).");
        return failed;
    }
    OpenTable locator = openLocator("NETPATH");
    storage::Recordset& rows = locator.rows;
    if (rows.RecordCount() == 0) {
        rows.AddNew();
        rows["Path"] = defaults::networkPath;
        rows.Update();
        rows.MoveFirst();
    }
    QString folder = trimmedPath(rows);
    if (folder.isEmpty()) {
        folder = QDir::currentPath();
        rows.Edit();
        rows["Path"] = folder;
        rows.Update();
    }
    const QString path = storage::joinPath(folder, "ZORNET.mdb");
    if (storage::pathExists(path))
        return path;
    if (quiet)
        return " ";
    showCritical("Cannot Access", "Cannot Find the Database: " + path +
                                      "\n\nFind the correct location for ZORNET.mdb and update "
                                      "your Network Database Location setting.");
    return failed;
}

std::optional<QString> networkDatabasePath()
{
    if (!locatorExists("NETPATH"))
        return std::nullopt;
    const QString path = dnNetPath(false);
    return path == failed ? std::nullopt : std::optional(path);
}

qint32 dnUserTag(const QString&, const QString& userName)
{
    const std::optional<QString> path = networkDatabasePath();
    if (!path)
        return 0;
    const NetworkDatabase network(*path);
    storage::Recordset users = network.database.OpenRecordset("USERLIST");
    if (seekUser(users, userName))
        return users["USERTAG"].value().toInt();
    return enrol(network.database, users, userName);
}

qint32 listedUserTag(const QString& userName)
{
    const QString path = locatorExists("NETPATH") ? dnNetPath(true).trimmed() : QString();
    if (path.isEmpty())
        return 0;
    const NetworkDatabase network(path);
    storage::Recordset users = network.database.OpenRecordset("USERLIST");
    return seekUser(users, userName) ? users["USERTAG"].value().toInt() : 0;
}

UserAdded addUser(const QString& userName)
{
    const QString path = dnNetPath(false);
    if (path == failed)
        return UserAdded::NoNetwork;
    const NetworkDatabase network(path);
    storage::Recordset users = network.database.OpenRecordset("USERLIST");
    const QString name = userName.trimmed().toLower();
    if (seekUser(users, name))
        return UserAdded::Duplicate;
    if (name.isEmpty())
        return UserAdded::EmptyName;
    const QString now = QLocale::c().toString(System::current().now(), "MM/dd/yyyy h:mm:ss AP");
    enrol(network.database, users, name, "Added on: " + now);
    return UserAdded::Added;
}

bool dnOK2Access(const QString& code, const QString& userName, bool showRefusal)
{
    try {
        const QString path = dnNetPath(true);
        if (path == failed)
            return false;
        if (path.trimmed().isEmpty() || userName.trimmed().isEmpty())
            return true;
        const NetworkDatabase network(path);
        const std::optional<Refusal> refusal = refusalFor(code, userName, network.database);
        if (refusal && (showRefusal || refusal->alwaysShown) && refusalScreen)
            refusalScreen(userName, refusal->process);
        return !refusal;
    } catch (const storage::StorageError& error) {
        showCritical("Error", "Error in Function dnOK2Access() " + QString::number(error.number()) +
                                  " " + error.description());
        return false;
    }
}

RefusalScreen installRefusalScreen(RefusalScreen screen)
{
    return std::exchange(refusalScreen, std::move(screen));
}
