#include "purchasing/forms/form_drawing.h"

#include "core/system.h"
#include "purchasing/forms/form_boxes.h"
#include "purchasing/forms/form_rows.h"
#include "screens/report/report_page.h"

namespace {

constexpr int rowHeight = 190;
constexpr int letterheadHeight = 1480;
constexpr int titleWidth = 4300;
constexpr int titleBoxHeight = 440;
constexpr int logoWidth = 1900;
constexpr int columnHeadHeight = 260;
constexpr int equipmentHeight = 240;
constexpr int gap = 70;
constexpr int noteHeight = 150;
constexpr int noteRows = 2;
constexpr int thinPen = 5;

constexpr const char* notes[] = {"*Adjustment", "MSDS - Required on all hazardous materials.",
                                 "CMTR - Required on specified materials.",
                                 "COC - Required on specified materials."};

class FormPages
{
public:
    FormPages(ReportRun& run, const Form& form, const FormDocument& document,
              const QStringList& totals)
        : m_run(run),
          m_pages(run.pages),
          m_form(form),
          m_document(document),
          m_left(m_pages.margins.left),
          m_width(m_pages.pageWidth() - m_pages.margins.left - m_pages.margins.right),
          m_widths(columnWidths(form, m_width)),
          m_logo(document.logo.isEmpty() ? QImage() : QImage(document.logo))
    {
        if (m_form.totals)
            m_form.totals->further = totals;
    }

    bool draw(const std::vector<FormRow>& rows);

private:
    int bodyTop() const;
    int bodyBottom() const;
    int footHeight() const;
    void drawHead(PageCount count);
    void drawLetterhead();
    void drawTitle();
    void drawColumns();
    void drawRow(const QStringList& cells, int y, bool isBold = false);
    void drawNotice(std::span<const PrintedRow> rows, int y);
    bool drawBody(std::span<const PrintedRow> rows);
    void drawFoot(PageCount count);
    void drawNotes(int y);

