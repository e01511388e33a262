// The ledger: a posting to an item of many rows against one to an item of ten, and the rebuild of a
// branch with all of the line items.
#include <QElapsedTimer>
#include <QFile>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/messages.h"
#include "core/storage/workspace.h"
#include "core/write_batch.h"
#include "inventory/ledger_posting.h"
#include "inventory/ledger_rebuild.h"
#include "inventory/ledger_row.h"

namespace {

constexpr int itemCount = 20'000;
constexpr int linesAnOrder = 5;
constexpr int shortItem = 1;
constexpr int middleItem = 2;
constexpr int longItem = 3;

// What a row replayed may cost, beyond a posting to an item of ten rows.
const BenchGoal replayGoal{
    .ratio = 1.0, .unit = "us/row", .perSecond = 1e-6, .bound = 1.0, .ownFigure = true};
// 100,000 rows a second.
const BenchGoal rebuildGoal{
    .ratio = 1.0, .unit = "us/row", .perSecond = 1e-6, .bound = 10.0, .ownFigure = true};

// Where all rows are to be written, the writing is most of it.
const BenchGoal writingGoal{.ratio = 1.5, .unit = "us/row", .perSecond = 1e-6, .ownFigure = true};

class NoBoxes : public Messages
{
public:
    NoBoxes() : m_before(install(this)) {}
    ~NoBoxes() override { install(m_before); }
    Answer show(const Message& message) override
    {
        shown = message.text;
        return Answer::Ok;
    }
    QString shown;

private:
    Messages* m_before;
};

void addItems(const storage::Database& file)
{
    storage::Recordset items = file.OpenRecordset("INVENTORY");
    for (int i = 1; i <= itemCount; ++i) {
        items.AddNew();
        items["ISNTAG"] = i;
        items["ILCTAG"] = 1;
        items["PARTNO"] = QString("P%1").arg(i);
        items.Update();
    }
}

void addLedgerRows(const storage::Database& file, int isnTag, int rows)
{
    storage::Recordset ledger = file.OpenRecordset("INVTRANS");
    for (int i = 1; i <= rows; ++i) {
        ledger.AddNew();
        ledger["ISNTAG"] = isnTag;
        ledger["ILCTAG"] = 1;
        ledger["DOCTYPE"] = i % 2 ? "PO" : "MI";
        ledger["ITEMTYPE"] = i % 2 ? "REC" : "MII";
        ledger["DOCTAG"] = i;
        ledger["FDATE"] = "03/07/2026";
        ledger["LDATE"] = "20260307";
        ledger["QUANTITY"] = 1;
        ledger.Update();
    }
}

// A site's folder: the line items, each naming an item, and orders, or the ledger of three items.
QString makeSite(bool hasOrders)
{
    const QString folder = benchScratchFolder();
    const QString made = folder + "/ZORVEX.mdb";
    QFile::copy(benchLinesFile(), made);
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Database file = wks.OpenDatabase(made);
    wks.BeginTrans();
    addItems(file);
    if (!hasOrders) {
        addLedgerRows(file, shortItem, 10);
        addLedgerRows(file, middleItem, 1'000);
        addLedgerRows(file, longItem, 100'000);
    } else {
        storage::Recordset lines = file.OpenRecordset("RQILIST");
        for (bool more = lines.MoveFirst(); more; more = lines.MoveNext()) {
            lines.Edit();
            lines["ISNTAG"] =
                1 + static_cast<int>(lines["RQITAG"].value().toLongLong() * 7919 % itemCount);
            lines.Update();
        }
        storage::Recordset orders = file.OpenRecordset("POLIST");
        for (int i = 1; i <= benchLineCount / linesAnOrder; ++i) {
            orders.AddNew();
            orders["POTAG"] = i;
            orders["PONO"] = QString::number(i);
            orders["FDATE"] = "03/07/2026";
            orders["LDATE"] = QString::number(20260101 + i % 28);
            orders.Update();
        }
    }
    wks.CommitTrans();
    return folder;
}

double postingSeconds(const QString& folder, int isnTag)
{
    QElapsedTimer timer;
    timer.start();
    zorInvTransUpdate(folder, 1, "PO", 1, "REC", 0, isnTag, isnTag, "03/07/2026", "20260307", 2);
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

// The cost of a row: what a posting costs beyond one to the short item. Either is the best of some,
// because two durable writes vary by as much as a thousand rows cost.
void posting(benchmark::State& state, int isnTag, int rows)
{
    static const QString folder = makeSite(false);
    NoBoxes boxes;
    for (auto _ : state) {
        constexpr int tries = 25;
        double fixed = postingSeconds(folder, shortItem);
        double whole = postingSeconds(folder, isnTag);
        for (int i = 1; i < tries; ++i) {
            fixed = std::min(fixed, postingSeconds(folder, shortItem));
            whole = std::min(whole, postingSeconds(folder, isnTag));
        }
        state.SetIterationTime(std::max(1e-9, whole - fixed));
        if (!boxes.shown.isEmpty())
            state.SkipWithError(qPrintable(boxes.shown));
    }
    state.counters["items"] = rows;
}

void postingToMiddle(benchmark::State& state)
{
    posting(state, middleItem, 1'000 - 10);
}

void postingToLong(benchmark::State& state)
{
    posting(state, longItem, 100'000);
}

void timeRebuild(benchmark::State& state, const QString& folder)
{
    NoBoxes boxes;
    QElapsedTimer timer;
    timer.start();
    if (!rebuildLedger(folder, 1, [] { return true; }) || !boxes.shown.isEmpty())
        state.SkipWithError("not rebuilt");
    state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
}

// Of a ledger that a rebuild has made, as most are that a user has looked through.
void rebuild(benchmark::State& state)
{
    static const QString folder = [] {
        const QString made = makeSite(true);
        rebuildLedger(made, 1, [] { return true; });
        return made;
    }();
    for (auto _ : state)
        timeRebuild(state, folder);
    state.counters["items"] = benchLineCount;
}

// Of a site without a ledger, every row of which is written.
void rebuildFromNothing(benchmark::State& state)
{
    for (auto _ : state)
        timeRebuild(state, makeSite(true));
    state.counters["items"] = benchLineCount;
}

// The same rows, in the same order and with the same commits, added by themselves.
void addRowsAlone(benchmark::State& state)
{
    const QString file = makeSite(true) + "/ZORVEX.mdb";
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        storage::Workspace workspace = storage::CreateWorkspace("wksVEX");
        storage::Recordset ledger = workspace.OpenDatabase(file).OpenRecordset("INVTRANS");
        WriteBatch batch(workspace, {.rows = 10'000, .milliseconds = 250});
        for (int i = 0; i < benchLineCount; ++i) {
            const int item = i / (benchLineCount / itemCount) + 1;
            const int order = static_cast<int>(qint64(i) * 7919 % (benchLineCount / linesAnOrder));
            batch.begin();
            ledger.AddNew();
            storeAll(ledger, {.ilcTag = 1,
                              .icnTag = 0,
                              .isnTag = item,
                              .docType = "PO",
                              .docTag = order,
                              .itemType = "RQI",
                              .itemTag = i,
                              .fDate = "03/07/2026",
                              .lDate = QString::number(20260101 + order % 28),
                              .quantity = 1});
            ledger.Update();
            batch.added();
        }
        batch.commit();
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }
    state.counters["items"] = benchLineCount;
}

}  // namespace

void registerLedgerBenchmarks()
{
    registerPair("ledger_posting_1000_rows", replayGoal, postingToMiddle, nullptr);
    registerPair("ledger_posting_100000_rows", replayGoal, postingToLong, nullptr);
    registerPair("ledger_rebuild_500000_lines", rebuildGoal, rebuild, nullptr, 2);
    registerPair("ledger_rebuild_from_nothing_500000", writingGoal, rebuildFromNothing,
                 addRowsAlone, 1);
}
