// The long runs over a job site: rewriting all job numbers, and deleting a job with its documents.
// Each against the same rows rewritten or deleted by plain statements, in one transaction, on a
// copy of the same file.
#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFile>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/sqlite_collation.h"
#include "core/storage/workspace.h"
#include "cost/job_deletion.h"
#include "cost/job_number_refresh.h"

namespace {

const BenchGoal rowGoal{.ratio = 10.0, .unit = "us/row", .perSecond = 1e-6, .ownFigure = true};

constexpr int linesAnOrder = 5;
constexpr int orderCount = benchLineCount / linesAnOrder;
constexpr int jobCount = 100;
const QString job = "      12";

template <size_t N>
storage::Database makeFile(storage::Workspace& wks, const QString& path,
                           const schema::Table* const (&tables)[N])
{
    const storage::Database file = wks.CreateDatabase(path);
    wks.BeginTrans();
    for (const schema::Table* table : tables) {
        storage::TableDef definition = storage::CreateTableDef(storage::definitionOf(*table));
        file.TableDefs().Append(definition);
    }
    wks.CommitTrans();
    return file;
}

// MAIN.mdb with timecard items of many jobs, whose numbers were written when their size was 6.
const QString& timecardsFile()
{
    static const QString path = [] {
        const QString made = benchScratchFolder() + "/MAIN.mdb";
        storage::Workspace wks = storage::CreateWorkspace("wksMAIN");
        storage::Recordset items = makeFile(wks, made, schema::MAIN_file).OpenRecordset("TCLIST");
        wks.BeginTrans();
        for (int i = 0; i < benchLineCount; ++i) {
            items.AddNew();
            items["CONO"] = 1;
            items["JOBNO"] = QString("%1").arg(i % jobCount, 6);
            items["COSTCODEA"] = QString("%1").arg(i % 997, 6);
            items.Update();
        }
        wks.CommitTrans();
        return made;
    }();
    return path;
}

// ZORVEX.mdb with the line items, and an order of the job for each five of them.
const QString& ordersFile()
{
    static const QString path = [] {
        const QString made = benchScratchFolder() + "/ZORVEX.mdb";
        QFile::copy(benchLinesFile(), made);
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        storage::Recordset orders = wks.OpenDatabase(made).OpenRecordset("POLIST");
        wks.BeginTrans();
        for (int i = 1; i <= orderCount; ++i) {
            orders.AddNew();
            orders["POTAG"] = i;
            orders["PONO"] = QString::number(i);
            orders["CONO"] = 1;
            orders["JOBNO"] = job;
            orders.Update();
        }
        wks.CommitTrans();
        return made;
    }();
    return path;
}

// Times the work on copies of the files in a folder of their own.
template <class Work>
void timed(benchmark::State& state, const QStringList& files, int rows, Work work)
{
    for (auto _ : state) {
        const QString folder = benchScratchFolder();
        for (const QString& file : files)
            QFile::copy(file, folder + '/' + file.section('/', -1));
        QElapsedTimer timer;
        timer.start();
        if (!work(folder))
            state.SkipWithError("rows are left");
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        for (const QString& file : files)
            QFile::remove(folder + '/' + file.section('/', -1));
    }
    state.counters["items"] = rows;
}

// Runs the statements on the file; false unless so many rows were changed.
bool runPlain(const QString& path, const char* sql, int rows)
{
    sqlite3* db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    storage::registerCaseBlindCollation(db);
    const bool ran = sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    const bool isWhole = sqlite3_total_changes(db) == rows;
    sqlite3_close(db);
    return ran && isWhole;
}

void refreshOurs(benchmark::State& state)
{
    timed(state, {timecardsFile()}, benchLineCount, [](const QString& folder) {
        return refreshJobNumbers(folder, {"C", 8}, [](const RefreshProgress&) {
                   return true;
               }).rewritten == benchLineCount;
    });
}

void refreshBase(benchmark::State& state)
{
    timed(state, {timecardsFile()}, benchLineCount, [](const QString& folder) {
        return runPlain(folder + "/MAIN.mdb",
                        "UPDATE TCLIST SET JOBNO = substr('        ' || trim(JOBNO), -8)",
                        benchLineCount);
    });
}

void deletionOurs(benchmark::State& state)
{
    timed(state, {timecardsFile(), ordersFile()}, benchLineCount, [](const QString& folder) {
        int lines = 0;
        const auto count = [&lines](const QString& name, int deleted) {
            if (name == "Req/PO Detail ")
                lines += deleted;
        };
        return deleteJob(folder, 1, job,
                         {.deleted = count,
                          .remark = [](const QString&) {},
                          .proceed = [](const QString&, int) { return true; }}) &&
               lines == benchLineCount;
    });
}

void deletionBase(benchmark::State& state)
{
    timed(state, {timecardsFile(), ordersFile()}, benchLineCount, [](const QString& folder) {
        return runPlain(folder + "/ZORVEX.mdb",
                        "BEGIN IMMEDIATE; DELETE FROM RQILIST WHERE POTAG IN"
                        " (SELECT POTAG FROM POLIST WHERE CONO = 1 AND JOBNO = '      12');"
                        "DELETE FROM POLIST WHERE CONO = 1 AND JOBNO = '      12'; COMMIT",
                        benchLineCount + orderCount);
    });
}

}  // namespace

void registerCostBenchmarks()
{
    registerPair("cost_refresh_job_numbers", rowGoal, refreshOurs, refreshBase, 2);
    registerPair("cost_delete_job", rowGoal, deletionOurs, deletionBase, 2);
}
