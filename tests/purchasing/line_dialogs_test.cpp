// The dialogs that take tagged lines to orders and other requisitions, and the search for a
// requisition, by the keys of a user before their windows.
#include "purchasing/document_head.h"
#include "purchasing/document_list.h"
#include "purchasing/line_list.h"
#include "purchasing/line_screen.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"
#include "tests/purchasing/purchasing_site.h"
#include "tests/support/window_helpers.h"

namespace {

const QString nothingTagged = "Nothing to Do (There are No Tagged Items).";

void enter(QDialog& dialog, const QString& field, const QString& text)
{
    type(dialog, field, text);
    QTest::keyClick(&control<QLineEdit>(dialog, field), Qt::Key_Return);
}

void escape(QDialog& dialog)
{
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
}

class LineDialogs : public testing::Test, protected PurchasingSite
{
protected:
    // The lines of requisition 23, the first and the third of them tagged.
    void openTagged()
    {
        addRequisition(3);
        markLine(requisitions, 10, 100);
        markLine(requisitions, 10, 102);
        open();
    }
    void open()
    {
        window = std::make_unique<BrowseWindow>(frmVEXRQI01(session, requisitions, {.docTag = 10}),
                                                ScreenContext{.session = session},
                                                std::vector<KeyField>{{"REQTAG", 10}});
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    // The key, and what the user does in the dialog of that name and caption.
    void key(Qt::Key pressed, const QString& name, const QString& caption,
             std::function<void(QDialog&)> act)
    {
        bool isOpen = false;
        bringToFront();
        whenModalOpens([&](QDialog& dialog) {
            isOpen = true;
            EXPECT_EQ(dialog.objectName(), name);
            EXPECT_EQ(dialog.windowTitle(), caption);
            act(dialog);
        });
        QTest::keyClick(window->grid().view(), pressed);
        EXPECT_TRUE(isOpen) << name.toStdString();
        EXPECT_TRUE(user.allCame());
    }
    void key(Qt::Key pressed)
    {
        bringToFront();
        QTest::keyClick(window->grid().view(), pressed);
    }
    // As it is again when a dialog has closed.
    void bringToFront() const
    {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    int markCount() const { return site.rowCount("ZORUSER.mdb", "TAGLIST"); }

    std::unique_ptr<BrowseWindow> window;
};

TEST_F(LineDialogs, ANewOrderTakesTheNumberThatIsConfirmed)
{
    const QString caption = "Confirm New Purchase Order Number";
    addRequisition(3);
    open();
    user.expect("Cannot Create PO", nothingTagged);
    key(Qt::Key_N);
    EXPECT_TRUE(user.allCame());
    key(Qt::Key_T);
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 11}, {"PONO", "AB-1"}});
    key(Qt::Key_N, "frmVEXREQ09", caption, [&](QDialog& dialog) {
        EXPECT_EQ(labelText(dialog, "lblJOBNO"), "4711");
        EXPECT_EQ(labelText(dialog, "lblREQNO"), "00023");
        EXPECT_EQ(labelText(dialog, "lblREQTYPE"), "M");
        EXPECT_EQ(control<QLineEdit>(dialog, "txtPONO").text(), "4711M0002301");
        escape(dialog);
    });
    EXPECT_EQ(rows("RQILIST", {"POTAG"}), (QStringList{"0", "0", "0"})) << "nothing is changed";
    EXPECT_EQ(markCount(), 1);
    key(Qt::Key_N, "frmVEXREQ09", caption, [&](QDialog& dialog) {
        user.expect("Cannot Create PO", "PO Number is Blank.");
        enter(dialog, "txtPONO", " ");
        EXPECT_TRUE(dialog.isVisible());
        user.expect("Cannot Create PO",
                    "Duplicate PO Number Detected.\nThe PO Number: AB-1\nHas Already Been Used.");
        // It is asked again.
        whenModalOpens([&](QDialog& again) {
            user.expect("PO Created", "PO Number: AB-2 with 1 Items Has Been Created.");
            enter(again, "txtPONO", "ab-2");
        });
        enter(dialog, "txtPONO", "ab-1");
    });
    EXPECT_EQ(rows("POLIST", {"PONO", "REQTAG", "POSUFFIX", "AMOUNT"}).at(1), "AB-2|10|1|20");
    EXPECT_EQ(window->session().list().lines()[0].cells.last(), "AB-2") << "the list shows it";
    EXPECT_EQ(markCount(), 0);
}

