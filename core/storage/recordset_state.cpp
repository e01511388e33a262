#include "core/storage/recordset_state.h"

#include <algorithm>

#include "core/storage/storage_error.h"

namespace storage {
namespace {

constexpr int mostRowsAhead = 256;
constexpr int fieldsBeforeAll = 10;  // a reader of so many fields one by one wants them all

FetchStart fromTheEnd()
{
    return {};
}

}  // namespace

std::shared_ptr<const ColumnLayout> layoutWith(const ColumnLayout* old, size_t fieldCount,
                                               std::span<const int> more)
{
    auto layout = std::make_shared<ColumnLayout>();
    if (old)
        *layout = *old;
    layout->columnOf.resize(fieldCount, -1);
    for (const int position : more) {
        qint16& column = layout->columnOf[static_cast<size_t>(position)];
        if (column >= 0)
            continue;
        column = static_cast<qint16>(layout->columns.size());
        layout->columns.push_back(position);
    }
    return layout;
}

RecordsetState::RecordsetState(std::shared_ptr<DatabaseState> owner, const QString& tableName)
    : database(std::move(owner))
{
    m_definitions = engine().version().definitions;  // first: a change after it is noticed
    table = engine().table(tableName);
    if (!table)
        fail(ErrorNumber::TableNotFound, tableName);
    m_wanted = layoutWith(nullptr, table->fields.size(), {});
}

void RecordsetState::touch(bool forWriting)
{
    if (!database || !database->engine)
        fail(ErrorNumber::ClosedObject);
    database->touch(forWriting);
}

void RecordsetState::close()
{
    m_plan.reset();
    m_block.start(0);
    database.reset();
}

FetchPlan& RecordsetState::plan()
{
    if (!m_plan)
        m_plan = engine().plan(table, index, m_wanted->columns);
    return *m_plan;
}

void RecordsetState::forgetFields()
{
    if (m_layout)
        m_layout = layoutWith(nullptr, table->fields.size(), {});
    m_inOrder = false;
}

// Gives the block that begins at `start()`, which is asked again when the definition has changed
// meanwhile and with it, perhaps, the fields of the index.
template <class Start>
bool RecordsetState::fetch(Direction direction, Start start, int limit)
{
    for (bool again = false;; again = true) {
        try {
            const FetchStart from = start();
            engine().fetch(plan(), direction, from, limit, m_spare);
        } catch (const StorageError& error) {
            if (again || error.errorNumber() != ErrorNumber::Internal || !followDefinition())
                throw;
            continue;
        }
        if (again || !followDefinition(m_spare.version))
            break;
    }
    std::swap(m_block, m_spare);
    m_layout = m_wanted;
    m_direction = direction;
    m_ahead = limit;
    m_inOrder = true;
    m_row = 0;
    return m_block.rowCount() > 0;
}

// The record alone becomes the block. False, and nothing changed, when it is gone.
bool RecordsetState::fetchRecord(RecordId wanted)
{
    for (bool again = false;; again = true) {
        try {
            engine().fetchRecord(plan(), wanted, m_spare);
        } catch (const StorageError& error) {
            if (again || error.errorNumber() != ErrorNumber::Internal || !followDefinition())
                throw;
            continue;
        }
        if (again || !followDefinition(m_spare.version))
            break;
    }
    if (m_spare.rowCount() == 0)
        return false;
    std::swap(m_block, m_spare);
    m_layout = m_wanted;
    m_inOrder = true;
    m_row = 0;
    return true;
}

void RecordsetState::settle(Direction direction)
{
    if (m_block.rowCount() > 0)
        place = Place::OnRecord;
    else
        place = direction == Direction::Forward ? Place::AfterLast : Place::BeforeFirst;
}

void RecordsetState::resolve()
{
    if (place != Place::Unresolved)
        return;
    place = fetch(Direction::Forward, fromTheEnd, 1) ? Place::OnRecord : Place::NoRecords;
}

void RecordsetState::wantIndexFields()
{
    m_keyFields.clear();
    if (index < 0)
        return;
    for (const QString& field : table->indexes[static_cast<size_t>(index)].fields)
        m_keyFields.push_back(table->fieldPosition(field));
    m_wanted = layoutWith(m_wanted.get(), table->fields.size(), m_keyFields);
}

void RecordsetState::setIndex(const QString& name)
{
    touch();
    cancelUpdate();
    followDefinition();
    const int position = name.isEmpty() ? -1 : table->indexPosition(name);
    if (position < 0 && !name.isEmpty())
        fail(ErrorNumber::IndexNotFound, name);
    if (position == index)
        return;
    if (place == Place::OnDeleted)
        place = Place::Nowhere;  // its key along the new index is not known any more
    index = position;
    m_plan.reset();
    m_inOrder = false;
    wantIndexFields();
}

bool RecordsetState::seek(bool onlyEqual, Direction direction, std::span<const Value> keys)
{
    touch();
    cancelUpdate();
    std::vector<Value> fittedKeys;
    const auto start = [&] {
        if (index < 0)
            fail(ErrorNumber::NoCurrentIndex);
        if (keys.size() > m_keyFields.size() || (keys.empty() && direction == Direction::Forward))
            fail(ErrorNumber::NotInCollection, QString::number(keys.size()));
        fittedKeys.clear();
        for (size_t i = 0; i < keys.size(); ++i)
            fittedKeys.push_back(
                asKey(table->fields[static_cast<size_t>(m_keyFields[i])], keys[i]));
        return FetchStart{.key = fittedKeys, .onlyEqual = onlyEqual};
    };
    noMatch = !fetch(direction, start, 1);
    place = noMatch ? Place::Nowhere : Place::OnRecord;
    return !noMatch;
}

bool RecordsetState::moveToEnd(Direction from)
{
    touch();
    cancelUpdate();
    if (fetch(from, fromTheEnd, 4)) {
        place = Place::OnRecord;
        return true;
    }
    place = Place::NoRecords;
    fail(ErrorNumber::NoCurrentRecord);
}

// Notes the current record's key along the index and its id.
void RecordsetState::keepKey()
{
    if (place != Place::OnRecord)
        return;
    m_id = m_block.id(m_row);
    for (const int field : m_keyFields)
        if (!isFetched(field)) {
            if (!fetchRecord(m_id)) {
                place = Place::Nowhere;
                fail(ErrorNumber::RecordDeleted);
            }
            break;
        }
    m_key.clear();
    for (const int field : m_keyFields)
        m_key.push_back(m_block.value(
            m_row, static_cast<size_t>(m_layout->columnOf[static_cast<size_t>(field)]),
            table->fields[static_cast<size_t>(field)].type));
}

bool RecordsetState::isFetched(int position) const
{
    return static_cast<size_t>(position) < m_layout->columnOf.size() &&
           m_layout->columnOf[static_cast<size_t>(position)] >= 0;
}

bool RecordsetState::move(Direction direction)
{
    touch();
    cancelUpdate();
    resolve();
    const bool forward = direction == Direction::Forward;
    switch (place) {
        case Place::BeforeFirst:
        case Place::AfterLast:
            if (forward == (place == Place::AfterLast))
                fail(ErrorNumber::NoCurrentRecord);
            return moveToEnd(direction);
        case Place::OnRecord:
        case Place::OnDeleted:
            break;
        default:
            fail(ErrorNumber::NoCurrentRecord);
    }
    if (place == Place::OnRecord && m_inOrder && engine().isFresh(m_block.version)) {
        const int next = m_row + static_cast<int>(direction) * static_cast<int>(m_direction);
        if (next >= 0 && next < m_block.rowCount()) {
            m_row = next;
            return true;
        }
    }
    const int limit = direction == m_direction ? std::min(m_ahead * 4, mostRowsAhead) : 4;
    const auto start = [this] {
        keepKey();
        if (place == Place::Nowhere)
            fail(ErrorNumber::NoCurrentRecord);
        return FetchStart{.key = m_key, .id = m_id};
    };
    fetch(direction, start, limit);
    settle(direction);
    return place == Place::OnRecord;
}

void RecordsetState::goTo(RecordId wanted)
{
    touch();
    cancelUpdate();
    if (place == Place::OnRecord && m_block.id(m_row) == wanted &&
        engine().isFresh(m_block.version))
        return;
    if (!fetchRecord(wanted))
        fail(ErrorNumber::RecordDeleted);
    m_ahead = 1;
    place = Place::OnRecord;
}

void RecordsetState::requireRecord()
{
    resolve();
    if (place == Place::OnDeleted)
        fail(ErrorNumber::RecordDeleted);
    if (place != Place::OnRecord)
        fail(ErrorNumber::NoCurrentRecord);
}

RecordId RecordsetState::currentId()
{
    touch();
    requireRecord();
    return m_block.id(m_row);
}

void RecordsetState::wantField(int position)
{
    if (m_wanted->columnOf[static_cast<size_t>(position)] >= 0)
        return;
    std::vector<int> more = {position};
    if (++m_extraReads > fieldsBeforeAll) {
        more.clear();
        for (size_t i = 0; i < table->fields.size(); ++i)
            more.push_back(static_cast<int>(i));
    }
    m_wanted = layoutWith(m_wanted.get(), table->fields.size(), more);
    m_plan.reset();
}

Value RecordsetState::fieldValue(FieldPlace field)
{
    touch();
    int position = positionNow(field);
    if (mode != Mode::Browsing && m_buffer[static_cast<size_t>(position)])
        return *m_buffer[static_cast<size_t>(position)];
    if (mode == Mode::Adding)
        return {};
    requireRecord();
    position = positionNow(field);
    if (!isFetched(position)) {
        wantField(position);
        if (!fetchRecord(m_block.id(m_row)))
            fail(ErrorNumber::RecordDeleted);
        position = positionNow(field);
    }
    return m_block.value(m_row,
                         static_cast<size_t>(m_layout->columnOf[static_cast<size_t>(position)]),
                         table->fields[static_cast<size_t>(position)].type);
}

}  // namespace storage
