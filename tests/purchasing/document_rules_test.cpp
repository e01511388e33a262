// The rules of requisitions and purchase orders, on their tables.
#include <gtest/gtest.h>

#include <QProcess>

#include "purchasing/document_lines.h"
#include "purchasing/document_marks.h"
#include "purchasing/document_numbers.h"
#include "purchasing/header_changes.h"
#include "purchasing/line_clipboard.h"
#include "purchasing/line_deletion.h"
#include "purchasing/order_creation.h"
#include "tests/purchasing/purchasing_site.h"

namespace {

class DocumentRules : public testing::Test, protected PurchasingSite
{
protected:
    QString path() const { return site.siteFolder(); }
    QStringList lineNumbers() const
    {
        return rows("RQILIST", {"RQITAG", "REQITEMNO", "REQLINENO"});
    }
    // The descriptions in the order of the requisition.
    QStringList inOrder() const
    {
        QStringList texts;
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        forEachLine(lines.rows, requisitions, 10, [&] {
            texts.append(QString::number(intOf(lines.rows["REQLINENO"])) + ' ' +
                         trimmedTextOf(lines.rows["Desc"]));
            return true;
        });
        return texts;
    }
};

TEST_F(DocumentRules, NumbersComeFromFormatCounterOrTheUser)
{
    EXPECT_EQ(autoFormattedNumber(job, "M", 23, 1), "4711M0002301");
    EXPECT_EQ(autoFormattedNumber(job, "M", 0, 1), "") << "no requisition, no number";
    EXPECT_EQ(orderNumberSource(path()), NumberSource::AutoFormat);
    EXPECT_EQ(orderNumberSource(path(), true), NumberSource::Typed);
    switchOn("VEXFORMATPONO", false);
    EXPECT_EQ(orderNumberSource(path()), NumberSource::Typed);
    switchOn("VEXUSEPONOCOUNTER");
    EXPECT_EQ(orderNumberSource(path()), NumberSource::Counter);
    EXPECT_EQ(nextOrderNumber(path()), "00007");
    EXPECT_TRUE(saveOrderCounter(path(), "00003"));
    EXPECT_EQ(nextOrderNumber(path()), "00004") << "what was used counts, also downward";
    add("POLIST", {{"POTAG", 1}, {"REQTAG", 10}, {"PONO", "A"}, {"POSUFFIX", 3}});
    EXPECT_EQ(nextOrderSuffix(path(), 10), 4);
    EXPECT_EQ(nextOrderSuffix(path(), 11), 1);
    site.emptyTable("ZORVEX.mdb", "VEXCOUNTERS");
    user.expect("Empty Table",
                "Cannot Obtain Next Valid PO Number.\nCounter has Not Been Setup.\n"
                "Purchase Order Number Counter Table is Empty.");
    EXPECT_EQ(nextOrderNumber(path()), "");
}

TEST_F(DocumentRules, TextLinesTakeTheItemNumberAboveThem)
{
    addRequisition(3);
    OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
    const LineNumbers item = numbersForNewLine(lines.rows, requisitions, 10, false);
    EXPECT_EQ(item.item, 3) << "two of three lines are items";
    EXPECT_EQ(item.line, 4);
    EXPECT_EQ(numbersForNewLine(lines.rows, requisitions, 10, true).item, 2);
    EXPECT_EQ(numbersForNewLine(lines.rows, requisitions, 77, false).line, 1);
}

TEST_F(DocumentRules, RenumberingAndInsertionKeepTheOrder)
{
    addRequisition(3);
    {
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.rows.MoveFirst();
        lines.rows.Delete();
    }
    EXPECT_EQ(renumberLines(session, requisitions, 10), 2);
    EXPECT_EQ(lineNumbers(), (QStringList{"101|1|1", "102|2|2"}));
    const qint32 blank = insertLine(session, requisitions, 10, 102);
    EXPECT_EQ(inOrder(), (QStringList{"1 Line 2", "2 ", "3 Line 3"}));
    insertLine(session, requisitions, 10, 0);
    EXPECT_EQ(inOrder().last(), "4 ");
    EXPECT_EQ(rows("RQILIST", {"RQITAG", "COSTCODEA"}).first(), "101| 100") << "lines stay whole";
    OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
    lines.rows.Index("RQITAG");
    ASSERT_TRUE(lines.rows.Seek("=", blank));
    EXPECT_EQ(intOf(lines.rows["POTAG"]), 0);
}

TEST_F(DocumentRules, ClipboardCutsOnlyWhenItIsPasted)
{
    addRequisition(3);
    user.expect("Cannot Paste", "The Line Item Detail Clipboard is Empty. (Nothing to Paste).");
    EXPECT_EQ(pasteLine(session, requisitions, 10, 101), 0);
    copyToClipboard(session, 100, true);
    for (const int line : {100, 101, 102})
        markLine(requisitions, 10, line);
    EXPECT_EQ(inOrder().size(), 3) << "not yet";
    EXPECT_TRUE(hasContent(session, 101)) << "a text line has a description";
    EXPECT_NE(pasteLine(session, requisitions, 10, 101), 0);
    EXPECT_EQ(inOrder(), (QStringList{"1 Line 1", "2 Line 3"})) << "over the text line";
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "TAGLIST", {"ITEMTAG"}), QStringList{"102"})
        << "marks go with their lines";
    pasteLine(session, requisitions, 10, 0);
    EXPECT_EQ(inOrder(), (QStringList{"1 Line 1", "2 Line 3", "3 Line 1"})) << "a copy from now on";
    copyToClipboard(session, 102, true);
    deleteLine(session, requisitions, 102);
    user.expect("Cannot Paste", "Cannot Find Cut Line Item.");
    EXPECT_EQ(pasteLine(session, requisitions, 10, 0), 0);
}

