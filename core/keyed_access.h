// How the program reads records by key. No failure passes these routines' boundary: each shows its
// own box and gives an empty or false result, with which the callers go on.
#pragma once

#include <functional>
#include <initializer_list>
#include <span>

#include "core/storage/workspace.h"

// One key of a lookup: the field of the record that must hold the value.
struct KeyField
{
    schema::FieldName field;
    storage::Value key;
};
// Keys in the order of the index: an argument, no more. It holds on to nothing of its own, so that
// what it is made from, a list in braces or a vector, must live as long.
class KeyFields
{
public:
    KeyFields() = default;
    KeyFields(std::initializer_list<KeyField> keys) : m_keys(keys.begin(), keys.size()) {}
    KeyFields(const std::vector<KeyField>& keys) : m_keys(keys) {}

    size_t size() const { return m_keys.size(); }
    auto begin() const { return m_keys.begin(); }
    auto end() const { return m_keys.end(); }

private:
    std::span<const KeyField> m_keys;
};

// A bookmark that names no record.
inline const QString noBookmark = " ";

// The bookmark of the record that holds all the keys, or empty text. `indexName` becomes the index
// of `rs`, whose first fields the keys are, in order; at most six. Text must be equal in full, its
// case included. The handle stays where the seek left it.
QString dnSeek(storage::Recordset& rs, const QString& indexName, KeyFields keys);

// The field's value; for a null what the program takes for one: false, 0, 01/01/1900, as many
// blanks as a text field is long, one blank for what has no length.
storage::Value dnNullCheck(const storage::Field& field);

// The same as text, number and so on, the way screens use it. A Single has the seven digits that
// it can hold.
QString textOf(const storage::Field& field);
inline QString trimmedTextOf(const storage::Field& field)
{
    return textOf(field).trimmed();
}
// The number of a field; of a Single the one that its seven digits tell.
double numberOf(const storage::Field& field);
inline int intOf(const storage::Field& field)
{
    return dnNullCheck(field).toInt();
}

// Goes to the record that a search window gave; false for no bookmark and for a record that another
// user has deleted meanwhile.
bool goToFound(storage::Recordset& rs, const QString& bookmark);

// True if `rs` stands on a record whose fields equal the keys, nulls read as above; at most nine.
// Texts are the same in any case, as they are for an index, where "a1" may stand between "A1" and
// "A1": a walk that began within its keys ends only where they end.
bool dnInbounds(storage::Recordset& rs, KeyFields keys);
// The comparison of one field in it.
bool holdsKey(const storage::Field& field, const storage::Value& key);

// Goes through the records whose first fields along the index equal the keys (all without keys), in
// order, while `take` gives true. `take` may delete the record or write what is no key of the index; whoever
// moves records along it collects their bookmarks first. False when it was stopped.
bool forEachWithin(storage::Recordset& rs, const QString& indexName, KeyFields keys,
                   const std::function<bool()>& take);
// Deletes those records; how many they were.
int deleteWithin(storage::Recordset& rs, const QString& indexName, KeyFields keys);

// Where to stand when the record at `bookmark` will have been deleted: the next record within the
// keys, else the one before, else " ".
QString dnNextBookmark(storage::Recordset& rs, const QString& bookmark, KeyFields keys);