TEST_F(LineDialogs, ANumberOfTheCounterIsShownAndCountedOn)
{
    switchOn("VEXFORMATPONO", false);
    switchOn("VEXUSEPONOCOUNTER");
    openTagged();
    key(Qt::Key_N, "frmVEXREQ09", "Confirm New Purchase Order Number", [&](QDialog& dialog) {
        EXPECT_EQ(labelText(dialog, "lblPONO"), "00007");
        user.expect("PO Created", "PO Number: 00007 with 2 Items Has Been Created.");
        QTest::keyClick(&control<QLineEdit>(dialog, "txtPONO"), Qt::Key_Return);
    });
    EXPECT_EQ(rows("VEXCOUNTERS", {"PONO"}), QStringList{"8"});
    site.emptyTable("ZORVEX.mdb", "VEXCOUNTERS");
    markLine(requisitions, 10, 101);
    user.expect("Empty Table",
                "Cannot Obtain Next Valid PO Number.\nCounter has Not Been Setup.\n"
                "Purchase Order Number Counter Table is Empty.");
    key(Qt::Key_N, "frmVEXREQ09", "Confirm New Purchase Order Number", [&](QDialog& dialog) {
        EXPECT_EQ(control<QLineEdit>(dialog, "txtPONO").text(), "");
        user.expect("Empty Table",
                    "PO Number Counter Table is Empty.\nCounter has Not Been Setup.\n"
                    "PO Number Counter Cannot be Updated Properly.");
        user.expect("PO Created", "PO Number: T-1 with 1 Items Has Been Created.");
        enter(dialog, "txtPONO", "t-1");
    });
    EXPECT_EQ(rows("POLIST", {"PONO"}), (QStringList{"00007", "T-1"})) << "it stands all the same";
}

TEST_F(LineDialogs, LinesGoToAStandingOrderOfAnyJob)
{
    const QString caption = "Add Items to an Existing P/O";
    openTagged();
    add("POLIST", {{"POTAG", 70}, {"PONO", "X-1"}, {"AMOUNT", 5}, {"CONO", 9}, {"JOBNO", "8"}});
    key(Qt::Key_O, "frmVEXREQ13", caption, escape);
    EXPECT_EQ(markCount(), 2);
    key(Qt::Key_O, "frmVEXREQ13", caption, [&](QDialog& dialog) {
        user.expect("Cannot Find Item", "PO Number is Blank.");
        enter(dialog, "txtPONO", "");
        user.expect("Cannot Find Item", "Cannot Find PO Number: X-2");
        enter(dialog, "txtPONO", "x-2");
        EXPECT_TRUE(dialog.isVisible());
        user.expect("Items Added to Existing PO", "PO Number: X-1 has had 2 Items added.");
        enter(dialog, "txtPONO", " x-1 ");
    });
    EXPECT_EQ(rows("POLIST", {"AMOUNT"}), QStringList{"45"});
    EXPECT_EQ(rows("RQILIST", {"POTAG", "POITEMNO", "POLINENO"}),
              (QStringList{"70|1|1", "0|0|0", "70|2|2"}));
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"2"});
    EXPECT_EQ(markCount(), 0);
    user.expect("Cannot Add Items to an Existing PO", nothingTagged);
    key(Qt::Key_O);
}

TEST_F(LineDialogs, LinesGoToAnotherRequisitionWithTheirNumbers)
{
    const QString caption = "Transfer Tagged Items to a Requisition";
    openTagged();
    add("REQLIST", {{"REQTAG", 11}, {"REQNO", 40123}, {"CONO", 1}, {"JOBNO", otherJob}});
    key(Qt::Key_F, "frmVEXRQI03", caption, escape);
    EXPECT_EQ(markCount(), 2);
    key(Qt::Key_F, "frmVEXRQI03", caption, [&](QDialog& dialog) {
        user.expect("Cannot Find Item", "Cannot Find Requisition Number: 77");
        enter(dialog, "txtREQNO", "x77");
        EXPECT_TRUE(dialog.isVisible());
        user.expect("Items Transfered",
                    "A total of 2 Items have been\nTransfered to Requisition Number: 40123.");
        enter(dialog, "txtREQNO", "401234");
    });
    EXPECT_EQ(rows("RQILIST", {"REQTAG", "REQITEMNO", "REQLINENO"}),
              (QStringList{"11|1|1", "10|2|2", "11|3|3"}));
    EXPECT_EQ(markCount(), 0);
    EXPECT_EQ(window->session().list().position().count, 1) << "the other one is left";
}

