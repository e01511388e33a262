#include "screens/report/page_document.h"

#include <algorithm>

namespace {

qint16 onPaper(int place)
{
    return static_cast<qint16>(std::clamp(place, -32767, 32767));
}

// The number of an item in a short list of distinct ones, looked for from the last used backward.
template <class Item>
quint16 numberOf(std::vector<Item>& items, const Item& item)
{
    const auto found = std::find(items.rbegin(), items.rend(), item);
    if (found != items.rend())
        return static_cast<quint16>(items.rend() - found - 1);
    items.push_back(item);
    return static_cast<quint16>(items.size() - 1);
}

}  // namespace

PageDocument::PageDocument() = default;

bool PageDocument::isReady() const
{
    return pageWidth() > margins.left + margins.right &&
           pageHeight() > margins.top + margins.bottom && pageFontsAreInstalled();
}

void PageDocument::startDocument()
{
    m_pages.clear();
    m_fonts.clear();
    m_boxStyles.clear();
    m_pictures.clear();
    m_name.clear();
    m_isOpen = true;
    newPage();
    m_previewPage = 1;
}

void PageDocument::addToName(const QString& content)
{
    constexpr char others[] = " and others";
    if (m_name.isEmpty())
        m_name = content;
    else if (!m_name.endsWith(others))
        m_name += others;
}

void PageDocument::newPage()
{
    if (!m_isOpen)
        return;
    if (!m_pages.empty()) {
        m_pages.back().operations.shrink_to_fit();
        m_pages.back().texts.squeeze();
    }
    m_pages.emplace_back();
    m_pages.back().width = pageWidth();
    m_pages.back().height = pageHeight();
    setPosition(margins.left, margins.top);
}

void PageDocument::endDocument()
{
    m_isOpen = false;
}

void PageDocument::setPreviewPage(int page)
{
    m_previewPage = std::clamp(page, std::min(1, pageCount()), pageCount());
}

void PageDocument::setFont(const QString& name, double size, bool bold)
{
    style.font = {fontFamilyOf(name), bold, size};
}

void PageDocument::setPosition(int x, int y)
{
    m_x = x;
    m_y = y;
}

void PageDocument::add(PageOperation::Kind kind, quint16 styleNumber, const PageBox& box,
                       QStringView text)
{
    if (!m_isOpen)
        return;
    Page& page = m_pages.back();
    page.operations.push_back({kind, styleNumber, onPaper(box.left), onPaper(box.top),
                               onPaper(box.width), onPaper(box.height),
                               static_cast<quint32>(page.texts.size())});
    if (kind == PageOperation::Kind::Text)
        page.texts.append(text.toUtf8()).append('\0');
}

quint16 PageDocument::boxStyleNumber()
{
    return numberOf(m_boxStyles, BoxStyle{style.brush, style.isFilled,
                                          static_cast<quint16>(std::max(0, style.penWidth))});
}

void PageDocument::drawRectangle(int left, int top, int right, int bottom)
{
    add(PageOperation::Kind::Rectangle, boxStyleNumber(), {left, top, right - left, bottom - top});
}

void PageDocument::drawLine(int fromX, int fromY, int toX, int toY)
{
    add(PageOperation::Kind::Line, boxStyleNumber(), {fromX, fromY, toX - fromX, toY - fromY});
}

void PageDocument::drawPicture(const QImage& picture, const PageBox& box)
{
    if (picture.isNull())
        return;
    const auto known = std::find_if(m_pictures.begin(), m_pictures.end(), [&](const QImage& kept) {
        return kept.cacheKey() == picture.cacheKey() || kept == picture;
    });
    const auto number = static_cast<quint16>(known - m_pictures.begin());
    if (known == m_pictures.end())
        m_pictures.push_back(picture);
    const QSize size = picture.size().scaled(box.width, box.height, Qt::KeepAspectRatio);
    add(PageOperation::Kind::Picture, number,
        {box.left + (box.width - size.width()) / 2, box.top + (box.height - size.height()) / 2,
         size.width(), size.height()});
}

void PageDocument::placeText(QStringView text, int x, int y)
{
    if (text.trimmed().isEmpty())
        return;
    add(PageOperation::Kind::Text, numberOf(m_fonts, style.font),
        {x, y, widthOf(text), heightOfLine()}, text);
}

void PageDocument::placeAligned(QStringView text, int left, int width, int y)
{
    int x = left;
    if (style.alignment == TextAlignment::Centre)
        x += (width - widthOf(text)) / 2;
    if (style.alignment == TextAlignment::Right)
        x += width - widthOf(text);
    placeText(text, x, y);
}

void PageDocument::drawTextBox(const QString& text, const PageBox& box, bool wraps, int padding)
{
    if (style.isFilled || style.penWidth > 0)
        drawRectangle(box.left, box.top, box.left + box.width, box.top + box.height);
    const int room = std::max(0, box.width - 2 * padding);
    const QStringList lines = wraps ? wrappedLines(text, style.font, room) : QStringList(text);
    const int height = heightOfLine();
    const int shown = std::clamp(box.height / height, 1, static_cast<int>(lines.size()));
    int y = box.top + std::max(0, (box.height - shown * height) / 2);
    for (int line = 0; line < shown; ++line, y += height) {
        const int fits = fittingLength(lines[line], style.font, room);
        placeAligned(QStringView(lines[line]).left(fits), box.left + padding, room, y);
    }
}

void PageDocument::writeText(const QString& text)
{
    placeAligned(text, m_x, pageWidth() - margins.right - m_x, m_y);
    m_x += widthOf(text);
}

void PageDocument::writeWrapping(const QString& text)
{
    const int width = pageWidth() - margins.right - m_x;
    for (const QString& line : wrappedLines(text, style.font, width)) {
        placeAligned(line, m_x, width, m_y);
        m_y += heightOfLine();
    }
}

std::vector<PlacedText> textsOf(const PageDocument& document, int page)
{
    std::vector<PlacedText> found;
    const Page& source = document.page(page);
    for (const PageOperation& operation : source.operations)
        if (operation.kind == PageOperation::Kind::Text)
            found.push_back({source.textOf(operation), operation.x, operation.y, operation.width,
                             document.font(operation.style)});
    return found;
}
