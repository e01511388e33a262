// The line items of a document as a whole: their numbers, their sums, and the ways in which they
// are put in another order. `session` tells where the files are; failures of the store are the
// caller's. Whoever calls has the document's record lock.
#pragma once

#include "core/session.h"
#include "core/storage/recordset.h"
#include "purchasing/document_kind.h"

// Goes through a document's line items by position, while `take` gives true; `rows` is RQILIST.
bool forEachLine(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                 const std::function<bool()>& take);
// Writes the fields that describe a line, all or those of both tables.
void copyLine(const storage::Recordset& from, storage::Recordset& to);

struct LineNumbers
{
    int item = 1;
    int line = 1;
};
// Those of a line added at the end: a text line, of quantity 0, has the number of the item above it
// and takes none.
LineNumbers numbersForNewLine(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                              bool isText);

// "Refresh Item Numbers": items and positions become 1, 2, 3... in two passes, so that no two lines
// ever bear one number. How many lines.
int renumberLines(const Session& session, const DocumentKind& kind, qint32 docTag);

// Adds a blank line before the one of the tag, at the end for 0, and numbers all anew; gives its
// tag, 0 where the counter failed.
qint32 insertLine(const Session& session, const DocumentKind& kind, qint32 docTag,
                  qint32 beforeRQITAG);

// The document takes what lines of the same tag VEXRQITEMP has, and no others, at once.
void replaceLines(const Session& session, const DocumentKind& kind, qint32 docTag);

// The sum of the document's amounts, one line left out (0: none), rounded to cents.
double sumOfLines(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                  qint32 withoutRQITAG = 0);

// When the line items close: the sums of the document and of those that share its lines, and an
// order's revision. An owner that is gone is told.
void writeTotals(const Session& session, const DocumentKind& kind, qint32 docTag);
