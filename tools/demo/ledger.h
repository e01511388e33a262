// The replay of the ledger, by which an item's four quantities come about.
#pragma once

#include <QString>

#include "core/storage/workspace.h"

namespace demo {

struct Quantities
{
    float available = 0;
    float onOrder = 0;
    float issued = 0;
    float adjustments = 0;

    // Applies one row of the ledger. False for a kind of row that there is not.
    bool apply(const QString& docType, const QString& itemType, float quantity);
    bool operator==(const Quantities&) const = default;
};

// The quantities of an item from all its rows, oldest first, in single precision as stored. The
// handle's index becomes INVTRANSISNTAG. False when a row is of no known kind.
bool replayItem(storage::Recordset& ledger, qint32 isnTag, Quantities& quantities);

}  // namespace demo
