// The search window, which serves all look-ups: rows of a table, of which the user finds one by
// typing its first characters.
#pragma once

#include <QDialog>

#include "screens/search/search_session.h"

class BrowseGrid;
class QLabel;

// Opens the window over what the user has in front of him and waits. Gives the bookmark of the
// chosen record, which any handle on the same table of the same file can go to, or " " when none
// was chosen or the window could not be opened. The record may be gone when the caller gets there.
QString dnSearch(const SearchRequest& request);

// Draws a search that is open and passes the keys in. Alt with a digit is a click on that column's
// title.
class frmDNSearch : public QDialog
{
public:
    // The search stays the caller's and lives longer.
    frmDNSearch(SearchSession& search, QWidget* parent);

    const SearchSession& search() const { return m_search; }
    // What was chosen; " " for nothing.
    QString result() const { return m_result; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* instructions();
    QLayout* buttons();
    void select();
    void selectRecord();
    void searchBy(int column);
    int widthOf(int column) const;
    void showColumns();
    void showText();

    SearchSession& m_search;
    BrowseGrid* m_grid;
    QLabel* m_firstInstruction;
    QLabel* m_columnKeys;
    QLabel* m_text;
    QString m_result = noBookmark;
};
