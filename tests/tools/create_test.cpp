#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "core/keyed_access.h"
#include "core/schema/files.h"
#include "core/storage/file_paths.h"
#include "tests/tools/vexsite_run.h"
#include "tools/installation.h"
#include "tools/schema_page.h"

namespace {

using storage::Recordset;

QStringList columnOf(const QString& path, const QString& table, const QString& field)
{
    const storage::Workspace workspace = storage::CreateWorkspace("wksTEST");
    Recordset rows = workspace.OpenDatabase(path).OpenRecordset(table);
    QStringList values;
    if (rows.RecordCount() > 0)
        for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext())
            values.append(rows.fieldNamed(field).value().toString());
    return values;
}

TEST(Create, MakesAnInstallationThatTheProgramCanStartIn)
{
    const MadeInstallation installation;
    ASSERT_EQ(installation.made().exitCode, 0) << qPrintable(installation.made().errors);
    const auto column = [&](const char* file, const char* table, const char* field) {
        return columnOf(installation.file(file), table, field);
    };
    EXPECT_EQ(column("DBPATHS.mdb", "DBPATHS", "PATHNAME"), QStringList("SOUTH YARD"));
    EXPECT_EQ(column("DBPATHS.mdb", "DBTAGS", "DBTAG"), QStringList("2"));
    EXPECT_EQ(column("VEXPATH.mdb", "VEXPATH", "Path"),
              column("DBPATHS.mdb", "DBPATHS", "PathText"));
    EXPECT_EQ(column("ZORDATA/ZORNET/ZORNET.mdb", "USERLIST", "UserName"), QStringList("pat"));
    EXPECT_EQ(column("USERPATH.mdb", "USERPATH", "USERTAG"),
              column("ZORDATA/ZORNET/ZORNET.mdb", "USERLIST", "USERTAG"));
    EXPECT_EQ(column("ZORDATA/SOUTH_YARD/ZORVEX.mdb", "VEXCOUNTERS", "REQNO"), QStringList("1"));
    EXPECT_EQ(column("ZORDATA/SOUTH_YARD/ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE"),
              QStringList("8"));

    // Stored paths are in capitals and mean the same beside the program.
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(installation.folder()));
    for (const QString& stored : column("DBPATHS.mdb", "DBPATHS", "PathText") +
                                     column("NETPATH.mdb", "NETPATH", "Path") +
                                     column("USERPATH.mdb", "USERPATH", "Path")) {
        EXPECT_EQ(stored, stored.toUpper());
        EXPECT_TRUE(storage::pathExists(stored)) << qPrintable(stored);
    }
    QDir::setCurrent(before);
}

TEST(Create, FillsTheMasterDefinitionsFromTheSchema)
{
    const MadeInstallation installation;
    const QStringList codes =
        columnOf(installation.file("ZORDATA/ZORNET/ZORNET.mdb"), "USERACCESSITEMS", "UAICODE");
    for (const char* code : {"REQ01", "REQ02", "REQ03", "PO01", "PO02", "INV01", "INV02", "INC01",
                             "INC02", "GLC01", "VEN01", "VEN02", "MFG01", "MFG02", "PI01"})
        EXPECT_EQ(codes.count(code), 1) << code;
    EXPECT_EQ(columnOf(installation.file("ZORDEF.mdb"), "USERACCESSITEMS", "UAICODE"), codes);

    const storage::Workspace workspace = storage::CreateWorkspace("wksTEST");
    const storage::Database zordef = workspace.OpenDatabase(installation.file("ZORDEF.mdb"));
    Recordset fields = zordef.OpenRecordset("NEWDEF");
    EXPECT_FALSE(dnSeek(fields, "NEWDEF",
                        {{"DBNAME", "ZORVEX"}, {"TNAME", "RQILIST"}, {"FNAME", "UNITFACT"}})
                     .isEmpty());
    EXPECT_EQ(intOf(fields["FTYPE"]), 10);
    EXPECT_EQ(intOf(fields["FSIZE"]), 1);
    Recordset indexes = zordef.OpenRecordset("NEWINDEXES");
    EXPECT_FALSE(dnSeek(indexes, "NEWINDEXES",
                        {{"DBNAME", "MAIN"}, {"TNAME", "CCALIST"}, {"IName", "CCALIST"}})
                     .isEmpty());
    EXPECT_EQ(textOf(indexes["KEYSTRING"]), "CONOJOBNOCOSTCODEA");
    EXPECT_EQ(textOf(indexes["IKEY03"]), "COSTCODEA");
    EXPECT_EQ(trimmedTextOf(indexes["IKEY04"]), "");
}

TEST(Create, LeavesAnInstallationThatIsThereAlone)
{
    const MadeInstallation installation;
    const VexsiteRun again = vexsite({"create", installation.folder()});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.errors.contains("holds an installation"));
    EXPECT_EQ(columnOf(installation.file("DBPATHS.mdb"), "DBPATHS", "PATHNAME"),
              QStringList("SOUTH YARD"));
}

TEST(Site, GetsANumberOfItsOwn)
{
    const MadeInstallation installation;
    ASSERT_EQ(vexsite({"site", installation.folder(), "Harbor Bridge #2"}).exitCode, 0);
    EXPECT_EQ(columnOf(installation.file("DBPATHS.mdb"), "DBPATHS", "DBTAG"),
              (QStringList{"1", "2"}));
    EXPECT_EQ(columnOf(installation.file("DBPATHS.mdb"), "DBTAGS", "DBTAG"), QStringList("3"));
    EXPECT_EQ(vexsite({"check", installation.folder()}).exitCode, 0);

    // Taken as a name, and taken as a folder.
    EXPECT_EQ(vexsite({"site", installation.folder(), "harbor bridge #2"}).exitCode, 1);
    EXPECT_EQ(vexsite({"site", installation.folder(), "Harbor Bridge @2"}).exitCode, 1);
    EXPECT_EQ(columnOf(installation.file("DBPATHS.mdb"), "DBTAGS", "DBTAG"), QStringList("3"));
}

TEST(SchemaPage, IsTheOneInTheDocuments)
{
    QFile page(SCHEMA_PAGE);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(page.readAll()) == schemaPage())
        << "make it anew: vexsite schema --output docs/schema.md";
    EXPECT_EQ(vexsite({"schema"}).output, schemaPage());
}

}  // namespace
