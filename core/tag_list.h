// TAGLIST: the rows of document lists that a user has marked for a bulk command. `rs` is an open
// handle on it.
#pragma once

#include "core/storage/workspace.h"

// True if this row is marked. Item 0 never is.
bool zorTagListCheck(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode, qint32 itemTag);

// True if NO row of the document is marked. Otherwise `bookmark` is the first marked one's.
bool zorTagListFind(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                    const QString& itemCode, QString* bookmark = nullptr);

// Marks a row, where it is not marked yet; item 0 cannot be. `docNo` is the document's number, by
// which prints go through the marks.
void zorTagListSet(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                   const QString& itemCode, qint32 itemTag, const QString& docNo = {});
// Takes the mark of a row away.
void zorTagListUnset(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode, qint32 itemTag);
// Takes the marks of all rows of a kind in the document away.
void zorTagListClear(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode);
// The own tags of the rows that are marked, in their order, read before anything is done to them.
std::vector<qint32> zorTagListItems(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                                    const QString& itemCode);
