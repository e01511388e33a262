// What the list of line items knows beside its rows, and the marks of lines. It lives as long as
// its list.
#pragma once

#include <QSet>

#include "purchasing/line_screen.h"
#include "screens/browse/browse_session.h"

struct LineListState
{
    LineOwner owner;
    std::shared_ptr<bool> carries = std::make_shared<bool>(false);
    QSet<qint32> marked = {};  // looked up once, not for each row

    const DocumentKind& kind() const { return *owner.kind; }
};
using LineState = std::shared_ptr<LineListState>;

// Which lines the user has marked, read anew.
void readMarks(const BrowseSession& list, LineListState& state);
bool hasMarks(const BrowseSession& list, const LineListState& state);

// Commands. A requisition's line that is ordered already is refused.
void toggleLineMark(BrowseSession& list, LineListState& state);
void markAll(BrowseSession& list, LineListState& state);
void clearLineMarks(BrowseSession& list, LineListState& state);