    ReportRun& m_run;
    PageDocument& m_pages;
    Form m_form;
    const FormDocument& m_document;
    int m_left;
    int m_width;
    std::vector<int> m_widths;
    QImage m_logo;
};

int FormPages::bodyTop() const
{
    int y = m_pages.margins.top + letterheadHeight + gap;
    for (const FormBoxRow& row : m_form.head)
        y += row.height;
    if (!m_document.equipment.isEmpty())
        y += equipmentHeight;
    return y + gap + columnHeadHeight;
}

int FormPages::footHeight() const
{
    int height = noteRows * noteHeight + gap;
    for (const FormBoxRow& row : m_form.foot)
        height += row.height;
    return m_form.totals ? height + columnHeadHeight : height;
}

int FormPages::bodyBottom() const
{
    return m_pages.pageHeight() - m_pages.margins.bottom - footHeight();
}

void FormPages::drawLetterhead()
{
    const int top = m_pages.margins.top;
    int left = m_left;
    if (!m_logo.isNull()) {
        m_pages.drawPicture(m_logo, {left, top, logoWidth, letterheadHeight - gap});
        left += logoWidth + 2 * gap;
    }
    const int room = m_left + m_width - titleWidth - gap - left;
    int y = top;
    const auto write = [&](const QString& text, const PageFont& font, int height) {
        m_pages.style.font = font;
        m_pages.setPosition(left, y);
        m_pages.writeText(text.left(fittingLength(text, font, room)));
        y += height;
    };
    const PageFont large{FontFamily::TimesNewRoman, true, 16};
    const PageFont small{FontFamily::Arial, false, 8};
    PageFont fitting = small;  // the same for all lines
    for (const QString& line : m_document.companyLines)
        fitting = fittingFont(line, fitting, room, 6);
    write(m_document.companyName, fittingFont(m_document.companyName, large, room, 6),
          lineHeight(large));
    for (const QString& line : m_document.companyLines)
        write(line, fitting, lineHeight(small));
}

void FormPages::drawTitle()
{
    const int left = m_left + m_width - titleWidth;
    const int boxes = m_pages.margins.top + letterheadHeight - titleBoxHeight;
    m_pages.setFont("Times New Roman", 18, true);
    const int height = m_pages.heightOfLine();
    const int all = height * static_cast<int>(m_form.title.size());
    int y = m_pages.margins.top + (boxes - m_pages.margins.top - all) / 2;
    m_pages.style.alignment = TextAlignment::Centre;
    for (const QString& line : m_form.title) {
        m_pages.setPosition(left, y);
        m_pages.writeText(line);
        y += height;
    }
    m_pages.style.alignment = TextAlignment::Left;
    drawBoxRow(m_pages, {titleBoxHeight, m_form.besideTitle}, m_document,
               {left, boxes, titleWidth, titleBoxHeight});
}

void FormPages::drawHead(PageCount count)
{
    const StyleKeeper keeper(m_pages);
    drawLetterhead();
    drawTitle();
    int y = m_pages.margins.top + letterheadHeight + gap;
    for (const FormBoxRow& row : m_form.head)
        y = drawBoxRow(m_pages, row, m_document, {m_left, y, m_width, row.height}, count);
    if (m_document.equipment.isEmpty())
        return;
    m_pages.setFont("Arial", 8, true);
    m_pages.setPosition(m_left, y + gap);
    m_pages.writeText(m_document.equipment);
}

void FormPages::drawColumns()
{
    const StyleKeeper keeper(m_pages);
    m_pages.style.penWidth = thinPen;
    int x = m_left;
    for (size_t i = 0; i < m_widths.size(); ++i) {
        dnReportColumnHead(m_pages,
                           {x, bodyTop() - columnHeadHeight, m_widths[i], columnHeadHeight},
                           m_form.columns[i].heading);
        m_pages.drawRectangle(x, bodyTop(), x + m_widths[i], bodyBottom());
        x += m_widths[i];
    }
}

void FormPages::drawRow(const QStringList& cells, int y, bool isBold)
{
    int x = m_left;
    for (size_t i = 0; i < m_widths.size(); ++i) {
        const QString& cell = cells[static_cast<qsizetype>(i)];
        if (!cell.isEmpty())
            dnReportCellText(m_pages, {x, y, m_widths[i], rowHeight}, cell,
                             {.alignment = m_form.columns[i].alignment, .bold = isBold});
        x += m_widths[i];
    }
}

// Rows in the small font stand together in a box across the columns.
void FormPages::drawNotice(std::span<const PrintedRow> rows, int y)
{
    const StyleKeeper keeper(m_pages);
    m_pages.style.penWidth = thinPen;
    m_pages.drawRectangle(m_left, y - 20, m_left + m_width,
                          y + static_cast<int>(rows.size()) * rowHeight + 20);
    m_pages.setFont("Arial", 7);
    for (const PrintedRow& row : rows) {
        m_pages.setPosition(m_left + 2 * gap, y);
        m_pages.writeText(row.row->text);
        y += rowHeight;
    }
}

bool FormPages::drawBody(std::span<const PrintedRow> rows)
{
    int y = bodyTop() + gap / 2;
    for (size_t i = 0; i < rows.size(); y += rowHeight, ++i) {
        if (!m_run.proceed())
            return false;
        if (!rows[i].row->isSmall) {
            drawRow(rows[i].cells, y);
            continue;
        }
        size_t end = i;
        while (end < rows.size() && rows[end].row->isSmall)
            ++end;
        drawNotice(rows.subspan(i, end - i), y);
        y += static_cast<int>(end - i - 1) * rowHeight;
        i = end - 1;
    }
    return true;
}

void FormPages::drawFoot(PageCount count)
{
    const StyleKeeper keeper(m_pages);
    int y = bodyBottom();
    if (const std::optional<FormRow>& last =
            count.page == count.of ? m_form.totals : m_form.continued) {
        m_pages.style.penWidth = thinPen;
        m_pages.drawRectangle(m_left, y, m_left + m_width, y + columnHeadHeight);
        drawRow(cellsOf(m_form, *last), y + (columnHeadHeight - rowHeight) / 2, true);
        y += columnHeadHeight;
    }
    for (const FormBoxRow& row : m_form.foot)
        y = drawBoxRow(m_pages, row, m_document, {m_left, y, m_width, row.height}, count);
    drawNotes(y + gap);
}

void FormPages::drawNotes(int y)
{
    m_pages.setFont("Arial", 7);
    if (m_form.hasNotes) {
        int number = 0;
        for (const char* note : notes) {
            m_pages.setPosition(m_left + number / noteRows * m_width / 3,
                                y + number % noteRows * noteHeight);
            m_pages.writeText(note);
            ++number;
        }
    }
    m_pages.style.alignment = TextAlignment::Right;
    m_pages.setPosition(m_left, y + noteHeight);
    m_pages.writeText("Printed On: " + System::current().now().toString("MM/dd/yyyy"));
}

bool FormPages::draw(const std::vector<FormRow>& rows)
{
    const std::vector<PrintedRow> printed = printedRows(m_form, m_widths, rows);
    const int perPage = std::max(1, (bodyBottom() - bodyTop() - gap) / rowHeight);
    const auto bodies = pagesOf(printed, static_cast<size_t>(perPage));
    PageCount count{.of = static_cast<int>(bodies.size())};
    for (const auto& body : bodies) {
        ++count.page;
        if (!m_pages.page(m_pages.pageCount()).operations.empty())
            m_pages.newPage();
        drawHead(count);
        drawColumns();
        if (!drawBody(body))
            return false;
        drawFoot(count);
    }
    return true;
}

}  // namespace

bool drawForm(ReportRun& run, const Form& form, const FormDocument& document,
              const std::vector<FormRow>& rows, const QStringList& totals)
{
    return FormPages(run, form, document, totals).draw(rows);
}
