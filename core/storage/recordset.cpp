#include "core/storage/recordset.h"

#include <cstring>

#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {

namespace {

// The field's position in the handle's table. One that is not there may just have been made.
template <class Name>
int positionOf(RecordsetState& cursor, const Name& name)
{
    const int position = cursor.table->fieldPosition(name);
    if (position >= 0)
        return position;
    return cursor.followDefinition() ? cursor.table->fieldPosition(name) : -1;
}

}  // namespace

const FieldDefinition& Field::definition() const
{
    return m_recordset.table->fields[static_cast<size_t>(m_recordset.positionNow(m_place))];
}

QString Field::Name() const
{
    return definition().name;
}

FieldType Field::Type() const
{
    return definition().type;
}

int Field::Size() const
{
    return definition().size;
}

Value Field::value() const
{
    return m_recordset.fieldValue(m_place);
}

void Field::setValue(const Value& value) const
{
    m_recordset.setFieldValue(m_place, value);
}

RecordsetState& Recordset::state() const
{
    if (!isOpen())
        fail(ErrorNumber::ClosedObject);
    return *m_state;
}

bool Recordset::isOpen() const
{
    return m_state && m_state->database && m_state->database->engine;
}

QString Recordset::Name() const
{
    return state().table->name;
}

const TableDefinition& Recordset::definition() const
{
    return *state().table;
}

void Recordset::Index(const QString& name)
{
    state().setIndex(name);
}

QString Recordset::Index() const
{
    const RecordsetState& cursor = state();
    return cursor.index < 0 ? QString()
                            : cursor.table->indexes[static_cast<size_t>(cursor.index)].name;
}

bool Recordset::seekKeys(const char* op, std::span<const Value> keys)
{
    Q_ASSERT(std::strcmp(op, "=") == 0 || std::strcmp(op, ">=") == 0);
    return state().seek(op[0] == '=', Direction::Forward, keys);
}

bool Recordset::seekLast(std::span<const Value> keys)
{
    return state().seek(true, Direction::Backward, keys);
}

bool Recordset::NoMatch() const
{
    return state().noMatch;
}

bool Recordset::MoveFirst()
{
    return state().moveToEnd(Direction::Forward);
}
bool Recordset::MoveLast()
{
    return state().moveToEnd(Direction::Backward);
}
bool Recordset::MoveNext()
{
    return state().move(Direction::Forward);
}
bool Recordset::MovePrevious()
{
    return state().move(Direction::Backward);
}

bool Recordset::BOF() const
{
    RecordsetState& cursor = state();
    cursor.touch();
    cursor.resolve();
    return cursor.place == RecordsetState::Place::BeforeFirst ||
           cursor.place == RecordsetState::Place::NoRecords;
}

bool Recordset::EOF() const
{
    RecordsetState& cursor = state();
    cursor.touch();
    cursor.resolve();
    return cursor.place == RecordsetState::Place::AfterLast ||
           cursor.place == RecordsetState::Place::NoRecords;
}

int Recordset::RecordCount() const
{
    RecordsetState& cursor = state();
    cursor.touch();
    cursor.followDefinition();
    return static_cast<int>(cursor.database->engine->count(*cursor.table));
}

QString Recordset::Bookmark() const
{
    return QString::number(state().currentId());
}

void Recordset::Bookmark(const QString& bookmark)
{
    bool ok = false;
    const RecordId id = bookmark.toLongLong(&ok);
    if (!ok || id <= 0)
        fail(ErrorNumber::BookmarkNotValid);
    state().goTo(id);
}

QString Recordset::LastModified() const
{
    const RecordId id = state().lastModified;
    if (id == 0)
        fail(ErrorNumber::NoCurrentRecord);
    return QString::number(id);
}

Field Recordset::Fields(schema::FieldName name) const
{
    RecordsetState& cursor = state();
    const int position = positionOf(cursor, name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection,
             QString::fromLatin1(name.text().data(), static_cast<qsizetype>(name.text().size())));
    return {cursor, cursor.placeOf(position)};
}

Field Recordset::Fields(int position) const
{
    RecordsetState& cursor = state();
    if (position < 0 || position >= static_cast<int>(cursor.table->fields.size()))
        fail(ErrorNumber::NotInCollection, QString::number(position));
    return {cursor, cursor.placeOf(position)};
}

Field Recordset::fieldNamed(const QString& name) const
{
    RecordsetState& cursor = state();
    const int position = positionOf(cursor, name);
    if (position < 0)
        fail(ErrorNumber::NotInCollection, name);
    return {cursor, cursor.placeOf(position)};
}

void Recordset::AddNew()
{
    state().addNew();
}
void Recordset::Edit()
{
    state().edit();
}
void Recordset::Update()
{
    state().update();
}
void Recordset::CancelUpdate()
{
    state().cancelUpdate();
}
void Recordset::Delete()
{
    state().deleteRecord();
}

void Recordset::Close()
{
    if (m_state)
        m_state->close();
}

}  // namespace storage
