#include "core/write_batch.h"

#include "core/storage/storage_error.h"

WriteBatch::~WriteBatch()
{
    if (!m_isOpen)
        return;
    try {
        m_workspace.Rollback();
    } catch (const storage::StorageError&) {
        // The workspace was closed, which has taken the rows back.
    }
}

void WriteBatch::begin()
{
    if (m_isOpen)
        return;
    m_workspace.BeginTrans();
    m_isOpen = true;
    m_rows = 0;
    m_held.start();
}

bool WriteBatch::added()
{
    if (++m_rows < m_limits.rows && m_held.elapsed() < m_limits.milliseconds)
        return false;
    commit();
    return true;
}

void WriteBatch::commit()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;  // a failed commit has rolled back
    m_workspace.CommitTrans();
}
