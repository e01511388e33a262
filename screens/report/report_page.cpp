#include "screens/report/report_page.h"

#include "core/system.h"

namespace {

constexpr int cellPadding = 50;  // left and right of a cell's text
constexpr int footHeight = 200;
constexpr double smallestSize = 6;  // points, of a text that is made to fit

// The cells of the foot strip, from left to right.
class FootStrip
{
public:
    explicit FootStrip(PageDocument& pages)
        : m_pages(pages),
          m_left(pages.margins.left),
          m_top(pages.pageHeight() - pages.margins.bottom - footHeight)
    {
    }

    void caption(const QString& text, int width)
    {
        m_pages.style.brush = greyBrush;
        m_pages.style.alignment = TextAlignment::Right;
        cell(text, width);
    }
    void value(const QString& text, int width)
    {
        m_pages.style.brush = whiteBrush;
        m_pages.style.alignment = TextAlignment::Left;
        cell(text, width);
    }
    int left() const { return m_left; }

private:
    void cell(const QString& text, int width)
    {
        // The texts bring their own blanks.
        m_pages.drawTextBox(text, {m_left, m_top, width, footHeight}, false, 0);
        m_left += width;
    }

    PageDocument& m_pages;
    int m_left;
    int m_top;
};

// The largest of the sizes in which the text fits; the smallest when it fits in none.
PageFont cellFont(const QString& text, int width, CellFlags flags)
{
    const PageFont font{FontFamily::CourierNew, flags.bold, 8};
    return flags.wraps ? font : fittingFont(text, font, width, smallestSize);
}

int roomIn(const PageBox& box)
{
    return box.width - 2 * cellPadding;
}

QStringList cellLines(const PageBox& box, const QString& text, const PageFont& font, bool wraps)
{
    if (wraps)
        return wrappedLines(text, font, roomIn(box));
    return {text.left(fittingLength(text, font, roomIn(box)))};
}

int depthOf(const PageBox& box, qsizetype lineCount, const PageFont& font)
{
    return std::max(box.height, static_cast<int>(lineCount) * lineHeight(font) + cellPadding);
}

// The largest size in which a box holds its text.
PageFont boxFont(const QString& text, PageFont font, int width, int height, BoxFieldFlags flags)
{
    if (!flags.wraps)
        return fittingFont(text, font, width, smallestSize);
    while (font.size > smallestSize &&
           wrappedLines(text, font, width).size() * lineHeight(font) > height)
        font.size -= 1;
    return font;
}

void writeAligned(PageDocument& pages, const QString& line, const PageBox& box, int y)
{
    int x = box.left + cellPadding;
    const int free = roomIn(box) - pages.widthOf(line);
    if (pages.style.alignment == TextAlignment::Centre)
        x += free / 2;
    if (pages.style.alignment == TextAlignment::Right)
        x += free;
    pages.style.alignment = TextAlignment::Left;
    pages.setPosition(x, y);
    pages.writeText(line);
}

}  // namespace

void dnReportPageFoot(PageDocument& pages, const PageFoot& foot)
{
    const StyleKeeper keeper(pages);
    pages.setFont("Arial", 8);
    const QDateTime now = System::current().now();
    FootStrip strip(pages);
    strip.caption("Module  ", 760);
    strip.value("  " + foot.moduleName, 2380);
    strip.caption("Report  ", 680);
    int rest = pages.pageWidth() - pages.margins.right - strip.left();
    rest -= (foot.showsDate ? 1440 : 0) + (foot.showsTime ? 1380 : 0) + (foot.showsPage ? 920 : 0);
    strip.value(" " + foot.reportName, rest);
    if (foot.showsDate) {
        strip.caption("Date ", 440);
        strip.value("  " + now.toString("MM/dd/yyyy"), 1000);
    }
    if (foot.showsTime) {
        strip.caption("Time ", 480);
        strip.value("  " + now.toString("hh:mm ap"), 900);
    }
    if (foot.showsPage) {
        strip.caption("Page ", 460);
        const int number = foot.pageOverride != 0 ? foot.pageOverride : pages.currentPage();
        strip.value("  " + QString::number(number), 460);
    }
}

void dnReportBoxField(PageDocument& pages, const PageBox& box, const QString& label,
                      const QString& text, BoxFieldFlags flags)
{
    const StyleKeeper keeper(pages);
    pages.style.penWidth = 5;
    pages.style.brush = whiteBrush;
    pages.style.isFilled = true;
    pages.style.alignment = TextAlignment::Left;
    pages.drawRectangle(box.left, box.top, box.left + box.width, box.top + box.height);
    pages.setFont("Arial", 6, flags.boldLabel);
    pages.setPosition(box.left + 60, box.top + 20);
    pages.writeText(label);
    if (flags.large)
        pages.setFont("Times New Roman", 14);
    else
        pages.setFont("Courier New", 10);
    const int x = box.left + 100;
    int y = box.top + (flags.large ? 120 : 200);
    const int room = box.left + box.width - x;
    if (flags.shrinks)
        pages.style.font = boxFont(text, pages.style.font, room, box.top + box.height - y, flags);
    if (!flags.wraps) {
        pages.setPosition(x, y);
        pages.writeText(text.left(fittingLength(text, pages.style.font, room)));
        return;
    }
    const int first = y;
    for (const QString& line : wrappedLines(text, pages.style.font, room)) {
        if (y > first && y + pages.heightOfLine() > box.top + box.height)
            return;
        pages.setPosition(x, y);
        pages.writeText(line);
        y += pages.heightOfLine();
    }
}

