// The moves of the highlight.
#include <algorithm>

#include "screens/browse/browse_list.h"

void BrowseList::nextRow()
{
    if (!isOnRecord())
        return;
    guarded([&] {
        goTo(BrowseCurrent);
        const bool inside = step(true);
        BrowseCurrent = inside ? m_rows.Bookmark() : noBookmark;
        if (++BrowseRow <= BrowseMaxRow)
            return settle();
        // The painted rows shift; only the new one is read.
        BrowseRow = BrowseMaxRow;
        std::rotate(m_lines.begin(), m_lines.begin() + 1, m_lines.end());
        m_lines.back() = inside ? lineHere() : BrowseLine{BrowseLine::Kind::EndOfList, {}, {}, {}};
        BrowseTop = m_lines.front().kind == BrowseLine::Kind::Record ? m_lines.front().bookmark
                                                                     : noBookmark;
    });
}

void BrowseList::previousRow()
{
    if (isEmpty())
        return;
    guarded([&] {
        if (!isOnRecord()) {
            BrowseCurrent = BrowseLast;
            if (--BrowseRow < 0) {
                BrowseRow = 0;
                BrowseTop = BrowseCurrent;
                paint();
            }
            return settle();
        }
        goTo(BrowseCurrent);
        if (!step(false)) {
            BrowseTop = BrowseFirst;
            return;
        }
        BrowseCurrent = m_rows.Bookmark();
        if (--BrowseRow >= 0)
            return settle();
        BrowseRow = 0;
        BrowseTop = BrowseCurrent;
        std::rotate(m_lines.begin(), m_lines.end() - 1, m_lines.end());
        m_lines.front() = lineHere();
    });
}

void BrowseList::home()
{
    if (isEmpty())
        return;
    guarded([this] { findEnds(); });
    if (isEmpty())
        return showEmpty();
    show(BrowseFirst);
}

void BrowseList::end()
{
    if (isEmpty())
        return;
    guarded([this] { findEnds(); });
    if (isEmpty())
        return showEmpty();
    show(BrowseLast);
}

// How many records lie between row 0 and the one at `bookmark`, which is on the page or below it.
int BrowseList::countTo(const QString& bookmark)
{
    goTo(BrowseTop);
    int count = 0;
    while (count < BrowseMaxRow && m_rows.Bookmark() != bookmark && step(true))
        ++count;
    return count;
}

void BrowseList::pageDown()
{
    if (!isOnRecord())
        return;
    guarded([&] {
        for (QString* place : {&BrowseCurrent, &BrowseTop}) {
            goTo(*place);
            for (int i = 0; i <= BrowseMaxRow && step(true); ++i)
                *place = m_rows.Bookmark();
        }
        BrowseRow = countTo(BrowseCurrent);
        paint();
        settle();
    });
}

void BrowseList::pageUp()
{
    if (isEmpty())
        return;
    guarded([&] {
        if (!isOnRecord()) {
            BrowseCurrent = BrowseLast;
            BrowseRow = std::max(0, BrowseRow - 1);
            if (BrowseTop == noBookmark)
                BrowseTop = BrowseLast;
        }
        for (QString* place : {&BrowseCurrent, &BrowseTop}) {
            goTo(*place);
            for (int i = 0; i <= BrowseMaxRow && step(false); ++i)
                *place = m_rows.Bookmark();
        }
        BrowseRow = countTo(BrowseCurrent);
        paint();
        settle();
    });
}

void BrowseList::selectRow(int row)
{
    if (isEmpty() || row < 0 || row > BrowseMaxRow)
        return;
    const BrowseLine& line = m_lines[static_cast<size_t>(row)];
    if (line.kind == BrowseLine::Kind::Record)
        BrowseCurrent = line.bookmark;
    else if (line.kind == BrowseLine::Kind::EndOfList)
        BrowseCurrent = noBookmark;
    else
        return;
    BrowseRow = row;
}
