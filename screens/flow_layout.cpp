#include "screens/flow_layout.h"

#include <QWidget>

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(6);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const QLayoutItem* item : m_items)
        if (!item->isEmpty()) {
            size.rwidth() += item->sizeHint().width() + spacing();
            size.rheight() = std::max(size.height(), item->sizeHint().height());
        }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : m_items)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    place(area, true);
}

// The height that the widgets take in this width.
int FlowLayout::place(const QRect& area, bool move) const
{
    QPoint at = area.topLeft();
    int lineHeight = 0;
    for (QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (at.x() > area.x() && at.x() + size.width() > area.x() + area.width()) {
            at = {area.x(), at.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        if (move)
            item->setGeometry({at, size});
        at.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return at.y() + lineHeight - area.y();
}
