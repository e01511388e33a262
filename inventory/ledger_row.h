// A row of the ledger as it is written.
#pragma once

#include <QString>

#include "core/storage/recordset.h"

struct LedgerRow
{
    qint32 ilcTag = 0;
    qint32 icnTag = 0;
    qint32 isnTag = 0;
    QString docType;
    qint32 docTag = 0;
    QString itemType;
    qint32 itemTag = 0;
    QString fDate;
    QString lDate;
    double quantity = 0;  // as entered; what a Single does not hold is refused by the store
};

// Both in an edit that the caller has begun: all fields, and those that a change of the line gives
// anew to its row.
inline void storeChanged(storage::Recordset& transactions, const LedgerRow& row)
{
    transactions["FDATE"] = row.fDate;
    transactions["LDATE"] = row.lDate;
    transactions["QUANTITY"] = row.quantity;
    transactions["ICNTAG"] = row.icnTag;
    transactions["ILCTAG"] = row.ilcTag;
    transactions["ISNTAG"] = row.isnTag;
}

inline void storeAll(storage::Recordset& transactions, const LedgerRow& row)
{
    transactions["DOCTYPE"] = row.docType;
    transactions["DOCTAG"] = row.docTag;
    transactions["ITEMTYPE"] = row.itemType;
    transactions["ITEMTAG"] = row.itemTag;
    storeChanged(transactions, row);
}
