#include "core/tags.h"

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/text.h"
#include "core/whole_numbers.h"

namespace {

constexpr qint64 tagsOfASite = 1'000'000;

qint32 drawTag(const QString& file, const QString& fieldName, const QString& tableName, qint32 site)
{
    storage::Workspace wksMAIN = storage::CreateWorkspace("wksMAIN");
    const storage::Database db = wksMAIN.OpenDatabase(file);
    storage::Recordset rs = db.OpenRecordset(tableName);
    // From here on the counter is ours: the first touch of the file takes the writer's turn.
    wksMAIN.BeginTrans();
    if (rs.RecordCount() == 0) {
        rs.AddNew();
        rs.Update();
    }
    rs.MoveFirst();
    const storage::Field counter = rs.fieldNamed(fieldName);
    // A null counter was never used. Read without a box of its own: one would stand while others
    // wait for the counter, and a failure taken for 0 would give tags out twice.
    const qint32 stored = counter.value().toInt();
    const qint32 value = stored == 0 ? 1 : stored;
    rs.Edit();
    counter = asLong(qint64(value) + 1);
    rs.Update();
    const qint32 tag = asLong(site * tagsOfASite + value);
    wksMAIN.CommitTrans();
    wksMAIN.Close();
    return tag;
}

}  // namespace

qint32 dnGetNewTag(const QString& path, const QString& fieldName, const QString& dbName,
                   const QString& tableName, qint32 site)
{
    const QString name = dnIsBlank(dbName) ? QString("MAIN.mdb") : dbName;
    const QString table = dnIsBlank(tableName) ? QString("SYSTAGS") : tableName;
    const QString file = dnIsBlank(path) ? name : storage::joinPath(path, name);
    try {
        const qint32 tag = drawTag(file, fieldName, table, site);
        // Opened once more, so that the counter is out of our hands before the caller goes on.
        storage::Workspace wksMAIN = storage::CreateWorkspace("wksMAIN");
        wksMAIN.OpenDatabase(file).OpenRecordset(table).Close();
        wksMAIN.Close();
        return tag;
    } catch (const storage::StorageError& error) {
        showCritical("Error: dnGetNewTag",
                     "Attempt to Assign New Tag Number Failed.\n" + error.description());
        return 0;
    }
}
