// The seam between the cursor (Recordset) and whatever keeps the rows. An Engine is one open
// database file. It knows nothing of current records, edit buffers or end of file: it fetches
// blocks of rows along an index from a key, says whether a block is still true, and writes single
// records durably. A server could stand here, with one block a round trip.
//
// Every function throws StorageError when the file cannot do what is asked.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "core/storage/definitions.h"

namespace storage {

// A record's identity for life: never given twice in a table's life. 0 is none.
using RecordId = qint64;

// The state of a file as a reader saw it. Equal versions: nothing was written between.
struct Version
{
    quint64 commits = 0;      // anybody's, by the file's own counter
    quint64 ownChanges = 0;   // rows written on this connection, its open transaction included
    quint64 definitions = 0;  // changes to table definitions
    bool operator==(const Version&) const = default;
};

// Rows as fetched: one cell a wanted column, texts and bytes in one arena, decoded when asked for.
class RowBlock
{
public:
    enum class Kind : quint8 { Null, Integer, Real, Text, Bytes };

    void start(size_t columnCount);
    void beginRow(RecordId id) { m_ids.push_back(id); }
    void addNull() { m_cells.push_back({Kind::Null, 0, {.integer = 0}}); }
    void addInteger(qint64 value) { m_cells.push_back({Kind::Integer, 0, {.integer = value}}); }
    void addReal(double value) { m_cells.push_back({Kind::Real, 0, {.real = value}}); }
    void addBytes(Kind kind, const void* data, int length);

    int rowCount() const { return static_cast<int>(m_ids.size()); }
    size_t byteCount() const { return m_arena.size(); }
    RecordId id(int row) const { return m_ids[static_cast<size_t>(row)]; }

    // The cell as a value of a field of that type.
    Value value(int row, size_t column, FieldType type) const;
    // The cell of a whole number, a fraction, a text, without a value made of it; any other cell is
    // 0 or blank. A text lives as long as the block.
    qint64 integer(int row, size_t column) const;
    double number(int row, size_t column) const;
    std::string_view text(int row, size_t column) const;

    Version version;  // of the file when the rows were read

private:
    struct Cell
    {
        Kind kind;
        quint32 length;
        union {
            qint64 integer;
            double real;
            size_t offset;
        } u;
    };

    const Cell& cell(int row, size_t column) const
    {
        return m_cells[static_cast<size_t>(row) * m_columns + column];
    }

    size_t m_columns = 0;
    std::vector<RecordId> m_ids;
    std::vector<Cell> m_cells;
    std::vector<char> m_arena;
};

// A fetched block holds no more than this, so that a handle stays small however long the memos are.
inline constexpr size_t maximumBlockBytes = 256 * 1024;

enum class Direction : qint8 { Forward = 1, Backward = -1 };

// Where a block begins. `key` has values for the first fields of the index, already in the fields'
// own form; with `id` not 0 the block begins with the row next after (key, id) in the direction of
// the fetch, otherwise with the first row at or after key. No key and no id: the first row of all.
struct FetchStart
{
    std::span<const Value> key;
    RecordId id = 0;
    bool onlyEqual = false;  // rows equal to the key, none after
};

// One way of fetching: a table, an index of it (-1: by record id), and the columns wanted. Made by
// the engine, kept by a cursor, good until the definitions change.
class FetchPlan
{
public:
    virtual ~FetchPlan() = default;
};

class Engine
{
public:
    virtual ~Engine() = default;

    virtual QString path() const = 0;
    virtual bool isReadOnly() const = 0;

    // The table, or null. A pointer stays good for as long as its holder keeps it, but tells the
    // truth only while `version().definitions` stays the same.
    virtual std::shared_ptr<const TableDefinition> table(const QString& name) = 0;
    virtual QStringList tableNames() = 0;

    virtual Version version() = 0;
    // False as soon as anything was written since. May answer from a read lock in hand.
    virtual bool isFresh(const Version& version) = 0;

    virtual std::shared_ptr<FetchPlan> plan(const std::shared_ptr<const TableDefinition>& table,
                                            int index, const std::vector<int>& columns) = 0;
    virtual void fetch(FetchPlan& plan, Direction direction, const FetchStart& start, int limit,
                       RowBlock& block) = 0;
    // The block has no row when the record is gone.
    virtual void fetchRecord(FetchPlan& plan, RecordId id, RowBlock& block) = 0;
    // Exact, and cheap while nothing was written.
    virtual qint64 count(const TableDefinition& table) = 0;

    // Along an index (-1: by record id), among the rows whose first keys equal `parent`: how many
    // lie before (key, id), a key of all the index's fields; all of them with id 0. And the id of
    // the row with `before` others before it; 0 when there are fewer.
    virtual qint64 countBefore(const TableDefinition& table, int index,
                               std::span<const Value> parent, std::span<const Value> key,
                               RecordId id) = 0;
    virtual RecordId recordAt(const TableDefinition& table, int index,
                              std::span<const Value> parent, qint64 before) = 0;

    struct Assignment
    {
        int field;  // position in the definition
        Value value;
    };
    virtual RecordId insert(const TableDefinition& table, std::span<const Assignment> values) = 0;
    virtual void update(const TableDefinition& table, RecordId id,
                        std::span<const Assignment> values) = 0;
    virtual void remove(const TableDefinition& table, RecordId id) = 0;

    // A transaction takes the writer's turn at once, so that what is read in it is what it writes
    // over. Without one each write is durable when it returns. An engine that is let go with a
    // transaction open rolls it back.
    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
    virtual bool inTransaction() const = 0;

    // Definitions. Each is one transaction of its own when none is open.
    virtual void createTable(const TableDefinition& table) = 0;
    virtual void deleteTable(const QString& table) = 0;
    virtual void appendField(const QString& table, const FieldDefinition& field) = 0;
    virtual void deleteField(const QString& table, const QString& field) = 0;
    // Zero-length flag, required flag, default and ordinal position; type and size stay.
    virtual void changeField(const QString& table, const FieldDefinition& field) = 0;
    virtual void appendIndex(const QString& table, const IndexDefinition& index) = 0;
    virtual void deleteIndex(const QString& table, const QString& index) = 0;

    // Damage found, a line each; none for a sound file.
    virtual QStringList checkIntegrity() = 0;
    // A consistent copy of the file, as of one moment, while others write.
    virtual void copyTo(const QString& path) = 0;

    // Lets go of whatever is held between operations.
    virtual void goIdle() = 0;
};

}  // namespace storage
