// The replay of the ledger, by which an item's four quantities come about: all its rows, oldest
// first, each with the effect of its kind. Sums run in single precision, as they are stored.
//
// Some effects are odd and stay: a count wipes what was on order, a return subtracts as an issue
// does, and repair orders alone count as issued. Nothing looks at a negative result.
#pragma once

#include <QString>
#include <functional>

#include "core/storage/recordset.h"

struct StockQuantities
{
    float available = 0;
    float onOrder = 0;
    float issued = 0;
    float adjustments = 0;

    // Applies one row. False for a kind of row that there is not, which changes nothing.
    bool apply(const QString& DOCTYPE, const QString& ITEMTYPE, float QUANTITY);
    bool operator==(const StockQuantities&) const = default;
};

// Of the item on which the handle stands, and into it, between Edit and Update.
StockQuantities storedQuantities(const storage::Recordset& item);
void store(storage::Recordset& item, const StockQuantities& quantities);

// What a replay knows, and how it names what it does not know.
struct LedgerReading
{
    const char* transferName;  // of the line of a transfer
    bool knowsIssues = true;   // material issue reports
};
inline constexpr LedgerReading postingReading{"M/T"};
// The rebuild writes no issue reports, so that one that it meets is of unknown kind.
inline constexpr LedgerReading rebuildReading{"Material Transfer", false};

class LedgerReplay
{
public:
    explicit LedgerReplay(const LedgerReading& reading) : m_reading(reading) {}

    // Takes the row on which the handle stands. False for one of unknown kind, which ends it.
    bool take(const storage::Recordset& row);

    const StockQuantities& quantities() const { return m_quantities; }
    // What is told of the row that ended it; blank when none did.
    const QString& refusal() const { return m_refusal; }

private:
    LedgerReading m_reading;
    StockQuantities m_quantities;
    QString m_refusal;
};

// Calls for each row of the item, oldest first, the handle on it, until one gives false. The
// handle's index becomes INVTRANSISNTAG. Gives how many were taken.
int forEachOfItem(storage::Recordset& ledger, qint32 ISNTAG, const std::function<bool()>& take);
