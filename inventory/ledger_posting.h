// The postings of documents to the ledger, and the replay that follows each.
//
// A posting opens the files for itself, so it sees what is committed, and a screen may hold its own
// handles meanwhile, but no transaction. There is none around a posting either: when the replay
// fails the row stays written and the item as it was, and the item's next replay mends it. Two
// users may post to one item at once: each replays all rows, one after the other, so that the last
// one has all of them.
#pragma once

#include <QString>

#include "core/storage/recordset.h"

// The effect of a document's line on an item, after the line was added or changed. `path` is the
// job site's folder; `newIsnTag` the item that the line names now, `oldIsnTag` the one that it
// named before, 0 for none: (new, 0) adds a row unseen, equal tags change the row or add it, other
// tags move it, (0, old) deletes it. A moved or deleted row that is not there is not added, and the
// items are replayed all the same. `fDate` as shown, `lDate` its sortable form; `quantity` as
// entered, stored as a Single. With two zeros there is nothing to do.
//
// False after a failure, which a box has told: the item or the file is missing, the date is none,
// an item's rows are of unknown kinds or their sums too large, the store failed.
bool zorInvTransUpdate(const QString& path, qint32 ilcTag, const QString& docType, qint32 docTag,
                       const QString& itemType, qint32 itemTag, qint32 newIsnTag, qint32 oldIsnTag,
                       const QString& fDate, const QString& lDate, double quantity);

// Deletes the row of a line, if it is there, and replays the item; nothing to do for the item 0.
// False after a failure, which a box has told.
bool zorInvTransDelete(const QString& path, qint32 ilcTag, const QString& docType, qint32 docTag,
                       const QString& itemType, qint32 itemTag, qint32 isnTag);

// Replays an item's rows and writes its four quantities, zeros where it has none. A blank text, or
// what kept it from that; the item is unchanged then. Fails as the store does.
QString zorInvTransRecalc(storage::Recordset& inventory, storage::Recordset& transactions,
                          qint32 isnTag);
