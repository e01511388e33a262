// Documents as they stand on their pages, and the screens that print them.
#include "purchasing/forms/document_prints.h"

#include "purchasing/document_marks.h"
#include "purchasing/forms/addendum.h"
#include "purchasing/forms/addendum_texts.h"
#include "purchasing/forms/order_print.h"
#include "purchasing/forms/print_choices.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "screens/report/page_painting.h"
#include "screens/report/report_window.h"
#include "tests/purchasing/forms/document_site.h"
#include "tests/support/window_helpers.h"

namespace {

class DocumentPrints : public DocumentSite
{
protected:
    // The pages of one form of the order.
    PageDocument print(OrderForm form = OrderForm::Standard, const PaperSize& paper = letterPaper)
    {
        ReportSpec spec{.name = "print", .print = [form, this](ReportRun& run) {
                            dnReportBegin(run, "P");
                            printOrder(run, form, formSettings(session), orderTag);
                            dnReportEnd(run);
                        }};
        spec.paper = paper;
        ReportRun run(spec, session);
        run.begin();
        return run.pages;
    }
    // What a screen prints by one of its commands.
    PageDocument printBy(ReportSpec spec, size_t which)
    {
        spec.paper = letterPaper;
        ReportRun run(spec, session);
        run.begin(which);
        EXPECT_EQ(run.processText(), "Report Ready to Print");
        return run.pages;
    }
    void addLines(int count)
    {
        for (int i = 1; i <= count; ++i)
            addLine(i, 2, "Pipe", 10);
    }
    static const PlacedText* find(const std::vector<PlacedText>& texts, const QString& text)
    {
        for (const PlacedText& placed : texts)
            if (placed.text == text)
                return &placed;
        ADD_FAILURE() << "not on the page: " << text.toStdString();
        static const PlacedText none;
        return &none;
    }
};

// Every text lies between the margins and within the box in which it begins; nothing stands on
// another text.
void expectTidy(const PageDocument& pages, int number, const std::string& what)
{
    const Page& page = pages.page(number);
    const std::vector<PlacedText> texts = textsOf(pages, number);
    for (size_t i = 0; i < texts.size(); ++i) {
        const PlacedText& text = texts[i];
        const int right = text.x + textWidth(text.text.trimmed(), text.font);
        EXPECT_TRUE(text.x >= 500 && right <= page.width - 500 && text.y >= 500 &&
                    text.y + lineHeight(text.font) <= page.height - 480)
            << what << ": outside: " << text.text.toStdString();
        for (size_t j = 0; j < i; ++j) {
            const PlacedText& other = texts[j];
            const bool isBeside =
                other.x >= right || other.x + textWidth(other.text.trimmed(), other.font) <= text.x;
            const int overlap =
                std::min(text.y + lineHeight(text.font), other.y + lineHeight(other.font)) -
                std::max(text.y, other.y);
            // Lines of text reach into each other's white by a few twips; the gaps of the page's
            // label hold its numbers.
            EXPECT_TRUE(isBeside || overlap <= 60 || text.text.contains("PAGE   ") ||
                        other.text.contains("PAGE   "))
                << what << ": " << text.text.toStdString() << " on " << other.text.toStdString();
        }
        // The box in which it begins is the last that was drawn there.
        int edge = page.width;
        for (const PageOperation& box : page.operations)
            if (box.kind == PageOperation::Kind::Rectangle && text.x >= box.x &&
                text.x < box.x + box.width && text.y >= box.y - 5 && text.y < box.y + box.height)
                edge = box.x + box.width;
        EXPECT_LE(right, edge + 5) << what << ": over its box: " << text.text.toStdString();
    }
}

TEST_F(DocumentPrints, NothingIsCutOrOverlapsOnAnyFormWithTheLongestTexts)
{
    for (const char* on :
         {"VEXUSECOL2", "VEXPRINTASSETCOL", "VEXPRTQCSIGBLK", "VEXPRINTPONOTICE", "VEXCCSTL"})
        set(on, true);
    set("VEXCOL2TXT", "Column 2");
    const auto fill = [this](const char* table, const QStringList& names, int length) {
        for (const QString& name : names)
            site.setFirst("ZORVEX.mdb", table, name, QString(length, 'W'));
    };
    fill("POLIST", {"SHIPTO", "SHIPVIA", "VCONTACT"}, 50);
    fill("POLIST", {"FOB", "TERMS"}, 20);
    fill("POLIST", {"WHODIDIT", "APPROVER"}, 30);
    fill("POLIST", {"QLEVEL", "PROMBY", "Required"}, 10);
    fill("POLIST", {"INTEND"}, 70);
    fill("VENDORS", {"Name", "ADDRESS1", "ADDRESS2"}, 40);
    fill("VENDORS", {"CITY"}, 30);
    for (int i = 1; i <= 40; ++i)
        addLine(i, 12345.5, QString("Valve %1 ").arg(i).repeated(i % 9 + 1), 1234567.89,
                "1000-2000-3000");
    for (const OrderForm form : {OrderForm::Standard, OrderForm::Inventory, OrderForm::Receiving,
                                 OrderForm::Status, OrderForm::Issues})
        for (const PaperSize& paper : {letterPaper, a4Paper, legalPaper}) {
            const PageDocument pages = print(form, paper);
            for (const int length : {10, 20, 30, 40, 50})
                EXPECT_TRUE(has(pages, 1, QString(length, 'W'))) << length;
            for (int page = 1; page <= pages.pageCount(); ++page)
                expectTidy(pages, page,
                           "form " + std::to_string(int(form)) + " paper " +
                               std::to_string(paper.code) + " page " + std::to_string(page));
        }
}

TEST_F(DocumentPrints, EachPageTellsWhichItIsAndTheLastTheTotal)
{
    addLines(100);
    const PageDocument pages = print();
    ASSERT_EQ(pages.pageCount(), 3);
    for (int page = 1; page <= 3; ++page) {
        const std::vector<PlacedText> texts = textsOf(pages, page);
        const PlacedText& label = *find(texts, "PAGE             OF");
        QStringList numbers;
        for (const PlacedText& text : texts)
            if (std::abs(text.y - label.y) < 100 && text.x > label.x && text.x < label.x + 1200 &&
                text.text != label.text && text.font.family == FontFamily::CourierNew)
                numbers.append(text.text);
        EXPECT_EQ(numbers, (QStringList{QString::number(page), "3"}));
        EXPECT_EQ(has(pages, page, "continued"), page < 3);
        EXPECT_EQ(has(pages, page, "500.00"), page == 3);
        EXPECT_TRUE(has(pages, page, "PURCHASE ORDER"));
    }
    // Each line once, in order.
    int next = 1;
    for (int page = 1; page <= 3; ++page)
        for (const QString& line : linesOn(pages, page))
            if (line.endsWith("4711-1000-40-1")) {
                EXPECT_EQ(line.section('|', 0, 0), QString::number(next++));
            }
    EXPECT_EQ(next, 101);
}

TEST_F(DocumentPrints, TheHeadTellsTheOrderAndItsSettingsChangeIt)
{
    addLine(1, 2, "Pipe", 10);
    PageDocument pages = print();
    for (const char* text :
         {"Vexley Builders", "Reno, NV 89501-0142", "03/01/2026", "PO-1", "4711", "V100",
          "Valley Pipe", "00042", "Yes", "Pat Poe", "APPROVED BY CLIENT", "Printed On: 03/07/2026"})
        EXPECT_TRUE(has(pages, 1, text)) << text;
    // Phones that were never typed.
    EXPECT_FALSE(linesOf(pages).join('\n').contains("Voice"));
    EXPECT_FALSE(linesOf(pages).join('\n').contains("(   )"));
    EXPECT_FALSE(has(pages, 1, "Heading 2"));

    set("VEXCOL2TXT", "Heading 2");
    EXPECT_FALSE(has(print(), 1, "Heading 2"));
    set("VEXUSECOL2", true);
    set("VEXPRTQCSIGBLK", true);
    set("VEXJOBNOPRINTOPT", true);
    setOrder("APPROVER", "Ann Ray");
    pages = print();
    for (const char* text :
         {"Heading 2", "1000", "RECEIVER", "Q. C. ENGINEER", "CLIENT APPROVER", "Ann Ray"})
        EXPECT_TRUE(has(pages, 1, text)) << text;
    EXPECT_FALSE(has(pages, 1, "4711"));

    set("VEXCOMBINEJNPONO", true);
    pages = print();
    EXPECT_TRUE(has(pages, 1, "1000-PO-1"));
    EXPECT_FALSE(has(pages, 1, "JOB NUMBER"));
}

TEST_F(DocumentPrints, TheRequisitionAndTheEquipmentAreNamedOrTheirLackIs)
{
    setOrder("REQTAG", 0);
    EXPECT_TRUE(has(print(), 1, "(none)"));
    setOrder("REQTAG", 999);
    EXPECT_TRUE(has(print(), 1, "(Cannot Find Req)"));
    site.addRow("ZORBRQ.mdb", "BRQROLIST",
                {{"BRQROTAG", 60}, {"BRQRONO", "RO9"}, {"UNITNO", "T-4"}});
    setOrder("BRQROTAG", 60);
    EXPECT_TRUE(has(print(), 1, " Repair Order #: RO9  Unit Number: T-4"));
    site.removeFile("ZORBRQ.mdb");
    EXPECT_EQ(print().pageCount(), 1);
}

TEST_F(DocumentPrints, ALongCostCodeGoesOnBelowAndTheNextLineStaysWhole)
{
    addLine(1, 2, "Pipe", 10, "ABCDEFGH-IJKLMN");
    addLine(2, 3, "Valve", 10);
    const QString lines = linesOf(print()).join('\n');
    EXPECT_TRUE(lines.contains("|4711-\nABCDEFGH-IJKLMN-\n40-1\n2|3.0|EA|Valve") ||
                lines.contains("|4711-ABCDEFGH-\nIJKLMN-40-1\n2|3.0|EA|Valve"))
        << lines.toStdString();
    EXPECT_EQ(buffered({"CCSTRING"})[0], "4711-ABCDEFGH-IJKLMN-40-1");
}

TEST_F(DocumentPrints, BillingPrintsADocumentForEachMarkedInvoice)
{
    addLines(60);
    for (const char* INVNO : {"A1", "A2", "A3"})
        site.addRow("ZORUSER.mdb", "VEXBSRPRTBUF",
                    {{"INVNO", INVNO}, {"PRINTME", QString(INVNO) != "A2"}});
    const PageDocument pages = print(OrderForm::Billing);
    ASSERT_EQ(pages.pageCount(), 4);
    for (int page = 1; page <= 4; ++page) {
        EXPECT_TRUE(has(pages, page, page <= 2 ? "A1" : "A3"));
        EXPECT_EQ(has(pages, page, "(continued)"), page % 2 == 1);
        EXPECT_EQ(has(pages, page, "TOTALS:"), page % 2 == 0);
    }
    EXPECT_TRUE(has(pages, 2, "600.00"));
    EXPECT_TRUE(has(pages, 1, "PO DATE"));
}

// ---- the addendum
TEST_F(DocumentPrints, TheAddendumFollowsTheOrderOnPagesOfItsOwn)
{
    addLine(1, 2, "Pipe", 10);
    set("VEXPRINTPOTERMS", true);
    site.emptyTable("ZORVEX.mdb", "PONOTETEXT");
    user.expect("Cannot Find PO Addendum Text",
                "PO Addendum Text has NOT Been Entered or the Default Selection has NOT Been Set.");
    EXPECT_EQ(print().pageCount(), 1);
    user.expect("NO NOTE TEXT FOUND",
                "Purchase Order Note Text has NOT Been Entered Yet. Table is Empty.");
    EXPECT_EQ(print(OrderForm::Inventory).pageCount(), 1);

    site.addRow("ZORVEX.mdb", "PONOTETEXT", {{"PONTAG", 1}, {"PONTITLE", "Old"}, {"PONTEXT", "x"}});
    site.addRow("ZORVEX.mdb", "PONOTETEXT",
                {{"PONTAG", 2}, {"PONTITLE", " "}, {"PONTEXT", QString("Rule\r\n").repeated(100)}});
    toggleDefaultAddendum(session, 2);
    const PageDocument pages = print();
    ASSERT_EQ(pages.pageCount(), 3);
    EXPECT_TRUE(has(pages, 1, "500.00"));  // the total is on the last page of the order itself
    EXPECT_TRUE(has(pages, 2, "NOTICE"));
    EXPECT_EQ(linesOf(pages).filter("Rule").size(), 100);
    EXPECT_EQ(print(OrderForm::Status).pageCount(), 1);

    setOrder("PONTAG", 1);
    EXPECT_TRUE(has(print(), 2, "Old"));
}

TEST_F(DocumentPrints, AtMostOneTextIsTheDefault)
{
    site.emptyTable("ZORVEX.mdb", "PONOTETEXT");
    for (const int PONTAG : {1, 2, 3})
        site.addRow("ZORVEX.mdb", "PONOTETEXT", {{"PONTAG", PONTAG}});
    const auto marks = [this] { return rowsOf(site, "ZORVEX.mdb", "PONOTETEXT", {"PONDEFAULT"}); };
    toggleDefaultAddendum(session, 2);
    EXPECT_EQ(marks(), (QStringList{"0", "-1", "0"}));
    toggleDefaultAddendum(session, 3);
    EXPECT_EQ(marks(), (QStringList{"0", "0", "-1"}));
    toggleDefaultAddendum(session, 3);
    EXPECT_EQ(marks(), (QStringList{"0", "0", "0"}));
}

TEST_F(DocumentPrints, TheScreenOfATextChecksTitleAndDateAndKeepsTheSortForm)
{
    DataSession screen(frmVEXPON02(), session, {.mode = "A"});
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "PO Addendum Text - Add");
    screen.entry().setText("PONFDATE", "13/45");
    user.expect("Cannot Update",
                "Errors Detected: \n\nAddendum Text Title is Empty.\nInvalid Date.");
    EXPECT_FALSE(screen.update());
    screen.entry().setText("PONTITLE", "Terms");
    screen.entry().setText("PONFDATE", "03/01/2026");
    EXPECT_TRUE(screen.update());
    screen.close();
    EXPECT_EQ(rowsOf(site, "ZORVEX.mdb", "PONOTETEXT", {"PONTITLE", "PONLDATE"}).last(),
              "Terms|20260301");
}

