// The page of rows of a BrowseList as a model for a table view, with the marker column in front.
#pragma once

#include <QAbstractTableModel>

#include "screens/browse/browse_grid.h"

class BrowsePage : public QAbstractTableModel
{
public:
    explicit BrowsePage(const BrowseList& list) : m_list(list) {}

    void setColumns(const std::vector<GridColumn>& columns);
    void setHeading(int column, const QString& heading);
    const std::vector<GridColumn>& columns() const { return m_columns; }
    void setEndTexts(const QString& endOfList, const QString& listIsEmpty);
    // The lines of the list have changed; those alone that differ are drawn anew.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString textAt(const BrowseLine& line, int column) const;

    const BrowseList& m_list;
    std::vector<GridColumn> m_columns;
    QString m_endOfList = "End of List";
    QString m_listIsEmpty = "List is Empty";
    int m_rowsShown = 0;
    std::vector<BrowseLine> m_linesShown;
};
