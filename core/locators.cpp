#include "core/locators.h"

#include <QDir>
#include <QRegularExpression>

#include "core/storage/file_paths.h"

OpenTable openTable(const QString& path, const QString& table)
{
    static const QRegularExpression separators("[\\\\/]");
    QString bareName = path.section(separators, -1);
    if (bareName.endsWith(".mdb", Qt::CaseInsensitive))
        bareName.chop(4);
    OpenTable opened;
    opened.workspace = storage::CreateWorkspace("wks" + bareName);
    opened.database = opened.workspace.OpenDatabase(path);
    opened.rows = opened.database.OpenRecordset(table);
    return opened;
}

OpenTable openTable(const QString& folder, const QString& file, const QString& table)
{
    return openTable(storage::joinPath(folder, file), table);
}

OpenTable openTable(const Session& session, const QString& file, const QString& table)
{
    return openTable(folderOf(session, file), file, table);
}

OpenTable openLocator(const QString& name)
{
    return openTable(name + ".mdb", name);
}

bool locatorExists(const QString& name)
{
    return storage::pathExists(name + ".mdb");
}

QString locatorPath(const QString& name)
{
    return storage::joinPath(QDir::currentPath(), name + ".mdb");
}

QString trimmedPath(const storage::Recordset& rows)
{
    return rows["Path"].value().toString().trimmed();
}

QString missingUserDatabaseText(const QString& database)
{
    return "Cannot find the database file: " + database +
           "\nThis is a CRITICAL database and must be present\n"
           "for this application to run properly.";
}
