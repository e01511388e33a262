#include "screens/browse/browse_list.h"

#include <algorithm>

#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"

using storage::ErrorNumber;
using storage::StorageError;

void BrowseList::open(const BrowseSource& source, const QString& workspaceName)
{
    m_source = source;
    m_workspace = storage::CreateWorkspace(workspaceName);
    m_database = m_workspace.OpenDatabase(storage::joinPath(source.folder, source.file));
    m_rows = m_database.OpenRecordset(source.table);
    m_rows.Index(source.index);
    showEmpty();
}

void BrowseList::close()
{
    m_workspace.Close();
}

// A record that vanished under a move is no reason to tell the user of an error: the list is read
// anew, as it will look to him from now on.
void BrowseList::guarded(const std::function<void()>& move)
{
    try {
        move();
    } catch (const StorageError& error) {
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
        rebuild();
    }
}

// Others add and delete between the moves: when the page does not show the highlighted record on
// the highlighted row any more, it is painted anew around the record.
void BrowseList::settle()
{
    const BrowseLine& line = m_lines[static_cast<size_t>(BrowseRow)];
    const bool shown =
        isOnRecord() ? line.bookmark == BrowseCurrent : line.kind == BrowseLine::Kind::EndOfList;
    if (shown || isEmpty())
        return;
    keepRowInView();
    paint();
}

bool BrowseList::isThere(const QString& bookmark)
{
    try {
        return goTo(bookmark) && withinFilter();
    } catch (const StorageError& error) {
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
        return false;
    }
}

// The record nearest to the one in hand, which is gone, of those on the page: below it, above it.
QString BrowseList::nearestOnPage()
{
    const int rows = static_cast<int>(m_lines.size());
    const auto at = [&](int row) {
        return row >= 0 && row < rows ? m_lines[static_cast<size_t>(row)].bookmark : noBookmark;
    };
    for (int distance = 0; distance < rows; ++distance)
        for (const QString& bookmark : {at(BrowseRow + distance), at(BrowseRow - distance)})
            if (!bookmark.isEmpty() && bookmark != BrowseCurrent && isThere(bookmark))
                return bookmark;
    return noBookmark;
}

std::vector<storage::Value> BrowseList::parentKeys() const
{
    std::vector<storage::Value> keys;
    for (const KeyField& key : m_source.parent)
        keys.push_back(key.key);
    return keys;
}

bool BrowseList::withinFilter()
{
    if (m_rows.BOF() || m_rows.EOF())
        return false;
    return dnInbounds(m_rows, m_source.parent) && (!m_source.accepts || m_source.accepts(m_rows));
}

// One record along the index, passing over what a narrower filter refuses; false at the end of the
// parent's records.
bool BrowseList::step(bool forward)
{
    while (forward ? m_rows.MoveNext() : m_rows.MovePrevious()) {
        if (!dnInbounds(m_rows, m_source.parent))
            return false;
        if (!m_source.accepts || m_source.accepts(m_rows))
            return true;
    }
    return false;
}

bool BrowseList::goTo(const QString& bookmark)
{
    if (bookmark == noBookmark)
        return false;
    m_rows.Bookmark(bookmark);
    return true;
}

void BrowseList::findEnds()
{
    QString first = noBookmark;
    QString last = noBookmark;
    const std::vector<storage::Value> keys = parentKeys();
    const bool any = m_rows.RecordCount() > 0 &&
                     (keys.empty() ? m_rows.MoveFirst() : m_rows.seekKeys("=", keys));
    if (any && (withinFilter() || step(true))) {
        first = m_rows.Bookmark();
        keys.empty() ? m_rows.MoveLast() : m_rows.seekLast(keys);
        if (withinFilter() || step(false))
            last = m_rows.Bookmark();
    }
    BrowseFirst = first;
    BrowseLast = last;
}

void BrowseList::fill(const std::vector<KeyField>& parent)
{
    m_source.parent = parent;
    BrowseFirst = BrowseLast = noBookmark;
    showEmpty();
    rebuild();
}

void BrowseList::browseBy(const QString& index, const std::vector<KeyField>& parent)
{
    m_source.index = index;
    fill(parent);
}

void BrowseList::clear()
{
    BrowseFirst = BrowseLast = noBookmark;
    showEmpty();
}

void BrowseList::rebuild()
{
    // Opened first: after a failure the list is as it was.
    storage::Recordset anew = m_database.OpenRecordset(m_source.table);
    anew.Index(m_source.index);
    m_rows.Close();
    m_rows = anew;
    findEnds();
    if (BrowseFirst == noBookmark)
        return showEmpty();
    BrowseRow = std::min(BrowseRow, BrowseMaxRow);
    if (isOnRecord() && !isThere(BrowseCurrent))
        BrowseCurrent = nearestOnPage();
    if (m_fresh && BrowseCurrent == noBookmark) {
        BrowseRow = 0;
        BrowseCurrent = BrowseFirst;
    }
    m_fresh = false;
    keepRowInView();
    paint();
}

void BrowseList::useIndex(const QString& index)
{
    m_source.index = index;
    rebuild();
}

