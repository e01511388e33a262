#include "screens/report/page_sink.h"

#include <numeric>

#include "core/number_format.h"
#include "screens/report/totals.h"

namespace {

constexpr int rowHeight = 250;
constexpr int bottomReserve = 1200;  // the foot strip, and what reports write above it
constexpr int belowTitle = 120;

bool isNumber(const ReportColumn& column)
{
    return !column.mask.isEmpty();
}

}  // namespace

QString orientationFor(const PageDocument& pages, int width)
{
    const PageMargins usual;
    return width > pages.paper().width - usual.left - usual.right ? "L" : "P";
}

std::vector<int> fittedWidths(std::vector<int> widths, int room)
{
    const int asked = std::accumulate(widths.begin(), widths.end(), 0);
    if (asked > room)
        for (int& width : widths)
            width = static_cast<int>(qint64(width) * room / asked);
    return widths;
}

QString cellText(const storage::Value& value, const QString& mask)
{
    if (value.isNull() || mask.isEmpty() || value.as<QString>())
        return value.toString();
    return dnFormat(value.toDouble(), mask);
}

void PageSink::begin(const ReportPlan& plan)
{
    m_plan = plan;
    const int room = m_pages.pageWidth() - m_pages.margins.left - m_pages.margins.right;
    m_widths.clear();
    for (const ReportColumn& column : plan.columns)
        m_widths.push_back(column.width);
    m_widths = fittedWidths(std::move(m_widths), room);
    m_width = std::accumulate(m_widths.begin(), m_widths.end(), 0);
    m_left = m_pages.margins.left + (room - m_width) / 2;
    m_pageSums.assign(plan.columns.size(), {});
    beginPage();
}

int PageSink::bottom() const
{
    const bool hasPageTotal = !m_plan.pageTotalCaption.isEmpty();
    return m_pages.pageHeight() - bottomReserve - (hasPageTotal ? rowHeight : 0);
}

void PageSink::beginPage()
{
    const int number = m_plan.firstPage + m_pages.currentPage() - 1;
    dnReportPageFoot(
        m_pages,
        {.moduleName = m_plan.moduleName, .reportName = m_plan.title, .pageOverride = number});
    QStringList below = m_plan.headingLines;
    if (!m_plan.pageCaption.isEmpty())
        below.append(m_plan.pageCaption + dnFormat(number, "####"));
    m_y = writeReportTitle(m_pages, m_plan.title, below) + belowTitle;
    int headRows = 1;
    for (const ReportColumn& column : m_plan.columns)
        if (column.width > 0)
            headRows = std::max(headRows, 1 + static_cast<int>(column.heading.count('\n')));
    int x = m_left;
    for (size_t column = 0; column < m_widths.size(); ++column) {
        if (m_widths[column] > 0)
            dnReportColumnHead(m_pages, {x, m_y, m_widths[column], headRows * rowHeight},
                               m_plan.columns[column].heading);
        x += m_widths[column];
    }
    m_y += headRows * rowHeight;
}

void PageSink::makeRoom(int depth)
{
    if (m_y + depth <= bottom())
        return;
    if (!m_plan.pageTotalCaption.isEmpty()) {
        drawTotal(m_plan.pageTotalCaption, m_pageSums);
        m_pageSums.assign(m_plan.columns.size(), {});
    }
    m_pages.newPage();
    beginPage();
    for (const QString& open : m_heads) {
        if (open.isEmpty())
            continue;
        dnReportBar(m_pages, {m_left, m_y, m_width, rowHeight}, open + " (continued)");
        m_y += rowHeight;
    }
}

QStringList PageSink::textsOfCells(const ReportCells& cells) const
{
    QStringList texts;
    for (size_t column = 0; column < m_plan.columns.size(); ++column) {
        const storage::Value value = column < cells.size() ? cells[column] : storage::Value();
        texts.append(cellText(value, m_plan.columns[column].mask));
    }
    return texts;
}

int PageSink::depthOf(const QStringList& texts) const
{
    int depth = rowHeight;
    for (size_t column = 0; column < m_widths.size(); ++column)
        if (m_plan.columns[column].wraps)
            depth = std::max(
                depth, reportCellDepth({0, 0, m_widths[column], rowHeight},
                                       texts[static_cast<qsizetype>(column)], {.wraps = true}));
    return depth;
}

