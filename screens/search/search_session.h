// How the search window behaves, without its widgets.
//
// The user types the first characters of what he is looking for, and the list jumps there along
// the index of the searched column, which is always the first. Typing never leads out of the
// parent's records: where nothing is found in them the highlight stays. Choosing another column
// swaps it with the first.
//
// The window draws the list (browse_list.h) and moves it; what it does not do through the list it
// asks for here. Failures of the store after `open` are thrown.
#pragma once

#include "screens/browse/browse_list.h"
#include "screens/search/search_request.h"

class SearchSession
{
public:
    explicit SearchSession(SearchRequest request);

    // Opens the table in a workspace of its own, with the highlight on the first record. False
    // after a failure, which was told in a box.
    bool open();
    void close() { m_list.close(); }

    const SearchRequest& request() const { return m_request; }
    BrowseList& list() { return m_list; }
    const BrowseList& list() const { return m_list; }
    // Always seven; the columns in use are those with a width. The first one is searched.
    const std::vector<SearchColumn>& columns() const { return m_columns; }
    int usedColumnCount() const;

    // "Name|Number" tells the columns as they stand now.
    QString columnKey() const;
    // What to do first, by the type of the searched column.
    QString firstInstruction() const;

    // A typed character; refused silently once the text has the column's length. True if taken.
    bool type(QChar character);
    // The last character goes. False when there was none.
    bool backspace();
    // What was typed so far.
    const QString& SearchText() const { return m_searchText; }

    // Searches by another column from now on, from the first record. False when nothing changed:
    // for a column without an index, which a box tells, and for one that is searched already.
    bool searchBy(int column);

    // The bookmark under the highlight; " " on the end of the list.
    const QString& Current() const { return m_list.BrowseCurrent; }

private:
    void textChanged();
    bool seek();
    QStringList cellsOf(storage::Recordset& rows) const;

    SearchRequest m_request;
    std::vector<SearchColumn> m_columns;
    BrowseList m_list;
    QString m_searchText;
};
