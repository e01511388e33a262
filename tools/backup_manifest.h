// What a backup says about itself, in the entry vexsite.json.
#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

struct BackupManifest
{
    static constexpr char entryName[] = "vexsite.json";

    QString kind;       // "installation" or "job site"
    QString madeAt;     // date and time
    QStringList files;  // entries, with their folders
    // For an installation: each folder as the locators name it, and its folder in the backup.
    QMap<QString, QString> folders;

    QByteArray toJson() const;
    // Fails with CommandFailure for what is no manifest, or names files outside the backup.
    static BackupManifest fromJson(const QByteArray& json);
};