// "?" in the number opens the requisitions of the job; others' are not among them.
TEST_F(LineDialogs, ARequisitionIsSearchedInItsJob)
{
    openTagged();
    add("REQLIST",
        {{"REQTAG", 12}, {"REQNO", 41000}, {"CONO", 1}, {"JOBNO", job}, {"LDATE", "20260401"}});
    add("REQLIST", {{"REQTAG", 13},
                    {"REQNO", 42000},
                    {"CONO", 1},
                    {"JOBNO", job},
                    {"LDATE", "20260402"},
                    {"INTEND", "Tank farm"}});
    add("REQLIST", {{"REQTAG", 14}, {"REQNO", 30}, {"CONO", 1}, {"JOBNO", otherJob}});
    key(Qt::Key_F, "frmVEXRQI03", "Transfer Tagged Items to a Requisition", [&](QDialog& dialog) {
        whenModalOpens([](QDialog& search) {
            EXPECT_EQ(search.objectName(), "frmVEXREQ05");
            EXPECT_EQ(search.windowTitle(), "Search Material Requisitions");
            const auto& rows = *control<QTableView>(search, "hsbMAIN").model();
            const auto cell = [&rows](int row, int column) {
                return rows.index(row, column + 1).data().toString().trimmed().toStdString();
            };
            EXPECT_EQ(cell(0, 0), "00023");
            EXPECT_EQ(cell(1, 1), "20260401");
            EXPECT_EQ(cell(2, 2), "Tank farm");
            EXPECT_EQ(rows.index(3, 1).data().toString(), "  End of List");
            QTest::keyClicks(search.focusWidget(), "41001");
            QTest::keyClick(search.focusWidget(), Qt::Key_Return);
        });
        auto& number = control<QLineEdit>(dialog, "txtREQNO");
        QTest::keyClick(&number, Qt::Key_Question, Qt::ShiftModifier);
        EXPECT_EQ(number.text(), "42000");
        EXPECT_TRUE(dialog.isVisible());
        user.expect("Items Transfered",
                    "A total of 2 Items have been\nTransfered to Requisition Number: 42000.");
        QTest::keyClick(&number, Qt::Key_Return);
    });
    EXPECT_EQ(rows("RQILIST", {"REQTAG"}), (QStringList{"13", "10", "13"}));
}

TEST_F(LineDialogs, TheFindOfTheListSearchesTheJobUnderTheHighlight)
{
    add("REQLIST", {{"REQTAG", 14}, {"REQNO", 30}, {"CONO", 1}, {"JOBNO", otherJob}});
    setUser("REQTAG", 14);
    addRequisition(0);
    window = std::make_unique<BrowseWindow>(frmVEXREQ01(), ScreenContext{.session = session});
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->grid().view(), Qt::Key_Home);
    key(Qt::Key_I, "frmVEXREQ03", "Find a Requisition #", [&](QDialog& dialog) {
        whenModalOpens([](QDialog& search) {
            EXPECT_EQ(search.objectName(), "frmVEXREQ05");
            EXPECT_EQ(labelText(search, "lblSearchTitle"), "Requisitions for Co.: 1 and Job: 4711");
            escape(search);
        });
        auto& number = control<QLineEdit>(dialog, "txtREQNO");
        QTest::mouseClick(&control<QToolButton>(dialog, "txtREQNOSearch"), Qt::LeftButton);
        EXPECT_EQ(number.text(), "") << "none was chosen";
        enter(dialog, "txtREQNO", "30");
    });
    EXPECT_EQ(window->session().currentTag(), 14);
    site.emptyTable("ZORVEX.mdb", "REQLIST");
    window->session().list().rebuild();
    key(Qt::Key_I, "frmVEXREQ03", "Find a Requisition #", [&](QDialog& dialog) {
        whenModalOpens([](QDialog& search) {
            EXPECT_EQ(control<QTableView>(search, "hsbMAIN").model()->index(0, 1).data().toString(),
                      "  List is Empty");
            escape(search);
        });
        QTest::keyClick(&control<QLineEdit>(dialog, "txtREQNO"), Qt::Key_Slash);
        escape(dialog);
    });
}