// ---- the viewers
TEST_F(DocumentPrints, MarkedDocumentsPrintByNumberAndElseTheCurrentOne)
{
    for (const auto& [tag, number] : {std::pair(8, "PO-3"), {9, "PO-2"}}) {
        site.addRow("ZORVEX.mdb", "POLIST",
                    {{"POTAG", tag}, {"PONO", number}, {"CONO", 1}, {"JOBNO", "4711"}});
        toggleMark(session, purchaseOrders, tag, number);
    }
    PageDocument pages = printBy(frmVEXPO04(orderTag), 0);
    ASSERT_EQ(pages.pageCount(), 2);
    EXPECT_TRUE(has(pages, 1, "PO-2") && has(pages, 2, "PO-3"));
    EXPECT_TRUE(has(pages, 1, "No Line Items Found."));
    EXPECT_EQ(pages.name(), "PO PO-2 and others");
    clearMarks(session, purchaseOrders);
    pages = printBy(frmVEXPO04(orderTag), 0);
    EXPECT_TRUE(pages.pageCount() == 1 && has(pages, 1, "PO-1"));
    EXPECT_EQ(pages.name(), "PO PO-1");

    user.expect("Cannot Find PO", "Cannot Find Target Purchase Order Tag: 77");
    printBy(frmVEXPO04(77), 0);
    user.expect("Cannot Find Requisition Tag",
                "Warning: Cannot Find Req. Tag Number: 77\n"
                "You may need to Compact and Repair Database.");
    printBy(frmVEXREQ04(77), 0);
}

