// A purchase order of 1,000 lines: how long a page takes from the lines in the file to a PDF file,
// against the same pages drawn by a bare painter into one.
#include "benchmarks/bare_pages.h"
#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/workspace.h"
#include "purchasing/forms/order_print.h"
#include "screens/report/page_painting.h"

namespace {

constexpr int orderLines = 1000;
constexpr qint32 POTAG = 1;

const BenchGoal layoutGoal{.ratio = 1.0, .unit = "ms/page", .perSecond = 1e-3};
const BenchGoal formGoal{.ratio = 2.0, .unit = "ms/page", .perSecond = 1e-3};

template <size_t N>
storage::Database makeFile(storage::Workspace& wks, const QString& path,
                           const schema::Table* const (&tables)[N])
{
    storage::Database file = wks.CreateDatabase(path);
    for (const schema::Table* source : tables) {
        storage::TableDef table = storage::CreateTableDef(storage::definitionOf(*source));
        file.TableDefs().Append(table);
    }
    return file;
}

void addLines(storage::Workspace& wks, storage::Database& file)
{
    storage::Recordset rs = file.OpenRecordset("RQILIST");
    wks.BeginTrans();
    for (int i = 1; i <= orderLines; ++i) {
        rs.AddNew();
        rs["RQITAG"] = i;
        rs["POTAG"] = POTAG;
        rs["POITEMNO"] = i;
        rs["POLINENO"] = i;
        rs["QTY"] = i % 400 / 4.0 + 1;
        rs["UNIT"] = "EA";
        rs["Desc"] = QString(
                         "Valve, gate, %1 in., class 150, flanged, raised face, carbon steel "
                         "body\r\nTag with the line number")
                         .arg(i % 48);
        rs["UNITPRICE"] = i % 90000 / 100.0;
        rs["AMOUNT"] = i % 9000000 / 10.0;
        rs["COSTCODEA"] = QString::number(1000 + i % 90);
        rs["GLCODE"] = "4000-10";
        rs.Update();
    }
    wks.CommitTrans();
}

void addHeads(storage::Database& file)
{
    storage::Recordset order = file.OpenRecordset("POLIST");
    order.AddNew();
    order["POTAG"] = POTAG;
    order["PONO"] = "4711M00001";
    order["CONO"] = 1;
    order["JOBNO"] = "4711";
    order.Update();
    storage::Recordset defaults = file.OpenRecordset("JOB_NO_DEFAULTS");
    defaults.AddNew();
    defaults["CONO"] = 1;
    defaults["JOBNO"] = "4711";
    defaults["ITEM1"] = 3;
    defaults["ITEM2"] = 6;
    defaults.Update();
}

const Session& formSession()
{
    static const Session session = [] {
        Session made;
        made.JobSitePath = made.UserSettingsPath = benchScratchFolder();
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        storage::Database file =
            makeFile(wks, made.JobSitePath + "/ZORVEX.mdb",
                     {&schema::RQILIST, &schema::POLIST, &schema::REQLIST, &schema::VENDORS,
                      &schema::JOB_NO_DEFAULTS, &schema::INVENTORY, &schema::BINLIST});
        addLines(wks, file);
        addHeads(file);
        makeFile(wks, made.JobSitePath + "/MAIN.mdb", {&schema::COLIST});
        makeFile(wks, made.JobSitePath + "/ZORUSER.mdb",
                 {&schema::VEXPRINTBUFFER, &schema::VEXCCSTLBUF});
        return made;
    }();
    return session;
}

ReportRun& orderRun()
{
    static ReportRun run({.name = "order",
                          .print =
                              [](ReportRun& report) {
                                  dnReportBegin(report, "P");
                                  printOrder(report, OrderForm::Standard, {.hasSubtotals = true},
                                             POTAG);
                                  dnReportEnd(report);
                              },
                          .paper = letterPaper},
                         formSession());
    return run;
}

void layoutOurs(benchmark::State& state)
{
    for (auto _ : state)
        orderRun().begin();
    if (orderRun().pages.pageCount() < orderLines / 30)
        state.SkipWithError("pages are missing");
    state.counters["items"] = orderRun().pages.pageCount();
}

void pdfOurs(benchmark::State& state)
{
    for (auto _ : state) {
        orderRun().begin();
        if (!writePdf(orderRun().pages, formSession().JobSitePath + "/order.pdf").isEmpty())
            state.SkipWithError("not written");
    }
    state.counters["items"] = orderRun().pages.pageCount();
}

void pdfBase(benchmark::State& state)
{
    if (orderRun().pages.pageCount() == 0)
        orderRun().begin();
    const BarePages pages(orderRun().pages);
    for (auto _ : state)
        if (!pages.writePdf(formSession().JobSitePath + "/bare.pdf", QPageLayout::Portrait))
            state.SkipWithError("not written");
    state.counters["items"] = pages.count();
}

}  // namespace

void registerFormBenchmarks()
{
    registerPair("order_layout", layoutGoal, layoutOurs, pdfBase, 3);
    registerPair("order_pdf", formGoal, pdfOurs, pdfBase, 3);
}
