#include "screens/report/table_print.h"

#include <numeric>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "screens/desktop.h"
#include "screens/load_error.h"
#include "screens/report/page_sink.h"
#include "screens/report/report_window.h"

namespace {

constexpr qsizetype mostColumns = 13;
constexpr size_t mostKeys = 3;
constexpr int rowHeight = 250;
constexpr int belowTitle = 120;

struct PrintColumn
{
    QString field;
    QString type;
    int length = 0;
    QString heading;
    int width = 0;
    QString mask;
    bool isCentred = false;
};

void takeFormat(PrintColumn& column, QString format)
{
    if (!format.isEmpty() && QString("CNB").contains(format[0]))
        format.remove(0, 1);
    column.isCentred = format.endsWith('^');
    if (column.isCentred)
        format.chop(1);
    if (format != "-")
        column.mask = format;
}

std::vector<PrintColumn> columnsOf(const TablePrint& print)
{
    const QStringList fields = print.fields.split('|');
    const QStringList types = print.types.split('|');
    const QStringList lengths = print.lengths.split('|');
    const QStringList headings = print.headings.split('|');
    const QStringList widths = print.widths.split('|');
    const QStringList formats = print.formats.split('|');
    std::vector<PrintColumn> columns;
    for (qsizetype i = 0; i < std::min(fields.size(), mostColumns); ++i) {
        PrintColumn column;
        column.field = fields[i].trimmed();
        column.type = types.value(i).trimmed().toUpper();
        column.length = lengths.value(i).trimmed().toInt();
        column.heading = headings.value(i).trimmed();
        column.width = widths.value(i).trimmed().toInt();
        takeFormat(column, formats.value(i).trimmed());
        if (!column.field.isEmpty() && column.width > 0)
            columns.push_back(column);
    }
    return columns;
}

// The number of keys, or -1 for keys that cannot be used.
int keyCountOf(const TablePrint& print)
{
    size_t count = 0;
    for (size_t i = 0; i < print.keys.size(); ++i) {
        if (print.keys[i].field.trimmed().isEmpty())
            continue;
        if (i != count)
            return -1;
        ++count;
    }
    return count <= mostKeys ? static_cast<int>(count) : -1;
}

QString pathOf(const TablePrint& print, const Session& session)
{
    if (print.file.contains('/') || print.file.contains('\\'))
        return print.file;
    return storage::joinPath(session.JobSitePath, print.file);
}

// The table, open as long as the screen.
class PrintedTable
{
public:
    PrintedTable(TablePrint print, const QString& path)
        : m_print(std::move(print)),
          m_columns(columnsOf(m_print)),
          m_table(openTable(path, m_print.table))
    {
        const int keyCount = keyCountOf(m_print);
        if (keyCount < 0) {
            showCritical("Error: dnSearch", "Invalid Key Count in dnPrint");
            m_isUsable = false;
        }
        m_print.keys.resize(static_cast<size_t>(std::max(0, keyCount)));
        const storage::TableDefinition& definition = m_table.rows.definition();
        for (PrintKey& key : m_print.keys) {
            const int position = definition.fieldPosition(key.field);
            if (position >= 0)
                key.value =
                    storage::asKey(definition.fields[static_cast<size_t>(position)], key.value);
        }
    }

    // False for keys that cannot be, which were told.
    bool isUsable() const { return m_isUsable; }
    void print(ReportRun& run);

private:
    bool begin();
    bool isWithinKeys() const;
    void layOut(const PageDocument& pages);
    void beginPage(PageDocument& pages);
    void drawRow(PageDocument& pages);
    QString cell(const PrintColumn& column, int position) const;