TEST_F(DocumentRules, TaggedLinesBecomeAnOrderStepByStep)
{
    addRequisition(3);
    user.expect("Cannot Create PO", "Nothing to Do (There are No Tagged Items).");
    EXPECT_FALSE(mayPostTagged(session, 10, "Cannot Create PO"));
    markLine(requisitions, 10, 100);
    markLine(requisitions, 10, 102);
    EXPECT_TRUE(mayPostTagged(session, 10, "Cannot Create PO"));
    const OrderProposal proposal = proposeOrder(session, 10);
    EXPECT_EQ(proposal.PONO, "4711M0002301");
    QStringList steps;
    const auto created =
        createOrder(session, {.REQTAG = 10,
                              .POSUFFIX = proposal.POSUFFIX,
                              .PONO = proposal.PONO,
                              .done = [&](const char* step) { steps.append(step); }});
    ASSERT_TRUE(created);
    EXPECT_EQ(created->items, 2);
    EXPECT_EQ(steps, (QStringList{"POTAG", "RQITAG", "RQITAG", "INVTRANS", "POLIST", "TAGLIST"}));
    const QString tag = QString::number(created->POTAG);
    EXPECT_EQ(rows("RQILIST", {"RQITAG", "POTAG", "POITEMNO", "POLINENO", "REQLINENO"}),
              (QStringList{"100|" + tag + "|1|1|1", "101|0|0|0|2", "102|" + tag + "|2|2|3"}));
    EXPECT_EQ(rows("POLIST", {"PONO", "AMOUNT", "POSUFFIX", "INTEND", "VENTAG", "REQNO"}),
              QStringList{"4711M0002301|40|1|Pump house|40|23"});
    EXPECT_EQ(rows("INVTRANS", {"DOCTYPE", "ITEMTYPE", "ITEMTAG", "QUANTITY", "FDATE"}),
              QStringList{"PO|RQI|102|2|03/07/2026"});
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"2"});
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 0);
    EXPECT_EQ(proposeOrder(session, 10).PONO, "4711M0002302");
}

