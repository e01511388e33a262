#include "screens/report/data_sheet.h"

#include <exception>

#include "core/keyed_access.h"
#include "screens/report/report_page.h"

namespace {

constexpr char labelFont[] = "Arial";
constexpr double labelSize = 9;
constexpr char valueFont[] = "Times New Roman";
constexpr double valueSize = 11;
constexpr int indent = 700;       // from the margin
constexpr int labelWidth = 2600;  // the values begin after it
constexpr int belowLine = 90;
constexpr int headHeight = 280;
constexpr int betweenSheets = 400;
constexpr int belowTitle = 300;
constexpr int bottomReserve = 1200;  // the foot strip, and a little air above it

QStringList linesOf(const SheetLine& line, int width)
{
    return wrappedLines(line.value, {.family = FontFamily::TimesNewRoman, .size = valueSize},
                        width);
}

}  // namespace

DataSheets::DataSheets(ReportRun& run, SheetHead head)
    : m_run(run),
      m_head(std::move(head)),
      m_failuresBefore(std::uncaught_exceptions()),
      m_isOpen(dnReportBegin(run, "P"))
{
}

DataSheets::~DataSheets()
{
    // A failure in the middle ends the run in its own way.
    if (m_isOpen && std::uncaught_exceptions() == m_failuresBefore)
        dnReportEnd(m_run);
}

int DataSheets::valueLeft() const
{
    return m_run.pages.margins.left + indent + labelWidth;
}

int DataSheets::valueWidth() const
{
    return m_run.pages.pageWidth() - m_run.pages.margins.right - indent - valueLeft();
}

int DataSheets::bottom() const
{
    return m_run.pages.pageHeight() - bottomReserve;
}

void DataSheets::beginPage()
{
    PageDocument& pages = m_run.pages;
    if (m_isPageBegun)
        pages.newPage();
    m_isPageBegun = true;
    dnReportPageFoot(pages, {.moduleName = m_head.moduleName, .reportName = m_head.reportName});
    m_y = writeReportTitle(pages, m_head.reportName, m_head.headingLines) + belowTitle;
}

int DataSheets::depthOf(const SheetLine& line) const
{
    if (line.isHead)
        return headHeight + belowLine;
    PageDocument& pages = m_run.pages;
    const StyleKeeper keeper(pages);
    pages.setFont(valueFont, valueSize);
    return static_cast<int>(linesOf(line, valueWidth()).size()) * pages.heightOfLine() + belowLine;
}

void DataSheets::draw(const SheetLine& line)
{
    PageDocument& pages = m_run.pages;
    const StyleKeeper keeper(pages);
    const int left = pages.margins.left + indent;
    if (line.isHead) {
        dnReportBar(
            pages, {left, m_y, pages.pageWidth() - pages.margins.right - indent - left, headHeight},
            line.label);
        m_y += headHeight + belowLine;
        return;
    }
    pages.setFont(valueFont, valueSize);
    const int height = pages.heightOfLine();
    pages.setFont(labelFont, labelSize, true);
    // On one base line with the larger value.
    pages.setPosition(left, m_y + (height - pages.heightOfLine()) * 3 / 4);
    pages.writeText(line.label);
    pages.setFont(valueFont, valueSize);
    for (const QString& text : linesOf(line, valueWidth())) {
        if (m_y + height > bottom())
            beginPage();
        pages.setFont(valueFont, valueSize);
        pages.setPosition(valueLeft(), m_y);
        pages.writeText(text);
        m_y += height;
    }
    m_y += belowLine;
}

bool DataSheets::add(const std::vector<SheetLine>& lines)
{
    int depth = 0;
    for (const SheetLine& line : lines)
        depth += depthOf(line);
    const bool isFirst = !m_isPageBegun;
    if (isFirst || m_head.ownPages || m_y + betweenSheets + depth > bottom()) {
        beginPage();
    } else {
        const PageMargins& margins = m_run.pages.margins;
        m_y += betweenSheets / 2;
        m_run.pages.drawLine(margins.left + indent, m_y,
                             m_run.pages.pageWidth() - margins.right - indent, m_y);
        m_y += betweenSheets / 2;
    }
    for (const SheetLine& line : lines) {
        if (m_y + depthOf(line) > bottom())
            beginPage();
        draw(line);
    }
    return m_run.proceed();
}

QString placeLine(const storage::Recordset& rows)
{
    QString place = trimmedTextOf(rows["CITY"]);
    const QString state = trimmedTextOf(rows["State"]);
    const QString extension = trimmedTextOf(rows["PLUS4"]);
    if (!place.isEmpty() && !state.isEmpty())
        place += ", ";
    place += state + ' ' + trimmedTextOf(rows["ZIP"]);
    return (extension.isEmpty() ? place : place + '-' + extension).trimmed();
}
