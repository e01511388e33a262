// Line items of long documents and of documents that share them: where they go, and what stays
// when something is in the way.
#include <gtest/gtest.h>

#include "core/storage/storage_error.h"
#include "core/write_batch.h"
#include "purchasing/document_lines.h"
#include "purchasing/document_marks.h"
#include "purchasing/document_numbers.h"
#include "purchasing/header_changes.h"
#include "purchasing/line_clipboard.h"
#include "purchasing/line_deletion.h"
#include "purchasing/order_creation.h"
#include "tests/purchasing/purchasing_site.h"

namespace {

class LineMoves : public testing::Test, protected PurchasingSite
{
protected:
    // Order 70 of requisition 10, with the lines of these tags.
    void order(std::initializer_list<int> tags) const
    {
        add("POLIST", {{"POTAG", 70},
                       {"REQTAG", 10},
                       {"PONO", "4711M0002301"},
                       {"POSUFFIX", 1},
                       {"FDATE", "03/07/2026"},
                       {"LDATE", "20260307"}});
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.rows.Index("RQITAG");
        int number = 0;
        for (const int tag : tags) {
            ASSERT_TRUE(lines.rows.Seek("=", tag));
            lines.rows.Edit();
            lines.rows["POTAG"] = 70;
            lines.rows["POITEMNO"] = ++number;
            lines.rows["POLINENO"] = number;
            lines.rows.Update();
        }
    }
    QStringList linesOf(const DocumentKind& kind, int docTag) const
    {
        QStringList texts;
        OpenTable open = site.open("ZORVEX.mdb", "RQILIST");
        forEachLine(open.rows, kind, docTag, [&] {
            texts.append(QString("%1 %2 %3")
                             .arg(intOf(open.rows[kind.itemNo]))
                             .arg(intOf(open.rows[kind.lineNo]))
                             .arg(trimmedTextOf(open.rows["Desc"])));
            return true;
        });
        return texts;
    }
};

TEST_F(LineMoves, AnOrderIsRenumberedWithoutItsRequisition)
{
    addRequisition(3);
    order({102, 100});
    EXPECT_EQ(insertLine(session, purchaseOrders, 70, 100), 1000001);
    EXPECT_EQ(linesOf(purchaseOrders, 70), (QStringList{"1 1 Line 3", "2 2 ", "3 3 Line 1"}));
    EXPECT_EQ(linesOf(requisitions, 10), (QStringList{"1 1 Line 1", "2 2 Line 2", "3 3 Line 3"}));
    EXPECT_EQ(linesOf(requisitions, 0), QStringList{"0 0 "}) << "the new line is the order's alone";
    EXPECT_EQ(renumberLines(session, purchaseOrders, 70), 3);
    EXPECT_EQ(linesOf(requisitions, 10).size(), 3);
}

// More lines than one batch writes, from numbers that collide with those to come.
TEST_F(LineMoves, ALongDocumentIsRenumberedInItsOrder)
{
    constexpr int count = 2'500;
    {
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        WriteBatch batch(lines.workspace);
        for (int line = 1; line <= count; ++line) {
            batch.begin();
            lines.rows.AddNew();
            lines.rows["RQITAG"] = line;
            lines.rows["REQTAG"] = 10;
            lines.rows["REQLINENO"] = 2 * line + 3'000;
            lines.rows["REQITEMNO"] = 7;
            lines.rows.Update();
            batch.added();
        }
        batch.commit();
    }
    EXPECT_EQ(renumberLines(session, requisitions, 10), count);
    OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
    int next = 1;
    forEachLine(lines.rows, requisitions, 10, [&] {
        EXPECT_EQ(intOf(lines.rows["RQITAG"]), next);
        EXPECT_EQ(intOf(lines.rows["REQLINENO"]), next);
        EXPECT_EQ(intOf(lines.rows["REQITEMNO"]), next);
        return intOf(lines.rows["RQITAG"]) == next++;
    });
    EXPECT_EQ(next, count + 1);
}

TEST_F(LineMoves, ALineIsCutFromOneDocumentAndPastedIntoAnother)
{
    addRequisition(3);
    add("POLIST", {{"POTAG", 71}, {"REQTAG", 0}, {"PONO", "B"}});
    copyToClipboard(session, 100, true);
    const qint32 pasted = pasteLine(session, purchaseOrders, 71, 0);
    EXPECT_EQ(pasted, 1000001) << "a tag of its own";
    EXPECT_EQ(linesOf(purchaseOrders, 71), QStringList{"1 1 Line 1"});
    EXPECT_EQ(linesOf(requisitions, 10), (QStringList{"2 2 Line 2", "3 3 Line 3"}))
        << "gaps until it is refreshed";
    EXPECT_EQ(rows("RQILIST", {"REQTAG", "REQLINENO", "COSTCODEA", "AMOUNT"}).last(),
              "0|0| 100|20");
    copyToClipboard(session, 102, false);
    pasteLine(session, purchaseOrders, 71, pasted);
    EXPECT_EQ(linesOf(purchaseOrders, 71), QStringList{"1 1 Line 3"});
    EXPECT_EQ(linesOf(requisitions, 10).size(), 2) << "a copy takes nothing away";
}

// The item of the line is gone, so that its place in the ledger cannot be taken back.
TEST_F(LineMoves, ALineWhoseLedgerCannotBeReversedStays)
{
    addRequisition(3);
    order({102});
    site.emptyTable("ZORVEX.mdb", "INVENTORY");
    add("PAYMENTS", {{"PAYTAG", 1}, {"RQITAG", 102}});
    add("RECEIVED", {{"RECTAG", 1}, {"POTAG", 70}, {"RQITAG", 102}});
    add("ISSUED", {{"RQITAG", 102}});
    markLine(purchaseOrders, 70, 102);
    const QString title = "Error: zorInvTransDelete";
    const QString reason =
        "Cannot Find the Inventory Item Tag: 5\nCannot Complete Inventory Transaction Update.";
    user.expect(title, reason);
    user.expect("Cannot Delete",
                "Cannot Cannot Delete Inventory Transaction. \n"
                "Cannot Delete Related Receiving Line Item.");
    EXPECT_FALSE(deleteLine(session, purchaseOrders, 102));
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "PAYMENTS"), 0) << "the first step is done";
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RECEIVED"), 1);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ISSUED"), 1) << "later steps are not begun";

    site.emptyTable("ZORVEX.mdb", "RECEIVED");
    user.expect(title, reason);
    user.expect("Cannot Delete", "Cannot Delete Inventory Transaction. Cannot Delete Line Item.");
    EXPECT_FALSE(deleteLine(session, purchaseOrders, 102));
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ISSUED"), 0);
    EXPECT_EQ(linesOf(purchaseOrders, 70), QStringList{"1 1 Line 3"});
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 1);
}

