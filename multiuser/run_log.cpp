#include "multiuser/run_log.h"

#include "core/storage/file_paths.h"
#include "core/zap.h"

namespace {
constexpr char userDatabase[] = "ZORUSER.mdb";
constexpr qsizetype lineLength = 255;  // of REMARK
}  // namespace

RunLog::RunLog(const QString& userPath, const QString& table)
    : m_userPath(userPath),
      m_table(table),
      m_workspace(storage::CreateWorkspace("wksLOG")),
      m_database(m_workspace.OpenDatabase(storage::joinPath(userPath, userDatabase)))
{
    open();
}

void RunLog::open()
{
    m_rows = m_database.OpenRecordset(m_table);
}

bool RunLog::empty()
{
    const bool emptied = dnZap(m_userPath, userDatabase, m_rows);
    if (emptied)
        open();
    return emptied;
}

void RunLog::add(const QString& line)
{
    qsizetype done = 0;
    do {
        m_rows.AddNew();
        m_rows["REMARK"] = line.mid(done, lineLength);
        m_rows.Update();
        done += lineLength;
    } while (done < line.size());
}
