// The small files in the current directory, beside the program, that tell where everything else
// is; each holds one table of its own name. They are opened where they are used and closed at once,
// so that an administrator can replace them.
#pragma once

#include <QString>

#include "core/session.h"
#include "core/storage/workspace.h"

// Folders that are taken where an installation has not named its own.
namespace defaults {
inline constexpr char jobSitePath[] = "C:\\ZORDATA\\ZORVEX";
inline constexpr char firstSiteName[] = "JOB SITE 1";
inline constexpr char firstSitePath[] = "C:\\Zorvane Suite\\ZORDATA\\ZORVEX";
inline constexpr char networkPath[] = "C:\\ZORDATA\\ZORNET";
inline constexpr char userPath[] = "C:\\Zorvane Suite\\ZORUSER";
inline constexpr char shownUserPath[] = "C:\\ZORUSER";  // of a user who has no row yet
}  // namespace defaults

// An open table with the file that it is in. All are closed when it goes.
struct OpenTable
{
    storage::Workspace workspace;
    storage::Database database;
    storage::Recordset rows;  // on the first record in physical order
};

// Opens `path` in a workspace named `wks` + the file's bare name, and a table of it. Fails as the
// store does.
OpenTable openTable(const QString& path, const QString& table);
// The same of a file in a folder; a blank folder is the current directory.
OpenTable openTable(const QString& folder, const QString& file, const QString& table);
// The same of a file of the system, such as "ZORVEX.mdb", where it lies for this run.
OpenTable openTable(const Session& session, const QString& file, const QString& table);

// `name` is the file without its extension: VEXPATH, DBPATHS, USERPATH, NETPATH.
OpenTable openLocator(const QString& name);
bool locatorExists(const QString& name);
// Full path, for messages.
QString locatorPath(const QString& name);

// The folder in the table's `Path`, trimmed; `rows` has to stand on a record.
QString trimmedPath(const storage::Recordset& rows);

// What is told of a user settings folder in which `database`, its ZORUSER.mdb, is not there.
QString missingUserDatabaseText(const QString& database);
