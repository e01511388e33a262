#include "tools/demo/ledger.h"

#include "core/keyed_access.h"

namespace demo {

bool Quantities::apply(const QString& docType, const QString& itemType, float quantity)
{
    if (docType == "PI") {
        *this = {.available = quantity};
    } else if (docType == "PO" && itemType == "RQI") {
        onOrder += quantity;
    } else if (docType == "PO" && itemType == "REC") {
        available += quantity;
        onOrder -= quantity;
    } else if (docType == "IA") {
        available += quantity;
        adjustments += quantity;
    } else if (docType == "MT" && itemType == "MTC") {
        available += quantity;
    } else if ((docType == "MT" && itemType == "MTD") || docType == "MR" || docType == "MI") {
        available -= quantity;
    } else if (docType == "RO") {
        available -= quantity;
        issued += quantity;
    } else {
        return false;
    }
    return true;
}

bool replayItem(storage::Recordset& ledger, qint32 isnTag, Quantities& quantities)
{
    quantities = {};
    ledger.Index("INVTRANSISNTAG");
    if (!ledger.Seek("=", isnTag))
        return true;
    for (; !ledger.EOF() && ledger["ISNTAG"].value().toInt() == isnTag; ledger.MoveNext())
        if (!quantities.apply(ledger["DOCTYPE"].value().toString(),
                              ledger["ITEMTYPE"].value().toString(),
                              static_cast<float>(ledger["QUANTITY"].value().toDouble())))
            return false;
    return true;
}

}  // namespace demo
