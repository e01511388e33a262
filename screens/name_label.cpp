#include "screens/name_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

NameLabel::NameLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

// Texts of several lines keep their lines.
bool NameLabel::isCut() const
{
    return !text().contains('\n') &&
           fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void NameLabel::paintEvent(QPaintEvent* event)
{
    if (!isCut())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), shown, foregroundRole());
}

bool NameLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}
