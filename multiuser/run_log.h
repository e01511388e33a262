// The logs of long runs in the user's own database: what a utility did, and what went wrong in an
// upload. A run empties its log first and adds a line for each event; the order is that of entry.
// Failures of the store are the caller's.
#pragma once

#include "core/storage/workspace.h"

class RunLog
{
public:
    // Empties the log. False after a failure, which a box has told.
    bool empty();
    // A line too long for the table goes on in further ones.
    void add(const QString& line);
    bool isEmpty() const { return m_rows.RecordCount() == 0; }

    // The lines in their order, for whoever shows them.
    storage::Recordset& rows() { return m_rows; }

protected:
    // `userPath` is the folder of the user's database.
    RunLog(const QString& userPath, const QString& table);

private:
    void open();

    QString m_userPath;
    QString m_table;
    storage::Workspace m_workspace;
    storage::Database m_database;
    storage::Recordset m_rows;
};

class ActivityLog : public RunLog
{
public:
    explicit ActivityLog(const QString& userPath) : RunLog(userPath, "ACTIVITYLOG") {}
};

class ErrorLog : public RunLog
{
public:
    explicit ErrorLog(const QString& userPath) : RunLog(userPath, "ERRORS") {}
};
