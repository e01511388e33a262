// Counting along an index: where a record stands in a list, and which one stands at a place.
//
// The rows before a key are those equal in all keys with a smaller id, then those equal in all but
// the last key and smaller there (nulls are smaller than all), and so on up to the parent's keys.
#include "core/storage/sqlite_engine.h"

namespace storage {
namespace {

struct IndexSource
{
    IndexSource(const TableDefinition& table, int index) : from(" FROM " + quotedName(table.name))
    {
        if (index < 0)
            return;
        const IndexDefinition& definition = table.indexes[static_cast<size_t>(index)];
        from += " INDEXED BY " + quotedIndexName(table.name, definition.name);
        for (const QString& field : definition.fields)
            keys.push_back(quotedName(field));
    }

    QByteArray equal(size_t count) const
    {
        QByteArray condition;
        for (size_t i = 0; i < count; ++i)
            condition += (i > 0 ? " AND " : "") + keys[i] + " IS ?";
        return condition;
    }

    QByteArray from;
    std::vector<QByteArray> keys;
};

QByteArray where(const QByteArray& first, const QByteArray& second = {})
{
    if (first.isEmpty() && second.isEmpty())
        return {};
    return " WHERE " + first + (first.isEmpty() || second.isEmpty() ? "" : " AND ") + second;
}

}  // namespace

qint64 SqliteEngine::countRows(const QByteArray& sql, std::span<const Value> equal,
                               const Value* beyond)
{
    SqliteStatement& counting = statement(sql);
    const SqliteStatement::Run run(counting);
    int parameter = 0;
    for (const Value& key : equal)
        counting.bind(++parameter, key);
    if (beyond)
        counting.bind(++parameter, *beyond);
    return counting.step() ? counting.integerAt(0) : 0;
}

qint64 SqliteEngine::countBefore(const TableDefinition& table, int index,
                                 std::span<const Value> parent, std::span<const Value> key,
                                 RecordId id)
{
    const IndexSource source(table, index);
    const QByteArray counting = "SELECT count(*)" + source.from;
    if (id == 0)
        return parent.empty() ? count(table)
                              : countRows(counting + where(source.equal(parent.size())), parent);
    const Value ownId(id);
    qint64 before = countRows(counting + where(source.equal(key.size()), "_id<?"), key, &ownId);
    for (size_t i = key.size(); i-- > parent.size();) {
        if (key[i].isNull())
            continue;
        const std::span<const Value> equal = key.first(i);
        before +=
            countRows(counting + where(source.equal(i), source.keys[i] + "<?"), equal, &key[i]);
        before += countRows(counting + where(source.equal(i), source.keys[i] + " IS NULL"), equal);
    }
    return before;
}

RecordId SqliteEngine::recordAt(const TableDefinition& table, int index,
                                std::span<const Value> parent, qint64 before)
{
    const IndexSource source(table, index);
    QByteArray order;
    for (const QByteArray& key : source.keys)
        order += key + ',';
    const Value place(before);
    return countRows("SELECT _id" + source.from + where(source.equal(parent.size())) +
                         " ORDER BY " + order + "_id LIMIT 1 OFFSET ?",
                     parent, &place);
}

}  // namespace storage
