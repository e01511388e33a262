#include "cost/job_number_refresh.h"

#include <gtest/gtest.h>

#include "core/storage/storage_error.h"
#include "tests/support/table_rows.h"

namespace {

bool goOn(const RefreshProgress&)
{
    return true;
}

class Refresh : public testing::Test
{
protected:
    void addJob(int company, const QString& number) const
    {
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", company}, {"JOBNO", number}});
    }
    QStringList jobs() const { return rowsOf(site, "MAIN.mdb", "JOBLIST", {"JOBNO"}); }
    RefreshResult run(const char* type, int size) const
    {
        return refreshJobNumbers(site.siteFolder(), {type, size}, goOn);
    }
    void makeTable(const QString& file, const QString& table, const storage::Value& number) const
    {
        storage::Workspace wks = storage::CreateWorkspace("wksTEST");
        const QString path = site.siteFolder() + '/' + file;
        const storage::Database db =
            QFile::exists(path) ? wks.OpenDatabase(path) : wks.CreateDatabase(path);
        storage::TableDef fresh = storage::CreateTableDef(table);
        fresh.Fields().Append(storage::CreateField("JOBNO", storage::FieldType::Text, 8));
        db.TableDefs().Append(fresh);
        storage::Recordset rows = db.OpenRecordset(table);
        rows.AddNew();
        rows["JOBNO"] = number;
        rows.Update();
    }
    QString numberIn(const QString& file, const QString& table) const
    {
        const OpenTable open = openTable(site.siteFolder(), file, table);
        return open.rows["JOBNO"].value().toString();
    }

    TestInstallation site;
};

TEST_F(Refresh, WritesTheStoredFormIntoEveryTableOnce)
{
    for (const char* number : {"12", "     ab", "        "})
        addJob(1, number);
    site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 2}});
    site.addRow("ZORVEX.mdb", "POLIST", {{"POTAG", 1}, {"PONO", "1"}, {"JOBNO", "12"}});
    site.addRow("ZORBRQ.mdb", "FUELTYPES", {{"FTTAG", 1}, {"JOBNO", "12"}});
    makeTable("JOLT.mdb", "ANYTHING", "12");
    makeTable("JOLT.mdb", "MSysOwn", "12");
    makeTable("ZORSYS.mdb", "NOT_OURS", "12");
    EXPECT_EQ(run("C", 6).rewritten, 5);
    EXPECT_EQ(jobs(), (QStringList{"    12", "    AB", "        ", "~"}));
    EXPECT_EQ(numberIn("ZORVEX.mdb", "POLIST"), "    12");
    EXPECT_EQ(numberIn("ZORBRQ.mdb", "FUELTYPES"), "    12");
    EXPECT_EQ(numberIn("JOLT.mdb", "ANYTHING"), "    12");
    EXPECT_EQ(numberIn("JOLT.mdb", "MSysOwn"), "12");
    EXPECT_EQ(numberIn("ZORSYS.mdb", "NOT_OURS"), "12") << "a file that is none of the five";
    const RefreshResult again = run("C", 6);
    EXPECT_TRUE(again.isComplete);
    EXPECT_EQ(again.rewritten, 0);
}

TEST_F(Refresh, TakesTheNumbersOfTypeN)
{
    addJob(1, "  012");
    addJob(1, " 13X");
    addJob(2, "  abc");
    run("N", 8);
    EXPECT_EQ(jobs(), (QStringList{"      12", "      13", "        "}));
    EXPECT_EQ(run("N", 8).rewritten, 0);
}

TEST_F(Refresh, StopsWhereAskedAndIsFinishedByTheNextRun)
{
    OpenTable cards = site.open("MAIN.mdb", "TCLIST");
    cards.workspace.BeginTrans();
    for (int i = 0; i < 3300; ++i) {
        cards.rows.AddNew();
        cards.rows["JOBNO"] = QString::number(i % 7);
        cards.rows.Update();
    }
    cards.workspace.CommitTrans();
    qint64 seen = 0;
    const auto stopEarly = [&](const RefreshProgress& progress) {
        if (progress.table != "TCLIST")
            return true;
        EXPECT_EQ(progress.database, "MAIN.mdb");
        EXPECT_GE(progress.rows, seen);
        seen = progress.rows;
        return seen == 0;
    };
    const RefreshResult stopped = refreshJobNumbers(site.siteFolder(), {"C", 4}, stopEarly);
    EXPECT_FALSE(stopped.isComplete);
    EXPECT_GT(stopped.rewritten, 0);
    EXPECT_LT(stopped.rewritten, 3300);
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "TCLIST", {"JOBNO"}).filter("   ").size(),
              stopped.rewritten);
    const RefreshResult rest = run("C", 4);
    EXPECT_TRUE(rest.isComplete);
    EXPECT_EQ(rest.rewritten, 3300 - stopped.rewritten);
}

// Two numbers that become one cannot both stand in the list of jobs.
TEST_F(Refresh, FailsWhereJobsWouldBecomeOneAndKeepsRowsWhole)
{
    addJob(1, "     12A");
    addJob(1, "     12B");
    EXPECT_THROW(run("N", 8), storage::StorageError);
    EXPECT_EQ(jobs(), (QStringList{"     12A", "     12B"}));
}

TEST_F(Refresh, FollowsSettingsThatAreChecked)
{
    EXPECT_EQ(refuseJobNoFormat({"X", 8})->title, "Invalid Job Number Type");
    EXPECT_EQ(refuseJobNoFormat({"C", 0})->title, "Invalid Job Number Size");
    EXPECT_EQ(refuseJobNoFormat({"N", 9})->text, "Size Must Be Between 1 and 8 Characters");
    EXPECT_FALSE(refuseJobNoFormat({"N", 1}));
    EXPECT_TRUE(dataMayBeLost(5).text.contains("will fit in 5 spaces\n"));
    saveJobNoFormat(site.siteFolder(), {"N", 5});
    EXPECT_EQ(settledJobNoFormat(site.siteFolder()), (JobNoFormat{"N", 5}));
    EXPECT_EQ(site.rowCount("ZORSYS.mdb", "SYSSETTINGS"), 1);
}

}  // namespace
