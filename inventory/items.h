// Inventory items: the browse of a branch's items, and the screen of one.
#pragma once

#include <optional>

#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"
#include "screens/report/report_spec.h"
#include "screens/screen_context.h"

// Which items of the branch the browse shows.
struct ItemFilter
{
    int level = 0;  // 1: those of a series, 2: of a subcategory
    qint32 ILCTAG = 0;
    qint32 SERIESTAG = 0;
    qint32 SUBCATTAG = 0;
};

BrowseSpec frmVEXINV01();
// The same, at first with the items of a series or a subcategory.
BrowseSpec inventoryItems(const ItemFilter& filter);
// `filter` tells what a new item begins with.
DataSpec frmVEXINV02(const Session& session, const ItemFilter& filter);
// Asks which vendor to post to the tagged items: its tag, 0 to clear them, nothing after a cancel.
std::optional<qint32> frmVEXINV06(const Session& session);
// What its Post takes; nothing after the user was told why not.
std::optional<qint32> vendorToPost(const QString& jobSitePath, const QString& VENNO, bool clears);
// Moves the item on which it opens, in mode "E", to another branch.
DataSpec frmVEXINV10();
// The part numbers that an item has borne, by branch and item.
BrowseSpec frmVEXINV08();
// The history that stands in the user's buffer, under the item's head.
BrowseSpec frmVEXINV04(const Session& session, qint32 ISNTAG);
// Fills the buffer with an item's history and opens it.
void openItemHistory(const Session& session, qint32 ISNTAG);
