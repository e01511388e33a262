#include "inventory/ledger_rebuild.h"

#include <gtest/gtest.h>

#include "tests/inventory/ledger_site.h"

namespace {

const QString title = "Error: Transaction Recalc";

class LedgerRebuild : public LedgerSite
{
protected:
    LedgerRebuild()
    {
        addItem(1, 1, 70);
        addItem(2, 1);
        addItem(3, 2);
    }

    // A document of each kind, posted as its screen would.
    void addDocuments() const
    {
        add("PILIST",
            {{"PITAG", 5}, {"ILCTAG", 1}, {"PIFDATE", "03/02/2026"}, {"PILDATE", "20260302"}});
        add("PIITEMS", {{"PITAG", 5}, {"ISNTAG", 1}, {"PICOUNT", 40}});
        post("PI", 5, "PII", 0, 1, 0, 40, "20260302");
        addOrder(10, 11, 1);
        addOrder(20, 21, 2);
        addReceipt(10, 11, 12, 1, 4);
        addReceipt(10, 11, 13, 1, 2);
        add("INVADJLIST", {{"INVADJTAG", 6},
                           {"ISNTAG", 2},
                           {"FDATE", "03/04/2026"},
                           {"LDATE", "20260304"},
                           {"QUANTITY", -1.5}});
        post("IA", 6, "IAI", 0, 2, 0, -1.5, "20260304");
        addReport("MTR", 30, 31, {{"FROMISNTAG", 1}, {"TOISNTAG", 2}});
        post("MT", 30, "MTD", 31, 1, 0, 3, "20260305");
        post("MT", 30, "MTC", 31, 2, 0, 3, "20260305");
        addReport("MRR", 40, 41, {{"ISNTAG", 1}});
        post("MR", 40, "MRI", 41, 1, 0, 3, "20260305");
        site.addRow("ZORBRQ.mdb", "BRQROLIST", {{"BRQROTAG", 50}, {"FDATE", "01/01/2026"}});
        site.addRow("ZORBRQ.mdb", "BRQROMAT",
                    {{"BRQROMTAG", 51},
                     {"BRQROTAG", 50},
                     {"ISNTAG", 1},
                     {"FDATE", "03/06/2026"},
                     {"QTY", 2}});
        post("RO", 50, "ROI", 51, 1, 0, 2, "20260306");
    }
    void addOrder(int order, int line, int isnTag) const
    {
        add("POLIST", {{"POTAG", order},
                       {"PONO", QString::number(order)},
                       {"FDATE", "03/01/2026"},
                       {"LDATE", "20260301"}});
        add("RQILIST", {{"RQITAG", line}, {"POTAG", order}, {"ISNTAG", isnTag}, {"QTY", 10}});
        add("RQILIST", {{"RQITAG", line + 5}, {"POTAG", order}, {"ISNTAG", 0}, {"QTY", 10}});
        post("PO", order, "RQI", line, isnTag, 0, 10, "20260301");
    }
    void addReceipt(int order, int line, int receipt, int isnTag, double quantity) const
    {
        add("RECEIVED", {{"RECTAG", receipt},
                         {"RQITAG", line},
                         {"POTAG", order},
                         {"QTYREC", quantity},
                         {"DATEREC", "03/03/2026"},
                         {"LDATEREC", "20260303"}});
        post("PO", order, "REC", receipt, isnTag, 0, quantity, "20260303");
    }
    void addReport(const QString& family, int report, int line,
                   std::initializer_list<std::pair<const char*, int>> items) const
    {
        const OpenTable headers = site.open("ZORVEX.mdb", family + "LIST");
        storage::Recordset rows = headers.rows;
        rows.AddNew();
        rows.fieldNamed(family + "TAG") = report;
        rows.fieldNamed(family + "NO") = QString::number(report);
        rows["FDATE"] = "03/05/2026";
        rows["LDATE"] = "20260305";
        rows.Update();
        const OpenTable lines = site.open("ZORVEX.mdb", family + "ITEMS");
        rows = lines.rows;
        rows.AddNew();
        rows.fieldNamed(family + "ITAG") = line;
        rows.fieldNamed(family + "TAG") = report;
        rows["QTY"] = 3;
        for (const auto& [field, isnTag] : items)
            rows.fieldNamed(field) = isnTag;
        rows.Update();
    }

