#include "screens/browse/browse_page.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace {

// A hint of the tone's colour in the background of the palette in use, on which its text is read.
QVariant toneBrush(RowTone tone)
{
    QColor hue;
    if (tone == RowTone::Good)
        hue = QColor(0x2e, 0xa0, 0x43);
    else if (tone == RowTone::Warning)
        hue = QColor(0xd2, 0x99, 0x22);
    else if (tone == RowTone::Bad)
        hue = QColor(0xcf, 0x22, 0x2e);
    else
        return {};
    const QColor base = QApplication::palette().color(QPalette::Base);
    const auto mixed = [](int a, int b) { return (a * 3 + b) / 4; };
    return QBrush(QColor(mixed(base.red(), hue.red()), mixed(base.green(), hue.green()),
                         mixed(base.blue(), hue.blue())));
}

}  // namespace

void BrowsePage::setColumns(const std::vector<GridColumn>& columns)
{
    beginResetModel();
    m_linesShown.clear();
    m_columns = columns;
    endResetModel();
}

void BrowsePage::setHeading(int column, const QString& heading)
{
    m_columns[static_cast<size_t>(column)].heading = heading;
    Q_EMIT headerDataChanged(Qt::Horizontal, column + 1, column + 1);
}

void BrowsePage::setEndTexts(const QString& endOfList, const QString& listIsEmpty)
{
    m_linesShown.clear();
    m_endOfList = endOfList;
    m_listIsEmpty = listIsEmpty;
}

void BrowsePage::refresh()
{
    const int rows = static_cast<int>(m_list.lines().size());
    if (rows > m_rowsShown) {
        beginInsertRows({}, m_rowsShown, rows - 1);
        m_rowsShown = rows;
        endInsertRows();
    } else if (rows < m_rowsShown) {
        beginRemoveRows({}, rows, m_rowsShown - 1);
        m_rowsShown = rows;
        endRemoveRows();
    }
    std::vector<BrowseLine> before = std::exchange(m_linesShown, m_list.lines());
    before.resize(m_linesShown.size());
    for (int row = 0; row < rows; ++row)
        if (const auto i = static_cast<size_t>(row); m_linesShown[i] != before[i])
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int BrowsePage::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rowsShown;
}

int BrowsePage::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size()) + 1;
}

QString BrowsePage::textAt(const BrowseLine& line, int column) const
{
    switch (line.kind) {
        case BrowseLine::Kind::Record:
            return line.cells.value(column);
        case BrowseLine::Kind::EndOfList:
            return column == 0 ? m_endOfList : QString();
        case BrowseLine::Kind::ListIsEmpty:
            return column == 0 ? m_listIsEmpty : QString();
        case BrowseLine::Kind::Blank:
            break;
    }
    return {};
}

QVariant BrowsePage::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<size_t>(index.row());
    if (row >= m_list.lines().size())
        return {};
    const BrowseLine& line = m_list.lines()[row];
    if (index.column() == 0)
        return role == Qt::DisplayRole && index.row() == m_list.BrowseRow
                   ? QVariant(QString(QChar(0x25B8)))
                   : QVariant();
    const auto column = static_cast<size_t>(index.column() - 1);
    const bool isRecord = line.kind == BrowseLine::Kind::Record;
    switch (role) {
        case Qt::DisplayRole:
            return textAt(line, index.column() - 1);
        case Qt::TextAlignmentRole:
            return QVariant(isRecord ? m_columns[column].alignment | Qt::AlignVCenter
                                     : Qt::AlignLeft | Qt::AlignVCenter);
        case Qt::ForegroundRole:
            return isRecord && line.tone != RowTone::Muted
                       ? QVariant()
                       : QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        case Qt::BackgroundRole:
            return toneBrush(line.tone);
        default:
            return {};
    }
}

QVariant BrowsePage::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section == 0)
        return {};
    const GridColumn& column = m_columns[static_cast<size_t>(section - 1)];
    constexpr QChar distance(0x2002);  // as the figures below it keep it
    if (role == Qt::DisplayRole)
        return column.alignment & Qt::AlignRight ? column.heading + distance : column.heading;
    if (role == Qt::TextAlignmentRole)
        return QVariant(column.alignment | Qt::AlignVCenter);
    return {};
}
