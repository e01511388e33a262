// A report's workbook of 60,000 lines in the old form, against the library of the new form writing
// the same cells.
#include <xlsxwriter.h>

#include <QDir>
#include <QTemporaryDir>

#include "benchmarks/bench_report.h"
#include "screens/report/workbook/workbook_writer.h"

namespace {

constexpr int rowCount = 60000;
constexpr int textColumns = 8;
constexpr int columnCount = 12;

const BenchGoal workbookGoal{.ratio = 1.0, .unit = "us/row", .perSecond = 1e-6};

// Like a purchase order log: numbers of orders and items, vendors and dates that come again and
// again, descriptions that do not, amounts.
QString textAt(int row, int column)
{
    switch (column) {
        case 0:
            return QString("P%1").arg(row / 12, 6, 10, QChar('0'));
        case 1:
            return QString("Vendor number %1").arg(row % 500);
        case 2:
            return QString("%1/%2/2026").arg(row % 12 + 1, 2, 10, QChar('0')).arg(row % 28 + 1);
        case 3:
            return QString("Pipe, carbon steel, schedule 40, heat %1").arg(row);
        default:
            return QString("code %1").arg((row * column) % 900);
    }
}

double numberAt(int row, int column)
{
    return row * 1.25 + column;
}

const std::vector<WorkbookRow>& rowsOfOurs()
{
    static const std::vector<WorkbookRow> rows = [] {
        std::vector<WorkbookRow> made(rowCount);
        for (int row = 0; row < rowCount; ++row)
            for (int column = 0; column < columnCount; ++column)
                made[row].push_back(column < textColumns ? storage::Value(textAt(row, column))
                                                         : storage::Value(numberAt(row, column)));
        return made;
    }();
    return rows;
}

// The library's own form of a text, made beforehand, which is to its advantage.
const std::vector<QByteArray>& textsOfBase()
{
    static const std::vector<QByteArray> texts = [] {
        std::vector<QByteArray> made;
        for (int row = 0; row < rowCount; ++row)
            for (int column = 0; column < textColumns; ++column)
                made.push_back(textAt(row, column).toUtf8());
        return made;
    }();
    return texts;
}

void writeOurs(benchmark::State& state)
{
    const QTemporaryDir folder;
    const std::vector<WorkbookRow>& rows = rowsOfOurs();
    for (auto _ : state) {
        auto writer = createWorkbook(folder.filePath("log.xls"));
        for (const WorkbookRow& row : rows)
            writer->writeRow(row);
        writer->finish();
    }
    state.counters["items"] = rowCount;
}

void writeBase(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QByteArray file = folder.filePath("log.xlsx").toUtf8();
    const std::vector<QByteArray>& texts = textsOfBase();
    for (auto _ : state) {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;  // its fastest way
        lxw_workbook* workbook = workbook_new_opt(file.constData(), &options);
        lxw_worksheet* sheet = workbook_add_worksheet(workbook, nullptr);
        size_t text = 0;
        for (int row = 0; row < rowCount; ++row) {
            for (int column = 0; column < columnCount; ++column) {
                const auto place = static_cast<lxw_row_t>(row);
                const auto across = static_cast<lxw_col_t>(column);
                if (column < textColumns)
                    worksheet_write_string(sheet, place, across, texts[text++].constData(),
                                           nullptr);
                else
                    worksheet_write_number(sheet, place, across, numberAt(row, column), nullptr);
            }
        }
        if (workbook_close(workbook) != LXW_NO_ERROR)
            state.SkipWithError("the workbook was not written");
    }
    state.counters["items"] = rowCount;
}

}  // namespace

void registerWorkbookBenchmarks()
{
    registerPair("workbook_of_60000_rows", workbookGoal, writeOurs, writeBase, 3);
}
