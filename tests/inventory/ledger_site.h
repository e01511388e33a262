// A job site whose items and ledger a test reads and writes in a few words.
#pragma once

#include "inventory/ledger_posting.h"
#include "inventory/ledger_replay.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

inline void PrintTo(const StockQuantities& quantities, std::ostream* out)
{
    *out << '(' << quantities.available << ", " << quantities.onOrder << ", " << quantities.issued
         << ", " << quantities.adjustments << ')';
}

class LedgerSite : public testing::Test
{
protected:
    void add(const char* table, TestInstallation::NewRow values) const
    {
        site.addRow("ZORVEX.mdb", table, values);
    }
    void addItem(int isnTag, int ilcTag = 1, int icnTag = 0) const
    {
        add("INVENTORY", {{"ISNTAG", isnTag},
                          {"ILCTAG", ilcTag},
                          {"ICNTAG", icnTag},
                          {"PARTNO", QString("P-%1").arg(isnTag)}});
    }
    void addLedgerRow(int isnTag, const char* docType, const char* itemType, int docTag,
                      const QString& lDate, double quantity, int ilcTag = 1) const
    {
        add("INVTRANS", {{"ISNTAG", isnTag},
                         {"ILCTAG", ilcTag},
                         {"DOCTYPE", docType},
                         {"ITEMTYPE", itemType},
                         {"DOCTAG", docTag},
                         {"ITEMTAG", 0},
                         {"FDATE", shown(lDate)},
                         {"LDATE", lDate},
                         {"QUANTITY", quantity}});
    }
    static QString shown(const QString& lDate)
    {
        return lDate.mid(4, 2) + '/' + lDate.mid(6, 2) + '/' + lDate.left(4);
    }
    StockQuantities quantities(int isnTag) const
    {
        const OpenTable items = site.open("ZORVEX.mdb", "INVENTORY");
        storage::Recordset rows = items.rows;
        rows.Index("INVISNTAG");
        EXPECT_TRUE(rows.Seek("=", isnTag));
        return storedQuantities(rows);
    }
    // All rows of the ledger as texts, sorted.
    QStringList ledgerRows() const
    {
        QStringList found;
        const OpenTable ledger = site.open("ZORVEX.mdb", "INVTRANS");
        storage::Recordset rows = ledger.rows;
        for (bool more = rows.RecordCount() > 0; more; more = rows.MoveNext()) {
            QStringList texts;
            for (const char* field : {"ISNTAG", "ILCTAG", "ICNTAG", "DOCTYPE", "DOCTAG", "ITEMTYPE",
                                      "ITEMTAG", "FDATE", "LDATE", "QUANTITY"})
                texts.append(rows.fieldNamed(field).value().toString());
            found.append(texts.join(' '));
        }
        found.sort();
        return found;
    }
    bool post(const char* docType, int docTag, const char* itemType, int itemTag, int newItem,
              int oldItem, double quantity, const QString& lDate = "20260307") const
    {
        return zorInvTransUpdate(site.siteFolder(), 1, docType, docTag, itemType, itemTag, newItem,
                                 oldItem, shown(lDate), lDate, quantity);
    }
    bool remove(const char* docType, int docTag, const char* itemType, int itemTag, int item) const
    {
        return zorInvTransDelete(site.siteFolder(), 1, docType, docTag, itemType, itemTag, item);
    }

    TestInstallation site;
    ScriptedMessages user;
};
