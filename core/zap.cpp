#include "core/zap.h"

#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

using storage::FieldType;

namespace {

void deleteRows(storage::Recordset& rs)
{
    rs.Index({});
    while (rs.RecordCount() > 0) {
        rs.MoveFirst();
        rs.Delete();
    }
}

// The old table goes and the new one comes in one transaction: a failure in between loses nothing.
void makeAnew(const QString& file, const QString& table)
{
    storage::Workspace wksTEMP = storage::CreateWorkspace("wksTEMP");
    const storage::Database db = wksTEMP.OpenDatabase(file);
    wksTEMP.BeginTrans();
    storage::TableDefinition definition = db.TableDefs()[table].definition();
    for (storage::FieldDefinition& field : definition.fields)
        if (field.type == FieldType::Text || field.type == FieldType::Memo)
            field.allowZeroLength = true;
    for (storage::IndexDefinition& index : definition.indexes)
        index.unique = false;
    db.TableDefs().Delete(table);
    storage::TableDef fresh = storage::CreateTableDef(definition);
    db.TableDefs().Append(fresh);
    wksTEMP.CommitTrans();
    wksTEMP.Close();
}

// A table that held rows leaves `rs` closed.
void empty(const QString& folder, const QString& file, storage::Recordset& rs)
{
    if (rs.RecordCount() == 0)
        return;
    const QString table = rs.Name();
    const bool keepsTable = storage::pathExists(storage::joinPath(folder, "NOZAP.txt"));
    if (keepsTable)
        deleteRows(rs);
    rs.Close();
    if (!keepsTable)
        makeAnew(storage::joinPath(folder, file), table);
}

}  // namespace

OpenTable emptiedTable(const QString& folder, const QString& file, const QString& table)
{
    OpenTable opened = openTable(folder, file, table);
    empty(folder, file, opened.rows);
    if (!opened.rows.isOpen())
        opened = openTable(folder, file, table);
    return opened;
}

bool dnZap(const QString& path, const QString& dbName, storage::Recordset& rs)
{
    QString table;
    try {
        table = rs.Name();
        empty(path, dnIsBlank(dbName) ? QString("MAIN.mdb") : dbName, rs);
        return true;
    } catch (const storage::StorageError& error) {
        showCritical("Error: dnZap",
                     "Cannot Empty the Table: " + table + "\nError: " + error.description());
        return false;
    }
}
