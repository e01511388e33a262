// One process, nobody else in the file: walks, seeks, counts, opening and closing.
#include <sqlite3.h>

#include <QFile>
#include <QRandomGenerator>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/sqlite_collation.h"
#include "core/storage/workspace.h"

namespace {

const BenchGoal walkGoal{.ratio = 2.0, .unit = "us/row", .perSecond = 1e-6};
const BenchGoal seekGoal{.ratio = 1.5, .unit = "us/seek", .perSecond = 1e-6};
const BenchGoal countGoal{.ratio = 1.0, .unit = "us", .perSecond = 1e-6, .bound = 5};
const BenchGoal openGoal{.ratio = 1.0, .unit = "us", .perSecond = 1e-6, .bound = 50};
const BenchGoal memoryGoal{
    .ratio = 1.0, .unit = "MiB", .perSecond = 1, .bound = 1, .ownFigure = true};

// The line items through the engine's own interface.
struct RawLines
{
    RawLines()
    {
        sqlite3_open_v2(benchLinesFile().toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr);
        storage::registerCaseBlindCollation(db);
        sqlite3_exec(db, "PRAGMA cache_size = -32000", nullptr, nullptr, nullptr);
    }
    ~RawLines()
    {
        sqlite3_finalize(statement);
        sqlite3_close(db);
    }
    RawLines(const RawLines&) = delete;
    RawLines& operator=(const RawLines&) = delete;

    void prepare(const char* sql)
    {
        sqlite3_prepare_v3(db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    }

    // What a report adds up of one row: the same six fields on both sides.
    double readSixFields() const
    {
        return static_cast<double>(sqlite3_column_int64(statement, 0) +
                                   sqlite3_column_int64(statement, 1) +
                                   sqlite3_column_int64(statement, 2)) +
               sqlite3_column_double(statement, 3) + sqlite3_column_double(statement, 4) +
               static_cast<double>(QString::fromUtf8(reinterpret_cast<const char*>(
                                                         sqlite3_column_text(statement, 5)),
                                                     sqlite3_column_bytes(statement, 5))
                                       .size());
    }

    sqlite3* db = nullptr;
    sqlite3_stmt* statement = nullptr;
};

double readSixFields(const storage::Recordset& rs)
{
    return static_cast<double>(rs["POTAG"].value().toLongLong() +
                               rs["POITEMNO"].value().toLongLong() +
                               rs["RQITAG"].value().toLongLong()) +
           rs["QTY"].value().toDouble() + rs["AMOUNT"].value().toDouble() +
           static_cast<double>(rs["SHORTDESC"].value().toString().size());
}

void walkOurs(benchmark::State& state)
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset rs = wks.OpenDatabase(benchLinesFile()).OpenRecordset("RQILIST");
    rs.Index("BENCH3");
    for (auto _ : state) {
        double sum = 0;
        int rows = 0;
        for (rs.MoveFirst(); !rs.EOF(); rs.MoveNext(), ++rows)
            sum += readSixFields(rs);
        benchmark::DoNotOptimize(sum);
        if (rows != benchLineCount)
            state.SkipWithError("rows are missing");
    }
    state.counters["items"] = benchLineCount;
}

void walkBase(benchmark::State& state)
{
    RawLines raw;
    raw.prepare(
        "SELECT POTAG, POITEMNO, RQITAG, QTY, AMOUNT, SHORTDESC FROM RQILIST"
        " INDEXED BY \"RQILIST.BENCH3\" ORDER BY POTAG, POITEMNO, POLINENO");
    for (auto _ : state) {
        double sum = 0;
        while (sqlite3_step(raw.statement) == SQLITE_ROW)
            sum += raw.readSixFields();
        sqlite3_reset(raw.statement);
        benchmark::DoNotOptimize(sum);
    }
    state.counters["items"] = benchLineCount;
}

int randomTag()
{
    return 1 + static_cast<int>(QRandomGenerator::global()->bounded(benchLineCount));
}

void seekOurs(benchmark::State& state)
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset rs = wks.OpenDatabase(benchLinesFile()).OpenRecordset("RQILIST");
    rs.Index("RQITAG");
    for (auto _ : state) {
        if (!rs.Seek("=", randomTag()))
            state.SkipWithError("a tag is missing");
        benchmark::DoNotOptimize(readSixFields(rs));
    }
}

void seekBase(benchmark::State& state)
{
    RawLines raw;
    raw.prepare(
        "SELECT POTAG, POITEMNO, RQITAG, QTY, AMOUNT, SHORTDESC FROM RQILIST WHERE RQITAG = ?"
        " LIMIT 1");
    for (auto _ : state) {
        sqlite3_bind_int64(raw.statement, 1, randomTag());
        if (sqlite3_step(raw.statement) != SQLITE_ROW)
            state.SkipWithError("a tag is missing");
        benchmark::DoNotOptimize(raw.readSixFields());
        sqlite3_reset(raw.statement);
    }
}

void recordCount(benchmark::State& state)
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Recordset rs = wks.OpenDatabase(benchLinesFile()).OpenRecordset("RQILIST");
    if (rs.RecordCount() != benchLineCount)
        state.SkipWithError("wrong count");
    for (auto _ : state)
        benchmark::DoNotOptimize(rs.RecordCount());
}

void openSeekClose(benchmark::State& state)
{
    for (auto _ : state) {
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        storage::Recordset rs = wks.OpenDatabase(benchLinesFile()).OpenRecordset("RQILIST");
        rs.Index("RQITAG");
        benchmark::DoNotOptimize(rs.Seek("=", randomTag()));
        wks.Close();
    }
}

// Bytes of this process that are in memory and its own; not what the file's page cache takes.
double privateMebibytes()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("RssAnon:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    return 0;
}

// What further handles cost, each in the middle of a walk with a full block in hand.
void memoryOfHandle(benchmark::State& state)
{
    constexpr int handleCount = 50;
    constexpr int rowsWalked = 200;
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Database db = wks.OpenDatabase(benchLinesFile());
    const auto walkABit = [&db] {
        storage::Recordset rs = db.OpenRecordset("RQILIST");
        rs.Index("BENCH3");
        rs.MoveFirst();
        for (int i = 0; i < rowsWalked; ++i) {
            readSixFields(rs);
            rs["Desc"].value();
            rs.MoveNext();
        }
        return rs;
    };
    for (int i = 0; i < handleCount; ++i)
        walkABit();  // fills the page cache
    for (auto _ : state) {
        const double before = privateMebibytes();
        std::vector<storage::Recordset> handles;
        for (int i = 0; i < handleCount; ++i)
            handles.push_back(walkABit());
        // Mebibytes stand in for the seconds that the harness expects.
        state.SetIterationTime(std::max(1e-6, (privateMebibytes() - before) / handleCount));
    }
}

}  // namespace

void registerStoreBenchmarks()
{
    registerPair("store_walk", walkGoal, walkOurs, walkBase);
    registerPair("store_seek", seekGoal, seekOurs, seekBase);
    registerPair("store_record_count", countGoal, recordCount, nullptr);
    registerPair("store_open_seek_close", openGoal, openSeekClose, nullptr);
    registerPair("store_handle_memory", memoryGoal, memoryOfHandle, nullptr, 1);
}
