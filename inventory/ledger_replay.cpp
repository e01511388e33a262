#include "inventory/ledger_replay.h"

namespace {

float singleOf(const storage::Recordset& rows, schema::FieldName field)
{
    return static_cast<float>(rows[field].value().toDouble());
}

}  // namespace

bool StockQuantities::apply(const QString& DOCTYPE, const QString& ITEMTYPE, float QUANTITY)
{
    if (DOCTYPE == u"PI") {
        *this = {.available = QUANTITY};
    } else if (DOCTYPE == u"PO" && ITEMTYPE == u"RQI") {
        onOrder += QUANTITY;
    } else if (DOCTYPE == u"PO" && ITEMTYPE == u"REC") {
        available += QUANTITY;
        onOrder -= QUANTITY;
    } else if (DOCTYPE == u"IA") {
        available += QUANTITY;
        adjustments += QUANTITY;
    } else if (DOCTYPE == u"MT" && ITEMTYPE == u"MTC") {
        available += QUANTITY;
    } else if ((DOCTYPE == u"MT" && ITEMTYPE == u"MTD") || DOCTYPE == u"MR" || DOCTYPE == u"MI") {
        available -= QUANTITY;
    } else if (DOCTYPE == u"RO") {
        available -= QUANTITY;
        issued += QUANTITY;
    } else {
        return false;
    }
    return true;
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
    item["AVAILABLE"] = quantities.available;
    item["ONORDER"] = quantities.onOrder;
    item["ISSUED"] = quantities.issued;
    item["INVADJUSTMENTS"] = quantities.adjustments;
}

bool LedgerReplay::take(const storage::Recordset& row)
{
    const QString DOCTYPE = row["DOCTYPE"].value().toString();
    const QString ITEMTYPE = row["ITEMTYPE"].value().toString();
    const bool isKnown = m_reading.knowsIssues || DOCTYPE != u"MI";
    if (isKnown && m_quantities.apply(DOCTYPE, ITEMTYPE, singleOf(row, "QUANTITY")))
        return true;
    if (DOCTYPE == u"PO")
        m_refusal = "Invalid PO Item Type: " + ITEMTYPE.trimmed();
    else if (DOCTYPE == u"MT")
        m_refusal =
            QString("Invalid ") + m_reading.transferName + " Item Type: " + ITEMTYPE.trimmed();
    else
        m_refusal = "Invalid Document Type: " + DOCTYPE.trimmed();
    return false;
}

int forEachOfItem(storage::Recordset& ledger, qint32 ISNTAG, const std::function<bool()>& take)
{
    int taken = 0;
    ledger.Index("INVTRANSISNTAG");
    for (bool more = ledger.Seek("=", ISNTAG); more && ledger["ISNTAG"].value().toInt() == ISNTAG;
         more = ledger.MoveNext()) {
        ++taken;
        if (!take())
            break;
    }
    return taken;
}
