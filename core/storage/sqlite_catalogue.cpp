#include "core/storage/sqlite_catalogue.h"

#include "core/storage/sqlite_collation.h"

namespace storage {
namespace {

QByteArray columnSql(const FieldDefinition& field)
{
    QByteArray sql = quotedName(field.name);
    switch (field.type) {
        case FieldType::Boolean:
        case FieldType::Byte:
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Currency:
        case FieldType::Date:
            return sql + " INTEGER";
        case FieldType::Single:
        case FieldType::Double:
            return sql + " REAL";
        case FieldType::Text:
        case FieldType::Memo:
            return sql + " TEXT COLLATE " + caseBlindCollation;
        case FieldType::Binary:
        case FieldType::Guid:
            return sql + " BLOB";
    }
    return sql;
}

QByteArray indexSql(const QString& table, const IndexDefinition& index)
{
    QByteArray sql = index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ";
    sql += quotedIndexName(table, index.name) + " ON " + quotedName(table) + '(';
    for (const QString& field : index.fields)
        sql += quotedName(field) + ',';
    sql.back() = ')';
    return sql;
}

void refuseUnknownFields(const TableDefinition& table, const IndexDefinition& index)
{
    if (index.fields.isEmpty())
        fail(ErrorNumber::IndexNotFound, index.name);
    if (static_cast<size_t>(index.fields.size()) > schema::Index{}.keys.size())
        fail(ErrorNumber::TooManyFields, index.name);
    for (const QString& field : index.fields)
        if (table.fieldPosition(field) < 0)
            fail(ErrorNumber::NotInCollection, field);
}

}  // namespace

QByteArray quotedName(const QString& name)
{
    return '"' + QString(name).replace('"', "\"\"").toUtf8() + '"';
}

QByteArray quotedIndexName(const QString& table, const QString& index)
{
    return quotedName(table + '.' + index);
}

void SqliteCatalogue::createTables()
{
    m_connection.execute(
        "CREATE TABLE _tables(name TEXT PRIMARY KEY COLLATE NOCASE) STRICT;"
        "CREATE TABLE _fields(tableName TEXT COLLATE NOCASE, name TEXT COLLATE NOCASE,"
        " ordinal INTEGER NOT NULL, type INTEGER NOT NULL, size INTEGER NOT NULL,"
        " zeroLength INTEGER NOT NULL, required INTEGER NOT NULL, defaultValue ANY,"
        " PRIMARY KEY(tableName, name)) STRICT;"
        "CREATE TABLE _indexes(tableName TEXT COLLATE NOCASE, name TEXT COLLATE NOCASE,"
        " isUnique INTEGER NOT NULL, fields TEXT NOT NULL, PRIMARY KEY(tableName, name)) STRICT;");
}

void SqliteCatalogue::load()
{
    if (m_loaded)
        return;
    // All three tables as of one moment: others may be changing definitions.
    const bool ownTransaction = !m_connection.inTransaction();
    if (ownTransaction)
        m_connection.execute("BEGIN");
    try {
        loadTables();
    } catch (...) {
        if (ownTransaction)
            m_connection.execute("ROLLBACK");
        throw;
    }
    if (ownTransaction)
        m_connection.execute("COMMIT");
    m_loaded = true;
}

void SqliteCatalogue::loadTables()
{
    QHash<QString, std::shared_ptr<TableDefinition>> tables;
    m_names.clear();
    m_connection.query("SELECT name FROM _tables ORDER BY rowid", [&](SqliteStatement& row) {
        auto definition = std::make_shared<TableDefinition>();
        definition->name = row.textAt(0);
        m_names.append(definition->name);
        tables.insert(definition->name.toUpper(), definition);
    });
    m_connection.query(
        "SELECT tableName, name, ordinal, type, size, zeroLength, required, defaultValue"
        " FROM _fields ORDER BY ordinal, rowid",
        [&](SqliteStatement& row) {
            const auto owner = tables.value(row.textAt(0).toUpper());
            if (!owner)
                fail(ErrorNumber::Damaged, m_connection.path());
            FieldDefinition field{.name = row.textAt(1),
                                  .type = static_cast<FieldType>(row.integerAt(3)),
                                  .size = static_cast<int>(row.integerAt(4)),
                                  .allowZeroLength = row.integerAt(5) != 0,
                                  .required = row.integerAt(6) != 0,
                                  .defaultValue = row.valueAt(7),
                                  .ordinalPosition = static_cast<int>(row.integerAt(2))};
            owner->fields.push_back(std::move(field));
        });
    loadIndexes(tables);
    m_tables.clear();
    for (auto it = tables.begin(); it != tables.end(); ++it) {
        it.value()->numberFields();
        m_tables.insert(it.key(), it.value());
    }
}

void SqliteCatalogue::loadIndexes(QHash<QString, std::shared_ptr<TableDefinition>>& tables)
{
    m_connection.query("SELECT tableName, name, isUnique, fields FROM _indexes ORDER BY rowid",
                       [&](SqliteStatement& row) {
                           const auto owner = tables.value(row.textAt(0).toUpper());
                           if (!owner)
                               fail(ErrorNumber::Damaged, m_connection.path());
                           owner->indexes.push_back(
                               {row.textAt(1), row.textAt(3).split('\n'), row.integerAt(2) != 0});
                       });
}

std::shared_ptr<const TableDefinition> SqliteCatalogue::table(const QString& name)
{
    load();
    return m_tables.value(name.toUpper());
}

QStringList SqliteCatalogue::tableNames()
{
    load();
    return m_names;
}

std::shared_ptr<const TableDefinition> SqliteCatalogue::existing(const QString& name)
{
    auto definition = table(name);
    if (!definition)
        fail(ErrorNumber::TableNotFound, name);
    return definition;
}

void SqliteCatalogue::run(const QByteArray& sql, std::initializer_list<Value> values)
{
    SqliteStatement statement(m_connection, sql);
    int parameter = 0;
    for (const Value& value : values)
        statement.bind(++parameter, value);
    while (statement.step()) {
    }
}

void SqliteCatalogue::recordField(const QString& table, const FieldDefinition& field)
{
    run("INSERT INTO _fields VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)",
        {table, field.name, field.ordinalPosition, static_cast<int>(field.type), field.size,
         field.allowZeroLength ? 1 : 0, field.required ? 1 : 0, field.defaultValue});
}

void SqliteCatalogue::recordIndex(const TableDefinition& table, const IndexDefinition& index)
{
    run("INSERT INTO _indexes VALUES(?1, ?2, ?3, ?4)",
        {table.name, index.name, index.unique ? 1 : 0, index.fields.join('\n')});
    m_connection.execute(indexSql(table.name, index));
}

void SqliteCatalogue::createTable(const TableDefinition& definition)
{
    if (table(definition.name))
        fail(ErrorNumber::TableExists, definition.name);
    if (definition.name.trimmed().isEmpty() || definition.name.startsWith('_') ||
        definition.name.startsWith("sqlite_", Qt::CaseInsensitive))
        fail(ErrorNumber::NotInCollection, definition.name);
    for (const FieldDefinition& field : definition.fields)
        if (definition.fieldPosition(field.name) != &field - definition.fields.data())
            fail(ErrorNumber::FieldExists, field.name);
    for (const IndexDefinition& index : definition.indexes)
        refuseUnknownFields(definition, index);
    QByteArray sql =
        "CREATE TABLE " + quotedName(definition.name) + "(_id INTEGER PRIMARY KEY AUTOINCREMENT";
    for (const FieldDefinition& field : definition.fields)
        sql += ", " + columnSql(field);
    m_connection.execute(sql + ") STRICT");
    run("INSERT INTO _tables VALUES(?1)", {definition.name});
    for (const FieldDefinition& field : definition.fields)
        recordField(definition.name, field);
    for (const IndexDefinition& index : definition.indexes)
        recordIndex(definition, index);
}

void SqliteCatalogue::deleteTable(const QString& name)
{
    const auto definition = existing(name);
    m_connection.execute("DROP TABLE " + quotedName(definition->name));
    for (const char* table : {"_indexes", "_fields"})
        run(QByteArray("DELETE FROM ") + table + " WHERE tableName = ?1", {definition->name});
    run("DELETE FROM _tables WHERE name = ?1", {definition->name});
}

void SqliteCatalogue::appendField(const QString& tableName, const FieldDefinition& field)
{
    const auto definition = existing(tableName);
    if (definition->fieldPosition(field.name) >= 0)
        fail(ErrorNumber::FieldExists, field.name);
    QByteArray sql =
        "ALTER TABLE " + quotedName(definition->name) + " ADD COLUMN " + columnSql(field);
    if (field.type == FieldType::Boolean)
        sql += " DEFAULT 0";  // a yes/no field is never null, in old records either
    m_connection.execute(sql);
    recordField(definition->name, field);
}

void SqliteCatalogue::deleteField(const QString& tableName, const QString& field)
{
    const auto definition = existing(tableName);
    if (definition->fieldPosition(field) < 0)
        fail(ErrorNumber::NotInCollection, field);
    for (const IndexDefinition& index : definition->indexes)
        if (index.fields.contains(field, Qt::CaseInsensitive))
            fail(ErrorNumber::FieldIndexed, field);
    m_connection.execute("ALTER TABLE " + quotedName(definition->name) + " DROP COLUMN " +
                         quotedName(field));
    run("DELETE FROM _fields WHERE tableName = ?1 AND name = ?2", {definition->name, field});
}

void SqliteCatalogue::changeField(const QString& tableName, const FieldDefinition& field)
{
    const auto definition = existing(tableName);
    if (definition->fieldPosition(field.name) < 0)
        fail(ErrorNumber::NotInCollection, field.name);
    run("UPDATE _fields SET ordinal = ?3, zeroLength = ?4, required = ?5, defaultValue = ?6"
        " WHERE tableName = ?1 AND name = ?2",
        {definition->name, field.name, field.ordinalPosition, field.allowZeroLength ? 1 : 0,
         field.required ? 1 : 0, field.defaultValue});
    // No table changed its form, so the file's definition counter, by which others notice, must be
    // moved by hand.
    m_connection.execute("CREATE TABLE _touch(x); DROP TABLE _touch;");
}

void SqliteCatalogue::appendIndex(const QString& tableName, const IndexDefinition& index)
{
    const auto definition = existing(tableName);
    if (definition->indexPosition(index.name) >= 0)
        fail(ErrorNumber::IndexExists, index.name);
    refuseUnknownFields(*definition, index);
    recordIndex(*definition, index);
}

void SqliteCatalogue::deleteIndex(const QString& tableName, const QString& index)
{
    const auto definition = existing(tableName);
    if (definition->indexPosition(index) < 0)
        fail(ErrorNumber::NotInCollection, index);
    m_connection.execute("DROP INDEX " + quotedIndexName(definition->name, index));
    run("DELETE FROM _indexes WHERE tableName = ?1 AND name = ?2", {definition->name, index});
}

}  // namespace storage