TEST_F(DocumentPrints, AQuotationAsksForTheReplyKeepsItAndIsSent)
{
    site.addRow("ZORVEX.mdb", "RQILIST",
                {{"RQITAG", 1},
                 {"REQTAG", requisitionTag},
                 {"REQLINENO", 1},
                 {"REQITEMNO", 1},
                 {"QTY", 3},
                 {"Desc", "Pipe"},
                 {"UNITPRICE", 10},
                 {"AMOUNT", 30}});
    const auto status = [this] { return site.first("ZORVEX.mdb", "REQLIST", "Status").toString(); };
    whenModalOpens([](QDialog& dialog) { press(dialog, "cmdCancel"); });
    ReportRun cancelled(frmVEXREQ04(requisitionTag), session);
    cancelled.begin(1);
    EXPECT_EQ(cancelled.pages.pageCount(), 0);
    EXPECT_EQ(status(), "");

    whenModalOpens([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmVEXREQ06");
        EXPECT_EQ(dialog.focusWidget()->objectName(), "txtREPLYTO");
        type(dialog, "txtREPLYTO", "Jo Diaz");
        press(dialog, "cmdPrint");
    });
    const PageDocument pages = printBy(frmVEXREQ04(requisitionTag), 1);
    for (const char* text : {"REPLY TO", "Jo Diaz", "QUOTATION NUMBER", "AVAILABILITY", "Pipe"})
        EXPECT_TRUE(has(pages, 1, text)) << text;
    for (const char* text : {"COST CODES", "REQUISITION NUMBER", "30.00", "30.00 "})
        EXPECT_FALSE(has(pages, 1, text)) << text;
    EXPECT_FALSE(linesOf(pages).join('\n').contains("(   )"));
    EXPECT_EQ(status(), "RFQ Sent");
    EXPECT_EQ(site.first("ZORVEX.mdb", "JOB_NO_DEFAULTS", "REPLYTO").toString(), "Jo Diaz");
}

