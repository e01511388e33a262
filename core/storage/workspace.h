// A session with the store, and the databases open in it. Screens open one workspace a file, named
// `wks` + file, in their load step and close it in their unload step.
#pragma once

#include <QString>
#include <memory>

#include "core/storage/recordset.h"
#include "core/storage/table_definitions.h"

namespace storage {

class Engine;
struct DatabaseState;
struct WorkspaceState;

// An open file. A copy is the same open file; a default one is closed.
class Database
{
public:
    Database() = default;
    explicit Database(std::shared_ptr<DatabaseState> state) : m_state(std::move(state)) {}

    bool isOpen() const;
    QString Name() const;  // native path

    // A handle on the first record in physical order, no index set. TableNotFound for none.
    Recordset OpenRecordset(const QString& table) const;

    storage::TableDefs TableDefs() const;

    // Closes the recordsets opened from it, too. Closing twice does no harm.
    void Close();

    // The engine below, for tools that copy and check files.
    Engine& engine() const;

private:
    std::shared_ptr<DatabaseState> m_state;
};

// A copy is the same workspace. What is open in it is closed when the last copy goes.
class Workspace
{
public:
    Workspace() = default;
    explicit Workspace(const QString& name);

    bool isOpen() const { return m_state != nullptr; }
    QString Name() const;

    // `path` as stored or native, with or without the extension .mdb. Errors: FileNotFound,
    // PathNotValid, CannotOpen, UnknownFormat, Damaged.
    Database OpenDatabase(const QString& path) const;
    // Makes a new, empty file. DatabaseExists and what writing a file can meet.
    Database CreateDatabase(const QString& path) const;

    // A transaction over the databases of this workspace. Each takes its writer's turn when it is
    // first touched, read or written, so that what is read inside is what is written over. Other
    // workspaces of this process cannot write to these files meanwhile, but they do read what is not
    // committed yet: all share one connection a file. Files are committed one after the other.
    void BeginTrans();
    // A failed commit has rolled back. TransactionMismatch without BeginTrans.
    void CommitTrans();
    void Rollback();

    // Rolls back an open transaction and closes what is inside. Closing twice does no harm.
    void Close();

private:
    std::shared_ptr<WorkspaceState> m_state;
};

// The program logs in as "admin" with an empty password everywhere; no file is protected.
Workspace CreateWorkspace(const QString& name, const QString& user = "admin",
                          const QString& password = {});

}  // namespace storage