void PageSink::head(size_t level, const QString& text)
{
    while (m_heads.size() > static_cast<qsizetype>(level))
        m_heads.removeLast();
    makeRoom(2 * rowHeight);  // never alone at the foot of a page
    while (m_heads.size() < static_cast<qsizetype>(level))
        m_heads.append(QString());
    m_heads.append(text);
    dnReportBar(m_pages, {m_left, m_y, m_width, rowHeight}, text);
    m_y += rowHeight;
}

void PageSink::line(const ReportCells& cells)
{
    const QStringList texts = textsOfCells(cells);
    makeRoom(depthOf(texts));
    if (!m_plan.pageTotalCaption.isEmpty())
        addTo(m_pageSums, cells, m_plan);
    drawLine(texts);
}

// A line deeper than what is left of a page of its own goes on over the next pages, where only the
// columns that wrap have more to say.
void PageSink::drawLine(QStringList texts)
{
    while (depthOf(texts) > bottom() - m_y) {
        const int fitting = std::max(1, reportLinesIn(bottom() - m_y));
        QStringList rest;
        for (size_t column = 0; column < m_widths.size(); ++column) {
            QString& text = texts[static_cast<qsizetype>(column)];
            rest.append(QString());
            if (!m_plan.columns[column].wraps || m_widths[column] == 0)
                continue;
            const QStringList lines = reportCellLines(m_widths[column], text);
            text = lines.mid(0, fitting).join('\n');
            rest.last() = lines.mid(fitting).join('\n');
        }
        if (rest.join(QString()).isEmpty())
            break;
        drawPart(texts, depthOf(texts));
        texts = rest;
        makeRoom(bottom());
    }
    drawPart(texts, depthOf(texts));
}

void PageSink::drawPart(const QStringList& texts, int depth)
{
    int x = m_left;
    for (size_t column = 0; column < m_widths.size(); ++column) {
        const ReportColumn& how = m_plan.columns[column];
        CellFlags flags{.middle = !how.wraps, .wraps = how.wraps};
        if (isNumber(how))
            flags.alignment = TextAlignment::Right;
        if (how.isCentred)
            flags.alignment = TextAlignment::Centre;
        if (m_widths[column] > 0)
            dnReportCell(m_pages, {x, m_y, m_widths[column], depth},
                         texts[static_cast<qsizetype>(column)], flags);
        x += m_widths[column];
    }
    m_y += depth;
}

void PageSink::drawTotal(const QString& caption, const ReportCells& sums)
{
    size_t firstSum = 0;
    int captionWidth = 0;
    while (firstSum < m_widths.size() && !m_plan.columns[firstSum].isTotalled)
        captionWidth += m_widths[firstSum++];
    int x = m_left;
    const CellFlags heading{.middle = true, .bold = true, .grey = true};
    if (captionWidth > 0)
        dnReportCell(m_pages, {x, m_y, captionWidth, rowHeight}, caption, heading);
    x += captionWidth;
    const QStringList texts = textsOfCells(sums);
    CellFlags flags = heading;
    flags.alignment = TextAlignment::Right;
    for (size_t column = firstSum; column < m_widths.size(); ++column) {
        if (m_widths[column] > 0)
            dnReportCell(m_pages, {x, m_y, m_widths[column], rowHeight},
                         texts[static_cast<qsizetype>(column)], flags);
        x += m_widths[column];
    }
    m_y += rowHeight;
}

void PageSink::total(size_t level, const QString& caption, const ReportCells& sums)
{
    makeRoom(rowHeight);
    drawTotal(caption, sums);
    while (m_heads.size() > static_cast<qsizetype>(level))
        m_heads.removeLast();
}

void PageSink::note(const QString& text)
{
    makeRoom(rowHeight);
    dnReportCell(m_pages, {m_left, m_y, m_width, rowHeight}, text, {.middle = true});
    m_y += rowHeight;
}

void PageSink::end(bool isComplete)
{
    if (isComplete && !m_plan.pageTotalCaption.isEmpty())
        drawTotal(m_plan.pageTotalCaption, m_pageSums);
}