    bool run(int branch = 1, int stopAfter = 1'000'000) const
    {
        int asked = 0;
        return rebuildLedger(site.siteFolder(), branch, [&] { return ++asked < stopAfter; });
    }
};

TEST_F(LedgerRebuild, AgreesWithEverydayPosting)
{
    addDocuments();
    const QStringList rows = ledgerRows();
    const StockQuantities first = quantities(1);
    const StockQuantities second = quantities(2);
    EXPECT_EQ(first, (StockQuantities{38, -6, 2, 0}));
    addLedgerRow(2, "IA", "IAI", 99, "20260309", 7);  // of no document
    EXPECT_TRUE(run());
    EXPECT_EQ(ledgerRows(), rows);
    EXPECT_EQ(quantities(1), first);
    EXPECT_EQ(quantities(2), second);

    site.removeFile("ZORBRQ.mdb");
    EXPECT_TRUE(run());
    EXPECT_EQ(ledgerRows().size(), rows.size() - 1) << "no repair orders without their file";
    EXPECT_EQ(quantities(1), (StockQuantities{40, -6, 0, 0}));
}

TEST_F(LedgerRebuild, ForgetsIssuesAndLeavesItemsWithoutRows)
{
    addDocuments();
    const float onHand = quantities(1).available;
    post("MI", 60, "MII", 61, 1, 0, 5);
    add("MIRLIST", {{"MIRTAG", 60}, {"MIRNO", "1"}});
    add("MIRITEMS", {{"MIRITAG", 61}, {"MIRTAG", 60}, {"ISNTAG", 1}, {"QTY", 5}});
    EXPECT_EQ(quantities(1).available, onHand - 5);
    addItem(4);
    const OpenTable items = site.open("ZORVEX.mdb", "INVENTORY");
    storage::Recordset rows = items.rows;
    rows.Index("INVISNTAG");
    rows.Seek("=", 4);
    rows.Edit();
    rows["AVAILABLE"] = 12;
    rows.Update();

    EXPECT_TRUE(run());
    EXPECT_EQ(quantities(1).available, onHand);
    EXPECT_EQ(quantities(4).available, 12);
    EXPECT_TRUE(run(9)) << "a branch without anything";
    EXPECT_EQ(quantities(4).available, 12);
}

TEST_F(LedgerRebuild, TellsOfItemsThatItCannotReplayAndGoesOn)
{
    addLedgerRow(3, "IA", "IAI", 1, "20260301", 5, 2);
    addLedgerRow(3, "MI", "MII", 2, "20260302", 1, 2);
    addItem(5, 2);
    addLedgerRow(5, "MT", "X", 3, "20260302", 1, 2);
    addItem(6, 2);
    addLedgerRow(6, "PO", "Y", 4, "20260302", 1, 2);
    addItem(7, 2);
    addLedgerRow(7, "IA", "IAI", 5, "20260302", 8, 2);
    addOrder(10, 11, 1);
    add("RQILIST", {{"RQITAG", 90}, {"POTAG", 10}, {"ISNTAG", 404}, {"QTY", 1}});
    user.expect(title, "Cannot Find the Inventory Item Tag: 404");
    user.expect(title, "Invalid Document Type: MI");
    user.expect(title, "Invalid Material Transfer Item Type: X");
    user.expect(title, "Invalid PO Item Type: Y");
    EXPECT_TRUE(run());
    EXPECT_EQ(quantities(3), StockQuantities());
    EXPECT_EQ(quantities(7).available, 8);

    addLedgerRow(2, "IA", "IAI", 1, "20260301", 2, 2);
    addLedgerRow(7, "IA", "IAI", 6, "20260303", 8, 2);
    user.expect(title, "Cannot Find the Inventory Item Tag: 404");
    user.expect(title, "Invalid Document Type: MI", Answer::Cancel);
    EXPECT_FALSE(run());
    EXPECT_EQ(quantities(2).available, 2) << "before it";
    EXPECT_EQ(quantities(7).available, 8) << "after it";
    user.expect(title, "Cannot Find the Inventory Item Tag: 404", Answer::Cancel);
    EXPECT_FALSE(run());
    EXPECT_EQ(quantities(1).onOrder, 10);
}

TEST_F(LedgerRebuild, StopsWhereItStandsAndANewRunDoesTheRest)
{
    addDocuments();
    const QStringList rows = ledgerRows();
    const StockQuantities before = quantities(1);
    for (int stopAfter = 1; stopAfter < 8; ++stopAfter) {
        EXPECT_FALSE(run(1, stopAfter));
        EXPECT_EQ(quantities(1), before) << "items come last";
    }
    EXPECT_TRUE(run());
    EXPECT_EQ(ledgerRows(), rows);
}

// What the documents do not say goes, what they say otherwise is put right, and a row that is right
// is left: its record is still the same.
TEST_F(LedgerRebuild, WritesWhatDiffersAlone)
{
    addDocuments();
    const QStringList rows = ledgerRows();
    const StockQuantities first = quantities(1);
    const OpenTable ledger = site.open("ZORVEX.mdb", "INVTRANS");
    storage::Recordset row = ledger.rows;
    row.Index("INVTRANSACTION");
    ASSERT_TRUE(row.Seek("=", "PO", 10, "RQI", 11, 1));
    const QString right = row.Bookmark();
    const auto spoil = [&row](schema::FieldName field, const storage::Value& value) {
        row.Edit();
        row[field] = value;
        row.Update();
    };
    ASSERT_TRUE(row.Seek("=", "PO", 10, "REC", 12, 1));
    spoil("QUANTITY", 400);
    ASSERT_TRUE(row.Seek("=", "PO", 10, "REC", 13, 1));
    spoil("LDATE", "20250101");
    ASSERT_TRUE(row.Seek("=", "PI", 5, "PII", 0, 1));
    spoil("ICNTAG", 77);
    ASSERT_TRUE(row.Seek("=", "MR", 40, "MRI", 41, 1));
    spoil("ITEMTYPE", "mri");
    addLedgerRow(1, "PO", "RQI", 10, "20260301", 10);  // of no line
    post("RO", 50, "ROI", 51, 1, 0, 2, "20260306");    // twice
    addLedgerRow(1, "XX", "YYY", 1, "20260301", 10);   // of no kind
    EXPECT_TRUE(run());
    EXPECT_EQ(ledgerRows(), rows);
    EXPECT_EQ(quantities(1), first);
    row.Bookmark(right);
    EXPECT_EQ(row["ITEMTAG"].value().toInt(), 11);
}

// An item counted twice in one inventory: the later count holds, whatever rows were there.
TEST_F(LedgerRebuild, KeepsTheOrderOfRowsThatAreNamedAlike)
{
    add("PILIST",
        {{"PITAG", 5}, {"ILCTAG", 1}, {"PIFDATE", "03/02/2026"}, {"PILDATE", "20260302"}});
    for (const int count : {40, 41, 42})
        add("PIITEMS", {{"PITAG", 5}, {"ISNTAG", 1}, {"PICOUNT", count}});
    addLedgerRow(1, "PI", "PII", 5, "20260302", 42);
    addLedgerRow(1, "PI", "PII", 5, "20260302", 40);
    EXPECT_TRUE(run());
    EXPECT_EQ(ledgerRows().size(), 3);
    EXPECT_EQ(quantities(1).available, 42);
}

}  // namespace
