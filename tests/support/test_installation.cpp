#include "tests/support/test_installation.h"

#include <QDir>
#include <QFile>

#include "core/schema/files.h"
#include "tools/installation.h"
#include "tools/new_files.h"

namespace {

const schema::File& schemaFile(const QString& name)
{
    for (const schema::File& file : schema::files)
        if (toText(file.name) == name)
            return file;
    qFatal("no file %s in the schema", qUtf8Printable(name));
}

const char* folderOf(schema::Place place)
{
    switch (place) {
        case schema::Place::Program:
            return "program";
        case schema::Place::Network:
            return "network";
        case schema::Place::User:
            return "user";
        case schema::Place::JobSite:
        case schema::Place::Sibling:
            break;
    }
    return "site";
}

// In memory where the machine has such a place: the tests commit often.
QString folderTemplate()
{
    return QFileInfo("/dev/shm").isWritable() ? "/dev/shm/vexley-XXXXXX"
                                              : QDir::tempPath() + "/vexley-XXXXXX";
}

// Empty files of the whole schema, made once a process and copied for each installation.
const QString& emptyFiles()
{
    static const QTemporaryDir folder(folderTemplate());
    static const QString path = [] {
        for (const auto place :
             {schema::Place::Program, schema::Place::JobSite, schema::Place::Network,
              schema::Place::User, schema::Place::Sibling})
            createFiles(place, folder.path());
        return folder.path();
    }();
    return path;
}

}  // namespace

TestInstallation::TestInstallation()
    : m_folder(folderTemplate()), m_directoryBefore(QDir::currentPath())
{
    for (const char* folder : {"program", "site", "network", "user"})
        makeFolder(folder);
    for (const schema::File& file : schema::files)
        if (file.place != schema::Place::Sibling)
            QFile::copy(emptyFiles() + '/' + toText(file.name), pathOf(toText(file.name)));
    QDir::setCurrent(programFolder());

    addRow("VEXPATH.mdb", "VEXPATH", {{"Path", siteFolder()}});
    addRow("DBPATHS.mdb", "DBPATHS",
           {{"PATHNAME", siteName}, {"PathText", siteFolder()}, {"DBTAG", 1}});
    addRow("DBPATHS.mdb", "DBTAGS", {{"DBTAG", 2}});
    addRow("NETPATH.mdb", "NETPATH", {{"Path", networkFolder()}});
    addRow("USERPATH.mdb", "USERPATH", {{"USERTAG", 1}, {"Path", userFolder()}});
    addRow("ZORNET.mdb", "USERLIST", {{"USERTAG", 1}, {"UserName", userName}});
    addRow("ZORNET.mdb", "NETTAGS", {{"USERTAG", 2}});
    addRow("ZORSYS.mdb", "SYSSETTINGS", {{"JOBNOTYPE", "C"}, {"JOBNOSIZE", 8}});
}

TestInstallation::~TestInstallation()
{
    QDir::setCurrent(m_directoryBefore);
}

QString TestInstallation::pathOf(const QString& file) const
{
    return m_folder.filePath(QString(folderOf(schemaFile(file).place)) + '/' + file);
}

QString TestInstallation::makeFolder(const QString& name) const
{
    QDir(m_folder.path()).mkpath(name);
    return m_folder.filePath(name);
}

QString TestInstallation::copyFolder(const QString& from, const QString& name) const
{
    const QString to = makeFolder(name);
    for (const QString& file : QDir(from).entryList(QDir::Files))
        QFile::copy(from + '/' + file, to + '/' + file);
    return to;
}

void TestInstallation::removeFile(const QString& file) const
{
    QFile::remove(pathOf(file));
}

void TestInstallation::makeMarker(const QString& folder, const QString& name) const
{
    QFile marker(folder + '/' + name);
    if (!marker.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qUtf8Printable(marker.fileName()));
}

void TestInstallation::removeMarker(const QString& folder, const QString& name) const
{
    QFile::remove(folder + '/' + name);
}

OpenTable TestInstallation::open(const QString& file, const QString& table) const
{
    const QString path = pathOf(file);
    if (!QFile::exists(path))  // of a sibling module
        QFile::copy(emptyFiles() + '/' + file, path);
    return openTable(path, table);
}

void TestInstallation::addRow(const QString& file, const QString& table, NewRow values) const
{
    OpenTable opened = open(file, table);
    opened.rows.AddNew();
    for (const auto& [field, value] : values)
        opened.rows.fieldNamed(field) = value;
    opened.rows.Update();
}

void TestInstallation::emptyTable(const QString& file, const QString& table) const
{
    OpenTable opened = open(file, table);
    while (opened.rows.RecordCount() > 0) {
        opened.rows.MoveFirst();
        opened.rows.Delete();
    }
}

int TestInstallation::rowCount(const QString& file, const QString& table) const
{
    return open(file, table).rows.RecordCount();
}

storage::Value TestInstallation::first(const QString& file, const QString& table,
                                       const QString& field) const
{
    return open(file, table).rows.fieldNamed(field).value();
}

void TestInstallation::setFirst(const QString& file, const QString& table, const QString& field,
                                const storage::Value& value) const
{
    OpenTable opened = open(file, table);
    opened.rows.Edit();
    opened.rows.fieldNamed(field) = value;
    opened.rows.Update();
}
