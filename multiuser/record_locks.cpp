#include "multiuser/record_locks.h"

#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "core/system.h"
#include "multiuser/network_database.h"

namespace {

LockedScreen lockedScreen;

struct LockTable
{
    NetworkDatabase network;
    storage::Recordset rows = network.database.OpenRecordset("RECORDLOCKS");

    explicit LockTable(const QString& path) : network(path) { rows.Index("RECORDLOCKS"); }

    bool seek(qint32 tagNo, const QString& tableName) { return rows.Seek("=", tableName, tagNo); }

    QString text(schema::FieldName field) const { return rows[field].value().toString().trimmed(); }
};

// False when another user added the row in the same moment.
bool addLock(storage::Recordset& rows, qint32 tagNo, const QString& tableName, qint32 userTag,
             const QString& userName, qint32 session)
{
    rows.AddNew();
    rows["TAGNO"] = tagNo;
    rows["TABLENAME"] = tableName;
    rows["RLUSERNAME"] = userName;
    rows["RLTIMESTAMP"] = storage::Value(System::current().now()).toString();
    rows["USERTAG"] = userTag;
    rows["Session"] = session;
    try {
        rows.Update();
        return true;
    } catch (const storage::StorageError& error) {
        rows.CancelUpdate();
        if (error.number() != static_cast<int>(storage::ErrorNumber::DuplicateKey))
            throw;
        return false;
    }
}

// Tells the user who has the record; true when the user wants his own lock removed.
bool showHeld(const HeldLock& held, bool isOwn)
{
    if (isOwn)
        showInformation("Notice: This Record is Locked by You",
                        "Because you are the same user as the \n"
                        "user which placed this record lock you\n"
                        "are allowed to remove the lock.  However,\n"
                        "check to make sure you do not have another\n"
                        "session of this application running. If you do\n"
                        "have another session do not remove this lock.\n"
                        "Instead, Click OK when notified of the record lock\n"
                        "and finish the update in the other session.\n"
                        "Then exit that session and return to this session.");
    return lockedScreen && lockedScreen(held, isOwn) && isOwn;
}

}  // namespace

bool dnRecordLock(qint32 tagNo, const QString& tableName, qint32 userTag, const QString& userName,
                  qint32 session)
{
    const std::optional<QString> path = networkDatabasePath();
    if (!path)
        return false;
    HeldLock held;
    {
        LockTable locks(*path);
        while (!locks.seek(tagNo, tableName))
            if (addLock(locks.rows, tagNo, tableName, userTag, userName, session))
                return false;
        held = {locks.text("TABLENAME"), locks.text("RLUSERNAME"), locks.text("RLTIMESTAMP")};
    }
    // The file is closed while the user thinks; the lock may be another's afterwards.
    if (showHeld(held, held.userName == userName.trimmed())) {
        LockTable locks(*path);
        if (locks.seek(tagNo, tableName) && locks.text("RLUSERNAME") == held.userName)
            locks.rows.Delete();
    }
    return true;
}

bool dnRecordUnlock(qint32 tagNo, const QString& tableName)
{
    if (const std::optional<QString> path = networkDatabasePath()) {
        LockTable locks(*path);
        if (locks.seek(tagNo, tableName))
            locks.rows.Delete();
    }
    return true;
}

LockedScreen installLockedScreen(LockedScreen screen)
{
    return std::exchange(lockedScreen, std::move(screen));
}
