// A page of rows on a table, read through an index and kept within a parent's key, with a highlight
// that moves. It holds a handful of bookmarks and reads one page at a time, so the table can be of
// any size, and what other users add is seen at the next rebuild. It has no widgets; a window draws
// `lines()` after each call and passes its keys in.
//
// The highlight stands on a record or on the "End of List" line below the last one; there
// BrowseCurrent is blank. A record that another user deleted meanwhile leads to a rebuild with the
// highlight on its neighbour; no call fails because of it. Other failures of the store are thrown.
#pragma once

#include <QStringList>
#include <functional>

#include "core/keyed_access.h"

// What is browsed. The parent's keys are the first fields of the index.
struct BrowseSource
{
    QString folder = {};  // blank: the current directory
    QString file;
    QString table;
    QString index = {};  // blank: physical order
    std::vector<KeyField> parent = {};
    // A narrower filter within the parent, where there is one.
    std::function<bool(storage::Recordset&)> accepts = {};
};

// How a row looks, beside its texts.
enum class RowTone { Plain, Muted, Good, Warning, Bad };

struct BrowseLine
{
    enum class Kind { Record, EndOfList, ListIsEmpty, Blank };

    Kind kind = Kind::Blank;
    QString bookmark = noBookmark;
    QStringList cells;
    RowTone tone = RowTone::Plain;

    bool operator==(const BrowseLine&) const = default;
};

class BrowseList
{
public:
    // Gives the cells of the record on which the handle stands.
    using ReadCells = std::function<QStringList(storage::Recordset&)>;

    explicit BrowseList(ReadCells readCells) : m_readCells(std::move(readCells)) {}

    // Rows have no tone of their own without this.
    void readTonesBy(std::function<RowTone(storage::Recordset&)> read) { m_readTone = read; }

    // Opens the file, in a workspace of its own. The list is empty until `fill`.
    void open(const BrowseSource& source, const QString& workspaceName);
    void close();
    bool isOpen() const { return m_rows.isOpen(); }

    // Another parent, and the list from its first record on.
    void fill(const std::vector<KeyField>& parent);
    // No parent, no list.
    void clear();
    // The table read anew, the record under the highlight kept in view on its row.
    void rebuild();
    // Another index; the record under the highlight stays.
    void useIndex(const QString& index);
    // Another index and other keys, its first fields, in one step; the list from its first record.
    void browseBy(const QString& index, const std::vector<KeyField>& parent);
    // `bookmark` to row 0, under the highlight. False, and nothing happens, for a blank one and for
    // a record outside the list.
    bool show(const QString& bookmark);
    // How many rows the page has, at least one; the highlight stays in view.
    void setRowCount(int rows);

    void nextRow();
    void previousRow();
    void pageDown();
    void pageUp();
    void home();
    void end();
    // The highlight to the row, if there is a record or the end of the list on it.
    void selectRow(int row);

    // Makes room for a new record's entry: the row on which it lies.
    int makeEntryRow();
    // Paints the page anew, after an entry was cancelled.
    void repaint();

    const std::vector<BrowseLine>& lines() const { return m_lines; }
    bool isEmpty() const { return BrowseFirst == noBookmark; }
    // The record after the one under the highlight, else the one before it; blank for neither.
    QString neighbour();
    bool isOnRecord() const { return BrowseCurrent != noBookmark; }

    // How many records the list has, and how many lie before row 0. Counted anew: milliseconds on
    // long lists. A narrower filter is not counted.
    struct Position
    {
        qint64 before = 0;
        qint64 count = 0;
    };
    Position position();
    // The record after `before` others to row 0, under the highlight.
    void showAt(qint64 before);
    // The cells of every record from the first on, while `take` gives true. The page stays. False
    // when the walk was stopped, or ended by another user's deletion.
    bool walk(const std::function<bool(const QStringList&)>& take);

    // The handle, for whoever writes to the table. Move it freely: each call goes to its own place.
    storage::Recordset& rows() { return m_rows; }
    const BrowseSource& source() const { return m_source; }
    storage::FieldType typeOf(schema::FieldName field) const { return m_rows[field].Type(); }
    // Goes to the record under the highlight. False, and the list rebuilt, when it is gone.
    bool goToCurrent();

    QString BrowseFirst = noBookmark;
    QString BrowseLast = noBookmark;
    QString BrowseTop = noBookmark;
    QString BrowseCurrent = noBookmark;
    int BrowseRow = 0;
    int BrowseMaxRow = 7;  // index of the last row

private:
    std::vector<storage::Value> parentKeys() const;
    bool withinFilter();
    bool step(bool forward);
    bool goTo(const QString& bookmark);
    void findEnds();
    void keepRowInView();
    void settle();
    void paint();
    bool isThere(const QString& bookmark);
    QString nearestOnPage();
    void moveTopForward(int records);
    int countTo(const QString& bookmark);
    void showEmpty();
    BrowseLine lineHere();
    void guarded(const std::function<void()>& move);

    ReadCells m_readCells;
    std::function<RowTone(storage::Recordset&)> m_readTone;
    BrowseSource m_source;
    storage::Workspace m_workspace;
    storage::Database m_database;
    storage::Recordset m_rows;
    std::vector<BrowseLine> m_lines;
    bool m_fresh = true;  // nothing was shown yet: the highlight begins at the first record
};
