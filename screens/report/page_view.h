// One page of a document on the screen, scrolled and zoomed. The wheel and the arrow keys scroll,
// at the page's end they turn the page; Ctrl with the wheel, + or - zooms.
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "screens/report/page_document.h"

class PageView : public QAbstractScrollArea
{
public:
    enum class Fit { Page, Width, None };

    // The document stays the caller's.
    explicit PageView(PageDocument& document);

    // After the previewed page is another, or has got more on it.
    void showPage();
    // A new document has begun.
    void restart();
    void setFit(Fit fit);
    // Of the size on paper; stays within 0.1 and 8.
    void setZoom(double zoom);
    double zoom() const;
    // A step of zoom: up for positive ones.
    void zoomStep(int direction);
    // Ctrl with + or -; true if it was one of these.
    bool takeZoomKey(const QKeyEvent& event);

    std::function<void()> onPageTurned = [] {};
    std::function<void()> onZoomed = [] {};

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSizeF pageSize() const;  // twips
    double pixelsPerTwip() const;
    void place();
    bool turn(int pages, bool toEnd);
    bool scrollOrTurn(int pixels);

    PageDocument& m_document;
    Fit m_fit = Fit::Width;
    double m_zoom = 1;
    int m_shownPage = 0;
    size_t m_shownOperations = 0;
};
