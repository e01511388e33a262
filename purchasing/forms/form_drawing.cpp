#include "purchasing/forms/form_drawing.h"

#include "core/number_format.h"
#include "core/system.h"
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

// A line with the texts of its cells, those that did not fit going on in the lines below.
struct DrawnRow
{
    const FormRow* row;
    QStringList cells;
};

// Where a text that is too long for its column is parted: behind a dash or a blank.
qsizetype partOf(const QString& text, int width)
{
    const qsizetype fits = cellLength(width);
    if (fits >= text.size())
        return text.size();
    const qsizetype dash =
        std::max(text.lastIndexOf('-', fits - 1), text.lastIndexOf(' ', fits - 1));
    return dash > 0 ? dash + 1 : fits;
}

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
    std::vector<DrawnRow> drawnRows(const std::vector<FormRow>& rows) const;
    void spread(std::vector<DrawnRow>& rows, size_t at, size_t column) const;
    QStringList cellsOf(const FormRow& row) const;
    int bodyTop() const;
    int bodyBottom() const;
    int footHeight() const;
    void drawHead(int page, int of);
    void drawLetterhead();
    void drawTitle();
    int drawBoxRow(const FormBoxRow& row, int left, int width, int top, int page, int of);
    void drawBox(const FormBox& box, const PageBox& place, int page, int of);
    void drawPageBox(const FormBox& box, const PageBox& place, int page, int of);
    void drawColumns();
    void drawRow(const QStringList& cells, int y, bool isBold = false);
    void drawNotice(std::span<const DrawnRow> rows, int y);
    bool drawBody(std::span<const DrawnRow> rows);
    void drawFoot(int page, int of);
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

QStringList FormPages::cellsOf(const FormRow& row) const
{
    QStringList cells;
    for (const FormColumn& column : m_form.columns)
        cells.append(column.cell(row));
    return cells;
}

// The rest of a cell goes into the rows of the same description, and into further ones.
void FormPages::spread(std::vector<DrawnRow>& rows, size_t at, size_t column) const
{
    static const FormRow more{.isContinuation = true};
    const auto place = static_cast<qsizetype>(column);
    QString rest = rows[at].cells[place];
    for (qsizetype part = partOf(rest, m_widths[column]); part < rest.size();
         part = partOf(rest, m_widths[column])) {
        rows[at].cells[place] = rest.left(part);
        rest = rest.mid(part);
        ++at;
        if (at == rows.size() || !rows[at].row->isContinuation)
            rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at), {&more, cellsOf(more)});
        rows[at].cells[place] = rest;
    }
}

std::vector<DrawnRow> FormPages::drawnRows(const std::vector<FormRow>& rows) const
{
    std::vector<DrawnRow> drawn;
    drawn.reserve(rows.size());
    size_t first = 0;  // row of the line in hand
    const auto spreadLine = [&] {
        if (first < drawn.size())
            for (size_t column = 0; column < m_form.columns.size(); ++column)
                if (m_form.columns[column].wraps)
                    spread(drawn, first, column);
    };
    for (const FormRow& row : rows) {
        if (!row.isContinuation) {
            spreadLine();
            first = drawn.size();
        }
        drawn.push_back({&row, cellsOf(row)});
    }
    spreadLine();
    return drawn;
}

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
    const auto write = [&](const QString& text, const PageFont& font) {
        m_pages.style.font = fittingFont(text, font, room, 6);
        m_pages.setPosition(left, y);
        m_pages.writeText(text.left(fittingLength(text, m_pages.style.font, room)));
        y += lineHeight(font);
    };
    write(m_document.companyName, {FontFamily::TimesNewRoman, true, 16});
    for (const QString& line : m_document.companyLines)
        write(line, {FontFamily::Arial, false, 8});
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
    drawBoxRow({titleBoxHeight, m_form.besideTitle}, left, titleWidth, boxes, 0, 0);
}

void FormPages::drawHead(int page, int of)
{
    const StyleKeeper keeper(m_pages);
    drawLetterhead();
    drawTitle();
    int y = m_pages.margins.top + letterheadHeight + gap;
    for (const FormBoxRow& row : m_form.head)
        y = drawBoxRow(row, m_left, m_width, y, page, of);
    if (m_document.equipment.isEmpty())
        return;
    m_pages.setFont("Arial", 8, true);
    m_pages.setPosition(m_left, y + gap);
    m_pages.writeText(m_document.equipment);
}

// Gives the y below it. The widths add up to the whole, whatever their parts round to.
int FormPages::drawBoxRow(const FormBoxRow& row, int left, int width, int top, int page, int of)
{
    int parts = 0;
    for (const FormBox& box : row.boxes) {
        const int from = left + width * parts / pageParts;
        parts += box.width;
        const int to = left + width * parts / pageParts;
        drawBox(box, {from, top, to - from, row.height}, page, of);
    }
    return top + row.height;
}

void FormPages::drawBox(const FormBox& box, const PageBox& place, int page, int of)
{
    const StyleKeeper keeper(m_pages);
    const QString text = box.text ? m_document.*box.text : QString();
    const int bottom = place.top + place.height;
    const BoxFieldFlags wrapping{.wraps = place.height > 600, .shrinks = true};
    switch (box.kind) {
        case FormBox::Kind::Field:
            dnReportBoxField(m_pages, place, box.label, text, wrapping);
            return;
        case FormBox::Kind::Page:
            drawPageBox(box, place, page, of);
            return;
        case FormBox::Kind::Total:
            dnReportBoxField(m_pages, place, box.label, {});
            m_pages.setFont("Courier New", 10, true);
            m_pages.style.isFilled = false;
            m_pages.style.penWidth = 0;
            m_pages.style.alignment = TextAlignment::Right;
            m_pages.drawTextBox(page == of ? text : QString("continued"),
                                {place.left, place.top + 160, place.width, place.height - 160},
                                false, 100);
            return;
        case FormBox::Kind::Signature:
            dnReportBoxField(m_pages, place, box.label, {});
            dnReportCellText(
                m_pages,
                {place.left + gap, bottom - rowHeight - gap / 2, place.width - gap, rowHeight},
                text);
            return;
    }
}

