#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "core/storage/workspace.h"
#include "tests/tools/vexsite_run.h"

namespace {

class Check : public ::testing::Test
{
protected:
    template <class Change>
    void changeTables(const QString& file, Change change)
    {
        storage::Workspace workspace = storage::CreateWorkspace("wksTEST");
        const storage::Database database = workspace.OpenDatabase(m_installation.siteFile(file));
        change(database.TableDefs());
    }

    // Exactly these, in any order.
    void expectFindings(const QStringList& wanted)
    {
        const VexsiteRun run = vexsite({"check", m_installation.folder()});
        QStringList found = run.output.split('\n', Qt::SkipEmptyParts);
        QStringList sorted = wanted;
        found.sort();
        sorted.sort();
        EXPECT_EQ(found.join('\n').toStdString(), sorted.join('\n').toStdString());
        EXPECT_EQ(run.exitCode, wanted.isEmpty() ? 0 : 1);
    }

    // Damage differs in words with the place that is hit.
    void expectOneFileFound(const QString& file, const QString& words)
    {
        const VexsiteRun run = vexsite({"check", m_installation.folder()});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.output.contains(words)) << qPrintable(run.output);
        for (const QString& line : run.output.split('\n', Qt::SkipEmptyParts))
            EXPECT_TRUE(line.contains(file)) << qPrintable(line);
    }

    MadeInstallation m_installation;
};

TEST_F(Check, FindsNothingInANewInstallation)
{
    expectFindings({});
}

TEST_F(Check, FindsEveryDifferenceFromTheSchema)
{
    changeTables("ZORVEX.mdb", [](storage::TableDefs tables) {
        tables["GLCODES"].Indexes().Delete("GLDESC");
        tables["VENDORS"].Fields().Delete("EMAIL");
        tables["VENDORS"].Fields().Append(
            storage::CreateField("TWITTER", storage::FieldType::Text, 15));
        tables["MCLIST"].Indexes().Delete("SHIPPERCODE");
        tables["MCLIST"].Indexes().Append(storage::CreateIndex("SHIPPERCODE", {"MCNAME"}));
        tables["POLIST"].Indexes().Delete("PONO");
        tables["POLIST"].Indexes().Append(storage::CreateIndex("PONO", {"PONO"}, false));
        tables["INVCODES"].Fields().Delete("UOM");
        tables["INVCODES"].Fields().Append(
            storage::CreateField("UOM", storage::FieldType::Text, 5));
        tables["REQTYPES"].Indexes().Append(storage::CreateIndex("RTNAME", {"RTNAME"}));
        tables.Delete("ISSUED");
        storage::TableDef extra = storage::CreateTableDef("NOTES");
        extra.Fields().Append(storage::CreateField("A", storage::FieldType::Long));
        tables.Append(extra);
    });
    const QString file = "ZORDATA/SOUTH_YARD/ZORVEX.mdb: ";
    expectFindings({
        file + "GLCODES: the index GLDESC is missing",
        file + "VENDORS.EMAIL: the field is missing",
        file + "VENDORS.TWITTER: the schema has no such field",
        file + "MCLIST: the index SHIPPERCODE is (MCNAME), should be (SHIPPERCODE)",
        file + "POLIST: the index PONO is (PONO), should be (PONO) unique",
        file + "INVCODES.UOM: is type 10 size 5, should be type 10 size 3",
        file + "REQTYPES: the schema has no index RTNAME",
        file + "ISSUED: the table is missing",
        file + "NOTES: the schema has no such table",
    });
}

TEST_F(Check, FindsMissingFilesAndFolders)
{
    QFile::remove(m_installation.siteFile("DOWNLOAD.mdb"));
    QDir(m_installation.file("ZORUSER/PAT")).removeRecursively();
    expectFindings({"ZORDATA/SOUTH_YARD/DOWNLOAD.mdb: the file is missing",
                    "ZORUSER/PAT: the folder is missing"});
}

TEST_F(Check, FindsDamage)
{
    QFile file(m_installation.siteFile("ZORVEX.mdb"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() / 2));
    file.write(QByteArray(20'000, '\x5A'));
    file.close();
    expectOneFileFound("ZORVEX.mdb", "damaged");
}

TEST_F(Check, FindsATruncatedFile)
{
    QFile file(m_installation.siteFile("MAIN.mdb"));
    ASSERT_TRUE(file.resize(file.size() / 3));
    expectOneFileFound("MAIN.mdb", "(3049)");
}

TEST_F(Check, FindsForeignFiles)
{
    QFile file(m_installation.siteFile("ZORSYS.mdb"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("This is a letter to my aunt. ");
    file.write(QByteArray(4000, 'x'));
    file.close();
    expectOneFileFound("ZORSYS.mdb", "(3343)");
}

TEST_F(Check, FindsLocatorsThatLeadNowhere)
{
    storage::Workspace workspace = storage::CreateWorkspace("wksTEST");
    storage::Recordset row =
        workspace.OpenDatabase(m_installation.file("VEXPATH.mdb")).OpenRecordset("VEXPATH");
    row.MoveFirst();
    row.Edit();
    row["Path"] = "ZORDATA\\ELSEWHERE";
    row.Update();
    expectFindings({"VEXPATH.mdb: ZORDATA\\ELSEWHERE is the folder of no job site"});
}

TEST_F(Check, LooksAtOneJobSiteOnly)
{
    ASSERT_EQ(vexsite({"site", m_installation.folder(), "Other"}).exitCode, 0);
    QFile::remove(m_installation.siteFile("ZORVEX.mdb"));
    EXPECT_EQ(vexsite({"check", m_installation.folder(), "--site", "other"}).exitCode, 0);
    EXPECT_EQ(vexsite({"check", m_installation.folder(), "--site", "south yard"}).exitCode, 1);
    EXPECT_EQ(vexsite({"check", m_installation.folder(), "--site", "nobody's"}).exitCode, 1);
}

}  // namespace
