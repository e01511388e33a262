// What the browse of items shows of each item, and of the one under the highlight.
#pragma once

#include "inventory/item_kind.h"
#include "screens/browse/browse_spec.h"

std::vector<BrowseColumn> itemColumns(const ItemKind& kind);

// Series, subcategory and catalog number of the item under the highlight, and that a filter is on.
QString itemText(const ItemKind& kind, const BrowseSession& list, bool isFiltered);
