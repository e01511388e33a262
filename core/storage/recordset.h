// A table handle: a cursor along an index of one table, with one current record.
//
// The position. Moving past an end leaves the handle at EOF or BOF, without a current record; the
// other way leads back in. After a failed Seek, and on an empty table, there is no current record
// either, not even when the first record is then added to it; after a Delete there is none until
// the next move, which goes on from where the deleted record stood. Reading a field or moving on
// without a position is NoCurrentRecord, reading a deleted record RecordDeleted.
//
// Other users. A move sees what others added, changed or deleted until then. The current record's
// fields are as they were at the last move; Edit reads them anew.
//
// Definitions. Changes of the table's definition are seen at the next operation. An index that goes
// away while the handle follows it is IndexNotFound, once, and then the order is physical. An edit
// that was begun goes on with the fields that are left.
//
// Bookmarks are texts that name a record for as long as it lives, whatever the index, and are equal
// for the same record on every handle of the file.
#pragma once

#include <cstdio>
#include <memory>
#include <span>

#include "core/storage/definitions.h"

// The handle's operation keeps its name; the C library's macro, included above so that it cannot
// come back, would be in its way.
#undef EOF

namespace storage {

struct RecordsetState;
struct DatabaseState;
class Recordset;

// A position in a table's definition as it was after so many changes of it.
struct FieldPlace
{
    int position = 0;
    size_t changes = 0;
};

// A field of the current record, or of the edit buffer between AddNew or Edit and Update. Lives no
// longer than the statement it stands in; valid as long as its recordset.
class Field
{
public:
    Field(RecordsetState& recordset, FieldPlace place) : m_recordset(recordset), m_place(place) {}

    QString Name() const;
    FieldType Type() const;
    int Size() const;

    Value value() const;
    // Outside AddNew and Edit: NoEditBegun. What does not fit the field: its error, and the buffer
    // keeps what it had.
    void setValue(const Value& value) const;
    const Field& operator=(const Value& value) const
    {
        setValue(value);
        return *this;
    }
    Field(const Field&) = default;
    Field& operator=(const Field&) = delete;  // ambiguous: copy the value or the reference?

private:
    const FieldDefinition& definition() const;

    RecordsetState& m_recordset;
    FieldPlace m_place;
};

// A copy is the same handle; a default one is closed.
class Recordset
{
public:
    Recordset() = default;
    explicit Recordset(std::shared_ptr<RecordsetState> state) : m_state(std::move(state)) {}

    bool isOpen() const;
    QString Name() const;
    const TableDefinition& definition() const;

    // Chooses the index that the moves follow; empty: physical order. The current record stays,
    // an edit that was begun is abandoned.
    void Index(const QString& name);
    QString Index() const;

    // `op` is "=" or ">="; fewer keys than the index has match its first fields, more are
    // NotInCollection. True if found.
    template <class... Keys>
    bool Seek(const char* op, const Keys&... keys)
    {
        const Value values[] = {Value(keys)...};
        return seekKeys(op, values);
    }
    bool seekKeys(const char* op, std::span<const Value> keys);
    // To the last record whose first fields along the index equal the keys; all records for none.
    // Sets NoMatch as Seek does.
    bool seekLast(std::span<const Value> keys);
    bool NoMatch() const;

    // Each gives true when the handle stands on a record then. MoveFirst and MoveLast of an empty
    // table, and a move without a position, are NoCurrentRecord.
    bool MoveFirst();
    bool MoveLast();
    bool MoveNext();
    bool MovePrevious();
    bool BOF() const;
    bool EOF() const;

    // Exact at this moment, others' additions and deletions included.
    int RecordCount() const;

    // Among the records whose first fields along the index equal the keys (all, for none): how many
    // there are, how many lie before the current one, and a move to the one with `before` others
    // before it (false, and no current record, when there are fewer). Each reads that part of the
    // index: some 20 ms at 500,000 records.
    qint64 countWithin(std::span<const Value> keys) const;
    qint64 countBefore(std::span<const Value> keys) const;
    bool moveTo(std::span<const Value> keys, qint64 before);

    QString Bookmark() const;
    // A text that is no bookmark: BookmarkNotValid. A record that is gone: RecordDeleted.
    void Bookmark(const QString& bookmark);
    // The bookmark of the record last added or changed through this handle; NoCurrentRecord before
    // the first.
    QString LastModified() const;

    Field operator[](schema::FieldName name) const { return Fields(name); }
    Field Fields(schema::FieldName name) const;  // NotInCollection if this table has no such field
    Field Fields(int position) const;
    Field fieldNamed(const QString& name) const;  // for names known at run time only; case-blind

    // A move, a Seek or a Bookmark abandons what was begun and not updated.
    void AddNew();
    void Edit();
    // One atomic write, durable when it returns. After an AddNew the record that was current before
    // is current again. A failed Update keeps the buffer, so that it can be mended and tried again.
    void Update();
    void CancelUpdate();
    void Delete();

    void Close();

private:
    friend class Scan;
    RecordsetState& state() const;

    std::shared_ptr<RecordsetState> m_state;
};

}  // namespace storage
