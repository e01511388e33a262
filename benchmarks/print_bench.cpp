// A table print of 50,000 rows with 12 columns: how long a page takes until it can be looked at,
// and until it is in a PDF file, against the same pages drawn by a bare painter into a PDF file.
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

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

// What a bare painter is given, ready at hand.
struct BareText
{
    QPointF baseline;
    QString text;
    int font;
};
struct BarePage
{
    std::vector<QRectF> boxes;
    std::vector<BareText> texts;
};

std::vector<BarePage> barePages(const PageDocument& document, std::vector<QFont>& fonts)
{
    std::vector<BarePage> pages;
    std::vector<PageFont> known;
    for (int number = 1; number <= document.pageCount(); ++number) {
        BarePage& page = pages.emplace_back();
        const Page& source = document.page(number);
        for (const PageOperation& operation : source.operations) {
            if (operation.kind == PageOperation::Kind::Rectangle) {
                page.boxes.emplace_back(operation.x, operation.y, operation.width,
                                        operation.height);
            } else if (operation.kind == PageOperation::Kind::Text) {
                const PageFont& font = document.font(operation.style);
                const auto place = std::find(known.begin(), known.end(), font) - known.begin();
                if (place == static_cast<qsizetype>(known.size())) {
                    known.push_back(font);
                    fonts.push_back(paintingFont(font));
                }
                page.texts.push_back({QPointF(operation.x, operation.y + ascentOf(font)),
                                      source.textOf(operation), static_cast<int>(place)});
            }
        }
    }
    return pages;
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
    const PageDocument& document = printedReport().pages;
    std::vector<QFont> fonts;
    const std::vector<BarePage> pages = barePages(document, fonts);
    for (auto _ : state) {
        QFile file(printSession().JobSitePath + "/bare.pdf");
        if (!file.open(QIODevice::WriteOnly))
            state.SkipWithError("not written");
        QPdfWriter writer(&file);
        writer.setResolution(twipsPerInch);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Landscape, {}));
        QPainter painter(&writer);
        bool isFirst = true;
        for (const BarePage& page : pages) {
            if (!std::exchange(isFirst, false))
                writer.newPage();
            painter.setPen(QPen(Qt::black, 10));
            painter.setBrush(Qt::white);
            for (const QRectF& box : page.boxes)
                painter.drawRect(box);
            for (const BareText& text : page.texts) {
                painter.setFont(fonts[static_cast<size_t>(text.font)]);
                painter.drawText(text.baseline, text.text);
            }
        }
    }
    state.counters["items"] = static_cast<double>(pages.size());
}

}  // namespace

void registerPrintBenchmarks()
{
    registerPair("table_print", printGoal, printOurs, pdfBase, 3);
    registerPair("report_pdf", pdfGoal, pdfOurs, pdfBase, 3);
}
