#include "inventory/ledger_replay.h"

#include <cmath>

namespace ledger {
namespace {

constexpr DocumentNumber orderNumber = {nullptr, "ZORVEX.mdb", "POLIST", "POTAG", "PONO"};
constexpr DocumentNumber transferNumber = {nullptr, "ZORVEX.mdb", "MTRLIST", "MTRTAG", "MTRNO"};
constexpr DocumentNumber returnNumber = {nullptr, "ZORVEX.mdb", "MRRLIST", "MRRTAG", "MRRNO"};
constexpr DocumentNumber issueNumber = {nullptr, "ZORVEX.mdb", "MIRLIST", "MIRTAG", "MIRNO"};
constexpr DocumentNumber repairNumber = {nullptr, "ZORBRQ.mdb", "BRQROLIST", "BRQROTAG", "BRQRONO"};

constexpr LedgerKind kind(const char* docType, const char* itemType, StockEffect effect,
                          const char* description, const DocumentNumber& number,
                          bool itemTypeCounts = false)
{
    return {QLatin1String(docType),
            QLatin1String(itemType),
            itemTypeCounts,
            effect,
            description,
            number};
}

}  // namespace

constinit const LedgerKind count =
    kind("PI", "PII", StockEffect::Count, "Physical Inventory", {.prefix = "PI-"});
constinit const LedgerKind ordered =
    kind("PO", "RQI", StockEffect::Ordered, "Purchase Order - Line Item", orderNumber, true);
constinit const LedgerKind received =
    kind("PO", "REC", StockEffect::Received, "Purchase Order - Item Received", orderNumber, true);
constinit const LedgerKind adjusted =
    kind("IA", "IAI", StockEffect::Adjusted, "Inventory Adjustment", {.prefix = "IA-"});
constinit const LedgerKind transferOut =
    kind("MT", "MTD", StockEffect::Out, "Material Transfer Report - Out", transferNumber, true);
constinit const LedgerKind transferIn =
    kind("MT", "MTC", StockEffect::In, "Material Transfer Report - In", transferNumber, true);
constinit const LedgerKind returned =
    kind("MR", "MRI", StockEffect::Out, "Material Return Report", returnNumber);
constinit const LedgerKind issued =
    kind("MI", "MII", StockEffect::Out, "Material Issue Report", issueNumber);
constinit const LedgerKind used =
    kind("RO", "ROI", StockEffect::Used, "Repair Order", repairNumber);

}  // namespace ledger

namespace {

constexpr const LedgerKind* kinds[] = {&ledger::count,    &ledger::ordered,     &ledger::received,
                                       &ledger::adjusted, &ledger::transferOut, &ledger::transferIn,
                                       &ledger::returned, &ledger::issued,      &ledger::used};

bool isAlike(std::string_view text, QLatin1String name)
{
    return text == std::string_view(name.data(), static_cast<size_t>(name.size()));
}

QString refusalOf(std::string_view docType, std::string_view itemType, const LedgerReading& reading)
{
    const QString lineKind = QString::fromUtf8(itemType).trimmed();
    if (isAlike(docType, ledger::ordered.docType))
        return "Invalid PO Item Type: " + lineKind;
    if (isAlike(docType, ledger::transferOut.docType))
        return QString("Invalid ") + reading.transferName + " Item Type: " + lineKind;
    return "Invalid Document Type: " + QString::fromUtf8(docType).trimmed();
}

float singleOf(const storage::Recordset& rows, schema::FieldName field)
{
    return static_cast<float>(rows[field].value().toDouble());
}

bool forEachOf(storage::Recordset& transactions, const char* index, schema::FieldName owner,
               qint32 tag, const std::function<bool()>& take)
{
    transactions.Index(index);
    if (!transactions.Seek("=", tag))
        return false;
    do {
        if (transactions[owner].value().toInt() != tag || !take())
            break;
    } while (transactions.MoveNext());
    return true;
}

}  // namespace

const LedgerKind* ledgerKind(std::string_view docType, std::string_view itemType,
                             const LedgerReading& reading)
{
    for (const LedgerKind* kind : kinds)
        if (isAlike(docType, kind->docType) &&
            (!kind->itemTypeCounts || isAlike(itemType, kind->itemType)))
            return kind == &ledger::issued && !reading.knowsIssues ? nullptr : kind;
    return nullptr;
}

void StockQuantities::apply(StockEffect effect, float quantity, const LedgerReading& reading)
{
    switch (effect) {
        case StockEffect::Count:
            if (reading.countClearsOrders)
                *this = {};
            available = quantity;
            break;
        case StockEffect::Ordered:
            onOrder += quantity;
            break;
        case StockEffect::Received:
            available += quantity;
            onOrder -= quantity;
            break;
        case StockEffect::Adjusted:
            available += quantity;
            adjustments += quantity;
            break;
        case StockEffect::Out:
            available -= quantity;
            break;
        case StockEffect::In:
            available += quantity;
            break;
        case StockEffect::Used:
            available -= quantity;
            issued += quantity;
            break;
    }
}

bool StockQuantities::fit() const
{
    return std::isfinite(available) && std::isfinite(onOrder) && std::isfinite(issued) &&
           std::isfinite(adjustments);
}

StockQuantities storedQuantities(const storage::Recordset& item)
{
    return {.available = singleOf(item, "AVAILABLE"),
            .onOrder = singleOf(item, "ONORDER"),
            .issued = singleOf(item, "ISSUED"),
            .adjustments = singleOf(item, "INVADJUSTMENTS")};
}

void store(storage::Recordset& item, const StockQuantities& quantities)
{
    item["AVAILABLE"] = double(quantities.available);
    item["ONORDER"] = double(quantities.onOrder);
    item["ISSUED"] = double(quantities.issued);
    item["INVADJUSTMENTS"] = double(quantities.adjustments);
}

bool LedgerReplay::take(std::string_view docType, std::string_view itemType, double quantity)
{
    const LedgerKind* kind = ledgerKind(docType, itemType, m_reading);
    if (!kind) {
        m_refusal = refusalOf(docType, itemType, m_reading);
        return false;
    }
    m_quantities.apply(kind->effect, static_cast<float>(quantity), m_reading);
    if (!m_quantities.fit())
        m_refusal = "Overflow";
    return m_refusal.isEmpty();
}

bool LedgerReplay::take(const storage::Recordset& transactions)
{
    return take(transactions["DOCTYPE"].value().toString().toStdString(),
                transactions["ITEMTYPE"].value().toString().toStdString(),
                transactions["QUANTITY"].value().toDouble());
}

bool LedgerReplay::takeLine(const LinesByTag& rows)
{
    const storage::Scan& row = rows.line();
    return take(row.text(1), row.text(2), row.number(3));
}

LinesByTag ledgerByItem(const storage::Recordset& transactions)
{
    return {transactions, "INVTRANSISNTAG", {"ISNTAG", "DOCTYPE", "ITEMTYPE", "QUANTITY"}};
}

bool forEachOfItem(storage::Recordset& transactions, qint32 isnTag,
                   const std::function<bool()>& take)
{
    return forEachOf(transactions, "INVTRANSISNTAG", "ISNTAG", isnTag, take);
}

bool forEachOfCatalogItem(storage::Recordset& transactions, qint32 icnTag,
                          const std::function<bool()>& take)
{
    return forEachOf(transactions, "INVTRANSICNTAG", "ICNTAG", icnTag, take);
}
