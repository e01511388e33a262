#include "core/storage/recordset.h"
#include "core/storage/recordset_state.h"

namespace storage {

std::vector<Value> RecordsetState::asKeys(std::span<const Value> keys) const
{
    std::vector<Value> result;
    for (size_t i = 0; i < keys.size(); ++i)
        result.push_back(asKey(table->fields[static_cast<size_t>(m_keyFields[i])], keys[i]));
    return result;
}

qint64 RecordsetState::countWithin(std::span<const Value> keys)
{
    touch();
    followDefinition();
    return engine().countBefore(*table, index, asKeys(keys), {}, 0);
}

qint64 RecordsetState::countBefore(std::span<const Value> keys)
{
    touch();
    followDefinition();
    requireRecord();
    keepKey();
    return engine().countBefore(*table, index, asKeys(keys), m_key, m_id);
}

bool RecordsetState::moveTo(std::span<const Value> keys, qint64 before)
{
    touch();
    cancelUpdate();
    followDefinition();
    const RecordId wanted = engine().recordAt(*table, index, asKeys(keys), before);
    if (wanted == 0) {
        place = Place::Nowhere;
        return false;
    }
    goTo(wanted);
    return true;
}

qint64 Recordset::countWithin(std::span<const Value> keys) const
{
    return state().countWithin(keys);
}

qint64 Recordset::countBefore(std::span<const Value> keys) const
{
    return state().countBefore(keys);
}

bool Recordset::moveTo(std::span<const Value> keys, qint64 before)
{
    return state().moveTo(keys, before);
}

}  // namespace storage
