// What the screen of an item does around its entry: what a new item begins with, what is written
// beside its fields, and the document line that waits for it.
#pragma once

#include "inventory/items.h"
#include "screens/entry/entry.h"

// A field of the user's last item; null where he has none.
storage::Value lastItemField(const ItemKind& kind, const Session& session, schema::FieldName field);

std::shared_ptr<EntryRules> itemEntryRules(const ItemKind& kind, const ItemFilter& filter,
                                           const ItemCaller& caller = {});
