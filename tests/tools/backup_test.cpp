#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "core/storage/engine_pool.h"
#include "core/storage/workspace.h"
#include "tests/tools/vexsite_run.h"

namespace {

using storage::Recordset;

class Backup : public ::testing::Test
{
protected:
    Recordset open(const QString& path, const QString& table)
    {
        return m_workspace.OpenDatabase(path).OpenRecordset(table);
    }

    void addShipTo(const QString& path, const QString& text)
    {
        Recordset rows = open(path, "SHIPTOITEMS");
        rows.AddNew();
        rows["SHIPTO"] = text;
        rows.Update();
    }

    VexsiteRun backup(const QStringList& more = {})
    {
        return vexsite(QStringList{"backup", m_installation.folder(), m_file} + more);
    }

    // What lies beside the installation: a failed backup must leave nothing there.
    QStringList leftovers() const
    {
        QDir folder(m_installation.beside("."));
        QStringList names = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        names.removeAll("made");
        return names;
    }

    MadeInstallation m_installation;
    const QString m_file = m_installation.beside("copy.zip");
    const QString m_restored = m_installation.beside("restored");
    storage::Workspace m_workspace = storage::CreateWorkspace("wksTEST");
};

TEST_F(Backup, RestoresToASoundInstallation)
{
    addShipTo(m_installation.siteFile("ZORVEX.mdb"), "Gate 4");
    QDir(m_installation.folder()).mkpath("ZORMedia");
    QFile logo(m_installation.file("ZORMedia/logo.bmp"));
    ASSERT_TRUE(logo.open(QIODevice::WriteOnly));
    logo.write("picture");
    logo.close();

    ASSERT_EQ(backup().exitCode, 0);
    const VexsiteRun restored = vexsite({"restore", m_file, m_restored});
    EXPECT_EQ(restored.exitCode, 0) << qPrintable(restored.errors + restored.output);
    EXPECT_EQ(vexsite({"check", m_restored}).exitCode, 0);
    Recordset rows = open(m_restored + "/ZORDATA/SOUTH_YARD/ZORVEX.mdb", "SHIPTOITEMS");
    ASSERT_EQ(rows.RecordCount(), 1);
    rows.MoveFirst();
    EXPECT_EQ(rows["SHIPTO"].value().toString(), "Gate 4");
    QFile copiedLogo(m_restored + "/ZORMedia/logo.bmp");
    ASSERT_TRUE(copiedLogo.open(QIODevice::ReadOnly));
    EXPECT_EQ(copiedLogo.readAll(), "picture");
}

TEST_F(Backup, HoldsOneMomentWhileAnotherProcessWrites)
{
    QProcess writer;
    writer.start(PAIR_WRITER_PROGRAM,
                 {m_installation.siteFile("ZORVEX.mdb"), m_installation.siteFile("MAIN.mdb")});
    ASSERT_TRUE(writer.waitForReadyRead(20'000));
    int before = 0;
    for (int round = 0; round < 5; ++round) {
        const QString file = m_installation.beside(QString("copy%1.zip").arg(round));
        const QString folder = m_installation.beside(QString("site%1").arg(round));
        const VexsiteRun run =
            vexsite({"backup", m_installation.folder(), file, "--site", "south yard"});
        ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
        ASSERT_EQ(vexsite({"restore", file, folder}).exitCode, 0);
        Recordset one = open(folder + "/ZORVEX.mdb", "SHIPTOITEMS");
        Recordset two = open(folder + "/MAIN.mdb", "SITEINFO");
        EXPECT_EQ(one.RecordCount(), two.RecordCount());
        ASSERT_GT(one.RecordCount(), before);  // or the writer did not write
        before = one.RecordCount();
        one.MoveLast();
        two.MoveLast();
        EXPECT_EQ(one["SHIPTO"].value(), two["SITENAME"].value());
    }
    EXPECT_EQ(writer.state(), QProcess::Running) << "the backup cost the writer its turn";
    writer.kill();
    writer.waitForFinished();
}

TEST_F(Backup, LeavesNoFileWhenAnotherHoldsADatabase)
{
    const auto held = storage::acquireEngine(m_installation.siteFile("ZORVEX.mdb"));
    held->begin();
    const VexsiteRun run = backup({"--wait", "1"});
    held->rollback();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("ZORVEX.mdb")) << qPrintable(run.errors);
    EXPECT_EQ(leftovers(), QStringList());
    EXPECT_EQ(backup().exitCode, 0);
}

TEST_F(Backup, LeavesNoFileWhenADatabaseIsMissingOrDamaged)
{
    QFile::remove(m_installation.siteFile("ZORDLU.mdb"));
    EXPECT_EQ(backup().exitCode, 1);
    EXPECT_EQ(leftovers(), QStringList());

    QFile damaged(m_installation.siteFile("ZORDLU.mdb"));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray(9000, 'x'));
    damaged.close();
    EXPECT_EQ(backup().exitCode, 1);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Backup, NeverReplacesAnOlderOne)
{
    ASSERT_EQ(backup().exitCode, 0);
    QFile file(m_file);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    EXPECT_EQ(backup().exitCode, 1);
    file.seek(0);
    EXPECT_EQ(file.readAll(), content);
}

TEST_F(Backup, IsRestoredOverFilesOnlyWhenForced)
{
    const QString zorvex = m_installation.siteFile("ZORVEX.mdb");
    addShipTo(zorvex, "in the backup");
    ASSERT_EQ(backup().exitCode, 0);
    addShipTo(zorvex, "later");

    const VexsiteRun refused = vexsite({"restore", m_file, m_installation.folder()});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains("exists already")) << qPrintable(refused.errors);
    EXPECT_EQ(open(zorvex, "SHIPTOITEMS").RecordCount(), 2);

