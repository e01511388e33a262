// What stands in the lines of printed documents.
#include "tests/purchasing/forms/document_site.h"

namespace {

class FormBodies : public DocumentSite
{
protected:
    FormBody body(const std::function<FormBody(const FormSource&)>& fill, int width = 40)
    {
        OpenTable orders = site.open("ZORVEX.mdb", "POLIST");
        orders.rows.MoveFirst();
        const FormSettings settings = formSettings(session);
        const FormDocument document = orderDocument(session, orders.rows);
        return fill({.session = session,
                     .settings = settings,
                     .document = document,
                     .tag = orderTag,
                     .width = width});
    }
    FormBody lines()
    {
        return body([](const FormSource& source) { return linesBody(source, purchaseOrders); });
    }
    static QStringList textsIn(const FormBody& body)
    {
        QStringList texts;
        for (const FormRow& row : body.buffer.rows())
            texts.append((row.isSmall ? "SF " : "") + row.text);
        return texts;
    }
    // The subtotals below the blank row.
    static QStringList sumsIn(const FormBody& body)
    {
        QStringList sums;
        const std::vector<FormRow>& rows = body.buffer.rows();
        const auto isBlank = [](const FormRow& row) { return !row.isContinuation && !row.item; };
        for (auto row = std::ranges::find_if(rows, isBlank) + 1; row != rows.end(); ++row)
            sums.append(row->text + '=' + QString::number(row->amount.value()));
        return sums;
    }
    static QStringList cellsIn(const FormBody& body)
    {
        QStringList cells;
        for (const FormRow& row : body.buffer.rows())
            cells.append(row.further.join('|'));
        return cells;
    }
    void receive(int line, double quantity, const char* date, double returned = 0)
    {
        site.addRow("ZORVEX.mdb", "RECEIVED",
                    {{"RQITAG", line},
                     {"POTAG", orderTag},
                     {"QTYREC", quantity},
                     {"QTYRTN", returned},
                     {"DATEREC", date},
                     {"REFTEXT", "slip"}});
    }
    void pay(int line, const char* INVNO, double amount, const char* VENINV)
    {
        site.addRow("ZORVEX.mdb", "PAYMENTS",
                    {{"RQITAG", line},
                     {"POTAG", orderTag},
                     {"INVNO", INVNO},
                     {"AMOUNT", amount},
                     {"VENINV", VENINV}});
    }
};

TEST_F(FormBodies, TheFirstRowOfALineHasItsNumbersAndATextLineHasNone)
{
    addLine(2, 0, "Only words", 0);
    addLine(1, 4, "Pipe\r\n  schedule 40\r\nblack", 10);
    const FormBody body = lines();
    ASSERT_EQ(textsIn(body), (QStringList{"Pipe", "schedule 40", "black", "Only words"}));
    const std::vector<FormRow>& rows = body.buffer.rows();
    EXPECT_EQ(rows[0].item, 1);
    EXPECT_EQ(rows[0].amount, 10);
    EXPECT_EQ(rows[0].costCodes, "4711-1000-40-1");  // job, group A and G/L; no material code
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_TRUE(rows[i].item == 0 && !rows[i].quantity && !rows[i].amount &&
                    rows[i].costCodes.isEmpty())
            << i;
}

TEST_F(FormBodies, ADocumentWithoutLinesSaysSoBetweenBlankRows)
{
    EXPECT_EQ(textsIn(lines()), (QStringList{"", "No Line Items Found.", ""}));
}

TEST_F(FormBodies, TheNoticeStandsFromTheLimitOn)
{
    addLine(1, 1, "Pipe", 500);
    set("VEXPRINTPONOTICE", true);
    for (const auto& [limit, rows] : {std::pair(499.99, 7), {500.0, 7}, {500.01, 1}}) {
        set("POLIMIT", limit);
        EXPECT_EQ(textsIn(lines()).size(), rows) << limit;
    }
    set("POLIMIT", 500.0);
    setOrder("AMOUNT", 499.99999999999994);  // as sums of cents come out
    EXPECT_EQ(textsIn(lines()).size(), 7);
    EXPECT_EQ(textsIn(lines())[2], "SF Notice:");
    EXPECT_EQ(
        textsIn(body(inventoryBody)).mid(2),
        QStringList("SF Notice: Notify Client when Vendor Billing is Within 10% of PO Limit."));
    set("VEXPRINTPONOTICE", false);
    EXPECT_EQ(textsIn(lines()).size(), 1);
}

TEST_F(FormBodies, WithoutItemsOfTheColumnTheSubtotalsAreOneRowWithoutAName)
{
    set("VEXCCSTL", true);
    addLine(1, 1, "Pipe", 10.25, "1000");
    addLine(2, 1, "Valve", 20, "2000");
    EXPECT_EQ(sumsIn(lines()),
              (QStringList{"4711-1000-40-1=10.25", "4711-2000-40-1=20", "Total=30.25"}));
    for (const char* item : {"ITEM1", "ITEM2", "ITEM3", "ITEM4", "ITEM5", "ITEM6"})
        site.setFirst("ZORVEX.mdb", "JOB_NO_DEFAULTS", item, 1);
    const FormBody none = lines();
    EXPECT_EQ(none.buffer.rows()[0].costCodes, "");
    EXPECT_EQ(sumsIn(none), (QStringList{"=30.25", "Total=30.25"}));
}

TEST_F(FormBodies, AJobWithoutDefaultsIsToldAndPrintsWithoutCostCodes)
{
    site.emptyTable("ZORVEX.mdb", "JOB_NO_DEFAULTS");
    addLine(1, 1, "Pipe", 10);
    user.expect("Cannot Find Defaults",
                "Warning: Cannot Find Job Number Defaults for Job Number: 4711");
    EXPECT_EQ(lines().buffer.rows()[0].costCodes, "");
}

TEST_F(FormBodies, AnInventoryLineHasTheNumbersOfItsItemAndItsBin)
{
    site.emptyTable("ZORVEX.mdb", "INVENTORY");
    for (const auto& [ISNTAG, BINTAG] : {std::pair(8, 3), {9, 99}})
        site.addRow(
            "ZORVEX.mdb", "INVENTORY",
            {{"ISNTAG", ISNTAG}, {"PARTNO", "P-8"}, {"MFGPARTNO", "M-8"}, {"BINTAG", BINTAG}});
    site.addRow("ZORVEX.mdb", "BINLIST", {{"BINTAG", 3}, {"BINNO", "B12"}});
    int number = 0;
    for (const int ISNTAG : {8, 9, 10, 0}) {
        addLine(++number, 1, "Part", 1);
        OpenTable open = site.open("ZORVEX.mdb", "RQILIST");
        open.rows.Index("RQITAG");
        open.rows.Seek("=", number);
        open.rows.Edit();
        open.rows["ISNTAG"] = ISNTAG;
        open.rows.Update();
    }
    const FormBody filled = body(inventoryBody);
    EXPECT_EQ(cellsIn(filled), (QStringList{"M-8|B12", "M-8| ??????", "|", "|"}));
    EXPECT_EQ(filled.buffer.rows()[0].partNumber, "P-8");
}

TEST_F(FormBodies, ReceiptsAreThoseOfTheMarkedDatesWithTheirAmounts)
{
    const auto receiptsOf = [](const FormSource& source) { return receiptsBody(source, true); };
    addLine(1, 10, "Pipe", 30);
    site.setFirst("ZORVEX.mdb", "RQILIST", "VINVNO", "A77");
    addLine(2, 5, "Valve", 50);
    receive(1, 4, "03/01/2026");
    receive(1, 6, "03/05/2026");
    receive(2, 5, "03/01/2026");
    EXPECT_EQ(textsIn(body(receiptsOf)),
              (QStringList{"", "Cannot Find any Related Line Items.", ""}));
    set("VEXCCSTL", true);
    site.addRow("ZORUSER.mdb", "VEXRECPRTBUF", {{"DATEREC", "03/01/2026"}, {"PRINTME", true}});
    site.addRow("ZORUSER.mdb", "VEXRECPRTBUF", {{"DATEREC", "03/05/2026"}, {"PRINTME", false}});
    const FormBody filled = body(receiptsOf);
    EXPECT_EQ(textsIn(filled).mid(0, 3), (QStringList{"Pipe", "INV: A77", "Valve"}));
    EXPECT_EQ(cellsIn(filled)[0], "03/01/2026|slip|4711");
    EXPECT_EQ(filled.buffer.rows()[0].amount, 12);
    EXPECT_EQ(filled.amount, 62);
    EXPECT_EQ(sumsIn(filled).last(), "Total=62");
}

TEST_F(FormBodies, IssuesPrintWithTheJobThatGotThem)
{
    addLine(1, 10, "Pipe", 30);
    site.addRow("ZORVEX.mdb", "ISSUED",
                {{"RQITAG", 1},
                 {"POTAG", orderTag},
                 {"FDATE", "03/02/2026"},
                 {"QTY", 2},
                 {"ISSUEDTO", "Crew 3"},
                 {"JOBNO", "4722"}});
    const FormBody filled = body(issuesBody);
    EXPECT_EQ(cellsIn(filled), QStringList("03/02/2026|Crew 3|4722"));
    EXPECT_EQ(filled.amount, 6);
}

TEST_F(FormBodies, TheStatusOfALineLeavesReturnsOnOrderAlone)
{
    addLine(1, 10, "Pipe", 30);
    addLine(2, 0, "Words");
    receive(1, 4, "03/01/2026");
    receive(1, 3.5, "03/05/2026", 2);
    EXPECT_EQ(cellsIn(body(statusBody)), (QStringList{"10.0|7.5|2.0|.0|2.5", ""}));
    set("VEXNODECIMAL", true);
    EXPECT_EQ(cellsIn(body(statusBody))[0], "10|8|2||3");
}

TEST_F(FormBodies, BillingsBeforeTheTargetArePriorByTheOrderOfTexts)
{
    addLine(1, 10, "Pipe", 100);
    addLine(2, 1, "Valve", 50);
    pay(1, "10", 30.004, "V1");
    pay(1, "9", 20, "V2");
    pay(1, "95", 7, "V3");
    pay(2, "9", 5, "V2");
    const FormBody filled = body([](const FormSource& source) { return billingBody(source, "9"); });
    EXPECT_EQ(cellsIn(filled), (QStringList{"100.00|30.00|20.00|50.00", "50.00|.00|5.00|45.00"}));
    EXPECT_EQ(filled.totals, (QStringList{"150.00", "30.00", "25.00", "95.00"}));
    EXPECT_EQ(vendorInvoicesUpTo(session, orderTag, "9"), "V1, V2");
}

}  // namespace
