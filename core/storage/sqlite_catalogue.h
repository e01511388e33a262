// Table definitions of a file: kept in catalogue tables of the file itself, since the library's
// own schema has no sizes, ordinal positions or zero-length flags, and changed together with the
// tables they tell of.
#pragma once

#include <QHash>
#include <memory>

#include "core/storage/definitions.h"
#include "core/storage/sqlite_connection.h"

namespace storage {

// Names as SQL identifiers.
QByteArray quotedName(const QString& name);
QByteArray quotedIndexName(const QString& table, const QString& index);

class SqliteCatalogue
{
public:
    explicit SqliteCatalogue(SqliteConnection& connection) : m_connection(connection) {}

    // Makes the catalogue tables of a new file.
    void createTables();

    std::shared_ptr<const TableDefinition> table(const QString& name);
    QStringList tableNames();
    // What was read is read anew at the next call.
    void forget() { m_loaded = false; }

    // Each must run within a transaction. They check first and change nothing when they fail.
    void createTable(const TableDefinition& definition);
    void deleteTable(const QString& table);
    void appendField(const QString& table, const FieldDefinition& field);
    void deleteField(const QString& table, const QString& field);
    void changeField(const QString& table, const FieldDefinition& field);
    void appendIndex(const QString& table, const IndexDefinition& index);
    void deleteIndex(const QString& table, const QString& index);

private:
    void load();
    void loadTables();
    void loadIndexes(QHash<QString, std::shared_ptr<TableDefinition>>& tables);
    std::shared_ptr<const TableDefinition> existing(const QString& table);
    void recordField(const QString& table, const FieldDefinition& field);
    void recordIndex(const TableDefinition& table, const IndexDefinition& index);
    void run(const QByteArray& sql, std::initializer_list<Value> values);

    SqliteConnection& m_connection;
    bool m_loaded = false;
    QHash<QString, std::shared_ptr<const TableDefinition>> m_tables;  // by upper-case name
    QStringList m_names;
};

}  // namespace storage
