#include "core/storage/table_definitions.h"

#include <algorithm>

#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {
namespace {

// The engine of the file that the table is in, or null for a table that is in none. The file may
// have been closed meanwhile.
Engine* engineOf(const TableDefState& table)
{
    const auto database = table.home.lock();
    if (!database)
        return nullptr;
    database->touch(true);
    return database->engine.get();
}

void sortByOrdinal(TableDefinition& table)
{
    std::stable_sort(table.fields.begin(), table.fields.end(),
                     [](const FieldDefinition& a, const FieldDefinition& b) {
                         return a.ordinalPosition < b.ordinalPosition;
                     });
}

template <class Items>
const auto& itemAt(const Items& items, int position)
{
    if (position < 0 || position >= static_cast<int>(items.size()))
        fail(ErrorNumber::NotInCollection, QString::number(position));
    return items[static_cast<size_t>(position)];
}

}  // namespace

const TableDefinition& TableDefState::current()
{
    if (Engine* engine = engineOf(*this)) {
        const auto stored = engine->table(definition.name);
        if (!stored)
            fail(ErrorNumber::TableNotFound, definition.name);
        definition = *stored;
    }
    return definition;
}

FieldDefinition CreateField(const QString& name, FieldType type, int size)
{
    return {.name = name, .type = type, .size = sizeOfType(type, size), .defaultValue = {}};
}

IndexDefinition CreateIndex(const QString& name, const QStringList& fields, bool unique)
{
    return {name, fields, unique};
}

FieldDef::FieldDef(std::shared_ptr<TableDefState> table, QString name)
    : m_table(std::move(table)), m_name(std::move(name))
{
    m_name = definition().name;
}

const FieldDefinition& FieldDef::definition() const
{
    const TableDefinition& table = m_table->current();
    const int position = table.fieldPosition(m_name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, m_name);
    return table.fields[static_cast<size_t>(position)];
}

template <class Change>
void FieldDef::change(Change change)
{
    FieldDefinition changed = definition();
    change(changed);
    if (Engine* engine = engineOf(*m_table)) {
        engine->changeField(m_table->definition.name, changed);
    } else {
        TableDefinition& table = m_table->definition;
        table.fields[static_cast<size_t>(table.fieldPosition(m_name))] = changed;
        sortByOrdinal(table);
    }
}

void FieldDef::AllowZeroLength(bool allow)
{
    change([allow](FieldDefinition& field) { field.allowZeroLength = allow; });
}

void FieldDef::OrdinalPosition(int position)
{
    change([position](FieldDefinition& field) { field.ordinalPosition = position; });
}

int FieldDefs::Count() const
{
    return static_cast<int>(m_table->current().fields.size());
}

FieldDef FieldDefs::operator[](int position) const
{
    return {m_table, itemAt(m_table->current().fields, position).name};
}

FieldDef FieldDefs::operator[](const QString& name) const
{
    return {m_table, name};
}

void FieldDefs::Append(FieldDefinition field)
{
    const TableDefinition& table = m_table->current();
    if (field.ordinalPosition == 0 && !table.fields.empty())
        field.ordinalPosition = table.fields.back().ordinalPosition + 1;
    if (Engine* engine = engineOf(*m_table)) {
        engine->appendField(table.name, field);
        return;
    }
    if (table.fieldPosition(field.name) >= 0)
        fail(ErrorNumber::FieldExists, field.name);
    m_table->definition.fields.push_back(std::move(field));
    sortByOrdinal(m_table->definition);
}

void FieldDefs::Delete(const QString& name)
{
    if (Engine* engine = engineOf(*m_table))
        return engine->deleteField(m_table->definition.name, name);
    TableDefinition& table = m_table->definition;
    const int position = table.fieldPosition(name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, name);
    table.fields.erase(table.fields.begin() + position);
}

int IndexDefs::Count() const
{
    return static_cast<int>(m_table->current().indexes.size());
}

IndexDefinition IndexDefs::operator[](int position) const
{
    return itemAt(m_table->current().indexes, position);
}

IndexDefinition IndexDefs::operator[](const QString& name) const
{
    const TableDefinition& table = m_table->current();
    const int position = table.indexPosition(name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, name);
    return table.indexes[static_cast<size_t>(position)];
}

void IndexDefs::Append(const IndexDefinition& index)
{
    if (Engine* engine = engineOf(*m_table))
        return engine->appendIndex(m_table->definition.name, index);
    if (m_table->definition.indexPosition(index.name) >= 0)
        fail(ErrorNumber::IndexExists, index.name);
    m_table->definition.indexes.push_back(index);
}

void IndexDefs::Delete(const QString& name)
{
    if (Engine* engine = engineOf(*m_table))
        return engine->deleteIndex(m_table->definition.name, name);
    TableDefinition& table = m_table->definition;
    const int position = table.indexPosition(name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, name);
    table.indexes.erase(table.indexes.begin() + position);
}

TableDef CreateTableDef(const QString& name)
{
    TableDefinition definition;
    definition.name = name;
    return CreateTableDef(definition);
}

TableDef CreateTableDef(const TableDefinition& definition)
{
    auto state = std::make_shared<TableDefState>();
    state->definition = definition;
    return TableDef(std::move(state));
}

int TableDefs::Count() const
{
    return static_cast<int>(Names().size());
}

QStringList TableDefs::Names() const
{
    if (!m_database->engine)
        fail(ErrorNumber::ClosedObject);
    return m_database->engine->tableNames();
}

bool TableDefs::contains(const QString& name) const
{
    return Names().contains(name, Qt::CaseInsensitive);
}

TableDef TableDefs::operator[](const QString& name) const
{
    auto state = std::make_shared<TableDefState>();
    state->definition.name = name;
    state->home = m_database;
    if (!contains(name))
        fail(ErrorNumber::NotInCollection, name);
    state->current();
    return TableDef(std::move(state));
}

void TableDefs::Append(TableDef& table)
{
    const TableDefinition definition = table.definition();
    m_database->touch(true);
    m_database->engine->createTable(definition);
    table.m_state->home = m_database;
}

void TableDefs::Delete(const QString& name)
{
    if (!contains(name))
        fail(ErrorNumber::NotInCollection, name);
    m_database->touch(true);
    m_database->engine->deleteTable(name);
}

}  // namespace storage
