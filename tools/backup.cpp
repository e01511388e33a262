// A copy of an installation or a job site as of one moment, packed into one file.

#include <QCommandLineOption>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

#include "core/storage/file_paths.h"
#include "core/system.h"
#include "tools/archive.h"
#include "tools/backup_manifest.h"
#include "tools/command.h"
#include "tools/installation.h"
#include "tools/standstill.h"

namespace {

using schema::Place;

constexpr char mediaFolder[] = "ZORMedia";  // logos and sounds, plain files

struct Entry
{
    QString name;  // in the backup
    QString path;  // on this machine
};

struct Selection
{
    BackupManifest manifest;
    std::vector<Entry> databases;
    std::vector<Entry> plainFiles;
};

// Where a folder's files lie in the backup: as in the installation, or, for one that lies
// elsewhere, in a folder of its own.
QString folderInBackup(const SiteFolder& folder, qsizetype number)
{
    if (folder.place == Place::Program)
        return {};
    const QString relative = QDir::current().relativeFilePath(folder.path);
    if (!relative.startsWith("..") && !QDir::isAbsolutePath(relative) && relative != ".")
        return relative + '/';
    return QString("ELSEWHERE/%1-%2/").arg(number).arg(QFileInfo(folder.path).fileName().toUpper());
}

void selectFolder(Selection& selection, const SiteFolder& folder, const QString& inBackup)
{
    for (const SiteFile& file : filesOf(folder)) {
        if (!QFileInfo::exists(file.path))
            throw CommandFailure(shownPath(file.path) + " is missing; a backup without it would " +
                                 "be none.");
        selection.databases.push_back({inBackup + toText(file.definition->name), file.path});
    }
}

Selection selectInstallation(const Installation& installation)
{
    if (!installation.problems.isEmpty())
        throw CommandFailure(installation.problems.first());
    Selection selection;
    selection.manifest.kind = "installation";
    for (const SiteFolder& folder : installation.folders) {
        const QString inBackup = folderInBackup(folder, selection.manifest.folders.size());
        if (folder.place != Place::Program)
            selection.manifest.folders[folder.storedPath] = inBackup.chopped(1);
        selectFolder(selection, folder, inBackup);
    }
    const QString media = storage::nativePath(mediaFolder);
    QDirIterator files(media, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        selection.plainFiles.push_back({QDir::current().relativeFilePath(path), path});
    }
    return selection;
}

Selection selectJobSite(const SiteFolder& site)
{
    Selection selection;
    selection.manifest.kind = "job site";
    selectFolder(selection, site, {});
    return selection;
}

// The copies stand as of one moment: nobody writes between the first and the last. Packing, which
// takes longer, is done when the others may write again.
void copyDatabases(std::vector<Entry>& databases, const QString& toFolder, int waitSeconds)
{
    QStringList paths;
    for (const Entry& entry : databases)
        paths.append(entry.path);
    const Standstill standstill(paths, waitSeconds);
    for (size_t i = 0; i < databases.size(); ++i) {
        const QString copy = toFolder + '/' + QString::number(i);
        standstill.copy(databases[i].path, copy);
        databases[i].path = copy;
    }
}

void writeBackup(Selection& selection, const QString& path, int waitSeconds)
{
    // Beside the backup, where there must be room anyway.
    const QTemporaryDir copies(path + ".copies-XXXXXX");
    if (!copies.isValid())
        throw CommandFailure(path + ": " + copies.errorString());
    copyDatabases(selection.databases, copies.path(), waitSeconds);
    selection.manifest.madeAt = System::current().now().toString(Qt::ISODate);
    ArchiveWriter archive(path);
    for (const auto* entries : {&selection.databases, &selection.plainFiles})
        for (const Entry& entry : *entries) {
            archive.addFile(entry.name, entry.path);
            selection.manifest.files.append(entry.name);
        }
    archive.addContent(BackupManifest::entryName, selection.manifest.toJson());
    archive.finish();
}

}  // namespace

int runBackup(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Packs a copy of the installation in FOLDER into the new zip file FILE. All its databases\n"
        "are copied as of one moment; others may work meanwhile and wait for seconds at most.\n"
        "A backup that fails leaves no file.",
        {"FOLDER", "FILE"},
        {{"site", "Copy the files of this job site only.", "NAME"},
         {"wait", "How long to wait for others who are writing.", "SECONDS", "30"}});
    const QString path = QFileInfo(given[1]).absoluteFilePath();
    const auto wait = static_cast<int>(given.number("wait", 0, 3600));
    if (QFileInfo::exists(path))
        throw CommandFailure(path + " exists already.");
    enterInstallation(given[0]);
    const Installation installation = readInstallation();
    Selection selection = given.isSet("site")
                              ? selectJobSite(jobSiteNamed(installation, given.text("site")))
                              : selectInstallation(installation);
    writeBackup(selection, path, wait);
    say(QString("Packed %1 files into %2.").arg(selection.manifest.files.size()).arg(path));
    return exitDone;
}