    TablePrint m_print;
    std::vector<PrintColumn> m_columns;
    OpenTable m_table;
    bool m_isUsable = true;
    std::vector<int> m_positions;  // of the columns' fields
    std::vector<int> m_keyPositions;
    std::vector<int> m_widths;  // of the columns on this paper
    int m_left = 0;
    int m_y = 0;
};

int widthOf(const std::vector<PrintColumn>& columns)
{
    int sum = 0;
    for (const PrintColumn& column : columns)
        sum += column.width;
    return sum;
}

int positionOf(const storage::Recordset& rows, const QString& field)
{
    rows.fieldNamed(field);  // fails for a field that is not there
    return rows.definition().fieldPosition(field);
}

// Stands on the first row; false when there is none.
bool PrintedTable::begin()
{
    storage::Recordset& rows = m_table.rows;
    m_positions.clear();
    for (const PrintColumn& column : m_columns)
        m_positions.push_back(positionOf(rows, column.field));
    m_keyPositions.clear();
    for (const PrintKey& key : m_print.keys)
        m_keyPositions.push_back(positionOf(rows, key.field));
    if (!m_print.index.trimmed().isEmpty())
        rows.Index(m_print.index.trimmed());
    if (!m_print.bookmark.trimmed().isEmpty()) {
        rows.Bookmark(m_print.bookmark);
        return true;
    }
    if (m_print.keys.empty() || m_print.index.trimmed().isEmpty())
        return rows.RecordCount() > 0 && rows.MoveFirst();
    std::vector<storage::Value> values;
    for (const PrintKey& key : m_print.keys)
        values.push_back(key.value);
    return rows.seekKeys(">=", values);
}

bool PrintedTable::isWithinKeys() const
{
    for (size_t key = 0; key < m_print.keys.size(); ++key)
        if (!holdsKey(m_table.rows.Fields(m_keyPositions[key]), m_print.keys[key].value))
            return false;
    return true;
}

// The columns stand in the middle between the usual margins, narrowed where they are too wide for
// a landscape page.
void PrintedTable::layOut(const PageDocument& pages)
{
    const int room = pages.pageWidth() - pages.margins.left - pages.margins.right;
    m_widths.clear();
    for (const PrintColumn& column : m_columns)
        m_widths.push_back(column.width);
    m_widths = fittedWidths(std::move(m_widths), room);
    m_left = pages.margins.left + (room - std::accumulate(m_widths.begin(), m_widths.end(), 0)) / 2;
}

void PrintedTable::beginPage(PageDocument& pages)
{
    dnReportPageFoot(pages, {.moduleName = m_print.moduleName, .reportName = m_print.reportName});
    m_y = writeReportTitle(pages, m_print.reportName,
                           {m_print.headingLine, m_print.secondHeadingLine}) +
          belowTitle;
    int x = m_left;
    for (size_t i = 0; i < m_columns.size(); ++i) {
        dnReportColumnHead(pages, {x, m_y, m_widths[i], rowHeight}, m_columns[i].heading);
        x += m_widths[i];
    }
    m_y += rowHeight;
}

QString PrintedTable::cell(const PrintColumn& column, int position) const
{
    const storage::Value value = m_table.rows.Fields(position).value();
    if (column.type == "B")
        return value.toBool() ? "Yes" : "No";
    if (column.type == "N")
        return value.isNull() ? QString()
               : column.mask.isEmpty()
                   ? textOf(m_table.rows.Fields(position))
                   : dnFormat(numberOf(m_table.rows.Fields(position)), column.mask);
    QString text = value.toString();
    if (column.length > 0)
        text.truncate(column.length);
    return text + ' ';
}

void PrintedTable::drawRow(PageDocument& pages)
{
    int x = m_left;
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const PrintColumn& column = m_columns[i];
        CellFlags flags{.middle = true};
        if (column.type == "N")
            flags.alignment = TextAlignment::Right;
        if (column.isCentred)
            flags.alignment = TextAlignment::Centre;
        dnReportCell(pages, {x, m_y, m_widths[i], rowHeight}, cell(column, m_positions[i]), flags);
        x += m_widths[i];
    }
    m_y += rowHeight;
}

void PrintedTable::print(ReportRun& run)
{
    PageDocument& pages = run.pages;
    if (!dnReportBegin(run, orientationFor(pages, widthOf(m_columns))))
        return;
    constexpr int belowRows = 1200;
    const int bottom = pages.pageHeight() - belowRows;
    layOut(pages);
    storage::Recordset& rows = m_table.rows;
    bool hasRow = begin();
    if (m_print.keys.empty())
        run.expectRows(rows.RecordCount());
    beginPage(pages);
    for (; hasRow && isWithinKeys(); hasRow = rows.MoveNext()) {
        if (m_y + rowHeight > bottom) {
            pages.newPage();
            beginPage(pages);
        }
        drawRow(pages);
        if (!run.proceed())
            break;
    }
    dnReportEnd(run);
}

}  // namespace

ReportSpec tablePrintReport(const TablePrint& print, const Session& session)
{
    const auto table = std::make_shared<PrintedTable>(print, pathOf(print, session));
    return {
        .name = "frmdnPrint",
        .caption = print.windowTitle,
        .canBegin = table->isUsable(),
        .print = [table](ReportRun& run) { table->print(run); },
    };
}

ReportWindow* newTablePrintWindow(const TablePrint& print, const Session& session)
{
    ReportSpec spec{.name = "frmdnPrint", .caption = print.windowTitle, .print = [](ReportRun&) {}};
    QString failure;
    int number = 0;
    try {
        spec = tablePrintReport(print, session);
    } catch (const storage::StorageError& error) {
        failure = error.description();
        number = error.number();
    }
    auto* window = new ReportWindow(std::move(spec), session);
    if (number != 0)
        dnLoadError(window, number, failure);
    return window;
}

void dnPrint(const TablePrint& print, const Session& session)
{
    openScreen(newTablePrintWindow(print, session));
}
