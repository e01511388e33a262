// One field of many rows.
#pragma once

#include "core/keyed_access.h"
#include "core/locators.h"

// Writes `field` of each row of `open` with these keys along the index that `isWanted` takes, in
// batches; how many. Which they are is found out first: the field may be a key of the index, and a
// write within the walk would have each step read the list anew. A row that another user deletes
// meanwhile is passed over. Fails as the store does; the batches written stay.
int writeWhere(
    OpenTable& open, const QString& index, KeyFields keys, schema::FieldName field,
    const storage::Value& value,
    const std::function<bool(const storage::Recordset&)>& isWanted = [](const storage::Recordset&) {
        return true;
    });
