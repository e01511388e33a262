// The lines of one document after the other. Documents and their lines mostly lie in the same
// order, so that where one document's lines end the next one's begin: a walk that goes on from
// there, and looks lines up only where they do not, is ten times faster than a look-up for each.
#pragma once

#include <limits>

#include "core/storage/scan.h"

class LinesByTag
{
public:
    // The first of the fields is the owner's tag, and the first of the index.
    LinesByTag(storage::Recordset rows, const QString& index,
               std::initializer_list<schema::FieldName> fields)
        : m_line(along(rows, index), fields)
    {
    }

    // The present line, its fields by their places.
    const storage::Scan& line() const { return m_line; }

    // Calls `take` on each line of the owner, in the order of the index, while it gives true. False
    // when there is none.
    template <class Take>
    bool forEach(qint32 owner, Take take)
    {
        if (!goTo(owner))
            return false;
        bool goesOn = true;
        while (!m_isAtEnd && m_next == owner) {
            goesOn = goesOn && take();
            step(m_line.next());
            if (!goesOn)
                break;
        }
        m_last = goesOn ? owner : std::numeric_limits<qint32>::max();
        return true;
    }

private:
    static const storage::Recordset& along(storage::Recordset& rows, const QString& index)
    {
        rows.Index(index);
        return rows;
    }
    bool goTo(qint32 owner)
    {
        // No line lies between the last owner and the line that the scan stands on.
        const bool isAhead = owner > m_last && (m_isAtEnd || owner <= m_next);
        if (!isAhead)
            step(m_line.from(owner));
        m_last = owner;
        return !m_isAtEnd && m_next == owner;
    }
    void step(bool isOnRow)
    {
        m_isAtEnd = !isOnRow;
        if (isOnRow)
            m_next = m_line.tag(0);
    }

    storage::Scan m_line;
    qint32 m_last = std::numeric_limits<qint32>::max();  // nothing is known yet
    qint32 m_next = 0;
    bool m_isAtEnd = false;
};
