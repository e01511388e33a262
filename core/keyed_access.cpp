#include "core/keyed_access.h"

#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

using storage::FieldType;
using storage::Recordset;
using storage::StorageError;
using storage::Value;

namespace {

constexpr size_t mostSeekKeys = 6;
constexpr size_t mostBoundKeys = 9;

Value valueForNull(const storage::Field& field)
{
    switch (field.Type()) {
        case FieldType::Boolean:
            return false;
        case FieldType::Byte:
        case FieldType::Integer:
        case FieldType::Long:
            return 0;
        case FieldType::Currency:
            return storage::Currency{};
        case FieldType::Single:
        case FieldType::Double:
            return 0.0;
        case FieldType::Date:
            return QDate(1900, 1, 1);
        case FieldType::Text:
            return QString(field.Size(), ' ');
        case FieldType::Binary:
        case FieldType::Memo:
        case FieldType::Guid:
            return " ";
    }
    return {};
}

bool holdsKeys(const Recordset& rs, KeyFields keys)
{
    return std::all_of(keys.begin(), keys.end(),
                       [&rs](const KeyField& key) { return holdsKey(rs[key.field], key.key); });
}

}  // namespace

QString dnSeek(Recordset& rs, const QString& indexName, KeyFields keys)
{
    Q_ASSERT(keys.size() >= 1 && keys.size() <= mostSeekKeys);
    try {
        rs.Index(indexName);
        std::vector<Value> values;
        for (const KeyField& key : keys)
            values.push_back(key.key);
        // At or after: what was found may still be another record, and its case may differ.
        if (!rs.seekKeys(">=", values))
            return {};
        for (const KeyField& key : keys)
            if (!(rs[key.field].value() == key.key))
                return {};
        return rs.Bookmark();
    } catch (const StorageError&) {
        showCritical("Error", "Error: dnSeek Function " + indexName);
        return {};
    }
}

Value dnNullCheck(const storage::Field& field)
{
    try {
        Value value = field.value();
        return value.isNull() ? valueForNull(field) : value;
    } catch (const StorageError& error) {
        showCritical("dn NullCheck Error",
                     "Error Encountered In Function: dnNullCheck() Field: " + field.Name() +
                         "\nError Number: " + QString::number(error.number()) +
                         "\nError: " + error.description());
        return {};
    }
}

QString textOf(const storage::Field& field)
{
    const Value value = dnNullCheck(field);
    constexpr int digitsOfSingle = 7;
    return field.Type() == storage::FieldType::Single
               ? QString::number(value.toDouble(), 'g', digitsOfSingle)
               : value.toString();
}

double numberOf(const storage::Field& field)
{
    return field.Type() == storage::FieldType::Single ? textOf(field).toDouble()
                                                      : dnNullCheck(field).toDouble();
}

bool goToFound(Recordset& rs, const QString& bookmark)
{
    if (bookmark.trimmed().isEmpty())
        return false;
    try {
        rs.Bookmark(bookmark);
        return true;
    } catch (const StorageError& error) {
        if (error.errorNumber() != storage::ErrorNumber::RecordDeleted)
            throw;
        return false;
    }
}

bool holdsKey(const storage::Field& field, const Value& key)
{
    const Value value = dnNullCheck(field);
    const auto* held = value.as<QString>();
    const auto* asked = key.as<QString>();
    return held && asked ? held->compare(*asked, Qt::CaseInsensitive) == 0 : value == key;
}

bool dnInbounds(Recordset& rs, KeyFields keys)
{
    Q_ASSERT(keys.size() <= mostBoundKeys);
    try {
        if (rs.RecordCount() == 0 || rs.BOF() || rs.EOF())
            return false;
        return holdsKeys(rs, keys);
    } catch (const StorageError& error) {
        showCritical("Error: dnInbounds", error.description());
        return false;
    }
}

QString dnNextBookmark(Recordset& rs, const QString& bookmark, KeyFields keys)
{
    try {
        rs.Bookmark(bookmark);
        rs.MoveNext();
        if (dnInbounds(rs, keys))
            return rs.Bookmark();
        rs.Bookmark(bookmark);
        rs.MovePrevious();
        if (dnInbounds(rs, keys))
            return rs.Bookmark();
    } catch (const StorageError& error) {
        showCritical("Error: dnNextBookmark", error.description());
    }
    return noBookmark;
}

bool forEachWithin(storage::Recordset& rs, const QString& indexName, KeyFields keys,
                   const std::function<bool()>& take)
{
    std::vector<storage::Value> values;
    for (const KeyField& key : keys)
        values.push_back(key.key);
    rs.Index(indexName);
    bool more = rs.RecordCount() > 0 &&
                (values.empty() ? rs.MoveFirst() : rs.seekKeys("=", values));
    for (; more && dnInbounds(rs, keys); more = rs.MoveNext())
        if (!take())
            return false;
    return true;
}

int deleteWithin(storage::Recordset& rs, const QString& indexName, KeyFields keys)
{
    int count = 0;
    forEachWithin(rs, indexName, keys, [&] {
        rs.Delete();
        ++count;
        return true;
    });
    return count;
}