TEST_F(DocumentPrints, ARequisitionHasRemarksAndNoRevisionAndABlankFormNoData)
{
    const PageDocument pages = printBy(frmVEXREQ04(requisitionTag), 0);
    EXPECT_TRUE(has(pages, 1, "REQUISITION") && has(pages, 1, "REMARKS") && has(pages, 1, "30.00"));
    EXPECT_FALSE(has(pages, 1, "REV."));
    const PageDocument blank = printBy(frmVEXREQ04(requisitionTag), 2);
    EXPECT_TRUE(has(blank, 1, "REQUISITION") && has(blank, 1, "SHIP TO"));
    for (const char* text : {"00042", "4711", "Valley Pipe", "30.00", "No Line Items Found."})
        EXPECT_FALSE(has(blank, 1, text)) << text;
}

TEST_F(DocumentPrints, ADigitPrintsItsFormOnTheScreen)
{
    addLine(1, 2, "Pipe", 10);
    site.emptyTable("ZORVEX.mdb", "PONOTETEXT");
    ReportWindow window(frmVEXPO04(orderTag), session);
    window.show();
    EXPECT_EQ(labelText(window, "lblPONTITLE"), "<No Text Found>");
    EXPECT_NE(window.focusWidget(), &control<QPushButton>(window, "cmdChangeText"));
    QTest::keyClick(&window, Qt::Key_5);
    EXPECT_EQ(labelText(window, "lblProcess"), "Report Ready to Print");
}

