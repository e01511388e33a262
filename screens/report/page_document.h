// A printed document: pages of drawing operations, kept so that preview, printer and PDF paint the
// same without a second pass over the data. Places and sizes are in twips from the paper's top left
// corner. An operation takes 16 bytes and its text; text that does not fit where it is put is cut
// when it is drawn, so a page holds exactly what can be seen.
//
// What is drawn before startDocument or after endDocument is dropped. Places further than 32,767
// twips from the corner are off any paper and are brought there.
#pragma once

#include <QImage>
#include <QStringList>
#include <optional>

#include "screens/report/page_font.h"

enum class TextAlignment : quint8 { Left, Centre, Right };

struct PaperSize
{
    int code = 1;       // 1 Letter, 5 Legal, 9 A4; others are known by their size alone
    int width = 12240;  // upright
    int height = 15840;

    bool operator==(const PaperSize&) const = default;
};
inline constexpr PaperSize letterPaper = {1, 12240, 15840};
inline constexpr PaperSize legalPaper = {5, 12240, 20160};
inline constexpr PaperSize a4Paper = {9, 11906, 16838};

struct PageMargins
{
    int left = 500;
    int right = 500;
    int top = 500;
    int bottom = 500;
};

struct PageBox
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

inline constexpr QRgb whiteBrush = 0xffffffff;
inline constexpr QRgb greyBrush = qRgb(225, 225, 225);

// With what the next operations draw.
struct PageStyle
{
    PageFont font;
    TextAlignment alignment = TextAlignment::Left;
    QRgb brush = whiteBrush;
    bool isFilled = true;
    int penWidth = 10;  // 0: no line
};

struct PageOperation
{
    enum class Kind : quint8 { Text, Rectangle, Line, Picture };
    Kind kind;
    quint16 style;  // number of the font, the box style or the picture
    qint16 x;       // of a text: the top left corner of its line
    qint16 y;
    qint16 width;  // of a line: how far its end lies from its beginning
    qint16 height;
    quint32 text;  // where it stands in the page's texts
};

struct Page
{
    int width = 0;
    int height = 0;
    std::vector<PageOperation> operations;
    QByteArray texts;  // UTF-8, each ended by a zero

    QString textOf(const PageOperation& operation) const
    {
        return QString::fromUtf8(texts.constData() + operation.text);
    }
};

struct BoxStyle
{
    QRgb brush;
    bool isFilled;
    quint16 penWidth;

    bool operator==(const BoxStyle&) const = default;
};

class PageDocument
{
public:
    PageDocument();

    // ---- the paper; it counts from the next page on
    void setPaper(const PaperSize& paper) { m_paper = paper; }
    const PaperSize& paper() const { return m_paper; }
    void setLandscape(bool landscape) { m_isLandscape = landscape; }
    bool isLandscape() const { return m_isLandscape; }
    int pageWidth() const { return m_isLandscape ? m_paper.height : m_paper.width; }
    int pageHeight() const { return m_isLandscape ? m_paper.width : m_paper.height; }
    PageMargins margins;
    // False when no document can be made: the fonts are missing, or the paper has no room.
    bool isReady() const;

    // ---- the document. Starting one forgets the one before and begins its first page.
    void startDocument();
    void newPage();
    void endDocument();
    // What a file of it is called, of what it holds: that, and after a second one "and others".
    // Blank until then.
    void addToName(const QString& content);
    const QString& name() const { return m_name; }
    bool isOpen() const { return m_isOpen; }
    int pageCount() const { return static_cast<int>(m_pages.size()); }
    int currentPage() const { return pageCount(); }
    int previewPage() const { return m_previewPage; }
    void setPreviewPage(int page);  // stays within the document; 0 without pages
    const Page& page(int number) const { return m_pages.at(static_cast<size_t>(number - 1)); }

    // ---- with what to draw
    PageStyle style;
    void setFont(const QString& name, double size, bool bold = false);
    void setPosition(int x, int y);
    int x() const { return m_x; }
    int y() const { return m_y; }

    // ---- drawing. Rectangles and text boxes are filled by the brush and lined by the pen.
    void drawRectangle(int left, int top, int right, int bottom);
    void drawLine(int fromX, int fromY, int toX, int toY);
    // Keeps its proportions, centred in the box. A picture drawn again is kept once.
    void drawPicture(const QImage& picture, const PageBox& box);
    // One line, or as many as fit the box when it wraps, aligned in the box and cut to it.
    // `padding` is left free on both sides.
    void drawTextBox(const QString& text, const PageBox& box, bool wraps = false, int padding = 30);
    // A line at the position; centred and right-aligned between there and the right margin. It is
    // not cut. The position moves to the line's end.
    void writeText(const QString& text);
    // Lines from the position down, broken between there and the right margin. The position moves
    // below them; the end of the page is the caller's to watch.
    void writeWrapping(const QString& text);

    // ---- measuring in the current font
    int widthOf(QStringView text) const { return textWidth(text, style.font); }
    int heightOfLine() const { return lineHeight(style.font); }

    // ---- for what paints and reads pages
    const PageFont& font(quint16 number) const { return m_fonts[number]; }
    const BoxStyle& boxStyle(quint16 number) const { return m_boxStyles[number]; }
    const QImage& picture(quint16 number) const { return m_pictures[number]; }

private:
    void add(PageOperation::Kind kind, quint16 style, const PageBox& box, QStringView text = {});
    void placeText(QStringView text, int x, int y);
    void placeAligned(QStringView text, int left, int width, int y);
    quint16 boxStyleNumber();

    PaperSize m_paper;
    bool m_isLandscape = false;
    QString m_name;
    bool m_isOpen = false;
    int m_previewPage = 0;
    int m_x = 0;
    int m_y = 0;
    std::vector<Page> m_pages;
    std::vector<PageFont> m_fonts;
    std::vector<BoxStyle> m_boxStyles;
    std::vector<QImage> m_pictures;
};

// Brings the style back that a document had.
class StyleKeeper
{
public:
    explicit StyleKeeper(PageDocument& document) : m_document(document), m_style(document.style) {}
    ~StyleKeeper() { m_document.style = m_style; }
    StyleKeeper(const StyleKeeper&) = delete;
    StyleKeeper& operator=(const StyleKeeper&) = delete;

private:
    PageDocument& m_document;
    PageStyle m_style;
};

// A text of a page and its place, for tests and for searching.
struct PlacedText
{
    QString text;
    int x = 0;
    int y = 0;
    int width = 0;
    PageFont font;
};
std::vector<PlacedText> textsOf(const PageDocument& document, int page);