TEST_F(LineMoves, ADeletedOrderLeavesTheLedgerToTheRefresh)
{
    addRequisition(3);
    markLine(requisitions, 10, 102);
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    deleteOfOrder(session, created->POTAG);
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"2"}) << "stale until then";
    EXPECT_EQ(linesOf(requisitions, 10).size(), 3);
    // It may be ordered again.
    markLine(requisitions, 10, 102);
    EXPECT_EQ(createOrder(session, {.REQTAG = 10, .PONO = "Y", .done = {}})->items, 1);
}

TEST_F(LineMoves, NumbersCountPastClonesAndTextsOfUsers)
{
    addRequisition(3);
    order({100});
    const qint32 clone = cloneOrder(session, 70, "4711M0002301-A");
    EXPECT_EQ(proposeOrder(session, 10).PONO, "4711M0002302");
    EXPECT_EQ(rows("RQILIST", {"POTAG"}).last().toInt(), clone);
    EXPECT_EQ(nextOrderSuffix(site.siteFolder(), 10), 2);

    const QString path = site.siteFolder();
    EXPECT_TRUE(saveOrderCounter(path, "KX-19"));
    EXPECT_EQ(nextOrderNumber(path), "00007") << "no number follows a text";
    EXPECT_TRUE(saveRequisitionCounter(path, 5));
    EXPECT_EQ(nextRequisitionNumber(path), 6) << "back, too";
    site.emptyTable("ZORVEX.mdb", "VEXCOUNTERS");
    EXPECT_FALSE(saveOrderCounter(path, "KX-19"));
    add("VEXCOUNTERS", {{"REQNO", 1}, {"PONO", 0}});
    EXPECT_EQ(nextOrderNumber(path), "00001");
}

// What one user writes while another has the same document in hand.
TEST_F(LineMoves, WhatAnotherUserDeletedIsPassedOver)
{
    addRequisition(3);
    for (const int tag : {100, 101, 102})
        markLine(requisitions, 10, tag);
    EXPECT_TRUE(deleteLine(session, requisitions, 101));
    markLine(requisitions, 10, 101);
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    EXPECT_EQ(created->items, 2);
    EXPECT_EQ(linesOf(purchaseOrders, created->POTAG), (QStringList{"1 1 Line 1", "2 2 Line 3"}));
    markLine(requisitions, 10, 101);
    EXPECT_EQ(transferMarkedLines(session, 10, 11), 0);
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 0) << "its mark goes all the same";
    site.emptyTable("ZORVEX.mdb", "REQLIST");
    EXPECT_FALSE(createOrder(session, {.REQTAG = 10, .PONO = "Y", .done = {}}));
    EXPECT_FALSE(cloneOrder(session, 999, "Z"));
}

// Two users were offered one number: the index of numbers lets the first one have it. What the
// second one's steps had done stays for the utility that finds it.
TEST_F(LineMoves, ANumberIsUsedOnce)
{
    addRequisition(3);
    add("POLIST", {{"POTAG", 71}, {"REQTAG", 0}, {"PONO", "00007"}});
    EXPECT_TRUE(isOrderNumberTaken(site.siteFolder(), "00007"));
    EXPECT_FALSE(isOrderNumberTaken(site.siteFolder(), "00007", 71));
    markLine(requisitions, 10, 100);
    EXPECT_THROW(
        createOrder(session, {.REQTAG = 10, .PONO = "00007", .usesCounter = true, .done = {}}),
        storage::StorageError);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "POLIST"), 1);
    EXPECT_EQ(rows("RQILIST", {"POTAG"}).first(), "1000001");
    EXPECT_EQ(rows("VEXCOUNTERS", {"PONO"}), QStringList{"7"});
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 1);
}

}  // namespace
