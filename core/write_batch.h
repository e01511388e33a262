// Long runs over many rows: each write by itself would be made durable by itself, some milliseconds
// a row, and one transaction around all would keep other users out for its whole length. A batch
// commits between two rows, whenever it has some thousands of them or has held the file for some
// hundredths of a second: rows beside each other share pages, which are then written once. Whatever
// stops the run, the rows committed until then stay, each whole.
#pragma once

#include <QElapsedTimer>

#include "core/storage/workspace.h"

class WriteBatch
{
public:
    // When a batch is full. With the commit, other users wait a little longer than that.
    struct Limits
    {
        int rows = 2'000;
        int milliseconds = 80;
    };

    // The workspace must have no transaction of its own while the batch lives.
    explicit WriteBatch(storage::Workspace workspace) : WriteBatch(std::move(workspace), Limits())
    {
    }
    WriteBatch(storage::Workspace workspace, const Limits& limits)
        : m_workspace(std::move(workspace)), m_limits(limits)
    {
    }
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
    const Limits m_limits;
    QElapsedTimer m_held;
    int m_rows = 0;
    bool m_isOpen = false;
};