// ---- what of an order is printed
TEST_F(DocumentPrints, DeliveriesAndInvoicesAreOfferedOnceEach)
{
    for (const auto& [date, text] :
         {std::pair("03/01/2026", "a"), {"03/01/2026", "b"}, {"03/05/2026", "c"}})
        site.addRow("ZORVEX.mdb", "RECEIVED",
                    {{"POTAG", orderTag},
                     {"DATEREC", date},
                     {"REFTEXT", text},
                     {"LDATEREC",
                      QString(date).right(4) + QString(date).left(2) + QString(date).mid(3, 2)}});
    EXPECT_EQ(fillPrintChoice(session, receiptChoice, orderTag),
              (QStringList{"03/01/2026   a", "03/05/2026   c"}));
    markPrintChoice(session, receiptChoice, {1});
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "VEXRECPRTBUF", {"DATEREC", "PRINTME"}),
              (QStringList{"03/01/2026|0", "03/05/2026|-1"}));
    EXPECT_EQ(fillPrintChoice(session, receiptChoice, 99), QStringList());

    for (const char* INVNO : {"", "A1", "A1", "A2"})
        site.addRow("ZORVEX.mdb", "PAYMENTS", {{"POTAG", orderTag}, {"INVNO", INVNO}});
    EXPECT_EQ(fillPrintChoice(session, invoiceChoice, orderTag), (QStringList{"A1", "A2"}));
}

TEST_F(DocumentPrints, ABillingStatusIsPrintedOfTheTickedInvoicesAndOfNoneNothing)
{
    addLine(1, 2, "Pipe", 10);
    site.addRow("ZORVEX.mdb", "PAYMENTS",
                {{"POTAG", orderTag}, {"RQITAG", 1}, {"INVNO", "A1"}, {"AMOUNT", 4.0}});
    for (const char* command : {"cmdCancel", "cmdPrint"}) {
        whenModalOpens([command](QDialog& dialog) { press(dialog, command); });
        ReportRun run(frmVEXPO04(orderTag), session);
        run.begin(5);
        EXPECT_EQ(run.pages.pageCount(), 0) << command;
    }
    whenModalOpens([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmVEXPAY04");
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return})  // by keyboard alone
            QTest::keyClick(dialog.focusWidget(), key);
    });
    const PageDocument pages = printBy(frmVEXPO04(orderTag), 5);
    EXPECT_TRUE(has(pages, 1, "A1") && has(pages, 1, "4.00") && has(pages, 1, "6.00"));
}

TEST_F(DocumentPrints, ThePreviewOfATextSavesItFirst)
{
    site.emptyTable("ZORVEX.mdb", "PONOTETEXT");
    DataSession screen(frmVEXPON02(), session, {.mode = "A"});
    ASSERT_TRUE(screen.open());
    screen.entry().setText("PONTITLE", "Terms");
    const DataCommand& preview = screen.spec().commands.front();
    user.expect("Confirm Save Changes.", "OK to Save Changes Before Print Preview?",
                Answer::Cancel);
    screen.run(preview);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "PONOTETEXT"), 0);
    user.expect("Confirm Save Changes.", "OK to Save Changes Before Print Preview?");
    screen.run(preview);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "PONOTETEXT"), 1);
    screen.run(preview);  // nothing has changed since
    int previews = 0;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmVEXPON03" && window->close())
            ++previews;
    EXPECT_EQ(previews, 2);
}

}  // namespace
