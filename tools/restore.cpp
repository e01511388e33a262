#include <QCommandLineOption>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

#include "core/keyed_access.h"
#include "core/storage/engine_pool.h"
#include "core/storage/storage_error.h"
#include "tools/archive.h"
#include "tools/backup_manifest.h"
#include "tools/check.h"
#include "tools/command.h"
#include "tools/installation.h"

namespace {

// Fields that name folders of the installation.
struct PathField
{
    const char* file;
    const char* table;
    schema::FieldName field;
};
constexpr PathField pathFields[] = {
    {"VEXPATH.mdb", "VEXPATH", "Path"},       {"NETPATH.mdb", "NETPATH", "Path"},
    {"USERPATH.mdb", "USERPATH", "Path"},     {"DBPATHS.mdb", "DBPATHS", "PathText"},
    {"ZORUSER.mdb", "DATABASES", "PathText"},
};

const schema::File* definitionOfFile(const QString& name)
{
    const QString fileName = name.section('/', -1);
    for (const schema::File& file : schema::files)
        if (fileName.compare(toText(file.name), Qt::CaseInsensitive) == 0)
            return &file;
    return nullptr;
}

void extractAll(const ArchiveReader& archive, const BackupManifest& manifest, const QString& folder)
{
    for (const QString& name : manifest.files) {
        const QString path = folder + '/' + name;
        if (!QDir().mkpath(QFileInfo(path).path()))
            throw CommandFailure("Cannot make the folder " + QFileInfo(path).path() + '.');
        archive.extract(name, path);
    }
}

void renamePaths(const QString& path, const PathField& place, const BackupManifest& manifest)
{
    storage::Workspace workspace = storage::CreateWorkspace("wksPATH");
    storage::Recordset rows = workspace.OpenDatabase(path).OpenRecordset(place.table);
    if (rows.RecordCount() == 0)
        return;
    for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext()) {
        const QString stored = trimmedTextOf(rows[place.field]);
        const auto known = manifest.folders.find(stored);
        if (known == manifest.folders.end())
            continue;
        const QString wanted = QString(known.value()).replace('/', '\\');
        if (wanted == stored)
            continue;
        rows.Edit();
        rows[place.field] = wanted;
        rows.Update();
    }
}

// A restored installation must not lead its users into the folders of the one it was copied from.
void renameFolders(const BackupManifest& manifest, const QString& folder)
{
    for (const QString& name : manifest.files)
        for (const PathField& place : pathFields)
            if (name.section('/', -1) == place.file)
                renamePaths(folder + '/' + name, place, manifest);
}

QStringList findingsInAll(const BackupManifest& manifest, const QString& folder)
{
    QStringList findings;
    for (const QString& name : manifest.files)
        if (const schema::File* definition = definitionOfFile(name))
            for (const QString& finding : findingsIn({definition, folder + '/' + name, true}))
                findings.append(name + ": " + finding);
    return findings;
}

void refuseToOverwrite(const BackupManifest& manifest, const QString& folder)
{
    for (const QString& name : manifest.files)
        if (QFileInfo::exists(folder + '/' + name))
            throw CommandFailure(folder + '/' + name + " exists already.");
}

// A journal that a killed writer left belongs to the file that goes, and would be played back into
// the new one. Opening the old file plays it back where it belongs.
void settleJournal(const QString& path)
{
    try {
        const auto engine = storage::acquireEngine(path);
        engine->begin();
        engine->rollback();
    } catch (const storage::StorageError& error) {
        if (error.errorNumber() == storage::ErrorNumber::Locked)
            throw CommandFailure(path + " is in use.");
        QFile::remove(path + "-journal");
    }
    storage::closeIdleEngines();
}

void putInPlace(const BackupManifest& manifest, const QString& from, const QString& to)
{
    storage::closeIdleEngines();
    for (const QString& name : manifest.files)
        if (QFileInfo::exists(to + '/' + name) && definitionOfFile(name))
            settleJournal(to + '/' + name);
    for (const QString& name : manifest.files) {
        const QString path = to + '/' + name;
        if (!QDir().mkpath(QFileInfo(path).path()) ||
            std::rename(QFile::encodeName(from + '/' + name).constData(),
                        QFile::encodeName(path).constData()) != 0)
            throw CommandFailure("Cannot put " + path + " in its place.");
    }
}

}  // namespace

int runRestore(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Unpacks the backup FILE into FOLDER and checks what it holds: an installation into the\n"
        "installation's folder, a job site into the job site's own. Everything is unpacked and\n"
        "read before the first file is put in its place. Nobody may work in files that are\n"
        "replaced.",
        {"FILE", "FOLDER"}, {{"force", "Replace files that exist."}});
    const QString folder = QDir(given[1]).absolutePath();
    const ArchiveReader archive(QFileInfo(given[0]).absoluteFilePath());
    const BackupManifest manifest =
        BackupManifest::fromJson(archive.content(BackupManifest::entryName));
    if (!given.isSet("force"))
        refuseToOverwrite(manifest, folder);
    if (!QDir().mkpath(folder))
        throw CommandFailure("Cannot make the folder " + folder + '.');

    const QTemporaryDir unpacked(folder + "/unpacked-XXXXXX");  // in the same file system
    if (!unpacked.isValid())
        throw CommandFailure(folder + ": " + unpacked.errorString());
    extractAll(archive, manifest, unpacked.path());
    renameFolders(manifest, unpacked.path());
    const QStringList findings = findingsInAll(manifest, unpacked.path());
    putInPlace(manifest, unpacked.path(), folder);

    for (const QString& finding : findings)
        say(finding);
    say(QString("Restored %1 files of the %2 of %3 to %4.")
            .arg(manifest.files.size())
            .arg(manifest.kind, manifest.madeAt, folder));
    return findings.isEmpty() ? exitDone : exitFailed;
}
