// How a cursor goes on when the definition of its table is changed under it: fields may come, go
// and move, indexes may get other keys, the table itself may go. Everything that counts by position
// is worked out anew by name.
#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {
namespace {

// The same columns, found by the positions of another definition. A field that is gone, or has got
// another type, counts as not fetched.
std::shared_ptr<const ColumnLayout> translated(const ColumnLayout& layout,
                                               const TableDefinition& before,
                                               const TableDefinition& now)
{
    auto result = std::make_shared<ColumnLayout>();
    result->columnOf.resize(now.fields.size(), -1);
    for (const int oldPosition : layout.columns) {
        int position = -1;
        if (oldPosition >= 0) {
            const FieldDefinition& field = before.fields[static_cast<size_t>(oldPosition)];
            position = now.fieldPosition(field.name);
            if (position >= 0 && now.fields[static_cast<size_t>(position)].type != field.type)
                position = -1;
        }
        if (position >= 0)
            result->columnOf[static_cast<size_t>(position)] =
                static_cast<qint16>(result->columns.size());
        result->columns.push_back(position);
    }
    return result;
}

std::vector<int> fieldsOf(const ColumnLayout& layout)
{
    std::vector<int> fields = layout.columns;
    std::erase(fields, -1);
    return fields;
}

}  // namespace

std::optional<Value> startValue(const FieldDefinition& field)
{
    if (!field.defaultValue.isNull())
        return fitted(field, field.defaultValue);
    if (field.type == FieldType::Boolean)
        return Value(false);
    return {};
}

int RecordsetState::positionNow(FieldPlace field) const
{
    if (field.changes == m_earlier.size())
        return field.position;
    const QString& name =
        m_earlier[field.changes]->fields[static_cast<size_t>(field.position)].name;
    const int position = table->fieldPosition(name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, name);
    return position;
}

// What was set so far, by the fields of `fresh`. Refuses what does not fit them.
std::vector<std::optional<Value>> RecordsetState::bufferFor(const TableDefinition& fresh) const
{
    std::vector<std::optional<Value>> buffer;
    if (mode == Mode::Browsing)
        return buffer;
    for (const FieldDefinition& field : fresh.fields) {
        const int old = table->fieldPosition(field.name);
        std::optional<Value> value;
        if (old < 0 && mode == Mode::Adding)
            value = startValue(field);
        else if (old >= 0 && m_buffer[static_cast<size_t>(old)])
            value = fitted(field, *m_buffer[static_cast<size_t>(old)]);
        buffer.push_back(value);
    }
    return buffer;
}

bool RecordsetState::followDefinition(const Version& version)
{
    if (version.definitions == m_definitions)
        return false;
    const quint64 definitions = engine().version().definitions;
    const auto fresh = engine().table(table->name);
    if (!fresh)
        fail(ErrorNumber::TableNotFound, table->name);
    m_buffer = bufferFor(*fresh);
    const IndexDefinition followed =
        index < 0 ? IndexDefinition() : table->indexes[static_cast<size_t>(index)];
    m_wanted =
        layoutWith(nullptr, fresh->fields.size(), fieldsOf(*translated(*m_wanted, *table, *fresh)));
    if (m_layout)
        m_layout = translated(*m_layout, *table, *fresh);
    m_earlier.push_back(std::exchange(table, fresh));
    m_definitions = definitions;
    m_plan.reset();
    index = followed.name.isEmpty() ? -1 : table->indexPosition(followed.name);
    wantIndexFields();
    const bool sameOrder =
        index < 0 || table->indexes[static_cast<size_t>(index)].fields == followed.fields;
    if (place == Place::OnDeleted && (!sameOrder || (index < 0 && !followed.name.isEmpty())))
        place = Place::Nowhere;  // its key along the new order is not known any more
    if (index < 0 && !followed.name.isEmpty())
        fail(ErrorNumber::IndexNotFound, followed.name);
    return true;
}

}  // namespace storage
