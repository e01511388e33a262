// Draws the cells of a list. The highlight is the row; a single cell is never marked. Figures keep
// a distance from the text of the next column.
#pragma once

#include <QCache>
#include <QStaticText>
#include <QStyledItemDelegate>

class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    // The text as it fits the width, laid out.
    const QStaticText& laidOut(const QStyleOptionViewItem& cell, int width) const;

    // Laying texts out is most of what drawing a page costs, and a move by a row shows nearly the
    // same texts again. By text and width; width 0: the whole text.
    mutable QCache<std::pair<QString, int>, QStaticText> m_texts;
    mutable QFont m_font;
};
