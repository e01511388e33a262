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

bool isError(const storage::StorageError& error, storage::ErrorNumber number)
{
    return error.number() == static_cast<int>(number);
}

void addLock(storage::Recordset& rows, qint32 tagNo, const QString& tableName, qint32 userTag,
             const QString& userName, qint32 session)
{
    rows.AddNew();
    rows["TAGNO"] = tagNo;
    rows["TABLENAME"] = tableName;
    rows["RLUSERNAME"] = userName;
    rows["RLTIMESTAMP"] = storage::Value(System::current().now()).toString();
    rows["USERTAG"] = userTag;
    rows["Session"] = session;
    rows.Update();
}

// Looks for the lock's row, then does `found` or `missing`. When another session adds or deletes
// the row in between, it begins anew.
template <class Found, class Missing>
void onLock(LockTable& locks, qint32 tagNo, const QString& tableName, Found found, Missing missing)
{
    // So often in a row it is no meeting with another session: the table itself refuses the row.
    constexpr int mostTries = 20;
    for (int tries = 1;; ++tries) {
        try {
            return locks.seek(tagNo, tableName) ? found() : missing();
        } catch (const storage::StorageError& error) {
            const bool isMeeting = isError(error, storage::ErrorNumber::DuplicateKey) ||
                                   isError(error, storage::ErrorNumber::RecordDeleted);
            if (!isMeeting || tries == mostTries)
                throw;
        }
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
    std::optional<HeldLock> held;
    {
        LockTable locks(*path);
        onLock(
            locks, tagNo, tableName,
            [&] {
                held = {locks.text("TABLENAME"), locks.text("RLUSERNAME"),
                        locks.text("RLTIMESTAMP")};
            },
            [&] { addLock(locks.rows, tagNo, tableName, userTag, userName, session); });
    }
    if (!held)
        return false;
    // The file is closed while the user thinks; the lock may be another's afterwards.
    if (showHeld(*held, held->userName == userName.trimmed())) {
        LockTable locks(*path);
        const auto removeOwn = [&] {
            if (locks.text("RLUSERNAME") == held->userName)
                locks.rows.Delete();
        };
        onLock(locks, tagNo, tableName, removeOwn, [] {});
    }
    return true;
}

bool dnRecordUnlock(qint32 tagNo, const QString& tableName)
{
    if (const std::optional<QString> path = networkDatabasePath()) {
        LockTable locks(*path);
        onLock(
            locks, tagNo, tableName, [&] { locks.rows.Delete(); }, [] {});
    }
    return true;
}

LockedScreen installLockedScreen(LockedScreen screen)
{
    return std::exchange(lockedScreen, std::move(screen));
}
