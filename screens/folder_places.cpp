#include "screens/folder_places.h"

#include <QDir>
#include <QStorageInfo>

#include "core/storage/file_paths.h"

namespace {

bool beginsWithLetter(const QString& folder)
{
    return folder.size() >= 2 && folder[0].isLetter() && folder[1] == ':';
}

QString withSeparator(const QString& folder)
{
    return folder.endsWith('/') ? folder : folder + '/';
}

// Volumes that hold people's files, not those of the running system.
bool isOfInterest(const QStorageInfo& volume)
{
    const QString root = volume.rootPath();
    if (!volume.isValid() || root == "/")
        return false;
    for (const char* system : {"/proc", "/sys", "/dev", "/run/user", "/boot", "/snap", "/etc"})
        if (root == system || root.startsWith(QString(system) + '/'))
            return false;
    return QFileInfo(root).isDir();
}

QList<Drive> mappedLetters()
{
    QList<Drive> found;
    // System: links that lead nowhere now are listed as well.
    const QStringList entries = QDir("drives").entryList(
        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& entry : entries)
        if (entry.size() == 1 && entry[0].isLetter())
            found.append({entry.toUpper() + ":", entry.toUpper() + ":\\"});
    return found;
}

QStringList entriesOf(const QString& folder, const QStringList& patterns, QDir::Filters filters)
{
    return QDir(storage::nativePath(folder))
        .entryList(patterns, filters | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

}  // namespace

QList<Drive> drives()
{
    QList<Drive> all = {{"/", "/"}, {"Home folder", withSeparator(QDir::homePath())}};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (isOfInterest(volume))
            all.append({volume.rootPath(), withSeparator(volume.rootPath())});
    return all + mappedLetters();
}

bool canBeRead(const QString& folder)
{
    const QFileInfo info(storage::nativePath(folder));
    return info.isDir() && info.isReadable() && info.isExecutable();
}

QStringList foldersIn(const QString& folder)
{
    return entriesOf(folder, {}, QDir::Dirs);
}

QStringList filesIn(const QString& folder, const QString& pattern)
{
    return entriesOf(folder, pattern.split(';'), QDir::Files);
}

QString parentFolder(const QString& folder)
{
    QString path = folder;
    if (storage::endsInSeparator(path))
        path.chop(1);
    const qsizetype cut = qMax(path.lastIndexOf('/'), path.lastIndexOf('\\'));
    if (cut < 0)
        return {};
    // The root keeps its separator.
    const bool atRoot = cut == 0 || (cut == 2 && beginsWithLetter(path));
    return path.left(atRoot ? cut + 1 : cut);
}

QString nearestFolder(const QString& path)
{
    QString folder = path.trimmed();
    if (!beginsWithLetter(folder))
        folder = storage::nativePath(folder);
    while (!folder.isEmpty() && !canBeRead(folder))
        folder = parentFolder(folder);
    return folder.isEmpty() ? QDir::homePath() : folder;
}
