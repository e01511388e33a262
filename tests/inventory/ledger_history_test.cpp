#include "inventory/ledger_history.h"

#include <gtest/gtest.h>

#include "core/zap.h"
#include "tests/inventory/ledger_site.h"

namespace {

class LedgerHistoryBuffer : public LedgerSite
{
protected:
    QStringList historyRows(const QString& table, int expected,
                            int (*fill)(const QString&, qint32, OpenTable&), qint32 tag) const
    {
        OpenTable buffer = emptiedTable(site.userFolder(), "ZORUSER.mdb", table);
        EXPECT_EQ(fill(site.siteFolder(), tag, buffer), expected);
        QStringList found;
        storage::Recordset rows = buffer.rows;
        rows.Index(table);
        if (expected > 0)
            rows.MoveFirst();
        for (bool more = expected > 0; more; more = rows.MoveNext()) {
            QStringList texts;
            for (const char* field :
                 {"DOCDESC", "DOCNO", "DOCFDATE", "QUANTITY", "ONORDER", "AVAILABLE"})
                texts.append(rows.fieldNamed(field).value().toString());
            found.append(texts.join('|'));
        }
        return found;
    }
};

TEST_F(LedgerHistoryBuffer, TellsEachRowWithItsDocumentAndBalances)
{
    addItem(1);
    add("POLIST", {{"POTAG", 10}, {"PONO", "PO-77"}});
    add("MTRLIST", {{"MTRTAG", 30}, {"MTRNO", "T1"}});
    add("MRRLIST", {{"MRRTAG", 40}, {"MRRNO", "R1"}});
    add("MIRLIST", {{"MIRTAG", 50}, {"MIRNO", "I1"}});
    site.addRow("ZORBRQ.mdb", "BRQROLIST", {{"BRQROTAG", 60}, {"BRQRONO", "RO9"}});
    addLedgerRow(1, "PO", "RQI", 10, "20260301", 8);
    addLedgerRow(1, "PI", "PII", 7, "20260302", 40);
    addLedgerRow(1, "PO", "REC", 10, "20260303", 5);
    addLedgerRow(1, "PO", "RQI", 11, "20260304", 2);
    addLedgerRow(1, "IA", "IAI", 123, "20260305", -1);
    addLedgerRow(1, "MT", "MTD", 30, "20260306", 3);
    addLedgerRow(1, "MT", "MTC", 30, "20260307", 1);
    addLedgerRow(1, "MR", "MRI", 40, "20260308", 2);
    addLedgerRow(1, "MI", "MII", 50, "20260309", 4);
    addLedgerRow(1, "RO", "ROI", 60, "20260310", 6);
    addLedgerRow(1, "ZZ", "Z", 70, "20260311", 9);
    EXPECT_EQ(historyRows("INVHISTORY", 11, fillItemHistory, 1),
              (QStringList{"Purchase Order - Line Item|PO-77|03/01/2026|8|8|0",
                           "Physical Inventory|PI-0000000007|03/02/2026|40|8|40",
                           "Purchase Order - Item Received|PO-77|03/03/2026|5|3|45",
                           "Purchase Order - Line Item|?????????|03/04/2026|2|5|45",
                           "Inventory Adjustment|IA-0000000123|03/05/2026|-1|5|44",
                           "Material Transfer Report - Out|T1|03/06/2026|3|5|41",
                           "Material Transfer Report - In|T1|03/07/2026|1|5|42",
                           "Material Return Report|R1|03/08/2026|2|5|40",
                           "Material Issue Report|I1|03/09/2026|4|5|36",
                           "Repair Order|RO9|03/10/2026|6|5|30",
                           "Unknown Document: ZZ||03/11/2026|9|5|30"}));
    site.removeFile("ZORBRQ.mdb");
    EXPECT_EQ(historyRows("INVHISTORY", 11, fillItemHistory, 1)[9],
              "Repair Order|?????????|03/10/2026|6|5|30");
    EXPECT_EQ(historyRows("INVHISTORY", 0, fillItemHistory, 2), QStringList());
}

TEST_F(LedgerHistoryBuffer, OfACatalogItemGoesOverAllBranches)
{
    addItem(1, 1, 70);
    addItem(2, 2, 70);
    addItem(3, 2, 71);
    for (const int item : {2, 1, 3})
        EXPECT_TRUE(post("IA", item, "IAI", 0, item, 0, 10 * item));
    EXPECT_EQ(historyRows("INVCATHISTORY", 2, fillCatalogHistory, 70),
              (QStringList{"Inventory Adjustment|IA-0000000002|03/07/2026|20|0|20",
                           "Inventory Adjustment|IA-0000000001|03/07/2026|10|0|30"}));
}

}  // namespace
