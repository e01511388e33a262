// The edit buffer: what stands between AddNew or Edit and Update.
#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {

void RecordsetState::setFieldValue(FieldPlace field, const Value& value)
{
    touch();
    if (mode == Mode::Browsing)
        fail(ErrorNumber::NoEditBegun);
    const auto position = static_cast<size_t>(positionNow(field));
    m_buffer[position] = fitted(table->fields[position], value);
}

void RecordsetState::addNew()
{
    touch(true);
    followDefinition();
    resolve();
    mode = Mode::Adding;
    m_buffer.clear();
    for (const FieldDefinition& field : table->fields)
        m_buffer.push_back(startValue(field));
}

void RecordsetState::edit()
{
    touch(true);
    requireRecord();
    if (!engine().isFresh(m_block.version) && !fetchRecord(m_block.id(m_row)))
        fail(ErrorNumber::RecordDeleted);
    mode = Mode::Editing;
    m_buffer.assign(table->fields.size(), std::nullopt);
}

void RecordsetState::cancelUpdate()
{
    mode = Mode::Browsing;
    m_buffer.clear();
}

void RecordsetState::update()
{
    touch(true);
    if (mode == Mode::Browsing)
        fail(ErrorNumber::NoEditBegun);
    followDefinition();
    if (mode == Mode::Adding)
        insertBuffer();
    else
        updateFromBuffer();
    cancelUpdate();
}

void RecordsetState::insertBuffer()
{
    std::vector<Engine::Assignment> values;
    for (size_t i = 0; i < m_buffer.size(); ++i) {
        if (m_buffer[i])
            values.push_back({static_cast<int>(i), *m_buffer[i]});
        else if (table->fields[i].required)
            fail(ErrorNumber::Required, table->fields[i].name);
    }
    lastModified = engine().insert(*table, values);
}

void RecordsetState::updateFromBuffer()
{
    std::vector<Engine::Assignment> values;
    for (size_t i = 0; i < m_buffer.size(); ++i)
        if (m_buffer[i])
            values.push_back({static_cast<int>(i), *m_buffer[i]});
    const RecordId id = m_block.id(m_row);
    engine().update(*table, id, values);
    lastModified = id;
    // Another process may have deleted it in this very moment; what was written is written.
    if (!fetchRecord(id))
        place = Place::Nowhere;
}

void RecordsetState::deleteRecord()
{
    touch(true);
    cancelUpdate();
    followDefinition();
    requireRecord();
    keepKey();
    engine().remove(*table, m_id);
    place = Place::OnDeleted;
}

}  // namespace storage
