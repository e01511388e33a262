// Which files an installation is made of, and where its locator files say they are. The current
// directory is the installation's folder throughout.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "core/schema/files.h"

inline QString toText(std::string_view view)
{
    return QString::fromLatin1(view.data(), static_cast<qsizetype>(view.size()));
}

// A folder in which files of one place lie.
struct SiteFolder
{
    schema::Place place;
    QString storedPath;  // as its locator row has it; blank for the program's own folder
    QString path;        // native
    QString name;        // of a job site; blank for the others
};

// One database file that belongs into a folder.
struct SiteFile
{
    const schema::File* definition;
    QString path;
    bool required;  // files of sibling modules may be missing
};

struct Installation
{
    std::vector<SiteFolder> folders;  // the program's first
    QStringList problems;             // of the locator files, a line each
};

// Reads the locator files; what cannot be read is told in `problems`.
Installation readInstallation();

// The job site of that name, case-blind, out of the installation. Fails when there is none.
SiteFolder jobSiteNamed(const Installation& installation, const QString& name);

// The files that are or should be in the folder. A sibling's file is named only where it exists.
std::vector<SiteFile> filesOf(const SiteFolder& folder);

// How a file is named to the user: relative to the installation where it lies in it.
QString shownPath(const QString& path);
