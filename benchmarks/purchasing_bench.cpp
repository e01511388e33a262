// Purchase orders: one made from 500 tagged lines against the bare commits that its steps need, and
// what closing and entering cost in a document of 1,000 lines.
#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/workspace.h"
#include "core/tag_list.h"
#include "purchasing/document_lines.h"
#include "purchasing/order_creation.h"

namespace {

constexpr int taggedLines = 500;
constexpr int longDocument = 1'000;

const BenchGoal creationGoal{.ratio = 2.0, .unit = "ms", .perSecond = 1e-3};
const BenchGoal totalsGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 50};
const BenchGoal numbersGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 20};

// Requisition 1 has lines to be ordered, requisition 2 many.
Session makeSite()
{
    Session session;
    session.JobSitePath = session.UserSettingsPath = benchScratchFolder();
    session.SiteTag = 1;
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const QString folder = session.JobSitePath + '/';
    benchFile(wks, folder + "ZORUSER.mdb", {&schema::VEXSETTINGS, &schema::TAGLIST});
    const storage::Database file =
        benchFile(wks, folder + "ZORVEX.mdb",
                  {&schema::REQLIST, &schema::POLIST, &schema::RQILIST, &schema::VEXTAGS,
                   &schema::VEXCOUNTERS, &schema::INVENTORY, &schema::INVTRANS});
    wks.BeginTrans();
    storage::Recordset heads = file.OpenRecordset("REQLIST");
    storage::Recordset lines = file.OpenRecordset("RQILIST");
    int tag = 0;
    for (const auto& [REQTAG, count] : {std::pair{1, taggedLines}, {2, longDocument}}) {
        heads.AddNew();
        heads["REQTAG"] = REQTAG;
        heads["REQNO"] = REQTAG;
        heads["FDATE"] = "03/07/2026";
        heads["LDATE"] = "20260307";
        heads.Update();
        for (int line = 1; line <= count; ++line) {
            lines.AddNew();
            lines["RQITAG"] = ++tag;
            lines["REQTAG"] = REQTAG;
            lines["POTAG"] = 0;
            lines["REQLINENO"] = line;
            lines["QTY"] = 2;
            lines["AMOUNT"] = 1.25;
            lines["Desc"] = "GATE VALVE, 2 INCH";
            lines.Update();
        }
    }
    wks.CommitTrans();
    return session;
}

const Session& session()
{
    static const Session made = makeSite();
    return made;
}

storage::Recordset openLines(storage::Workspace& wks)
{
    return wks.OpenDatabase(session().JobSitePath + "/ZORVEX.mdb").OpenRecordset("RQILIST");
}

// The lines are free again and tagged, for the next order.
void prepare()
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset lines = openLines(wks);
    OpenTable marks = openTable(session(), "ZORUSER.mdb", "TAGLIST");
    marks.workspace.BeginTrans();
    wks.BeginTrans();
    forEachLine(lines, requisitions, 1, [&] {
        lines.Edit();
        lines["POTAG"] = 0;
        lines.Update();
        zorTagListSet(marks.rows, requisitions.code, 1, lineMarks, intOf(lines["RQITAG"]));
        return true;
    });
    wks.CommitTrans();
    marks.workspace.CommitTrans();
}

void createOrders(benchmark::State& state)
{
    static int number = 0;
    for (auto _ : state) {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        const auto created = createOrder(
            session(), {.REQTAG = 1, .PONO = QString("PO%1").arg(++number), .done = {}});
        if (!created || created->items != taggedLines)
            state.SkipWithError("not all lines were ordered");
    }
}

// A commit for each line written, and one for the marks taken away.
void bareCommits(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        storage::Recordset lines = openLines(wks);
        OpenTable marks = openTable(session(), "ZORUSER.mdb", "TAGLIST");
        lines.Index("RQITAG");
        for (int tag = 1; tag <= taggedLines; ++tag) {
            lines.Seek("=", tag);
            lines.Edit();
            lines["POTAG"] = 7;
            lines.Update();
        }
        marks.workspace.BeginTrans();
        zorTagListClear(marks.rows, requisitions.code, 1, lineMarks);
        marks.workspace.CommitTrans();
    }
}

void closeLongDocument(benchmark::State& state)
{
    session();
    for (auto _ : state)
        writeTotals(session(), requisitions, 2);
}

// What a new line needs beyond its commits: its numbers, and the total that is shown.
void numberNewLine(benchmark::State& state)
{
    session();
    for (auto _ : state) {
        OpenTable lines = openTable(session(), "ZORVEX.mdb", "RQILIST");
        const LineNumbers numbers = numbersForNewLine(lines.rows, requisitions, 2, false);
        const double sum = sumOfLines(lines.rows, requisitions, 2);
        if (numbers.line != longDocument + 1 || sum != longDocument * 1.25)
            state.SkipWithError("wrong numbers");
    }
}

}  // namespace

void registerPurchasingBenchmarks()
{
    registerPair("order_creation_500_lines", creationGoal, createOrders, bareCommits, 3);
    registerPair("order_totals_1000_lines", totalsGoal, closeLongDocument, nullptr);
    registerPair("order_new_line_1000_lines", numbersGoal, numberNewLine, nullptr);
}