void dnReportBar(PageDocument& pages, const PageBox& box, const QString& text,
                 const QString& secondLine)
{
    dnReportColumnHead(pages, box, secondLine.isEmpty() ? text : text + '\n' + secondLine,
                       TextAlignment::Left);
}

void dnReportColumnHead(PageDocument& pages, const PageBox& box, const QString& heading,
                        TextAlignment alignment)
{
    const StyleKeeper keeper(pages);
    pages.setFont("Arial", 8, true);
    pages.style.brush = greyBrush;
    pages.style.isFilled = true;
    pages.drawRectangle(box.left, box.top, box.left + box.width, box.top + box.height);
    const QStringList lines = heading.split('\n');
    const int height = pages.heightOfLine();
    int y = box.top + (box.height - static_cast<int>(lines.size()) * height) / 2;
    for (const QString& line : lines) {
        // A heading may use the padding, and then a smaller font, before it is cut.
        const PageFont full{FontFamily::Arial, true, 8};
        pages.style.font = fittingFont(line, full, box.width - 20, smallestSize);
        const bool isTight = pages.widthOf(line) > roomIn(box);
        pages.style.alignment = isTight ? TextAlignment::Left : alignment;
        const QString shown = line.left(fittingLength(line, pages.style.font, box.width - 20));
        const PageBox place = {isTight ? box.left + 10 - cellPadding : box.left, box.top, box.width,
                               box.height};
        writeAligned(pages, shown, place, y);
        y += height;
    }
}

int reportCellDepth(const PageBox& box, const QString& text, CellFlags flags)
{
    const PageFont font = cellFont(text, roomIn(box), flags);
    return depthOf(box, cellLines(box, text, font, flags.wraps).size(), font);
}

QStringList reportCellLines(int width, const QString& text)
{
    const CellFlags flags{.wraps = true};
    const PageBox box{0, 0, width, 0};
    return cellLines(box, text, cellFont(text, roomIn(box), flags), true);
}

int reportLinesIn(int depth)
{
    const PageFont font = cellFont({}, 0, {.wraps = true});
    return (depth - cellPadding) / lineHeight(font);
}

void dnReportCellText(PageDocument& pages, const PageBox& box, const QString& text, CellFlags flags)
{
    const StyleKeeper keeper(pages);
    pages.style.font = cellFont(text, roomIn(box), flags);
    pages.style.alignment = flags.alignment;
    const int free = box.height - pages.heightOfLine();
    writeAligned(pages, cellLines(box, text, pages.style.font, false).first(), box,
                 box.top + free / 2);
}

int dnReportCell(PageDocument& pages, const PageBox& box, const QString& text, CellFlags flags)
{
    const StyleKeeper keeper(pages);
    pages.style.font = cellFont(text, roomIn(box), flags);
    pages.style.brush = flags.grey ? greyBrush : whiteBrush;
    pages.style.isFilled = true;
    const QStringList lines = cellLines(box, text, pages.style.font, flags.wraps);
    const int height = pages.heightOfLine();
    const int depth = depthOf(box, lines.size(), pages.style.font);
    pages.drawRectangle(box.left, box.top, box.left + box.width, box.top + depth);
    const int all = static_cast<int>(lines.size()) * height;
    int y = box.top + cellPadding / 2;
    if (flags.middle)
        y = box.top + static_cast<int>((depth - all * 0.95) / 2);
    for (const QString& line : lines) {
        pages.style.alignment = flags.alignment;
        writeAligned(pages, line, box, y);
        y += height;
    }
    return depth;
}

QString paperSizeText(const PaperSize& paper)
{
    switch (paper.code) {
        case 1:
            return "Letter, 8½ x 11 in.";
        case 5:
            return "Legal, 8½ x 14 in.";
        case 9:
            return "A4, 210 x 297 mm";
        default:
            return "Invalid Size Detected";
    }
}

int writeReportTitle(PageDocument& pages, const QString& title, const QStringList& headingLines)
{
    const StyleKeeper keeper(pages);
    pages.style.alignment = TextAlignment::Centre;
    pages.setPosition(pages.margins.left, 600);
    pages.setFont("Times New Roman", 18);
    pages.writeWrapping(title);
    pages.setFont("Times New Roman", 14);
    for (const QString& line : headingLines)
        if (!line.trimmed().isEmpty())
            pages.writeWrapping(line.trimmed());
    return pages.y();
}
