#include "core/storage/scan.h"

#include <algorithm>

#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {
namespace {

constexpr int firstRows = 16;
constexpr int mostRows = 1024;

}  // namespace

struct ScanState
{
    ScanState(const RecordsetState& rows, std::initializer_list<schema::FieldName> wanted)
        : database(rows.database), tableName(rows.table->name), names(wanted)
    {
        if (rows.index >= 0)
            indexName = rows.table->indexes[static_cast<size_t>(rows.index)].name;
        prepare();
    }

    Engine& engine() const
    {
        database->touch(false);
        return *database->engine;
    }
    void prepare();
    void fetch();
    void readBlock();
    bool isFull() const;
    void noteEnd();
    Value valueAt(const RowBlock& rows, int at, const ColumnLayout& of, int position) const;

    std::shared_ptr<DatabaseState> database;
    QString tableName;
    QString indexName;
    std::vector<schema::FieldName> names;

    std::shared_ptr<const TableDefinition> table;
    int index = -1;
    quint64 definitions = 0;
    std::vector<int> keyFields;
    // The fields named stand in the same columns of both. The key of a block's last record alone is
    // wanted, so that most blocks come without keys.
    std::shared_ptr<const ColumnLayout> lean;
    std::shared_ptr<const ColumnLayout> withKeys;
    bool hasKeys = false;         // the block in hand
    bool isLast = false;          // nothing follows it
    std::vector<size_t> columns;  // of the fields named

    RowBlock block;
    RowBlock last;
    int row = 0;
    int limit = firstRows;
    std::vector<Value> key;
    RecordId id = 0;
};

// Finds everything by name in the table's definition as it is.
void ScanState::prepare()
{
    definitions = engine().version().definitions;
    table = engine().table(tableName);
    if (!table)
        fail(ErrorNumber::TableNotFound, tableName);
    index = indexName.isEmpty() ? -1 : table->indexPosition(indexName);
    if (index < 0 && !indexName.isEmpty())
        fail(ErrorNumber::IndexNotFound, indexName);
    std::vector<int> keysNow;
    if (index >= 0)
        for (const QString& field : table->indexes[static_cast<size_t>(index)].fields)
            keysNow.push_back(table->fieldPosition(field));
    if (id != 0 && keysNow.size() != key.size())
        fail(ErrorNumber::IndexNotFound, indexName);
    keyFields = keysNow;
    std::vector<int> wanted;
    for (const schema::FieldName name : names) {
        const int position = table->fieldPosition(name);
        if (position < 0)
            fail(ErrorNumber::NotInCollection,
                 QString::fromLatin1(name.text().data(),
                                     static_cast<qsizetype>(name.text().size())));
        wanted.push_back(position);
    }
    lean = layoutWith(nullptr, table->fields.size(), wanted);
    columns.clear();
    for (const int position : wanted)
        columns.push_back(static_cast<size_t>(lean->columnOf[static_cast<size_t>(position)]));
    withKeys = layoutWith(lean.get(), table->fields.size(), keyFields);
}

// The block that goes on from the key.
void ScanState::readBlock()
{
    for (bool again = false;; again = true) {
        try {
            const auto plan = engine().plan(table, index, (hasKeys ? withKeys : lean)->columns);
            engine().fetch(*plan, Direction::Forward, {.key = key, .id = id}, limit, block);
        } catch (const StorageError& error) {
            if (again || error.errorNumber() != ErrorNumber::Internal ||
                engine().version().definitions == definitions)
                throw;
            prepare();
            continue;
        }
        if (again || block.rowCount() == 0 || block.version.definitions == definitions)
            break;
        prepare();
    }
}

void ScanState::fetch()
{
    row = 0;
    hasKeys = false;
    readBlock();
    if (isFull() && !keyFields.empty()) {
        const auto plan = engine().plan(table, index, withKeys->columns);
        engine().fetchRecord(*plan, block.id(block.rowCount() - 1), last);
        // Somebody wrote meanwhile: the record's key may not be what it was in the block.
        if (last.rowCount() == 0 || last.version != block.version) {
            hasKeys = true;
            readBlock();
        }
    }
    noteEnd();
    limit = std::min(limit * 4, mostRows);
}

bool ScanState::isFull() const
{
    return block.rowCount() >= limit || block.byteCount() >= maximumBlockBytes;
}

Value ScanState::valueAt(const RowBlock& rows, int at, const ColumnLayout& of, int position) const
{
    const auto column = static_cast<size_t>(of.columnOf[static_cast<size_t>(position)]);
    return rows.value(at, column, table->fields[static_cast<size_t>(position)].type);
}

// Notes where the block ends, for the next one.
void ScanState::noteEnd()
{
    isLast = !isFull();
    if (isLast)
        return;
    const int end = block.rowCount() - 1;
    id = block.id(end);
    key.clear();
    for (const int field : keyFields)
        key.push_back(hasKeys ? valueAt(block, end, *withKeys, field)
                              : valueAt(last, 0, *withKeys, field));
}

Scan::Scan(const Recordset& rows, std::initializer_list<schema::FieldName> fields)
    : m_state(std::make_shared<ScanState>(rows.state(), fields))
{
}

bool Scan::start(std::span<const Value> keys)
{
    ScanState& scan = *m_state;
    if (keys.size() > scan.keyFields.size())
        fail(ErrorNumber::NotInCollection, QString::number(keys.size()));
    scan.id = 0;
    scan.limit = firstRows;
    scan.key.clear();
    for (size_t i = 0; i < keys.size(); ++i)
        scan.key.push_back(
            asKey(scan.table->fields[static_cast<size_t>(scan.keyFields[i])], keys[i]));
    scan.fetch();
    return scan.block.rowCount() > 0;
}

bool Scan::next()
{
    ScanState& scan = *m_state;
    if (++scan.row < scan.block.rowCount())
        return true;
    if (scan.isLast) {
        scan.block.start(0);
        return false;
    }
    scan.fetch();
    return scan.block.rowCount() > 0;
}

qint64 Scan::integer(size_t field) const
{
    return m_state->block.integer(m_state->row, m_state->columns[field]);
}

double Scan::number(size_t field) const
{
    return m_state->block.number(m_state->row, m_state->columns[field]);
}

std::string_view Scan::text(size_t field) const
{
    return m_state->block.text(m_state->row, m_state->columns[field]);
}

QString Scan::bookmark() const
{
    return QString::number(m_state->block.id(m_state->row));
}

}  // namespace storage
