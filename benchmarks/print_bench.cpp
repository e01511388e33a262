// A table print of 50,000 rows with 12 columns: how long a page takes until it can be looked at,
// and until it is in a PDF file, against the same pages drawn by a bare painter into a PDF file.
#include "benchmarks/bare_pages.h"
#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/workspace.h"
#include "screens/report/page_painting.h"
#include "screens/report/report_run.h"
#include "screens/report/table_print.h"

namespace {

constexpr int printedRows = 50'000;

const BenchGoal printGoal{.ratio = 1.0, .unit = "ms/page", .perSecond = 1e-3};
const BenchGoal pdfGoal{.ratio = 1.2, .unit = "ms/page", .perSecond = 1e-3};

QString makePrintedTable()
{
    const QString folder = benchScratchFolder();
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Database db = wks.CreateDatabase(folder + "/ZORVEX.mdb");
    storage::TableDef table = storage::CreateTableDef(storage::definitionOf(schema::RQILIST));
    db.TableDefs().Append(table);
    storage::Recordset rs = db.OpenRecordset("RQILIST");
    wks.BeginTrans();
    for (int i = 0; i < printedRows; ++i) {
        rs.AddNew();
        rs["RQITAG"] = i + 1;
        rs["POTAG"] = i / 5 + 1;
        rs["POITEMNO"] = i % 5 + 1;
        rs["QTY"] = i % 400 / 4.0;
        rs["UNIT"] = "EA";
        rs["SHORTDESC"] = QString("Steel bracket %1 mm").arg(i % 997);
        rs["UNITPRICE"] = i % 90000 / 100.0;
        rs["AMOUNT"] = i % 9000000 / 10.0;
        rs["COSTCODEA"] = QString("     %1").arg(i % 90000, 5);
        rs["GLCODE"] = "4000-10";
        rs["ADDNAME"] = "buyer";
        rs["ADDDATE"] = "03/07/2026";
        rs.Update();
    }
    wks.CommitTrans();
    return folder;
}

TablePrint tablePrint()
{
    return {.file = "ZORVEX.mdb",
            .table = "RQILIST",
            .index = "RQITAG",
            .windowTitle = "Print Line Items",
            .reportName = "Line Items",
            .fields =
                "RQITAG|POTAG|POITEMNO|QTY|UNIT|SHORTDESC|UNITPRICE|AMOUNT|COSTCODEA|GLCODE|"
                "ADDNAME|ADDDATE",
            .types = "N|N|N|N|C|C|N|N|C|C|C|C",
            .lengths = "8|8|4|10|5|50|12|14|10|10|10|10",
            .headings = "Tag|PO|Item|Quantity|Unit|Description|Price|Amount|Code|G/L|By|Date",
            .widths = "800|800|600|1000|700|2900|1200|1500|1100|1000|1000|1200",
            .formats = "###|###|###|###,###.0|-|-|###,###.00|###,###,###.00|-|-|-|-"};
}

const Session& printSession()
{
    static const Session session = [] {
        Session made;
        made.JobSitePath = makePrintedTable();
        return made;
    }();
    return session;
}

ReportRun& printedReport()
{
    static ReportRun run(tablePrintReport(tablePrint(), printSession()), printSession());
    if (run.pages.pageCount() == 0)
        run.begin();
    return run;
}

void printOurs(benchmark::State& state)
{
    ReportRun& run = printedReport();
    for (auto _ : state)
        run.begin();
    if (run.rowCount() != printedRows)
        state.SkipWithError("rows are missing");
    state.counters["items"] = run.pages.pageCount();
}

void pdfOurs(benchmark::State& state)
{
    ReportRun& run = printedReport();
    const QString path = printSession().JobSitePath + "/report.pdf";
    for (auto _ : state)
        if (!writePdf(run.pages, path).isEmpty())
            state.SkipWithError("not written");
    state.counters["items"] = run.pages.pageCount();
}

void pdfBase(benchmark::State& state)
{
    const BarePages pages(printedReport().pages);
    for (auto _ : state)
        if (!pages.writePdf(printSession().JobSitePath + "/bare.pdf", QPageLayout::Landscape))
            state.SkipWithError("not written");
    state.counters["items"] = pages.count();
}

}  // namespace

void registerPrintBenchmarks()
{
    registerPair("table_print", printGoal, printOurs, pdfBase, 3);
    registerPair("report_pdf", pdfGoal, pdfOurs, pdfBase, 3);
}