    m_workspace = storage::CreateWorkspace("wksTEST");
    storage::closeIdleEngines();
    EXPECT_EQ(vexsite({"restore", m_file, m_installation.folder(), "--force"}).exitCode, 0);
    EXPECT_EQ(open(zorvex, "SHIPTOITEMS").RecordCount(), 1);
    EXPECT_EQ(vexsite({"check", m_installation.folder()}).exitCode, 0);
}

TEST_F(Backup, IsRefusedWhenItIsDamaged)
{
    ASSERT_EQ(backup().exitCode, 0);
    QFile file(m_file);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() / 2));
    file.write(QByteArray(400, '\x33'));
    file.close();
    EXPECT_EQ(vexsite({"restore", m_file, m_restored}).exitCode, 1);
    EXPECT_TRUE(QDir(m_restored).isEmpty());

    ASSERT_TRUE(file.resize(file.size() / 2));
    EXPECT_EQ(vexsite({"restore", m_file, m_restored}).exitCode, 1);
    EXPECT_TRUE(QDir(m_restored).isEmpty());
}

// A job site on a share of its own, named by its full path.
TEST_F(Backup, TakesFoldersFromElsewhereAndLeadsTheRestoredOneToItsOwn)
{
    const QString share = m_installation.beside("SHARE");
    ASSERT_TRUE(QDir().rename(m_installation.file("ZORDATA/SOUTH_YARD"), share));
    const auto pointTo = [&](const char* file, schema::FieldName field) {
        Recordset row = open(m_installation.file(QString(file) + ".mdb"), file);
        row.MoveFirst();
        row.Edit();
        row[field] = share.toUpper();
        row.Update();
    };
    pointTo("DBPATHS", "PathText");
    pointTo("VEXPATH", "Path");
    const VexsiteRun moved = vexsite({"check", m_installation.folder()});
    ASSERT_EQ(moved.exitCode, 0) << qPrintable(moved.output);

    ASSERT_EQ(backup().exitCode, 0);
    ASSERT_TRUE(QDir().rename(share, share + "-GONE"));
    ASSERT_EQ(vexsite({"restore", m_file, m_restored}).exitCode, 0);
    const VexsiteRun checked = vexsite({"check", m_restored});
    EXPECT_EQ(checked.exitCode, 0) << qPrintable(checked.output);
}

}  // namespace
