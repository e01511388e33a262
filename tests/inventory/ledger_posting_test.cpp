#include "inventory/ledger_posting.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "core/storage/file_paths.h"
#include "tests/inventory/ledger_site.h"

namespace {

const QString updateTitle = "Error in Function: zorInvTransUpdate";
const QString deleteTitle = "Error: zorInvTransDelete";

class LedgerPosting : public LedgerSite
{
protected:
    LedgerPosting()
    {
        addItem(1, 1, 70);
        addItem(2);
    }
};

TEST_F(LedgerPosting, WritesTheRowOfALineAndTheItemsQuantities)
{
    EXPECT_TRUE(post("PO", 10, "RQI", 11, 1, 0, 8));
    EXPECT_TRUE(post("PO", 10, "REC", 12, 1, 1, 5));
    EXPECT_TRUE(post("IA", 20, "IAI", 0, 1, 0, -2));
    EXPECT_TRUE(post("MT", 30, "MTD", 31, 1, 0, 1));
    EXPECT_TRUE(post("MT", 30, "MTC", 31, 2, 0, 1));
    EXPECT_TRUE(post("MR", 40, "MRI", 41, 1, 0, 0.5));
    EXPECT_TRUE(post("MI", 50, "MII", 51, 1, 0, 0.25));
    EXPECT_TRUE(post("RO", 60, "ROI", 61, 1, 0, 4));
    EXPECT_EQ(quantities(1), (StockQuantities{-2.75F, 3, 4, -2}));
    EXPECT_EQ(quantities(2), (StockQuantities{1, 0, 0, 0}));
    EXPECT_TRUE(ledgerRows().contains("1 1 70 PO 10 RQI 11 03/07/2026 20260307 8"));

    EXPECT_TRUE(post("PO", 10, "RQI", 11, 1, 1, 9, "20260308")) << "edits the row";
    EXPECT_TRUE(ledgerRows().contains("1 1 70 PO 10 RQI 11 03/08/2026 20260308 9"));
    EXPECT_EQ(ledgerRows().size(), 8);
    EXPECT_EQ(quantities(1).onOrder, 4);
    EXPECT_TRUE(post("PO", 10, "RQI", 11, 1, 0, 9)) << "without the old item: a second row";
    EXPECT_EQ(ledgerRows().size(), 9);
}

TEST_F(LedgerPosting, StartsAnewAtACount)
{
    post("PO", 10, "RQI", 1, 1, 0, 5, "20260301");
    post("PO", 10, "RQI", 2, 1, 0, 5, "20260301");
    post("PI", 9, "PII", 0, 1, 0, 100, "20260302");
    EXPECT_EQ(quantities(1), (StockQuantities{100, 0, 0, 0}));
    post("PO", 10, "REC", 3, 1, 0, 5, "20260303");
    EXPECT_EQ(quantities(1), (StockQuantities{105, -5, 0, 0}));
}

TEST_F(LedgerPosting, FollowsALineToAnotherItemAndToNone)
{
    post("PO", 10, "RQI", 11, 1, 0, 8);
    EXPECT_TRUE(post("PO", 10, "RQI", 11, 2, 1, 6));
    EXPECT_EQ(quantities(1), StockQuantities());
    EXPECT_EQ(quantities(2).onOrder, 6);
    EXPECT_EQ(ledgerRows(), QStringList{"2 1 0 PO 10 RQI 11 03/07/2026 20260307 6"});

    site.setFirst("ZORVEX.mdb", "INVENTORY", "AVAILABLE", 44);
    EXPECT_TRUE(post("PO", 99, "RQI", 11, 2, 1, 6)) << "a row that is not there is not added";
    EXPECT_EQ(ledgerRows().size(), 1);
    EXPECT_EQ(quantities(1), StockQuantities()) << "but both items are replayed";

    EXPECT_TRUE(post("PO", 10, "RQI", 11, 0, 2, 6));
    EXPECT_EQ(quantities(2), StockQuantities());
    EXPECT_EQ(ledgerRows(), QStringList());
    EXPECT_TRUE(post("PO", 10, "RQI", 11, 0, 0, 6)) << "nothing to do";
}

TEST_F(LedgerPosting, DeletesTheRowOfALine)
{
    post("MR", 10, "MRI", 11, 1, 0, 8);
    EXPECT_TRUE(remove("MR", 10, "MRX", 11, 1)) << "other keys leave it";
    EXPECT_EQ(quantities(1).available, -8);
    EXPECT_TRUE(remove("MR", 10, "MRI", 11, 1));
    EXPECT_EQ(quantities(1), StockQuantities());
    EXPECT_EQ(ledgerRows(), QStringList());
    EXPECT_TRUE(remove("MR", 10, "MRI", 11, 0));
}

TEST_F(LedgerPosting, TellsWhatItDoesNotFind)
{
    user.expect(updateTitle,
                "Cannot Find the Inventory Item Tag: 7\nCannot Complete Inventory Transaction "
                "Update.");
    EXPECT_FALSE(post("PO", 10, "RQI", 11, 7, 0, 8));
    EXPECT_EQ(ledgerRows(), QStringList());
    user.expect(deleteTitle,
                "Cannot Find the Inventory Item Tag: 7\nCannot Complete Inventory Transaction "
                "Update.");
    EXPECT_FALSE(remove("PO", 10, "RQI", 11, 7));

    site.removeFile("ZORVEX.mdb");
    const QString missing =
        "Cannot Complete Inventory Transaction Update.\nCannot Find the Database File: ";
    user.expect(updateTitle, missing + storage::joinPath(site.siteFolder(), "ZORVEX.mdb"));
    EXPECT_FALSE(post("PO", 10, "RQI", 11, 1, 0, 8));
    user.expect(deleteTitle, missing + storage::joinPath(site.siteFolder(), "VEX.mdb"));
    EXPECT_FALSE(remove("PO", 10, "RQI", 11, 1));
}

TEST_F(LedgerPosting, LeavesAnItemWithRowsOfUnknownKindAsItWas)
{
    struct
    {
        const char* docType;
        const char* itemType;
        const char* told;
    } const cases[] = {{"PO", "X", "Invalid PO Item Type: X"},
                       {"MT", "MTX", "Invalid M/T Item Type: MTX"},
                       {"Q", "RQI", "Invalid Document Type: Q"}};
    for (const auto& bad : cases) {
        site.emptyTable("ZORVEX.mdb", "INVTRANS");
        ASSERT_TRUE(post("PO", 1, "RQI", 1, 1, 0, 3));
        addLedgerRow(1, bad.docType, bad.itemType, 5, "20260309", 1);
        user.expect(updateTitle, bad.told);
        EXPECT_FALSE(post("IA", 2, "IAI", 0, 1, 0, 50));
        EXPECT_EQ(quantities(1), (StockQuantities{0, 3, 0, 0}));
        EXPECT_EQ(ledgerRows().size(), 3) << "the row that was posted stays";
        user.expect(deleteTitle, bad.told);
        EXPECT_FALSE(remove("IA", 2, "IAI", 0, 1));
    }
}

TEST_F(LedgerPosting, RefusesWhatTheLedgerCannotHold)
{
    ASSERT_TRUE(post("IA", 1, "IAI", 0, 1, 0, 3e38));
    user.expect(updateTitle, "Overflow");
    EXPECT_FALSE(post("IA", 2, "IAI", 0, 1, 0, 3e38)) << "the sum";
    EXPECT_EQ(quantities(1).available, 3e38F);
    for (const QString& date : {QString("  /  /  "), QString("13/45/2026"), QString()}) {
        user.expect(updateTitle, "Invalid Date: " + date);
        EXPECT_FALSE(
            zorInvTransUpdate(site.siteFolder(), 1, "IA", 3, "IAI", 0, 2, 0, date, "        ", 1));
    }
    const qsizetype rows = ledgerRows().size();
    for (const double quantity : {1e39, -1e39}) {
        user.expect(updateTitle, "Numeric field overflow in 'QUANTITY'.");
        EXPECT_FALSE(post("IA", 4, "IAI", 0, 2, 0, quantity));
    }
    EXPECT_EQ(ledgerRows().size(), rows);
    EXPECT_EQ(quantities(2), StockQuantities());
}

// Both add to the same item, each with rows of its own.
TEST_F(LedgerPosting, OfTwoProgramsToOneItemLosesNothing)
{
    constexpr int postings = 60;
    QProcess posters[2];
    for (int i = 0; i < 2; ++i)
        posters[i].start(LEDGER_POSTER_PROGRAM, {site.siteFolder(), QString::number(100 * i + 1),
                                                 QString::number(postings)});
    for (QProcess& poster : posters) {
        ASSERT_TRUE(poster.waitForFinished(60'000));
        EXPECT_EQ(poster.exitCode(), 0) << poster.readAllStandardError().constData();
    }
    EXPECT_EQ(ledgerRows().size(), 2 * postings);
    EXPECT_EQ(quantities(1).available, float(2 * postings));
}

}  // namespace