TEST_F(LineDialogs, TheFindOfTheOrdersLooksNumbersUp)
{
    for (const auto& [tag, number] : {std::pair(31, "P-100"), {32, "P-200"}})
        add("POLIST", {{"POTAG", tag}, {"PONO", number}, {"CONO", 1}, {"JOBNO", "    4711"}});
    window = std::make_unique<BrowseWindow>(frmVEXPO01(), ScreenContext{.session = session});
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    key(Qt::Key_I, "frmVEXPO02", "Find a PO Number", [&](QDialog& dialog) {
        whenModalOpens([](QDialog& search) {
            QTest::keyClicks(search.focusWidget(), "P-2");
            QTest::keyClick(search.focusWidget(), Qt::Key_Return);
        });
        auto& number = control<QLineEdit>(dialog, "txtPONO");
        QTest::keyClick(&number, Qt::Key_Question, Qt::ShiftModifier);
        EXPECT_EQ(number.text(), "P-200");
        QTest::keyClick(&number, Qt::Key_Return);
    });
    EXPECT_EQ(window->session().currentTag(), 32);
    // The digit of an option chooses it, but in a field it is typed.
    key(Qt::Key_F, "frmVEXREQ12", "PO Filter Options", [&](QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_3);
        EXPECT_TRUE(control<QRadioButton>(dialog, "optOption3").isChecked());
        EXPECT_EQ(dialog.focusWidget(), &control<QRadioButton>(dialog, "optOption3"));
        auto& vendor = control<QLineEdit>(dialog, "txtVENNO");
        vendor.setFocus();
        QTest::keyClick(&vendor, Qt::Key_1);
        EXPECT_EQ(vendor.text(), "1");
        EXPECT_TRUE(control<QRadioButton>(dialog, "optOption3").isChecked());
        escape(dialog);
    });
}

// Alt and a letter go to one control of the screens in which documents are entered.
TEST_F(LineDialogs, NoTwoControlsOfAnEntryScreenShareAKey)
{
    addRequisition(1);
    add("POLIST", {{"POTAG", 31}, {"PONO", "P-1"}, {"CONO", 1}, {"JOBNO", "    4711"}});
    const auto keysOf = [](const QWidget& screen) {
        QStringList keys;
        for (const auto* label : screen.findChildren<QLabel*>())
            if (label->buddy())
                keys.append(QKeySequence::mnemonic(label->text()).toString());
        for (const auto* button : screen.findChildren<QAbstractButton*>())
            keys.append(QKeySequence::mnemonic(button->text()).toString());
        keys.removeAll("");
        keys.sort();
        return keys;
    };
    for (const DocumentKind* kind : {&requisitions, &purchaseOrders}) {
        const int tag = kind->isOrder() ? 31 : 10;
        const DataWindow head(
            frmVEXREQ02(session, *kind, {"C", 8}), session,
            {.mode = "E", .index = kind->byTag, .keys = {{kind->tag, tag}}, .tag = tag});
        const DataWindow line(
            frmVEXRQI02(session, *lineOwnerOf(session, *kind, tag), std::make_shared<bool>(false)),
            session, {.mode = "A", .parent = {{kind->tag, tag}}});
        for (const QWidget* screen : {&head, &line}) {
            QStringList keys = keysOf(*screen);
            EXPECT_GT(keys.size(), 10);
            const QString all = keys.join(' ');
            EXPECT_EQ(keys.removeDuplicates(), 0) << qPrintable(all);
        }
    }
}

TEST_F(LineDialogs, PromisedAndRequiredDatesAreKeptAsTyped)
{
    addRequisition(0);
    DataWindow head(frmVEXREQ02(session, requisitions, {"C", 8}), session,
                    {.mode = "E", .index = "REQTAG", .keys = {{"REQTAG", 10}}, .tag = 10});
    head.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&head));
    for (const char* date : {"txtFDATE", "txtPROMBY"}) {
        control<QLineEdit>(head, date).setFocus();
        type(head, date, "4/1/26");
    }
    QTest::keyClick(head.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(control<QLineEdit>(head, "txtPROMBY").text(), "4/1/26");
    press(head, "cmdUpdate");
    EXPECT_EQ(rows("REQLIST", {"FDATE", "LDATE", "PROMBY"}),
              QStringList{"04/01/2026|20260401|4/1/26"});
}

}  // namespace
