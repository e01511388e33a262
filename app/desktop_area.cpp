#include "app/desktop_area.h"

#include <QApplication>
#include <QLayout>
#include <QMdiSubWindow>

#include "screens/desktop.h"

namespace {

QString placeKey(const QWidget& screen)
{
    return screen.objectName() + "/place";
}

// Hidden first, so that its place is kept.
void removeFrame(QWidget* frame)
{
    frame->hide();
    frame->deleteLater();
}

// Takes the frame of a screen away when the screen has closed itself.
class FrameCloser : public QObject
{
public:
    explicit FrameCloser(QWidget* screen) : QObject(screen) { screen->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        // Whether the screen agrees is known only after it has handled the event.
        if (event->type() == QEvent::Close)
            QMetaObject::invokeMethod(this, &FrameCloser::closeFrame, Qt::QueuedConnection);
        return false;
    }

private:
    void closeFrame() const
    {
        const auto* screen = static_cast<QWidget*>(parent());
        if (screen->isHidden() && screen->parentWidget())
            removeFrame(screen->parentWidget());
    }
};

}  // namespace

DesktopArea::DesktopArea(const QString& programName) : m_programName(programName)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // When a screen closes, the one that opened it is in front again, however many stand open.
    setActivationOrder(ActivationHistoryOrder);
    takeBackground();
    connect(this, &QMdiArea::subWindowActivated, this, [](const QMdiSubWindow* window) {
        if (!window || !window->widget())
            return;
        QEvent inFront(screenInFront);
        QApplication::sendEvent(window->widget(), &inFront);
    });
}

void DesktopArea::setSiteName(const QString& siteName)
{
    m_siteName = siteName;
    viewport()->update();
}

void DesktopArea::addScreen(QWidget* screen, bool centred)
{
    QMdiSubWindow* window = addSubWindow(screen);
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* dialog = qobject_cast<QDialog*>(screen))
        connect(dialog, &QDialog::finished, window, [window] { removeFrame(window); });
    else
        new FrameCloser(screen);
    window->installEventFilter(this);
    place(window, centred);
    window->show();
}

void DesktopArea::place(QMdiSubWindow* window, bool centred) const
{
    const QWidget* screen = window->widget();
    const QSize room = viewport()->size();
    const QRect kept = m_layout.value(placeKey(*screen)).toRect();
    // Fonts decide what room a screen asks for, and a form that scrolls counts its room when told.
    for (QWidget* part : screen->findChildren<QWidget*>())
        part->ensurePolished();
    for (QScrollArea* form : screen->findChildren<QScrollArea*>()) {
        if (form->widget() && form->widget()->layout())
            form->widget()->layout()->activate();
        form->updateGeometry();
    }
    QSize size = window->sizeHint();
    if (kept.isValid())  // never smaller than what it has come to need since
        size = kept.size().expandedTo(window->minimumSizeHint());
    else if (screen->property(fillsDesktopProperty).toBool())
        size = room;
    else if (screen->testAttribute(Qt::WA_Resized))  // a size of the screen's own choice
        size = size.expandedTo(screen->size());
    window->resize(size.boundedTo(room));
    QPoint at = window->pos();
    if (kept.isValid())
        at = kept.topLeft();
    else if (centred)
        at = {(room.width() - window->width()) / 2, (room.height() - window->height()) / 2};
    // A second one of a kind does not hide the first.
    for (const QMdiSubWindow* other : subWindowList())
        if (other != window && other->pos() == at)
            at += QPoint(24, 24);
    const QPoint most(room.width() - window->width(), room.height() - window->height());
    window->move(std::clamp(at.x(), 0, std::max(0, most.x())),
                 std::clamp(at.y(), 0, std::max(0, most.y())));
}

bool DesktopArea::eventFilter(QObject* watched, QEvent* event)
{
    const auto* window = qobject_cast<QMdiSubWindow*>(watched);
    if (window && window->widget() &&
        (event->type() == QEvent::Hide || event->type() == QEvent::Close) &&
        !window->isMinimized() && !window->isMaximized())
        m_layout.setValue(placeKey(*window->widget()), window->geometry());
    return QMdiArea::eventFilter(watched, event);
}

bool DesktopArea::bringToFront(const QString& screenName)
{
    for (QMdiSubWindow* window : subWindowList())
        if (window->widget() && window->widget()->objectName() == screenName) {
            if (window->isMinimized())
                window->showNormal();
            setActiveSubWindow(window);
            return true;
        }
    return false;
}

void DesktopArea::tileHorizontally()
{
    tile(1, static_cast<int>(windowsToTile().size()));
}

void DesktopArea::tileVertically()
{
    tile(static_cast<int>(windowsToTile().size()), 1);
}

QList<QMdiSubWindow*> DesktopArea::windowsToTile() const
{
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : subWindowList())
        if (window->isVisible() && !window->isMinimized())
            windows.append(window);
    return windows;
}

void DesktopArea::tile(int columns, int rows)
{
    const QList<QMdiSubWindow*> windows = windowsToTile();
    const QRect area = viewport()->rect();
    for (int i = 0; i < windows.size(); ++i) {
        const int column = i % columns;
        const int row = i / columns;
        const QPoint from(area.width() * column / columns, area.height() * row / rows);
        const QPoint to(area.width() * (column + 1) / columns, area.height() * (row + 1) / rows);
        windows[i]->showNormal();
        windows[i]->setGeometry(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())));
    }
}

void DesktopArea::takeBackground()
{
    setBackground(palette().color(QPalette::Window).darker(106));
}

void DesktopArea::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        takeBackground();
    QMdiArea::changeEvent(event);
}

void DesktopArea::mousePressEvent(QMouseEvent* event)
{
    QMdiArea::mousePressEvent(event);
    // Presses that a screen did not want come up to here, too; only the empty area cascades.
    const bool onScreen = viewport()->childAt(event->position().toPoint()) != nullptr;
    if (event->button() == Qt::LeftButton && !onScreen)
        cascadeSubWindows();
}

void DesktopArea::paintEvent(QPaintEvent* event)
{
    QMdiArea::paintEvent(event);
    QPainter painter(viewport());
    QColor quiet = palette().color(QPalette::WindowText);
    quiet.setAlphaF(0.55F);
    painter.setPen(quiet);
    const QRect area = viewport()->rect();
    QFont font = painter.font();
    const double size = font.pointSizeF();
    font.setPointSizeF(size * 2.2);
    painter.setFont(font);
    painter.drawText(area.adjusted(0, 0, 0, -area.height() / 2), Qt::AlignHCenter | Qt::AlignBottom,
                     m_programName);
    font.setPointSizeF(size * 1.2);
    painter.setFont(font);
    painter.drawText(area.adjusted(0, area.height() / 2 + 6, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     m_siteName);
}
