#include "core/write_batch.h"

#include "core/storage/storage_error.h"

namespace {

constexpr int mostRows = 2'000;
constexpr int mostMilliseconds = 80;  // with the commit, about what other users wait at the most

}  // namespace

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
    if (++m_rows < mostRows && m_held.elapsed() < mostMilliseconds)
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
