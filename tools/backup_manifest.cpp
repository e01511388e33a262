#include "tools/backup_manifest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include "tools/command.h"

namespace {

// Whoever gives us a backup must not be able to write outside the folder it is restored to.
bool staysInside(const QString& name)
{
    const QString clean = QDir::cleanPath(name);
    return !clean.isEmpty() && clean == name && !QDir::isAbsolutePath(clean) &&
           !clean.startsWith("..") && !clean.contains('\\') && clean != ".";
}

}  // namespace

QByteArray BackupManifest::toJson() const
{
    QJsonObject mapped;
    for (auto folder = folders.begin(); folder != folders.end(); ++folder)
        mapped[folder.key()] = folder.value();
    const QJsonObject object{{"kind", kind},
                             {"madeAt", madeAt},
                             {"files", QJsonArray::fromStringList(files)},
                             {"folders", mapped}};
    return QJsonDocument(object).toJson();
}

BackupManifest BackupManifest::fromJson(const QByteArray& json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    BackupManifest manifest;
    manifest.kind = object["kind"].toString();
    manifest.madeAt = object["madeAt"].toString();
    for (const QJsonValue& file : object["files"].toArray())
        manifest.files.append(file.toString());
    const QJsonObject folders = object["folders"].toObject();
    for (auto folder = folders.begin(); folder != folders.end(); ++folder)
        manifest.folders[folder.key()] = folder.value().toString();

    if ((manifest.kind != "installation" && manifest.kind != "job site") ||
        manifest.files.isEmpty())
        throw CommandFailure("This is no backup of vexsite.");
    for (const QString& file : manifest.files)
        if (!staysInside(file))
            throw CommandFailure("The backup names a file outside of itself: " + file);
    return manifest;
}
