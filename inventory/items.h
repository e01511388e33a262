// Items of a branch and of the catalog: the browse, the screen of one, its history and the part
// numbers that it has borne. One screen serves both; `kind` (item_kind.h) tells them apart.
#pragma once

#include "inventory/item_kind.h"
#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"

// Which items the browse shows.
struct ItemFilter
{
    int level = 0;      // 1: those of a series, 2: of a subcategory
    qint32 ILCTAG = 0;  // 0 in the catalog
    qint32 SERIESTAG = 0;
    qint32 SUBCATTAG = 0;
};

BrowseSpec frmVEXINV01();
BrowseSpec frmVEXINVCAT01();
// The items of a branch, at first those of a series or a subcategory.
BrowseSpec inventoryItems(const ItemFilter& filter);

// The document line for which an item is added: it names the item once it is saved.
struct ItemCaller
{
    enum class Line { None, Purchase, RepairOrder };
    Line line = Line::None;
    qint32 tag = 0;  // RQITAG or BRQROMTAG
};
// `filter` tells what a new item begins with; a purchase line gives description, unit and price,
// too. The tag of the item added is left in the user's RQIISNTAG or ROIISNTAG, 0 until there is
// one.
DataSpec frmVEXINV02(const Session& session, const ItemFilter& filter,
                     const ItemCaller& caller = {});
DataSpec frmVEXINVCAT02(const ItemFilter& filter);
// Moves the item on which it opens, in mode "E", to another branch.
DataSpec frmVEXINV10();
// The part numbers that an item has borne, by branch and item, or by catalog item.
BrowseSpec frmVEXINV08();
BrowseSpec frmVEXINVCAT08();
// The history that stands in the user's buffer, under the item's head.
BrowseSpec frmVEXINV04(const Session& session, qint32 ISNTAG);
BrowseSpec frmVEXINVCAT04(const Session& session, qint32 ICNTAG);
// Fills the buffer with an item's history and opens it.
void openItemHistory(const ItemKind& kind, const Session& session, qint32 tag);
