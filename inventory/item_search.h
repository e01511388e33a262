// The look-up of an inventory item in eight ways.
#pragma once

#include "core/session.h"
#include "inventory/items.h"
#include "screens/search/search_request.h"

// Lets the user choose a way and then an item; gives its bookmark in INVENTORY, blank for none. The
// filter's series and subcategory are taken unasked. Part numbers are looked up among all that were
// ever borne, in every branch, so that the item may be another branch's.
QString zorVEXINVSearch(const Session& session, const ItemFilter& filter);
// The same in INVCATALOG, without branches.
QString zorVEXINVCATSearch(const Session& session, const ItemFilter& filter);

// What a way looks through: the request of the search window, of ways 1 to 8.
struct ItemSearch
{
    QString caption;  // of its button
    QString indexes;  // behind the prefix of the kind; blank: the list of all part numbers
    QString fields;
    int groups;  // how many of series and subcategory it needs

    bool isOfNumbers() const { return indexes.isEmpty(); }
};
const ItemSearch& itemSearch(int way);
// What the search window is asked for.
SearchRequest itemSearchRequest(int way, const ItemKind& kind, const Session& session,
                                const ItemFilter& filter);
// The item of a row of INVPNMASTER; blank after a box where the item is gone.
QString itemOfPartNumber(const ItemKind& kind, const Session& session, const QString& bookmark);
