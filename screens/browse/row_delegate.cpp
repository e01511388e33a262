#include "screens/browse/row_delegate.h"

#include <QPainter>
#include <QtMath>

namespace {

constexpr QChar distance(0x2002);  // a space of half an em
constexpr int textsKept = 4'000;   // some pages of the widest list

}  // namespace

RowDelegate::RowDelegate(QObject* parent) : QStyledItemDelegate(parent), m_texts(textsKept) {}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    if (option->displayAlignment & Qt::AlignRight)
        option->text += distance;
}

const QStaticText& RowDelegate::laidOut(const QStyleOptionViewItem& cell, int width) const
{
    if (m_font != cell.font) {
        m_texts.clear();
        m_font = cell.font;
    }
    const auto keep = [&](int limit, const QString& text) {
        auto* made = new QStaticText(text);
        made->setTextFormat(Qt::PlainText);
        made->prepare({}, cell.font);
        m_texts.insert({cell.text, limit}, made);
        return made;
    };
    const QStaticText* whole = m_texts.object({cell.text, 0});
    if (!whole)
        whole = keep(0, cell.text);
    if (qCeil(whole->size().width()) <= width)
        return *whole;
    const QStaticText* cut = m_texts.object({cell.text, width});
    return cut ? *cut
               : *keep(width, cell.fontMetrics.elidedText(cell.text, cell.textElideMode, width));
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QPalette::ColorGroup group = !(cell.state & QStyle::State_Enabled) ? QPalette::Disabled
                                       : cell.state & QStyle::State_Active   ? QPalette::Active
                                                                             : QPalette::Inactive;
    const bool isSelected = cell.state & QStyle::State_Selected;
    if (isSelected)
        painter->fillRect(cell.rect, cell.palette.brush(group, QPalette::Highlight));
    else if (cell.backgroundBrush.style() != Qt::NoBrush)
        painter->fillRect(cell.rect, cell.backgroundBrush);
    if (cell.text.isEmpty())
        return;
    const int margin =
        cell.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    const QRect room = cell.rect.adjusted(margin, 0, -margin, 0);
    const QStaticText& text = laidOut(cell, room.width());
    const QSizeF size = text.size();
    const QRectF place(QStyle::alignedRect(cell.direction, cell.displayAlignment,
                                           {qCeil(size.width()), qCeil(size.height())}, room));
    painter->setFont(cell.font);
    painter->setPen(
        cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawStaticText(place.topLeft(), text);
}
