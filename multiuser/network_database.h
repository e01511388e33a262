// ZORNET.mdb, opened for one task and closed at once, so that an administrator can maintain it.
#pragma once

#include <optional>

#include "core/storage/workspace.h"

struct NetworkDatabase
{
    storage::Workspace workspace = storage::CreateWorkspace("wksNET");
    storage::Database database;

    explicit NetworkDatabase(const QString& path) : database(workspace.OpenDatabase(path)) {}
};

// Where it is; nothing without NETPATH.mdb, or after the box of dnNetPath where it should be there.
std::optional<QString> networkDatabasePath();