// Each step is whole, those before it stand, and those after it have not begun.
TEST_F(DocumentRules, AKilledCreationLeavesWhatItsStepsHadDone)
{
    struct Left
    {
        int steps;
        int linesOrdered;
        int posted;
        int orders;
        int counter;
        int marks;
    };
    const Left cases[] = {{1, 0, 0, 0, 7, 2}, {2, 1, 0, 0, 7, 2}, {3, 2, 0, 0, 7, 2},
                          {4, 2, 1, 0, 7, 2}, {5, 2, 1, 1, 7, 2}, {6, 2, 1, 1, 42, 2},
                          {7, 2, 1, 1, 42, 0}};
    for (const Left& left : cases) {
        for (const char* table : {"REQLIST", "POLIST", "RQILIST", "INVTRANS", "VEXCOUNTERS"})
            site.emptyTable("ZORVEX.mdb", table);
        site.emptyTable("ZORUSER.mdb", "TAGLIST");
        add("VEXCOUNTERS", {{"REQNO", 23}, {"PONO", 7}});
        addRequisition(3);
        markLine(requisitions, 10, 100);
        markLine(requisitions, 10, 102);
        QProcess creator;
        creator.start(DOCUMENT_CHANGER_PROGRAM, {site.siteFolder(), site.userFolder(), "create",
                                                 "00041", QString::number(left.steps)});
        ASSERT_TRUE(creator.waitForFinished(60'000));
        EXPECT_EQ(creator.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(creator.readAllStandardError().constData(), std::string());
        int ordered = 0;
        for (const QString& POTAG : rows("RQILIST", {"POTAG"}))
            ordered += POTAG != "0";
        EXPECT_EQ(ordered, left.linesOrdered) << left.steps;
        EXPECT_EQ(site.rowCount("ZORVEX.mdb", "INVTRANS"), left.posted) << left.steps;
        EXPECT_EQ(site.rowCount("ZORVEX.mdb", "POLIST"), left.orders) << left.steps;
        EXPECT_EQ(rows("VEXCOUNTERS", {"PONO"}), QStringList{QString::number(left.counter)});
        EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), left.marks) << left.steps;
    }
}

// Two users who order the same line: it belongs to one order.
TEST_F(DocumentRules, ALineThatAnotherUserHasOrderedStaysWithHisOrder)
{
    addRequisition(3);
    markLine(requisitions, 10, 100);
    markLine(requisitions, 10, 102);
    {
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.rows.Edit();
        lines.rows["POTAG"] = 99;
        lines.rows.Update();
    }
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    EXPECT_EQ(created->items, 1);
    EXPECT_EQ(rows("RQILIST", {"POTAG"}).first(), "99");
    EXPECT_EQ(rows("POLIST", {"AMOUNT"}), QStringList{"20"});
}

TEST_F(DocumentRules, LinesAreAddedBehindThoseOfAStandingOrder)
{
    addRequisition(3);
    add("POLIST", {{"POTAG", 70}, {"PONO", "X-1"}, {"AMOUNT", 5}, {"REQTAG", 0}});
    add("RQILIST",
        {{"RQITAG", 200}, {"REQTAG", 0}, {"POTAG", 70}, {"POITEMNO", 4}, {"POLINENO", 6}});
    user.expect("Cannot Find Item", "Cannot Find PO Number: X-2");
    EXPECT_FALSE(orderOfNumber(session, " x-2"));
    EXPECT_EQ(orderOfNumber(session, " x-1"), 70);
    markLine(requisitions, 10, 100);
    EXPECT_EQ(addTaggedToOrder(session, 10, 70), 1);
    EXPECT_EQ(rows("RQILIST", {"POTAG", "POITEMNO", "POLINENO"}).first(), "70|5|7");
    EXPECT_EQ(rows("POLIST", {"AMOUNT"}), QStringList{"25"});
}

TEST_F(DocumentRules, AChangedHeadRenumbersItsOrdersAndLosesCostCodes)
{
    addRequisition(1);
    add("POLIST", {{"POTAG", 70},
                   {"REQTAG", 10},
                   {"PONO", "4711M0002301"},
                   {"POSUFFIX", 1},
                   {"REQNO", 23},
                   {"REQTYPE", "M"}});
    const RequisitionHead before{1, job, "M", 23};
    EXPECT_FALSE(headChange(session, 10, before, before, ""));
    const auto change = headChange(session, 10, before, {1, otherJob, "M", 23}, "4712M0002301");
    ASSERT_TRUE(change);
    EXPECT_EQ(headChangeText(*change),
              "You have changed the Job Number.\nThe new PO Number is: 4712M0002301\n\n"
              "The following related PO Numbers will be updated:\n4711M0002301\n\n"
              "Because of the above change all Cost Codes in the\n"
              "Requisition Detail will be cleared. They will need\n"
              "to be reassigned for the new Company/Job Pair\n\n"
              "Save Changes to Requisition and Update Related Purchase Orders?");
    EXPECT_EQ(takenNumber(session, *change), "");
    add("POLIST", {{"POTAG", 71}, {"REQTAG", 11}, {"PONO", "4712M0002301"}});
    EXPECT_EQ(takenNumber(session, *change), "4712M0002301");
    site.emptyTable("ZORVEX.mdb", "POLIST");
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 10}, {"PONO", "4711M0002301"}, {"POSUFFIX", 1}});
    applyHeadChange(session, *change);
    EXPECT_EQ(rows("POLIST", {"PONO", "POSUFFIX", "REQTYPE"}), QStringList{"4712M0002301|1|M"});
    EXPECT_EQ(rows("RQILIST", {"COSTCODEA"}), QStringList{""});
}

