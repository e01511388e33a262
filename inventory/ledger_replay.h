// The ledger of an inventory: the rows of INVTRANS, one for the effect of a document's line on an
// item. Nothing is added to an item's quantities in place; they are what a replay of all its rows
// gives, oldest first. What kinds of rows there are, and what each does, is told here once, for the
// postings, the rebuild, the histories and the check of a site.
//
// Some effects are odd and stay: a count wipes what was on order, a return subtracts as an issue
// does, and repair orders alone count as issued. Nothing looks at a negative result.
#pragma once

#include <QLatin1String>
#include <QString>
#include <functional>

#include "inventory/lines_by_tag.h"

enum class StockEffect { Count, Ordered, Received, Adjusted, Out, In, Used };

// Where the number of a document is found by its tag. Without a table it is made of the prefix and
// the tag, which such documents have in place of a number.
struct DocumentNumber
{
    const char* prefix = nullptr;
    const char* file = nullptr;
    const char* table = nullptr;
    const char* index = nullptr;
    schema::FieldName number = {};
};

struct LedgerKind
{
    QLatin1String docType;
    QLatin1String itemType;
    bool itemTypeCounts;  // whether the kind of line parts it from others of the document
    StockEffect effect;
    const char* description;
    DocumentNumber number;
};

namespace ledger {
extern const LedgerKind count, ordered, received, adjusted, transferOut, transferIn, returned,
    issued, used;
}

// How readers of the ledger differ.
struct LedgerReading
{
    bool knowsIssues = true;        // material issue reports
    bool countClearsOrders = true;  // a count sets all quantities anew, not the one on hand alone
    const char* transferName = "M/T";         // of a transfer's line of unknown kind
    const char* returnDescription = nullptr;  // in place of the kind's own
};
inline constexpr LedgerReading postingReading = {};
// The rebuild writes no issue reports, so that one that it meets is of unknown kind.
inline constexpr LedgerReading rebuildReading = {.knowsIssues = false,
                                                 .transferName = "Material Transfer"};
inline constexpr LedgerReading historyReading = {.countClearsOrders = false};
inline constexpr LedgerReading historyReportReading = {
    .knowsIssues = false,
    .countClearsOrders = false,
    .returnDescription = "Material Release Report"};

// The kind of a row, its texts as UTF-8; null for one that the reading does not know.
const LedgerKind* ledgerKind(std::string_view docType, std::string_view itemType,
                             const LedgerReading& reading);

// The four quantities of an item, in single precision as they are stored.
struct StockQuantities
{
    float available = 0;
    float onOrder = 0;
    float issued = 0;
    float adjustments = 0;

    void apply(StockEffect effect, float quantity, const LedgerReading& reading);
    // False when a sum has become more than a Single holds.
    bool fit() const;
    bool operator==(const StockQuantities&) const = default;
};

// Of the item on which the handle stands, and into it, between Edit and Update.
StockQuantities storedQuantities(const storage::Recordset& item);
void store(storage::Recordset& item, const StockQuantities& quantities);

// A replay, fed row by row.
class LedgerReplay
{
public:
    explicit LedgerReplay(const LedgerReading& reading) : m_reading(reading) {}

    // Takes a row. False when its kind is unknown, or a sum does not fit a Single any more, which
    // ends the replay.
    bool take(std::string_view docType, std::string_view itemType, double quantity);
    bool take(const storage::Recordset& transactions);  // the row on which the handle stands
    bool takeLine(const LinesByTag& rows);              // that of a walk made by `ledgerByItem`

    const StockQuantities& quantities() const { return m_quantities; }
    // What is told of the row that ended it; blank when none did.
    const QString& refusal() const { return m_refusal; }

private:
    const LedgerReading& m_reading;
    StockQuantities m_quantities;
    QString m_refusal;
};

// The rows of INVTRANS by item, each item's oldest first, with what a replay needs of them.
LinesByTag ledgerByItem(const storage::Recordset& transactions);

// Walks an item's rows oldest first, or those of a catalog item in the order of entry, while `take`
// gives true. The handle's index becomes INVTRANSISNTAG or INVTRANSICNTAG. False when there is no
// row at all.
bool forEachOfItem(storage::Recordset& transactions, qint32 isnTag,
                   const std::function<bool()>& take);
bool forEachOfCatalogItem(storage::Recordset& transactions, qint32 icnTag,
                          const std::function<bool()>& take);
