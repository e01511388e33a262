#include "screens/report/page_painting.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QSaveFile>

#include "core/messages.h"
#include "screens/progress.h"
#include "screens/system_dialogs.h"

namespace {

using Kind = PageOperation::Kind;

// Draws one page's operations; remembers what the painter was last set to.
class PagePainter
{
public:
    PagePainter(QPainter& painter, const PageDocument& document, const Page& page)
        : m_painter(painter), m_document(document), m_page(page)
    {
    }

    void paint(const PageOperation& operation)
    {
        switch (operation.kind) {
            case Kind::Text:
                paintText(operation);
                break;
            case Kind::Rectangle:
                takeBoxStyle(operation.style);
                m_painter.drawRect(boxOf(operation));
                break;
            case Kind::Line:
                takeBoxStyle(operation.style);
                m_painter.drawLine(
                    QPointF(operation.x, operation.y),
                    QPointF(operation.x + operation.width, operation.y + operation.height));
                break;
            case Kind::Picture:
                m_painter.drawImage(boxOf(operation), m_document.picture(operation.style));
                break;
        }
    }

    static QRectF boxOf(const PageOperation& operation)
    {
        return QRectF(operation.x, operation.y, operation.width, operation.height);
    }

private:
    void takeBoxStyle(int number)
    {
        if (m_boxStyle == number)
            return;
        m_boxStyle = number;
        const BoxStyle& style = m_document.boxStyle(static_cast<quint16>(number));
        m_painter.setBrush(style.isFilled ? QBrush(QColor(style.brush)) : QBrush(Qt::NoBrush));
        QPen pen(Qt::black, style.penWidth);
        pen.setJoinStyle(Qt::MiterJoin);
        m_painter.setPen(style.penWidth > 0 ? pen : QPen(Qt::NoPen));
    }

    void paintText(const PageOperation& operation)
    {
        if (m_boxStyle != inkOnly) {
            m_boxStyle = inkOnly;
            m_painter.setPen(Qt::black);
        }
        const PageFont& font = m_document.font(operation.style);
        const QString text = m_page.textOf(operation);
        const QPointF baseline(operation.x, operation.y + ascentOf(font));
        const QGlyphRun glyphs = glyphsOf(text, font);
        if (!glyphs.isEmpty()) {
            m_painter.drawGlyphRun(baseline, glyphs);
            return;
        }
        m_painter.setFont(paintingFont(font));
        m_painter.drawText(baseline, text);
    }

    static constexpr int inkOnly = -2;
    QPainter& m_painter;
    const PageDocument& m_document;
    const Page& m_page;
    int m_boxStyle = -1;
};

QPageLayout layoutOf(const PageDocument& document, const Page& page)
{
    const PaperSize& paper = document.paper();
    const bool landscape = page.width > page.height;
    const QSize upright =
        landscape ? QSize(page.height, page.width) : QSize(page.width, page.height);
    QPageSize size(QSizeF(upright) / twipsPerPoint, QPageSize::Point, {}, QPageSize::FuzzyMatch);
    if (paper == letterPaper)
        size = QPageSize(QPageSize::Letter);
    return QPageLayout(size, landscape ? QPageLayout::Landscape : QPageLayout::Portrait, {});
}

// Paints pages `first` to `last` on a paged device.
bool paintPages(QPagedPaintDevice& device, const PageDocument& document, int first, int last,
                const std::function<bool()>& goOn)
{
    QPainter painter;
    for (int number = first; number <= last; ++number) {
        if (goOn && !goOn())
            return false;
        device.setPageLayout(layoutOf(document, document.page(number)));
        if (number == first ? !painter.begin(&device) : !device.newPage())
            return false;
        painter.save();
        painter.scale(device.logicalDpiX() / double(twipsPerInch),
                      device.logicalDpiY() / double(twipsPerInch));
        paintPage(painter, document, number);
        painter.restore();
    }
    return painter.end();
}

// A step for each page that shows how far it is and lets the user stop, and whether he did.
std::pair<std::function<bool()>, std::shared_ptr<bool>> stoppable(const QString& text)
{
    const auto isStopped = std::make_shared<bool>(false);
    const auto progress = std::make_shared<Progress>(QApplication::activeWindow(), text);
    return {[progress, isStopped] {
                *isStopped = *isStopped || !progress->step();
                return !*isStopped;
            },
            isStopped};
}

}  // namespace

void paintPage(QPainter& painter, const PageDocument& document, int page, const QRectF& exposed)
{
    const Page& source = document.page(page);
    PagePainter drawing(painter, document, source);
    for (const PageOperation& operation : source.operations) {
        constexpr int line = 40;  // room for the pen, and for lines without a height
        if (!exposed.isEmpty() && !PagePainter::boxOf(operation)
                                       .normalized()
                                       .adjusted(-line, -line, line, line)
                                       .intersects(exposed))
            continue;
        drawing.paint(operation);
    }
}

bool printDocument(const PageDocument& document)
{
    if (document.pageCount() == 0)
        return false;
    QPrinter printer(QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setPageLayout(layoutOf(document, document.page(1)));
    if (!SystemDialogs::current().choosePrinter(printer, document.pageCount()))
        return false;
    const int first = std::max(1, printer.fromPage());
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), document.pageCount())
                                          : document.pageCount();
    const auto [goOn, isStopped] = stoppable("Printing Page:");
    if (first <= last && paintPages(printer, document, first, last, goOn))
        return true;
    if (*isStopped)
        printer.abort();
    else
        showCritical("Printer Error", "Printer Problem Detected");
    return false;
}

QString writePdf(const PageDocument& document, const QString& path,
                 const std::function<bool()>& goOn)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    bool painted = false;
    {
        QPdfWriter writer(&file);
        writer.setResolution(twipsPerInch);
        writer.setCreator("Vexley Module");
        painted =
            document.pageCount() > 0 && paintPages(writer, document, 1, document.pageCount(), goOn);
    }
    if (!painted) {
        file.cancelWriting();
        return "The document could not be painted.";
    }
    return file.commit() ? QString() : file.errorString();
}

void savePdf(const PageDocument& document, const QString& suggestedName)
{
    QString name = suggestedName;
    name.replace(QRegularExpression("[/\\\\:]"), "-");
    QString path = SystemDialogs::current().chooseFileToWrite("Save Report as PDF", name + ".pdf",
                                                              "PDF Files (*.pdf)");
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += ".pdf";
    const auto [goOn, isStopped] = stoppable("Writing Page:");
    const QString failure = writePdf(document, path, goOn);
    if (!failure.isEmpty() && !*isStopped)
        showCritical("Cannot Write PDF File", "Cannot Write File: " + path + "\n" + failure);
}