// The numbers stand in the gap behind PAGE and behind OF, on the line of the other boxes' texts.
void FormPages::drawPageBox(const FormBox& box, const PageBox& place, int page, int of)
{
    dnReportBoxField(m_pages, place, {}, {});
    const int y = place.top + 200;
    const PageFont small{FontFamily::Arial, false, 6};
    const PageFont large{FontFamily::CourierNew, false, 10};
    const int free = place.width - textWidth(box.label, small) - textWidth(u" 99", large);
    const int left = place.left + std::max(40, free / 2);
    const qsizetype gapBegin = box.label.indexOf(' ');
    const qsizetype gapEnd = box.label.lastIndexOf(' ') + 1;
    const int from = textWidth(QStringView(box.label).left(gapBegin), small);
    const int to = textWidth(QStringView(box.label).left(gapEnd), small);
    m_pages.style.font = small;
    m_pages.setPosition(left, y + ascentOf(large) - ascentOf(small));
    m_pages.writeText(box.label);
    if (of == 0)
        return;
    m_pages.style.font = large;
    const QString number = dnFormat(page, "##");
    m_pages.setPosition(left + (from + to - m_pages.widthOf(number)) / 2, y);
    m_pages.writeText(number);
    m_pages.setPosition(left + textWidth(box.label, small) + 50, y);
    m_pages.writeText(dnFormat(of, "##"));
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
void FormPages::drawNotice(std::span<const DrawnRow> rows, int y)
{
    const StyleKeeper keeper(m_pages);
    m_pages.style.penWidth = thinPen;
    m_pages.drawRectangle(m_left, y - 20, m_left + m_width,
                          y + static_cast<int>(rows.size()) * rowHeight + 20);
    m_pages.setFont("Arial", 7);
    for (const DrawnRow& row : rows) {
        m_pages.setPosition(m_left + 2 * gap, y);
        m_pages.writeText(row.row->text);
        y += rowHeight;
    }
}

bool FormPages::drawBody(std::span<const DrawnRow> rows)
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

void FormPages::drawFoot(int page, int of)
{
    const StyleKeeper keeper(m_pages);
    int y = bodyBottom();
    if (const std::optional<FormRow>& last = page == of ? m_form.totals : m_form.continued) {
        m_pages.style.penWidth = thinPen;
        m_pages.drawRectangle(m_left, y, m_left + m_width, y + columnHeadHeight);
        drawRow(cellsOf(*last), y + (columnHeadHeight - rowHeight) / 2, true);
        y += columnHeadHeight;
    }
    for (const FormBoxRow& row : m_form.foot)
        y = drawBoxRow(row, m_left, m_width, y, page, of);
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
    const std::vector<DrawnRow> drawn = drawnRows(rows);
    const auto perPage =
        static_cast<size_t>(std::max(1, (bodyBottom() - bodyTop() - gap) / rowHeight));
    const size_t of = std::max<size_t>(1, (drawn.size() + perPage - 1) / perPage);
    const int count = static_cast<int>(of);
    for (size_t page = 1; page <= of; ++page) {
        if (!m_pages.page(m_pages.pageCount()).operations.empty())
            m_pages.newPage();
        const int number = static_cast<int>(page);
        drawHead(number, count);
        drawColumns();
        const size_t begin = (page - 1) * perPage;
        if (!drawBody(std::span(drawn).subspan(begin, std::min(perPage, drawn.size() - begin))))
            return false;
        drawFoot(number, count);
    }
    return true;
}

}  // namespace

bool drawForm(ReportRun& run, const Form& form, const FormDocument& document,
              const std::vector<FormRow>& rows, const QStringList& totals)
{
    return FormPages(run, form, document, totals).draw(rows);
}

bool drawAddendum(ReportRun& run, const QString& heading, const QString& documentName,
                  const QString& text)
{
    PageDocument& pages = run.pages;
    const StyleKeeper keeper(pages);
    const PageFont body{FontFamily::Arial, false, 10};
    const int width = pages.pageWidth() - pages.margins.left - pages.margins.right;
    const int bottom = pages.pageHeight() - pages.margins.bottom - lineHeight(body);
    int y = bottom;
    QString shown = text;
    for (const QString& line : wrappedLines(shown.remove('\r'), body, width)) {
        if (!run.proceed())
            return false;
        if (y >= bottom) {
            if (!pages.page(pages.pageCount()).operations.empty())
                pages.newPage();
            pages.style.alignment = TextAlignment::Right;
            pages.setFont("Arial", 8);
            pages.setPosition(pages.margins.left, pages.margins.top);
            pages.writeText(documentName);
            y = writeReportTitle(pages, heading, {}) + 2 * lineHeight(body);
            pages.style.alignment = TextAlignment::Left;
            pages.style.font = body;
        }
        pages.setPosition(pages.margins.left, y);
        pages.writeText(line);
        y += lineHeight(body);
    }
    return true;
}
