// Long runs over many rows: each write by itself would be made durable by itself, some milliseconds
// a row, and one transaction around all would keep other users out for its whole length. A batch
// commits between two rows, whenever it has two thousand of them or has held the file for some
// hundredths of a second: rows beside each other share pages, which are then written once. Whatever
// stops the run, the rows committed until then stay, each whole.
#pragma once

#include <QElapsedTimer>

#include "core/storage/workspace.h"

class WriteBatch
{
public:
    // The workspace must have no transaction of its own while the batch lives.
    explicit WriteBatch(storage::Workspace workspace) : m_workspace(std::move(workspace)) {}
    // Takes back what was written since the last commit.
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;

    // Before each row: what follows is part of the batch.
    void begin();
    // After each row. True when the batch was full and has been committed.
    bool added();
    // Commits what is open.
    void commit();

private:
    storage::Workspace m_workspace;
    QElapsedTimer m_held;
    int m_rows = 0;
    bool m_isOpen = false;
};