TEST_F(DocumentRules, DeletionsTakeAlongWhatTheyMay)
{
    addRequisition(2);
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 10}, {"PONO", "4711M0002301"}});
    add("RQILIST", {{"RQITAG", 200}, {"REQTAG", 0}, {"POTAG", 70}, {"POITEMNO", 1}});
    add("RQILIST",
        {{"RQITAG", 201}, {"REQTAG", 10}, {"POTAG", 70}, {"POITEMNO", 2}, {"REQLINENO", 3}});
    add("PAYMENTS", {{"PAYTAG", 1}, {"POTAG", 70}, {"RQITAG", 200}});
    add("RECEIVED", {{"RECTAG", 1}, {"POTAG", 70}, {"RQITAG", 201}});
    add("RECEIVED", {{"RECTAG", 2}, {"POTAG", 71}, {"RQITAG", 9}});
    EXPECT_EQ(deletionText(session, requisitions, 10, "00023"),
              "Delete This Requisition 00023\nAnd All of these Related Purchase Orders:\n"
              "4711M0002301\nAnd Related Detail Items?");
    deleteOfOrder(session, 70);
    EXPECT_EQ(rows("RQILIST", {"RQITAG", "POTAG"}), (QStringList{"100|0", "101|0", "201|0"}));
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "PAYMENTS"), 0);
    EXPECT_EQ(rows("RECEIVED", {"RECTAG"}), QStringList{"2"}) << "another order's";
    deleteOfRequisition(session, 10);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 0);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "POLIST"), 0);
}

TEST_F(DocumentRules, ALineIsDeletedWithItsReceiptsAndItsPlaceInTheLedger)
{
    addRequisition(3);
    markLine(requisitions, 10, 102);
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    add("RECEIVED", {{"RECTAG", 1}, {"POTAG", created->POTAG}, {"RQITAG", 102}, {"QTYREC", 2}});
    add("PAYMENTS", {{"PAYTAG", 1}, {"RQITAG", 102}});
    add("ISSUED", {{"RQITAG", 102}});
    markLine(purchaseOrders, created->POTAG, 102);
    EXPECT_TRUE(deleteLine(session, purchaseOrders, 102));
    for (const char* table : {"RECEIVED", "PAYMENTS", "ISSUED", "INVTRANS"})
        EXPECT_EQ(site.rowCount("ZORVEX.mdb", table), 0) << table;
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"0"});
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 0);
    EXPECT_EQ(lineNumbers(), (QStringList{"100|1|1", "101|2|2"})) << "numbers keep their gaps";
}

