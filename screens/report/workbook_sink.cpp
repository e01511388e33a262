#include "screens/report/workbook_sink.h"

#include "core/messages.h"
#include "core/number_format.h"
#include "screens/report/workbook/workbook_writer.h"

namespace {

constexpr double twipsPerCharacter = 110;

QString headingOf(const ReportColumn& column)
{
    return column.workbookHeading.isEmpty() ? column.heading : column.workbookHeading;
}

QString maskOf(const ReportColumn& column)
{
    return column.workbookMask.isEmpty() ? column.mask : column.workbookMask;
}

storage::Value cellOf(const storage::Value& value, const QString& mask)
{
    if (value.isNull() || value.as<QString>())
        return value;
    if (mask.isEmpty())
        return value.toString();
    // What the mask leaves blank is a blank cell.
    bool isNumber = false;
    const double shown = dnFormat(value.toDouble(), mask).remove(',').toDouble(&isNumber);
    return isNumber ? storage::Value(shown) : storage::Value();
}

std::vector<size_t> orderOf(const ReportPlan& plan)
{
    if (!plan.workbookOrder.empty())
        return plan.workbookOrder;
    std::vector<size_t> order;
    for (size_t column = 0; column < plan.columns.size(); ++column)
        if (plan.columns[column].isInWorkbook)
            order.push_back(column);
    return order;
}

// Two, so that the lines begin in the third row of every workbook.
std::vector<WorkbookRow> headRowsOf(const ReportPlan& plan, const std::vector<size_t>& order)
{
    WorkbookRow upper;
    WorkbookRow lower;
    for (const size_t column : order) {
        const QString heading = headingOf(plan.columns[column]);
        const bool isDouble = heading.contains('\n');
        upper.emplace_back(isDouble ? storage::Value(heading.section('\n', 0, 0))
                                    : storage::Value());
        lower.emplace_back(heading.section('\n', isDouble ? 1 : 0));
    }
    return {upper, lower};
}

}  // namespace

WorkbookSink::WorkbookSink(const QString& path) : m_path(path) {}

WorkbookSink::~WorkbookSink() = default;

void WorkbookSink::attempt(const std::function<void()>& write)
{
    try {
        write();
    } catch (const WorkbookError& error) {
        m_writer.reset();
        showCritical("Cannot Create Spreadsheet", error.text());
    }
}

void WorkbookSink::begin(const ReportPlan& plan)
{
    m_plan = plan;
    m_order = orderOf(plan);
    std::vector<double> widths;
    for (const size_t column : m_order)
        widths.push_back(plan.columns[column].width / twipsPerCharacter);
    attempt([&] {
        m_writer = createWorkbook(m_path);
        m_writer->beginSheet(plan.title, widths, headRowsOf(plan, m_order));
    });
}

void WorkbookSink::writeRow(const ReportCells& cells, bool bold, const QString& caption)
{
    if (!m_writer)
        return;
    WorkbookRow row;
    for (const size_t column : m_order) {
        storage::Value cell;
        if (column < cells.size())
            cell = cellOf(cells[column], maskOf(m_plan.columns[column]));
        if (!caption.isEmpty() && static_cast<int>(column) == m_plan.captionColumn)
            cell = caption;
        row.push_back(std::move(cell));
    }
    attempt([&] { m_writer->writeRow(row, bold); });
}

void WorkbookSink::head(size_t /*level*/, const QString& text)
{
    writeRow({}, true, text);
}

void WorkbookSink::line(const ReportCells& cells)
{
    writeRow(cells, false);
}

void WorkbookSink::total(size_t /*level*/, const QString& caption, const ReportCells& sums)
{
    writeRow(sums, true, caption);
}

void WorkbookSink::note(const QString& text)
{
    writeRow({}, false, text);
}

void WorkbookSink::end(bool isComplete)
{
    if (m_writer && isComplete)
        attempt([&] { m_writer->finish(); });
    m_writer.reset();
}
