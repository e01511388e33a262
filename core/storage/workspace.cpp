#include "core/storage/workspace.h"

#include <QFileInfo>
#include <algorithm>

#include "core/storage/engine_pool.h"
#include "core/storage/file_paths.h"
#include "core/storage/recordset_state.h"
#include "core/storage/storage_error.h"

namespace storage {
namespace {

template <class State>
void dropExpired(std::vector<std::weak_ptr<State>>& list)
{
    std::erase_if(list, [](const std::weak_ptr<State>& item) { return item.expired(); });
}

// The extension is implied.
QString withExtension(const QString& path)
{
    const QString trimmed = path.trimmed();
    return QFileInfo(nativePath(trimmed)).suffix().isEmpty() ? trimmed + ".mdb" : trimmed;
}

// Whether the same file is open in this workspace once more, so that its transaction goes on.
bool isOpenTwice(const DatabaseState& database)
{
    const auto& databases = database.workspace->databases;
    return std::any_of(databases.begin(), databases.end(), [&](const auto& item) {
        const auto other = item.lock();
        return other && other.get() != &database && other->engine == database.engine;
    });
}

WorkspaceState& opened(const std::shared_ptr<WorkspaceState>& state)
{
    if (!state)
        fail(ErrorNumber::ClosedObject);
    return *state;
}

}  // namespace

WorkspaceState::~WorkspaceState()
{
    close();
}

void WorkspaceState::close()
{
    rollback();
    for (const auto& item : databases)
        if (const auto database = item.lock())
            Database(database).Close();
    databases.clear();
}

void WorkspaceState::rollback()
{
    for (const auto& engine : begun)
        if (engine->inTransaction())
            engine->rollback();
    begun.clear();
    inTransaction = false;
    for (const auto& item : databases)
        if (const auto database = item.lock())
            for (const auto& recordset : database->recordsets)
                if (const auto cursor = recordset.lock())
                    cursor->forgetFields();
}

void DatabaseState::touch(bool forWriting) const
{
    if (!engine)
        fail(ErrorNumber::ClosedObject);
    if (!workspace->inTransaction && !(forWriting && engine->inTransaction()))
        return;
    auto& begun = workspace->begun;
    if (std::find(begun.begin(), begun.end(), engine) != begun.end())
        return;
    if (engine->inTransaction())
        fail(ErrorNumber::Locked, engine->path());
    engine->begin();
    begun.push_back(engine);
}

bool Database::isOpen() const
{
    return m_state && m_state->engine;
}

Engine& Database::engine() const
{
    if (!isOpen())
        fail(ErrorNumber::ClosedObject);
    return *m_state->engine;
}

QString Database::Name() const
{
    return engine().path();
}

Recordset Database::OpenRecordset(const QString& table) const
{
    engine();
    auto recordset = std::make_shared<RecordsetState>(m_state, table);
    dropExpired(m_state->recordsets);
    m_state->recordsets.push_back(recordset);
    return Recordset(recordset);
}

storage::TableDefs Database::TableDefs() const
{
    engine();
    return storage::TableDefs(m_state);
}

void Database::Close()
{
    if (!isOpen())
        return;
    for (const auto& item : m_state->recordsets)
        if (const auto recordset = item.lock())
            recordset->close();
    m_state->recordsets.clear();
    if (!isOpenTwice(*m_state) && std::erase(m_state->workspace->begun, m_state->engine) > 0 &&
        m_state->engine->inTransaction())
        m_state->engine->rollback();
    m_state->engine.reset();
}

Workspace::Workspace(const QString& name) : m_state(std::make_shared<WorkspaceState>(name)) {}

QString Workspace::Name() const
{
    return opened(m_state).name;
}

namespace {

Database openIn(const std::shared_ptr<WorkspaceState>& workspace, std::shared_ptr<Engine> engine)
{
    auto database = std::make_shared<DatabaseState>();
    database->engine = std::move(engine);
    database->workspace = workspace.get();
    dropExpired(workspace->databases);
    workspace->databases.push_back(database);
    return Database(database);
}

}  // namespace

Database Workspace::OpenDatabase(const QString& path) const
{
    opened(m_state);
    return openIn(m_state, acquireEngine(nativePath(withExtension(path))));
}

Database Workspace::CreateDatabase(const QString& path) const
{
    opened(m_state);
    return openIn(m_state, createEngine(nativePath(withExtension(path))));
}

void Workspace::BeginTrans()
{
    opened(m_state).inTransaction = true;
}

void Workspace::CommitTrans()
{
    WorkspaceState& state = opened(m_state);
    if (!state.inTransaction)
        fail(ErrorNumber::TransactionMismatch);
    try {
        for (const auto& engine : state.begun)
            engine->commit();
    } catch (...) {
        state.rollback();
        throw;
    }
    state.begun.clear();
    state.inTransaction = false;
}

void Workspace::Rollback()
{
    WorkspaceState& state = opened(m_state);
    if (!state.inTransaction)
        fail(ErrorNumber::TransactionMismatch);
    state.rollback();
}

void Workspace::Close()
{
    if (m_state)
        m_state->close();
    m_state.reset();
}

Workspace CreateWorkspace(const QString& name, const QString& /*user*/, const QString& /*password*/)
{
    return Workspace(name);
}

}  // namespace storage
