#include "core/storage/file_paths.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace storage {
namespace {

// The entry of `folder` that `part` means; a blank folder is the root.
QString matchingEntry(const QString& folder, const QString& part)
{
    const QString exact = folder + '/' + part;
    if (QFileInfo::exists(exact))
        return exact;
    const QStringList entries =
        QDir(folder + '/')
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& entry : entries)
        if (entry.compare(part, Qt::CaseInsensitive) == 0)
            return folder + '/' + entry;
    return exact;
}

QString withDriveMapped(QString path)
{
    path.replace('\\', '/');
    const bool hasDrive = path.size() >= 2 && path[1] == ':' && path[0].isLetter();
    if (hasDrive)
        path = QDir::currentPath() + "/drives/" + path[0].toLower() + '/' + path.mid(2);
    return QDir::cleanPath(QDir::isAbsolutePath(path) ? path : QDir::currentPath() + '/' + path);
}

}  // namespace

QString nativePath(const QString& storedPath)
{
    const QString wanted = withDriveMapped(storedPath.trimmed());
    if (QFileInfo::exists(wanted))
        return wanted;
    // Folders that had to be searched are searched once; the answer is good while it exists.
    static QHash<QString, QString> known;
    const qsizetype cut = wanted.lastIndexOf('/');
    const QString folder = wanted.left(cut);
    QString found = QFileInfo::exists(folder) ? folder : known.value(folder);
    if (found.isEmpty() || !QFileInfo::exists(found)) {
        found.clear();
        for (const QString& part : folder.split('/', Qt::SkipEmptyParts))
            found = matchingEntry(found, part);
        if (QFileInfo::exists(found))
            known.insert(folder, found);
    }
    return matchingEntry(found, wanted.mid(cut + 1));
}

QString joinPath(const QString& folder, const QString& file)
{
    const QString trimmed = folder.trimmed();
    if (trimmed.isEmpty())
        return file;
    if (endsInSeparator(trimmed))
        return trimmed + file;
    const bool backslash = trimmed.contains('\\') || trimmed.endsWith(':');
    return trimmed + (backslash ? '\\' : '/') + file;
}

bool endsInSeparator(const QString& path)
{
    return path.endsWith('\\') || path.endsWith('/');
}

bool pathExists(const QString& storedPath)
{
    return !storedPath.trimmed().isEmpty() && QFileInfo::exists(nativePath(storedPath));
}

}  // namespace storage
