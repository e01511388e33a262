#include "screens/report/page_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "screens/report/page_painting.h"
#include "screens/report/report_run.h"

namespace {

constexpr int border = 12;  // pixels around the page
constexpr double leastZoom = 0.1;
constexpr double mostZoom = 8;
constexpr double zoomFactor = 1.2;

}  // namespace

PageView::PageView(PageDocument& document) : m_document(document)
{
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::StyledPanel);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    setMinimumSize(200, 160);
}

QSizeF PageView::pageSize() const
{
    if (m_document.previewPage() == 0)
        return QSizeF(m_document.pageWidth(), m_document.pageHeight());
    const Page& page = m_document.page(m_document.previewPage());
    return QSizeF(page.width, page.height);
}

double PageView::pixelsPerTwip() const
{
    return zoom() * logicalDpiX() / twipsPerInch;
}

double PageView::zoom() const
{
    if (m_fit == Fit::None)
        return m_zoom;
    const QSizeF inches = pageSize() / twipsPerInch;
    // The room without scroll bars of its own, so that they do not come and go.
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * border, 2 * border);
    const int bar = verticalScrollBar()->sizeHint().width();
    const double byWidth = (room.width() - (m_fit == Fit::Width ? bar : 0)) / inches.width();
    const double byHeight = room.height() / inches.height();
    const double pixels = m_fit == Fit::Width ? byWidth : std::min(byWidth, byHeight);
    return std::clamp(pixels / logicalDpiX(), leastZoom, mostZoom);
}

void PageView::setFit(Fit fit)
{
    m_fit = fit;
    place();
    onZoomed();
}

void PageView::setZoom(double zoom)
{
    m_fit = Fit::None;
    m_zoom = std::clamp(zoom, leastZoom, mostZoom);
    place();
    onZoomed();
}

void PageView::zoomStep(int direction)
{
    setZoom(direction > 0 ? zoom() * zoomFactor : zoom() / zoomFactor);
}

void PageView::showPage()
{
    const int page = m_document.previewPage();
    const size_t operations = page == 0 ? 0 : m_document.page(page).operations.size();
    // While a report is made this comes often, mostly with the same page.
    if (m_shownPage == page && m_shownOperations == operations)
        return;
    if (std::exchange(m_shownPage, page) != page)
        verticalScrollBar()->setValue(0);
    m_shownOperations = operations;
    place();
}

void PageView::restart()
{
    m_shownPage = 0;
    showPage();
}

void PageView::place()
{
    const QSizeF page = pageSize() * pixelsPerTwip();
    const QSize all(static_cast<int>(page.width()) + 2 * border,
                    static_cast<int>(page.height()) + 2 * border);
    const QSize room = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, all.width() - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setRange(0, std::max(0, all.height() - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(40);
    viewport()->update();
}

void PageView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    place();
    if (m_fit != Fit::None)
        onZoomed();
}

void PageView::paintEvent(QPaintEvent* event)
{
    if (m_document.previewPage() == 0)
        return;
    const double scale = pixelsPerTwip();
    const QSizeF page = pageSize();
    const double free = viewport()->width() - page.width() * scale;
    const double left = free > 2 * border ? free / 2 : border - horizontalScrollBar()->value();
    const double freeHeight = viewport()->height() - page.height() * scale;
    const double top = freeHeight > 2 * border ? border : border - verticalScrollBar()->value();

    QPainter painter(viewport());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(left, top);
    painter.scale(scale, scale);
    const QRectF sheet(QPointF(0, 0), page);
    painter.fillRect(sheet, Qt::white);
    painter.setClipRect(sheet);
    const QRectF exposed(QPointF(event->rect().topLeft() - QPointF(left, top)) / scale,
                         QSizeF(event->rect().size()) / scale);
    paintPage(painter, m_document, m_document.previewPage(), exposed);
}

bool PageView::turn(int pages, bool toEnd)
{
    const int before = m_document.previewPage();
    m_document.setPreviewPage(before + pages);
    if (m_document.previewPage() == before)
        return false;
    showPage();
    if (toEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    onPageTurned();
    return true;
}

bool PageView::scrollOrTurn(int pixels)
{
    QScrollBar* bar = verticalScrollBar();
    if (pixels > 0 && bar->value() == bar->maximum())
        return turn(1, false);
    if (pixels < 0 && bar->value() == 0)
        return turn(-1, true);
    bar->setValue(bar->value() + pixels);
    return true;
}

void PageView::wheelEvent(QWheelEvent* event)
{
    const int turned = event->angleDelta().y();
    if (turned != 0 && event->modifiers() & Qt::ControlModifier)
        zoomStep(turned);
    else if (turned != 0)
        scrollOrTurn(-turned);
    else
        QAbstractScrollArea::wheelEvent(event);
    event->accept();
}

bool PageView::takeZoomKey(const QKeyEvent& event)
{
    if (!(event.modifiers() & Qt::ControlModifier))
        return false;
    const bool isUp = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (!isUp && event.key() != Qt::Key_Minus)
        return false;
    zoomStep(isUp ? 1 : -1);
    return true;
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    constexpr int step = 60;
    if (takeZoomKey(*event))
        return;
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        scrollOrTurn(event->key() == Qt::Key_Down ? step : -step);
        return;
    }
    if (dnReportKeys(m_document, event->key())) {
        showPage();
        onPageTurned();
        return;
    }
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
        return QAbstractScrollArea::keyPressEvent(event);
    event->ignore();
}
