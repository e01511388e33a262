// What holds for inventory items, those of a branch and those of the catalog, beside what their
// fields are checked for: how texts and prices come about, the clone, the move to another branch,
// the tags in the browse. Nothing here is a screen.
// `jobSitePath` is the folder of the job site. Failures of the store are the caller's.
#pragma once

#include "core/keyed_access.h"
#include "core/session.h"
#include "core/storage/recordset.h"
#include "inventory/item_kind.h"

// The first 50 characters of the description on one line: each line end becomes a blank.
QString shortDescription(const QString& Desc);

// The retail price of a markup in percent, and the markup of a retail price; the wholesale price
// must not be 0 for the latter.
double retailOf(double WHOLESALE, double MARKUP);
double markupOf(double WHOLESALE, double RETAIL);

// The user's last item: takes over what the item on which `item` stands has. A vendor of 0 leaves
// the one that was chosen before.
void rememberItem(const ItemKind& kind, const QString& userSettingsPath,
                  const storage::Recordset& item);

// What keeps an item from being deleted, a line for each kind of document, with its head; blank:
// nothing. Material reports, counts and the ledger are not looked at.
QString itemDetailText(const QString& jobSitePath, qint32 ISNTAG);

// Adds a copy of the item under the part number "COPY", without quantities, past all tests of
// doubles; a copy in the catalog takes an I/C number of its own. Gives its tag; 0 where there is no
// such item, or after a box where tag or number could not be drawn.
qint32 cloneItem(const ItemKind& kind, const QString& jobSitePath, qint32 tag,
                 const QString& userName);

// Writes what every new item begins with: no quantities, not linked, not tagged, in use.
void beginStock(const ItemKind& kind, storage::Recordset& rows);

// ---- tags
// The branch says nothing of catalog items.
bool hasTaggedItems(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG);
// The tags of the tagged items, in the order in which they were added.
std::vector<qint32> taggedItems(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG);
// Writes the vendor, or 0, into the tagged items of the branch; they stay tagged. How many.
int postVendor(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG, qint32 VENTAG);
// Tags the items whose first fields along the index equal the keys. How many.
int tagItems(const ItemKind& kind, const QString& jobSitePath, const QString& index,
             const std::vector<KeyField>& keys);
// Takes the tags of all items, of all branches, away.
void clearItemTags(const ItemKind& kind, const QString& jobSitePath);

// ---- the move to another branch
struct BranchChange
{
    qint32 ISNTAG = 0;
    qint32 ILCTAG = 0;  // all of these: the new ones
    QString ILCCODE = {};
    qint32 SERIESTAG = 0;
    qint32 SUBCATTAG = 0;
    qint32 BINTAG = 0;
    QString PARTNO = {};
};
// Moves the item, the first row of its part numbers, and its detail; gives the report of what was
// changed, blank where there is no such item. A missing row of part numbers is told, and the work
// goes on.
QString changeBranch(const QString& jobSitePath, const BranchChange& change);
