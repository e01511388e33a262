#include "core/storage/sqlite_fetch.h"

#include <sqlite3.h>

#include "core/storage/sqlite_catalogue.h"

namespace storage {
namespace {

bool hasNull(std::span<const Value> key)
{
    return std::any_of(key.begin(), key.end(), [](const Value& value) { return value.isNull(); });
}

}  // namespace

SqliteFetch::SqliteFetch(SqliteConnection& connection, std::shared_ptr<const TableDefinition> table,
                         int index, std::vector<int> columns)
    : m_connection(connection), m_table(std::move(table)), m_columns(std::move(columns))
{
    m_source = " FROM " + quotedName(m_table->name);
    if (index >= 0) {
        const IndexDefinition& definition = m_table->indexes[static_cast<size_t>(index)];
        m_source += " INDEXED BY " + quotedIndexName(m_table->name, definition.name);
        for (const QString& field : definition.fields)
            m_keys.push_back(quotedName(field));
    }
}

bool SqliteFetch::usesRowValue(Direction direction, const FetchStart& start) const
{
    return direction == Direction::Forward && !start.key.empty() && !start.onlyEqual &&
           (start.id == 0 || start.key.size() == m_keys.size()) && !hasNull(start.key);
}

bool SqliteFetch::isOneStatement(Direction direction, const FetchStart& start) const
{
    return usesRowValue(direction, start) || start.key.empty() || start.onlyEqual;
}

std::vector<SqliteFetch::Segment> SqliteFetch::segments(Direction direction,
                                                        const FetchStart& start) const
{
    const auto keyCount = static_cast<quint8>(start.key.size());
    if (keyCount == 0)
        return {{0, start.id != 0 ? Beyond::Id : Beyond::Nothing}};
    std::vector<Segment> result;
    if (start.id == 0)
        result.push_back({keyCount, Beyond::Nothing});
    else
        // Along a unique index, too: another record may have taken the key since it was read.
        result.push_back({keyCount, Beyond::Id});
    if (start.onlyEqual)
        return result;
    for (int i = keyCount - 1; i >= 0; --i) {
        const auto equalKeys = static_cast<quint8>(i);
        const bool isNull = start.key[static_cast<size_t>(i)].isNull();
        if (direction == Direction::Forward) {
            result.push_back({equalKeys, isNull ? Beyond::NotNull : Beyond::Key});
        } else if (!isNull) {
            result.push_back({equalKeys, Beyond::Key});
            result.push_back({equalKeys, Beyond::Null});
        }
    }
    return result;
}

QByteArray SqliteFetch::selectSql() const
{
    QByteArray sql = "SELECT _id";
    for (const int column : m_columns)
        sql += ',' + quotedName(m_table->fields[static_cast<size_t>(column)].name);
    return sql + m_source;
}

QByteArray SqliteFetch::orderSql(Direction direction) const
{
    const QByteArray suffix = direction == Direction::Forward ? "" : " DESC";
    QByteArray sql = " ORDER BY ";
    for (const QByteArray& key : m_keys)
        sql += key + suffix + ',';
    return sql + "_id" + suffix + " LIMIT ?";
}

SqliteStatement& SqliteFetch::rowValueStatement(const FetchStart& start)
{
    // With an id the key is whole; its place is the one that a prefix never has.
    const bool withId = start.id != 0;
    SqliteStatement& statement = m_rowValues[withId ? 11 : start.key.size()];
    if (statement.isPrepared())
        return statement;
    QByteArray left;
    QByteArray right;
    for (size_t i = 0; i < start.key.size(); ++i) {
        left += (i > 0 ? "," : "") + m_keys[i];
        right += i > 0 ? ",?" : "?";
    }
    const QByteArray condition = withId ? '(' + left + ",_id)>(" + right + ",? COLLATE BINARY)"
                                 : start.key.size() == 1 ? left + ">=" + right
                                                         : '(' + left + ")>=(" + right + ')';
    statement = SqliteStatement(m_connection,
                                selectSql() + " WHERE " + condition + orderSql(Direction::Forward));
    return statement;
}

SqliteStatement& SqliteFetch::segmentStatement(Direction direction, Segment segment)
{
    SqliteStatement& statement = m_segments[direction == Direction::Forward ? 0 : 1]
                                           [segment.equalKeys][static_cast<size_t>(segment.beyond)];
    if (statement.isPrepared())
        return statement;
    QByteArray condition;
    for (int i = 0; i < segment.equalKeys; ++i)
        condition += (i > 0 ? " AND " : "") + m_keys[static_cast<size_t>(i)] + " IS ?";
    if (segment.beyond != Beyond::Nothing) {
        condition += segment.equalKeys > 0 ? " AND " : "";
        condition += segment.beyond == Beyond::Id ? QByteArray("_id") : m_keys[segment.equalKeys];
    }
    const char* after = direction == Direction::Forward ? ">?" : "<?";
    if (segment.beyond == Beyond::Id || segment.beyond == Beyond::Key)
        condition += after;
    else if (segment.beyond == Beyond::NotNull)
        condition += " IS NOT NULL";
    else if (segment.beyond == Beyond::Null)
        condition += " IS NULL";
    const QByteArray where = condition.isEmpty() ? QByteArray() : " WHERE " + condition;
    statement = SqliteStatement(m_connection, selectSql() + where + orderSql(direction));
    return statement;
}

void SqliteFetch::fetchRecord(RecordId id, RowBlock& block,
                              const std::function<void()>& underReadLock)
{
    if (!m_byId.isPrepared())
        m_byId = SqliteStatement(
            m_connection,
            selectSql().replace(m_source, " FROM " + quotedName(m_table->name)) + " WHERE _id=?");
    const SqliteStatement::Run run(m_byId);
    m_byId.bindInteger(1, id);
    const bool found = m_byId.step();
    underReadLock();
    if (found)
        addRow(m_byId, block);
}

void SqliteFetch::addRow(const SqliteStatement& statement, RowBlock& block) const
{
    sqlite3_stmt* row = statement.handle();
    block.beginRow(sqlite3_column_int64(row, 0));
    const int count = static_cast<int>(m_columns.size());
    for (int column = 1; column <= count; ++column) {
        switch (sqlite3_column_type(row, column)) {
            case SQLITE_INTEGER:
                block.addInteger(sqlite3_column_int64(row, column));
                break;
            case SQLITE_FLOAT:
                block.addReal(sqlite3_column_double(row, column));
                break;
            case SQLITE_TEXT:
                block.addBytes(RowBlock::Kind::Text, sqlite3_column_text(row, column),
                               sqlite3_column_bytes(row, column));
                break;
            case SQLITE_BLOB:
                block.addBytes(RowBlock::Kind::Bytes, sqlite3_column_blob(row, column),
                               sqlite3_column_bytes(row, column));
                break;
            default:
                block.addNull();
        }
    }
}

}  // namespace storage