TEST_F(DocumentRules, TotalsAreWrittenToAllThatShareTheLines)
{
    addRequisition(3);
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 10}, {"PONO", "A"}, {"AMOUNT", 1}, {"REVNO", 0}});
    add("RQILIST", {{"RQITAG", 200},
                    {"REQTAG", 10},
                    {"POTAG", 70},
                    {"POITEMNO", 1},
                    {"POLINENO", 1},
                    {"REQLINENO", 4},
                    {"AMOUNT", 0.1},
                    {"REVNO", 2}});
    writeTotals(session, requisitions, 10);
    EXPECT_EQ(rows("REQLIST", {"AMOUNT"}), QStringList{"40.1"});
    EXPECT_EQ(rows("POLIST", {"AMOUNT", "REVNO"}), QStringList{"0.1|0"});
    writeTotals(session, purchaseOrders, 70);
    EXPECT_EQ(rows("POLIST", {"AMOUNT", "REVNO"}), QStringList{"0.1|2"});
    user.expect("Invalid PO Tag", "Cannot Find Owner PO Tag Number: 71");
    writeTotals(session, purchaseOrders, 71);
}

TEST_F(DocumentRules, MarkedOrdersTakeStatusAndDownloadNumber)
{
    add("POLIST", {{"POTAG", 70}, {"PONO", "B"}, {"VEXDLTAG", 3}, {"Status", "Open"}});
    add("POLIST", {{"POTAG", 71}, {"PONO", "A"}, {"VEXDLTAG", 0}, {"Status", "Open"}});
    toggleMark(session, purchaseOrders, 70, "B");
    toggleMark(session, purchaseOrders, 71, "A");
    EXPECT_EQ(markedDocuments(session, purchaseOrders), (std::vector<qint32>{71, 70}))
        << "by number";
    int asked = 0;
    postDownloadNumber(session, 9, [&asked] { return ++asked == 0; });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(rows("POLIST", {"VEXDLTAG"}), (QStringList{"3", "9"}));
    EXPECT_TRUE(markedDocuments(session, purchaseOrders).empty());
    toggleMark(session, purchaseOrders, 70, "B");
    postDownloadNumber(session, 0, [] { return false; });
    EXPECT_EQ(rows("POLIST", {"VEXDLTAG"}), (QStringList{"0", "9"})) << "cleared unasked";
    toggleMark(session, purchaseOrders, 71, "A");
    setOrderStatus(session, 70, "Closed");
    EXPECT_EQ(rows("POLIST", {"Status"}), (QStringList{"Open", "Closed"})) << "the marked one";
    setOrderStatus(session, 70, "Urgent");
    EXPECT_EQ(rows("POLIST", {"Status"}).first(), "Urgent");
}

TEST_F(DocumentRules, ACloneHasTheLinesAndNothingElse)
{
    addRequisition(3);
    markLine(requisitions, 10, 100);
    markLine(requisitions, 10, 102);
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    setOrderStatus(session, created->POTAG, "Closed");
    const qint32 copy = cloneOrder(session, created->POTAG, "x-2 ");
    EXPECT_EQ(rows("POLIST", {"POTAG", "PONO", "REQTAG", "POSUFFIX", "AMOUNT", "Status"}).at(1),
              QString::number(copy) + "|X-2|10|1|40|~");
    EXPECT_EQ(rows("RQILIST", {"POTAG", "REQTAG", "POITEMNO", "Desc"}).mid(3),
              (QStringList{QString::number(copy) + "|10|1|Line 1",
                           QString::number(copy) + "|10|2|Line 3"}));
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "INVTRANS"), 1) << "a clone posts nothing";
}

TEST_F(DocumentRules, MarkedLinesMoveToAnotherRequisition)
{
    addRequisition(2);
    markLine(requisitions, 10, 101);
    EXPECT_EQ(transferMarkedLines(session, 10, 11), 1);
    EXPECT_EQ(rows("RQILIST", {"RQITAG", "REQTAG", "REQLINENO"}),
              (QStringList{"100|10|1", "101|11|2"}));
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 0);
}

}  // namespace
