// A folder with one database in it, and short ways to fill tables, to walk them and to hear of
// errors. The folder lies in memory where the machine has such a place: the tests commit often.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <ostream>

#include "core/storage/engine.h"
#include "core/storage/storage_error.h"
#include "core/storage/workspace.h"
#include "tests/support/printing.h"

namespace storage {

void PrintTo(const Value& value, std::ostream* out);

// The number of the StorageError that `action` throws; 0 for none.
template <class Action>
int errorOf(Action action)
{
    try {
        action();
    } catch (const StorageError& error) {
        return error.number();
    }
    return 0;
}

using Assignments = std::initializer_list<std::pair<const char*, Value>>;

// Adds a record with these values; its bookmark.
QString add(Recordset& rs, Assignments values);
void change(Recordset& rs, Assignments values);

// The field's texts along the handle's index, first to last and last to first.
QStringList walk(Recordset& rs, const char* field);
QStringList walkBackward(Recordset& rs, const char* field);

QString text(const Recordset& rs, const char* field);

Database makeDatabase(const Workspace& workspace, const QString& path, const QString& table,
                      const std::vector<FieldDefinition>& fields,
                      const std::vector<IndexDefinition>& indexes = {});

class StoreTest : public testing::Test
{
protected:
    StoreTest();
    ~StoreTest() override;

    QString pathOf(const QString& file) const { return m_folder.filePath(file); }
    // The file `path`, with the table T of K text 10, N integer and M memo, and the indexes K, N
    // and KN. Other tables: `makeDatabase`.
    Database makeTableT();
    // T again, from a workspace of its own, so that it is not `database`'s.
    Recordset openElsewhere();
    // T through another connection of this process: the folder under a second name.
    Recordset openOnOtherConnection();

    QTemporaryDir m_folder;
    QString path = pathOf("STORE.mdb");
    Workspace workspace{"wksTEST"};
    Workspace elsewhere{"wksELSEWHERE"};
};

// Lets the event loop run, as an idle program does.
void beIdle(int milliseconds);

}  // namespace storage
