// How blocks of rows are fetched along an index.
//
// Going on from a key is the heart of it. Where no key value is null, one row value comparison
// `(k1, k2, _id) > (?, ?, ?)` does it, and uses the whole index because the record id's parameter
// has a collation of its own. A null in the key, or going backward over keys that may be null,
// takes segments: the rows equal in all keys and beyond the id, then those equal in all but the
// last key and beyond it there, and so on; nulls come first. The segments of one block are read in
// one read transaction.
#pragma once

#include <array>
#include <functional>

#include "core/storage/engine.h"
#include "core/storage/sqlite_connection.h"

namespace storage {

class SqliteFetch : public FetchPlan
{
public:
    SqliteFetch(SqliteConnection& connection, std::shared_ptr<const TableDefinition> table,
                int index, std::vector<int> columns);

    // True if one statement gives the block, so that it needs no read transaction around it.
    bool isOneStatement(Direction direction, const FetchStart& start) const;

    // Appends rows to the started block until `limit`. `atFirstRow` is called once, when the first
    // statement has taken its read lock.
    template <class AtFirstRow>
    void fetch(Direction direction, const FetchStart& start, int limit, RowBlock& block,
               AtFirstRow atFirstRow);
    void fetchRecord(RecordId id, RowBlock& block, const std::function<void()>& underReadLock);

    size_t columnCount() const { return m_columns.size(); }

private:
    // What a segment asks of the first key that is not equal.
    enum class Beyond : quint8 { Nothing, Id, Key, NotNull, Null };

    struct Segment
    {
        quint8 equalKeys;
        Beyond beyond;
    };

    std::vector<Segment> segments(Direction direction, const FetchStart& start) const;
    bool usesRowValue(Direction direction, const FetchStart& start) const;
    QByteArray selectSql() const;
    QByteArray orderSql(Direction direction) const;
    SqliteStatement& rowValueStatement(const FetchStart& start);
    SqliteStatement& segmentStatement(Direction direction, Segment segment);
    template <class AtFirstRow>
    void collect(SqliteStatement& statement, int limit, RowBlock& block, AtFirstRow& atFirstRow);
    void addRow(const SqliteStatement& statement, RowBlock& block) const;

    SqliteConnection& m_connection;
    std::shared_ptr<const TableDefinition> m_table;
    std::vector<int> m_columns;
    std::vector<QByteArray> m_keys;  // quoted names of the index's fields
    QByteArray m_source;             // table and index
    // Prepared when first needed. Row values by key count; segments by direction, equal keys, kind.
    std::array<SqliteStatement, 12> m_rowValues;
    std::array<std::array<std::array<SqliteStatement, 5>, 11>, 2> m_segments;
    SqliteStatement m_byId;
};

template <class AtFirstRow>
void SqliteFetch::collect(SqliteStatement& statement, int limit, RowBlock& block,
                          AtFirstRow& atFirstRow)
{
    const SqliteStatement::Run run(statement);
    while (block.rowCount() < limit && block.byteCount() < maximumBlockBytes) {
        const bool row = statement.step();
        atFirstRow();
        if (!row)
            break;
        addRow(statement, block);
    }
}

template <class AtFirstRow>
void SqliteFetch::fetch(Direction direction, const FetchStart& start, int limit, RowBlock& block,
                        AtFirstRow atFirstRow)
{
    if (usesRowValue(direction, start)) {
        SqliteStatement& statement = rowValueStatement(start);
        int parameter = 0;
        for (const Value& key : start.key)
            statement.bind(++parameter, key);
        if (start.id != 0)
            statement.bindInteger(++parameter, start.id);
        statement.bindInteger(++parameter, limit);
        collect(statement, limit, block, atFirstRow);
        return;
    }
    for (const Segment segment : segments(direction, start)) {
        if (block.rowCount() >= limit || block.byteCount() >= maximumBlockBytes)
            return;
        SqliteStatement& statement = segmentStatement(direction, segment);
        int parameter = 0;
        for (int i = 0; i < segment.equalKeys; ++i)
            statement.bind(++parameter, start.key[static_cast<size_t>(i)]);
        if (segment.beyond == Beyond::Id)
            statement.bindInteger(++parameter, start.id);
        if (segment.beyond == Beyond::Key)
            statement.bind(++parameter, start.key[segment.equalKeys]);
        statement.bindInteger(++parameter, limit - block.rowCount());
        collect(statement, limit, block, atFirstRow);
    }
}

}  // namespace storage
