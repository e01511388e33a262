// The folders that a user can walk through to find a database folder, in the form in which paths
// are stored: below a drive letter with backslashes, otherwise as this system writes them.
#pragma once

#include <QString>
#include <QStringList>

struct Drive
{
    QString caption;
    QString root;  // stored form, ends in a separator
};

// The whole system, the home folder, the mounted volumes, and the drive letters that the
// installation maps; also those that cannot be reached now.
QList<Drive> drives();

bool canBeRead(const QString& folder);

// Names, sorted; empty for a folder that cannot be read.
QStringList foldersIn(const QString& folder);
QStringList filesIn(const QString& folder, const QString& pattern);  // "*.xls;*.xlsx"

// Blank for a drive's root.
QString parentFolder(const QString& folder);

// `path` as a place to begin at: the folder itself or the nearest one above it that can be read.
QString nearestFolder(const QString& path);
