// Purchase orders: one made from 500 tagged lines, and a line saved in an order of 1,000, against
// the bare commits that their steps need; and what closing and entering cost in such a document.
#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/workspace.h"
#include "core/tag_list.h"
#include "purchasing/document_lines.h"
#include "purchasing/line_screen.h"
#include "purchasing/order_creation.h"
#include "screens/data/data_session.h"

namespace {

constexpr int taggedLines = 500;
constexpr int longDocument = 1'000;

const BenchGoal creationGoal{.ratio = 2.0, .unit = "ms", .perSecond = 1e-3};
const BenchGoal totalsGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 50};
const BenchGoal saveGoal{.ratio = 1.5, .unit = "ms", .perSecond = 1e-3};
const BenchGoal numbersGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 20};

constexpr int longOrder = 9;  // POTAG

// What the screen of a line looks its codes up in; of an order many lines, of an item a few entries
// in the ledger.
void addLongOrder(storage::Workspace& wks, const storage::Database& file, const QString& folder)
{
    benchFile(wks, folder + "MAIN.mdb", {&schema::JOBLIST, &schema::CCALIST});
    const storage::Database system = benchFile(wks, folder + "ZORSYS.mdb", {&schema::SYSSETTINGS});
    const auto addTo = [](const storage::Database& to, const char* table,
                          const std::vector<KeyField>& values) {
        storage::Recordset rows = to.OpenRecordset(table);
        rows.AddNew();
        for (const KeyField& value : values)
            rows[value.field] = value.key;
        rows.Update();
    };
    const auto add = [&](const char* table, const std::vector<KeyField>& values) {
        addTo(file, table, values);
    };
    addTo(system, "SYSSETTINGS", {{"JOBNOTYPE", "C"}, {"JOBNOSIZE", 8}});
    addTo(wks.OpenDatabase(folder + "ZORUSER.mdb"), "VEXSETTINGS", {{"DBTAG", 1}});
    add("VEXTAGS", {{"RQITAG", 1}});
    add("POLIST", {{"POTAG", longOrder},
                   {"REQTAG", 0},
                   {"PONO", "L"},
                   {"CONO", 1},
                   {"JOBNO", "    4711"},
                   {"FDATE", "03/07/2026"},
                   {"LDATE", "20260307"}});
    add("ILCLIST", {{"ILCTAG", 1}, {"ILCCODE", "01"}});
    add("INVENTORY", {{"ISNTAG", 5}, {"ILCTAG", 1}, {"PARTNO", "P-1"}, {"Desc", "Gate valve"}});
    for (int line = 1; line <= longDocument; ++line)
        add("RQILIST", {{"RQITAG", 900'000 + line},
                        {"REQTAG", 0},
                        {"POTAG", longOrder},
                        {"POLINENO", line},
                        {"POITEMNO", line},
                        {"QTY", 2},
                        {"AMOUNT", 1.25},
                        {"Desc", "GATE VALVE, 2 INCH"}});
}

// Requisition 1 has lines to be ordered, requisition 2 many.
Session makeSite()
{
    Session session;
    session.JobSitePath = session.UserSettingsPath = benchScratchFolder();
    session.SiteTag = 1;
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const QString folder = session.JobSitePath + '/';
    benchFile(wks, folder + "ZORUSER.mdb",
              {&schema::VEXSETTINGS, &schema::TAGLIST, &schema::VEXRQIAUTO});
    const storage::Database file =
        benchFile(wks, folder + "ZORVEX.mdb",
                  {&schema::REQLIST, &schema::POLIST, &schema::RQILIST, &schema::VEXTAGS,
                   &schema::VEXCOUNTERS, &schema::INVENTORY, &schema::INVTRANS, &schema::ILCLIST,
                   &schema::MCLIST, &schema::GLCODES, &schema::PAYMENTS});
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
    addLongOrder(wks, file, folder);
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

// The order and the ledger as they were before the line.
void takeLineAway()
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset lines = openLines(wks);
    lines.Index(purchaseOrders.lines);
    wks.BeginTrans();
    if (lines.Seek("=", longOrder, longDocument + 1))
        lines.Delete();
    storage::Recordset ledger =
        wks.OpenDatabase(session().JobSitePath + "/ZORVEX.mdb").OpenRecordset("INVTRANS");
    for (bool more = ledger.RecordCount() > 0 && ledger.MoveFirst(); more; more = ledger.MoveNext())
        ledger.Delete();
    wks.CommitTrans();
}

void saveNewLine(benchmark::State& state)
{
    const auto owner = lineOwnerOf(session(), purchaseOrders, longOrder);
    DataSession screen(frmVEXRQI02(session(), *owner, std::make_shared<bool>(false)), session(),
                       {.mode = "A", .index = "RQITAG", .parent = {{"POTAG", longOrder}}});
    Entry& entry = screen.entry();
    if (!screen.open())
        return state.SkipWithError("the screen did not open");
    takeLineAway();  // and what the bare commits have left in the ledger
    for (auto _ : state) {
        state.PauseTiming();
        entry.setNamed("txtILCCODE", "01");
        entry.setNamed("txtPARTNO", "P-1");
        entry.setText("Desc", "GATE VALVE, 2 INCH");
        entry.setText("QTY", "4");
        entry.setText("UNITPRICE", "12.500");
        state.ResumeTiming();
        screen.update();
        state.PauseTiming();
        OpenTable lines = openTable(session(), "ZORVEX.mdb", "RQILIST");
        lines.rows.Index(purchaseOrders.lines);
        OpenTable ledger = openTable(session(), "ZORVEX.mdb", "INVTRANS");
        if (!lines.rows.Seek("=", longOrder, longDocument + 1) ||
            numberOf(lines.rows["AMOUNT"]) != 50 || ledger.rows.RecordCount() != 1) {
            state.SkipWithError("the line is not saved");
            break;
        }
        takeLineAway();
        state.ResumeTiming();
    }
}

// The tag, the ledger's row, the item's quantities, the line, its stamp, and the branch last used.
void bareLineCommits(benchmark::State& state)
{
    session();
    for (auto _ : state) {
        OpenTable settings = openTable(session(), "ZORUSER.mdb", "VEXSETTINGS");
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        const storage::Database file = wks.OpenDatabase(session().JobSitePath + "/ZORVEX.mdb");
        const auto edit = [](storage::Recordset& rows, schema::FieldName field, int value) {
            rows.Edit();
            rows[field] = value;
            rows.Update();
        };
        static int next = 1'000'000;
        storage::Recordset tags = file.OpenRecordset("VEXTAGS");
        edit(tags, "RQITAG", ++next);
        storage::Recordset ledger = file.OpenRecordset("INVTRANS");
        ledger.AddNew();
        ledger["ISNTAG"] = 6;
        ledger["ITEMTAG"] = next;
        ledger.Update();
        storage::Recordset items = file.OpenRecordset("INVENTORY");
        edit(items, "ONORDER", next);
        storage::Recordset lines = file.OpenRecordset("RQILIST");
        lines.AddNew();
        lines["RQITAG"] = next;
        lines["POTAG"] = longOrder + 1;
        lines["POLINENO"] = next % 30'000;
        lines["Desc"] = "GATE VALVE, 2 INCH";
        lines.Update();
        lines.Bookmark(QString(lines.LastModified()));
        edit(lines, "REVNO", 1);
        edit(settings.rows, "ILCTAG", next);
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
    registerPair("order_line_save_1000_lines", saveGoal, saveNewLine, bareLineCommits);
    registerPair("order_totals_1000_lines", totalsGoal, closeLongDocument, nullptr);
    registerPair("order_new_line_1000_lines", numbersGoal, numberNewLine, nullptr);
}