// Finds the record for row 0 that leaves the highlight on its row, as far as there are records.
void BrowseList::keepRowInView()
{
    const bool onEnd = BrowseCurrent == noBookmark;
    goTo(onEnd ? BrowseLast : BrowseCurrent);
    BrowseTop = m_rows.Bookmark();
    int missing = onEnd ? BrowseRow - 1 : BrowseRow;
    if (missing < 0) {
        // The end of the list alone on row 0 would hide every record.
        BrowseRow = std::min(1, BrowseMaxRow);
        missing = 0;
    }
    for (; missing > 0 && step(false); --missing)
        BrowseTop = m_rows.Bookmark();
    BrowseRow -= missing;
}

void BrowseList::showEmpty()
{
    BrowseRow = 0;
    BrowseTop = BrowseCurrent = noBookmark;
    m_lines.assign(static_cast<size_t>(BrowseMaxRow) + 1, {});
    m_lines[0].kind = BrowseLine::Kind::ListIsEmpty;
    m_fresh = true;
}

BrowseLine BrowseList::lineHere()
{
    return {BrowseLine::Kind::Record, m_rows.Bookmark(), m_readCells(m_rows),
            m_readTone ? m_readTone(m_rows) : RowTone::Plain};
}

void BrowseList::repaint()
{
    guarded([this] { paint(); });
}

void BrowseList::paint()
{
    if (BrowseFirst == noBookmark)
        return showEmpty();
    m_lines.assign(static_cast<size_t>(BrowseMaxRow) + 1, {});
    bool inside = goTo(BrowseTop) && withinFilter();
    for (BrowseLine& line : m_lines) {
        if (!inside) {
            line.kind = BrowseLine::Kind::EndOfList;
            return;
        }
        line = lineHere();
        inside = step(true);
    }
}

bool BrowseList::show(const QString& bookmark)
{
    if (bookmark.trimmed().isEmpty())
        return false;
    bool isShown = false;
    guarded([&] {
        if (!goTo(bookmark) || !withinFilter())
            return;
        BrowseTop = BrowseCurrent = bookmark;
        BrowseRow = 0;
        paint();
        isShown = true;
    });
    return isShown;
}

void BrowseList::setRowCount(int rows)
{
    const int last = std::max(rows, 1) - 1;
    if (last == BrowseMaxRow && static_cast<int>(m_lines.size()) == last + 1)
        return;
    BrowseMaxRow = last;
    if (!isOpen())
        return;
    guarded([&] {
        if (BrowseRow > BrowseMaxRow) {
            goTo(BrowseTop);
            moveTopForward(BrowseRow - BrowseMaxRow);
            BrowseRow = BrowseMaxRow;
        }
        paint();
        settle();
    });
}

void BrowseList::moveTopForward(int records)
{
    for (; records > 0 && goTo(BrowseTop) && step(true); --records)
        BrowseTop = m_rows.Bookmark();
}

bool BrowseList::goToCurrent()
{
    bool there = false;
    guarded([&] { there = goTo(BrowseCurrent); });
    // Rebuilt means that it was gone, even if the highlight has found another record.
    return there;
}

int BrowseList::makeEntryRow()
{
    if (!isOnRecord())
        return BrowseRow;
    int records = 0;
    for (const BrowseLine& line : m_lines)
        records += line.kind == BrowseLine::Kind::Record ? 1 : 0;
    if (records <= BrowseMaxRow)
        return records;
    guarded([&] {
        goTo(BrowseTop);
        if (step(true))
            BrowseTop = m_rows.Bookmark();
        goTo(BrowseCurrent);
        BrowseCurrent = step(true) ? m_rows.Bookmark() : noBookmark;
        std::rotate(m_lines.begin(), m_lines.begin() + 1, m_lines.end());
        m_lines.back() = {};
    });
    return std::min(BrowseMaxRow, static_cast<int>(m_lines.size()) - 1);
}

BrowseList::Position BrowseList::position()
{
    Position place;
    if (isEmpty())
        return place;
    const std::vector<storage::Value> keys = parentKeys();
    place.count = m_rows.countWithin(keys);
    place.before = isThere(BrowseTop) ? m_rows.countBefore(keys) : place.count;
    return place;
}

QString BrowseList::neighbour()
{
    for (const bool forward : {true, false})
        if (isThere(BrowseCurrent) && step(forward))
            return m_rows.Bookmark();
    return noBookmark;
}

void BrowseList::showAt(qint64 before)
{
    if (isEmpty())
        return;
    guarded([&] {
        if (m_rows.moveTo(parentKeys(), before) && (withinFilter() || step(true)))
            show(m_rows.Bookmark());
        else
            show(BrowseLast);
    });
}

bool BrowseList::walk(const std::function<bool(const QStringList&)>& take)
{
    bool whole = false;
    guarded([&] {
        findEnds();
        bool inside = goTo(BrowseFirst) && withinFilter();
        while (inside) {
            if (!take(m_readCells(m_rows)))
                return;
            inside = step(true);
        }
        whole = true;
    });
    return whole;
}
