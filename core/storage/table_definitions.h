// Table definitions that can be read, and changed in place.
//
//   TableDef table = db.CreateTableDef("GLCODES");         // not in the file yet
//   table.Fields().Append(CreateField("GLCODE", FieldType::Text, 10));
//   table.Indexes().Append(CreateIndex("GLCODES", {"GLCODE"}));
//   db.TableDefs().Append(table);                           // now it is
//   db.TableDefs()["GLCODES"].Fields().Append(CreateField("Desc", FieldType::Text, 50));
//
// Each change of a table in the file is one transaction. Collections count from 0 and find names
// case-blind; a name that is not there is NotInCollection.
#pragma once

#include <memory>

#include "core/storage/definitions.h"

namespace storage {

struct DatabaseState;

// A table to be appended, or one that is in the file.
struct TableDefState
{
    TableDefinition definition;
    std::weak_ptr<DatabaseState> home;  // expired: not in a file

    // Reads the definition anew from the file it is in.
    const TableDefinition& current();
};

// A Text field needs a size; one of 0 holds nothing.
FieldDefinition CreateField(const QString& name, FieldType type, int size = 0);
IndexDefinition CreateIndex(const QString& name, const QStringList& fields, bool unique = false);

// A field of a table. Name, Type and Size are given once, with CreateField.
class FieldDef
{
public:
    FieldDef(std::shared_ptr<TableDefState> table, QString name);

    QString Name() const { return m_name; }
    FieldType Type() const { return definition().type; }
    int Size() const { return definition().size; }
    bool AllowZeroLength() const { return definition().allowZeroLength; }
    int OrdinalPosition() const { return definition().ordinalPosition; }

    void AllowZeroLength(bool allow);
    void OrdinalPosition(int position);

private:
    const FieldDefinition& definition() const;
    template <class Change>
    void change(Change change);

    std::shared_ptr<TableDefState> m_table;
    QString m_name;
};

class FieldDefs
{
public:
    explicit FieldDefs(std::shared_ptr<TableDefState> table) : m_table(std::move(table)) {}

    int Count() const;
    FieldDef operator[](int position) const;  // by ordinal position
    FieldDef operator[](const QString& name) const;
    // FieldExists when there is one. An ordinal position of 0 puts it last.
    void Append(FieldDefinition field);
    // FieldIndexed while an index uses it.
    void Delete(const QString& name);

private:
    std::shared_ptr<TableDefState> m_table;
};

class IndexDefs
{
public:
    explicit IndexDefs(std::shared_ptr<TableDefState> table) : m_table(std::move(table)) {}

    int Count() const;
    IndexDefinition operator[](int position) const;
    IndexDefinition operator[](const QString& name) const;
    // IndexExists; DuplicateKey when a unique index meets duplicates.
    void Append(const IndexDefinition& index);
    void Delete(const QString& name);

private:
    std::shared_ptr<TableDefState> m_table;
};

class TableDef
{
public:
    explicit TableDef(std::shared_ptr<TableDefState> state) : m_state(std::move(state)) {}

    QString Name() const { return m_state->definition.name; }
    FieldDefs Fields() const { return FieldDefs(m_state); }
    IndexDefs Indexes() const { return IndexDefs(m_state); }
    const TableDefinition& definition() const { return m_state->current(); }

private:
    friend class TableDefs;
    std::shared_ptr<TableDefState> m_state;
};

// A table to be filled with fields and appended.
TableDef CreateTableDef(const QString& name);
TableDef CreateTableDef(const TableDefinition& definition);

class TableDefs
{
public:
    explicit TableDefs(std::shared_ptr<DatabaseState> database) : m_database(std::move(database)) {}

    int Count() const;
    QStringList Names() const;  // in the order in which they were made
    bool contains(const QString& name) const;
    TableDef operator[](const QString& name) const;
    // The table definition then stands for the table in the file. TableExists when there is one.
    void Append(TableDef& table);
    void Delete(const QString& name);

private:
    std::shared_ptr<DatabaseState> m_database;
};

}  // namespace storage
