#include "core/window_registry.h"

#include <functional>

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

namespace {

constexpr int highestNumber = 3000;

QString databasePath(const QString& userPath, const QString& dbFile)
{
    return storage::joinPath(userPath, dnIsBlank(dbFile) ? QString("ZORUSER.mdb") : dbFile);
}

// Runs `work` on the open database; a fault is told as that of `routine`.
template <class Work>
qint32 withDatabase(const QString& userPath, const QString& dbFile, const QString& routine,
                    const QString& title, Work work)
{
    try {
        storage::Workspace wksTEMP = storage::CreateWorkspace("wksTEMP");
        const storage::Database db = wksTEMP.OpenDatabase(databasePath(userPath, dbFile));
        return work(db);
    } catch (const storage::StorageError& error) {
        showCritical(title, "Error in Function: " + routine + ' ' +
                                QString::number(error.number()) + ' ' + error.description());
        return 0;
    }
}

// Runs `work` on the window's row. A row that is not there is told, or quietly left alone.
template <class Work>
qint32 withRow(const QString& userPath, qint16 winTag, const QString& dbFile,
               const QString& routine, Work work)
{
    const QString title = "Error: " + routine;
    return withDatabase(userPath, dbFile, routine, title, [&](const storage::Database& db) {
        storage::Recordset rs = db.OpenRecordset("WINLIST");
        rs.Index("WINLIST");
        if (!rs.Seek("=", winTag)) {
            showCritical(title, "Error Finding Tag Number for This Wiindow.");
            return 0;
        }
        return work(rs);
    });
}

void writeRow(storage::Recordset& rs, int action, qint32 hotTag)
{
    rs["WINACTION"] = action;
    rs["HOTTAG"] = hotTag;
    rs.Update();
}

qint16 takeNumber(const storage::Database& db)
{
    storage::Recordset counter = db.OpenRecordset("WINTAG");
    int number = 1;
    if (counter.RecordCount() > 0) {
        counter.MoveFirst();
        number = intOf(counter["WINTAG"]);
        if (number > highestNumber)
            number = 1;
        counter.Edit();
    } else {
        counter.AddNew();
    }
    counter["WINTAG"] = number + 1;
    counter.Update();
    return static_cast<qint16>(number);
}

}  // namespace

qint16 dnSetWINTAG(const QString& userPath, const QString& dbFile)
{
    return static_cast<qint16>(withDatabase(userPath, dbFile, "dnSetWINTAG", "Error: dnSetWINTAG",
                                            [](const storage::Database& db) {
                                                const qint16 number = takeNumber(db);
                                                storage::Recordset rs = db.OpenRecordset("WINLIST");
                                                rs.AddNew();
                                                rs["WINTAG"] = number;
                                                writeRow(rs, 0, hotTagNone);
                                                return qint32(number);
                                            }));
}

void dnSetHOTTAG(const QString& userPath, qint16 winTag, qint32 hotTag, const QString& dbFile)
{
    withRow(userPath, winTag, dbFile, "dnSetHOTTAG", [hotTag](storage::Recordset& rs) {
        rs.Edit();
        writeRow(rs, 0, hotTag);
        return 0;
    });
}

qint32 dnGetHOTTAG(const QString& userPath, qint16 winTag, const QString& dbFile)
{
    return withRow(userPath, winTag, dbFile, "dnGetHOTTAG",
                   [](storage::Recordset& rs) { return intOf(rs["HOTTAG"]); });
}

qint16 dnGetWINACTION(const QString& userPath, qint16 winTag, const QString& dbFile)
{
    return static_cast<qint16>(
        withRow(userPath, winTag, dbFile, "dnGetWINACTION",
                [](storage::Recordset& rs) { return intOf(rs["WINACTION"]); }));
}

qint16 dnUnloadWindow(const QString& userPath, qint16 winTag, qint32 hotTag, const QString& dbFile)
{
    return static_cast<qint16>(
        withDatabase(userPath, dbFile, "dnUnloadWindow", "Error", [&](const storage::Database& db) {
            storage::Recordset rs = db.OpenRecordset("WINLIST");
            rs.Index("WINLIST");
            if (!rs.Seek("=", winTag))
                return 0;
            rs.Edit();
            writeRow(rs, 1, hotTag);
            return 1;
        }));
}

qint16 dnDELWINTAG(const QString& userPath, qint16 winTag, const QString& dbFile)
{
    return static_cast<qint16>(
        withRow(userPath, winTag, dbFile, "dnDELWINTAG", [](storage::Recordset& rs) {
            rs.Delete();
            return 1;
        }));
}
