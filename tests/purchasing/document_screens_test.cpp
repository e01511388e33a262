// The lists of documents, their heads and their line items, without their windows.
#include "purchasing/document_head.h"
#include "purchasing/document_list.h"
#include "purchasing/document_marks.h"
#include "purchasing/line_list.h"
#include "purchasing/line_screen.h"
#include "purchasing/order_creation.h"
#include "purchasing/vendor_panel.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "tests/purchasing/purchasing_site.h"
#include "tests/support/window_helpers.h"

namespace {

const JobNoFormat format{"C", 8};

class DocumentScreens : public testing::Test, protected PurchasingSite
{
protected:
    DocumentScreens()
    {
        for (const char* right : {"REQ02", "REQ03", "PO01", "PO02"})
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", ++m_right}, {"UAICODE", right}, {"Desc", right}});
    }
    DataSession head(const DocumentKind& kind, const QString& mode, int tag = 0)
    {
        return DataSession(
            frmVEXREQ02(session, kind, format), session,
            {.mode = mode, .index = kind.byTag, .keys = {{kind.tag, tag}}, .tag = tag});
    }
    DataSession line(const DocumentKind& kind, int docTag, const QString& mode, int RQITAG = 0,
                     bool carries = false)
    {
        return DataSession(frmVEXRQI02(session, *lineOwnerOf(session, kind, docTag),
                                       std::make_shared<bool>(carries)),
                           session,
                           {.mode = mode,
                            .index = "RQITAG",
                            .keys = {{"RQITAG", RQITAG}},
                            .parent = {{kind.tag, docTag}},
                            .tag = RQITAG});
    }
    static void type(Entry& entry, const QString& control, const QString& text)
    {
        const int at = entry.indexOf(control);
        entry.setText(at, text);
        entry.leave(at);
    }
    static QString shown(const DataSession& in, const QString& control)
    {
        const EntryField& field = in.entry().field(in.entry().indexOf(control));
        return field.shows(in.entry());
    }
    void refuse(DataSession& in, const QString& text)
    {
        user.expect("Cannot Update", "Errors Detected: \n\n" + text);
        EXPECT_FALSE(in.update());
        EXPECT_TRUE(user.allCame()) << text.toStdString();
    }
    static void run(BrowseSession& list, const QString& name)
    {
        for (const BrowseCommand& command : list.spec().commands)
            if (command.name == name)
                return list.run(command);
        ADD_FAILURE() << name.toStdString();
    }

private:
    int m_right = 0;
};

TEST_F(DocumentScreens, ANewRequisitionStartsFromCounterAndDefaults)
{
    DataSession added = head(requisitions, "A");
    ASSERT_TRUE(added.open());
    EXPECT_EQ(added.caption(), "Requisition Information - Add");
    Entry& entry = added.entry();
    EXPECT_EQ(entry["REQNO"], "00023");
    EXPECT_EQ(entry["FOB"], "Site");
    EXPECT_EQ(entry["PONO"], "4711M0002301");
    type(entry, "txtREQNO", "30");
    EXPECT_EQ(entry["PONO"], "4711M0003001") << "the number follows";
    type(entry, "txtREQNO", "0");
    entry.setText("REQTYPE", " ");
    type(entry, "txtCONO", "9");
    entry.setNamed("txtVENNOA", "V9");
    entry.setText("FDATE", "soon");
    entry.setText("PROMBY", "x");
    entry.setText("Required", "y");
    entry.setText("REIMB", "Q");
    refuse(added,
           "Requisition Number is Zero. This Item is Numeric only, up to 5 digits.\n"
           "Requisition Type is Blank.\nCannot Find Company Number: 9\n"
           "Cannot Find Job Number: 4711\nCannot Find Vendor Number: V9\n"
           "Invalid Requisition Date.\nInvalid Promised By Date.\nInvalid Requiured By Date.\n"
           "Reimbursible Must be Blank, 'Y' or 'N'.");
    type(entry, "txtREQNO", "30");
    entry.setText("REQTYPE", "M");
    entry.setText("CONO", "1");
    entry.setNamed("txtVENNOA", "v1");
    entry.setText("FDATE", "03/07/2026");
    entry.setText("PROMBY", "");
    entry.setText("Required", "4/1/26");
    entry.setText("REIMB", "y");
    EXPECT_TRUE(added.update());
    EXPECT_EQ(rows("REQLIST", {"REQTAG", "REQNO", "CONO", "JOBNO", "VENTAG", "LDATE", "Required",
                               "REIMB", "ADDNAME"}),
              QStringList{"1000001|30|1|    4711|40|20260307|4/1/26|Y|pat"});
    EXPECT_EQ(rows("VEXCOUNTERS", {"REQNO"}), QStringList{"31"}) << "a higher one counts on";
}

TEST_F(DocumentScreens, AfterTheLastNumberOfFiveDigitsTheUserTypesTheNext)
{
    site.setFirst("ZORVEX.mdb", "VEXCOUNTERS", "REQNO", 99999);
    for (const char* number : {"99999", "00000"}) {
        DataSession added = head(requisitions, "A");
        ASSERT_TRUE(added.open());
        Entry& entry = added.entry();
        EXPECT_EQ(entry["REQNO"].toInt(), QString(number).toInt());
        entry.setText("CONO", "1");
        if (entry["REQNO"].toInt() == 0) {
            refuse(added, "Requisition Number is Zero. This Item is Numeric only, up to 5 digits.");
            type(entry, "txtREQNO", "5");
        }
        EXPECT_TRUE(added.update());
    }
    EXPECT_EQ(rows("REQLIST", {"REQNO"}), (QStringList{"99999", "5"}));
    EXPECT_EQ(rows("VEXCOUNTERS", {"REQNO"}), QStringList{"6"});
}

TEST_F(DocumentScreens, AJobWithoutDefaultsIsTold)
{
    setUser("JOBNOPAIR", otherJob);
    user.expect("Item Not Found", "Cannot Find Defaults for Company/Job Number Pair: 1/4712");
    DataSession added = head(requisitions, "A");
    ASSERT_TRUE(added.open());
    EXPECT_EQ(added.entry()["FOB"], "");
    type(added.entry(), "txtJOBNO", "4711");
    EXPECT_EQ(added.entry()["FOB"], "Site") << "another job brings its own";
    user.expect("Item Not Found", "Cannot Find Job Number Defaults for Job Number: 4712");
    type(added.entry(), "txtJOBNO", "4712");
}

TEST_F(DocumentScreens, AnOrderNeedsANumberOfItsOwn)
{
    switchOn("VEXFORMATPONO", false);
    switchOn("VEXUSEPONOCOUNTER");
    add("POLIST", {{"POTAG", 70}, {"PONO", "X-1"}, {"CONO", 1}, {"JOBNO", job}});
    DataSession added = head(purchaseOrders, "A");
    ASSERT_TRUE(added.open());
    EXPECT_EQ(added.caption(), "Purchase Order Information - Add");
    Entry& entry = added.entry();
    EXPECT_EQ(entry["PONO"], "00007");
    EXPECT_EQ(shown(added, "lblREQNO"), " - <none>");
    entry.setText("PONO", "x-1");
    refuse(added, "Duplicate PO Number Detected.\nThe PO Number: X-1\nHas Already Been Used.");
    entry.setText("PONO", " ");
    refuse(added, "PO Number is Blank.");
    entry.setText("PONO", "41");
    EXPECT_TRUE(added.update());
    EXPECT_EQ(rows("POLIST", {"PONO", "REQTAG", "POSUFFIX", "Status"}).at(1), "41|0|0|Open");
    EXPECT_EQ(rows("VEXCOUNTERS", {"PONO"}), QStringList{"42"});
    DataSession edited = head(purchaseOrders, "E", 70);
    ASSERT_TRUE(edited.open());
    edited.entry().setText("FDATE", "03/07/2026");
    EXPECT_TRUE(edited.update()) << "its own number is no duplicate";
}

TEST_F(DocumentScreens, AnotherJobIsAskedAndRefusedLeavesAll)
{
    addRequisition(1);
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 10}, {"PONO", "4711M0002301"}, {"POSUFFIX", 1}});
    site.setFirst("ZORVEX.mdb", "REQLIST", "BRQROTAG", 9);
    DataSession edited = head(requisitions, "E", 10);
    ASSERT_TRUE(edited.open());
    edited.entry().setText("REQTYPE", "S");
    edited.entry().leave(edited.entry().indexOf(QString("cboREQTYPE")));
    const QString question =
        "You have changed the Requisition Type.\nThe new PO Number is: 4711S0002301\n\n"
        "The following related PO Numbers will be updated:\n4711M0002301\n\n"
        "Save Changes to Requisition and Update Related Purchase Orders?";
    user.expect("PO Number Changed", question, Answer::No);
    EXPECT_FALSE(edited.update());
    EXPECT_EQ(rows("REQLIST", {"REQTYPE"}), QStringList{"M"});
    user.expect("PO Number Changed", question, Answer::Yes);
    EXPECT_TRUE(edited.update());
    EXPECT_EQ(rows("REQLIST", {"REQTYPE", "PONO", "BRQROTAG"}), QStringList{"S|4711S0002301|9"})
        << "the repair order stays, though it is not to be seen here";
    EXPECT_EQ(rows("POLIST", {"REQTYPE", "PONO"}), QStringList{"S|4711S0002301"});
    EXPECT_EQ(rows("RQILIST", {"COSTCODEA"}), QStringList{" 100"}) << "the job is the same";
}

TEST_F(DocumentScreens, ARequisitionIsDeletedAfterTwoQuestions)
{
    addRequisition(1);
    DataSession deleted = head(requisitions, "D", 10);
    ASSERT_TRUE(deleted.open());
    const QString question = "Delete This Requisition 00023\nAnd Related Detail Items?";
    user.expect("Confirm Delete.", question);
    user.expect("Confirm Delete.", "Are You Sure? ", Answer::No);
    EXPECT_FALSE(deleted.update());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 1);
    user.expect("Confirm Delete.", question);
    user.expect("Confirm Delete.", "Are You Sure? ", Answer::Yes);
    EXPECT_TRUE(deleted.update());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "REQLIST"), 0);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 0);
}

TEST_F(DocumentScreens, LinesAreEnteredOneAfterTheOther)
{
    addRequisition(1);
    DataSession entered = line(requisitions, 10, "A", 0, true);
    ASSERT_TRUE(entered.open());
    EXPECT_EQ(entered.caption(), "Requisition Line Item - Add");
    Entry& entry = entered.entry();
    type(entry, "txtILCCODE", "9");
    user.expect("Invalid Unit Factor", "Invalid Unit Factor. Must be nothing or e, d, g, c, or m.");
    type(entry, "txtUNITFACT", "x");
    EXPECT_TRUE(user.allCame());
    type(entry, "txtCOSTCODEA", "77");
    type(entry, "txtMCODE", "Z");
    type(entry, "txtGLCODE", "1");
    type(entry, "txtASSET", "Q");
    refuse(entered,
           "Cannot Find Branch Code: 9\nDescription is Empty.\n"
           "Invalid Unit Factor. Must be nothing or e, d, g, c, or m.\nCannot Find Phase: 77\n"
           "Cannot Find Material Code: Z\nCannot Find G/L Code: 1\n"
           "Asset Must be Blank, 'Y' or 'N'");
    for (const char* control : {"txtILCCODE", "txtMCODE", "txtGLCODE", "txtASSET"})
        type(entry, control, "");
    type(entry, "txtCOSTCODEA", "100");
    EXPECT_EQ(entry["GLCODE"], "5120") << "of the cost code";
    type(entry, "txtQTY", "24");
    type(entry, "txtUNITPRICE", "1.80");
    type(entry, "txtUNITFACT", "d");
    type(entry, "txtDESC", "Bolts\nzinc");
    EXPECT_EQ(shown(entered, "lblDAmount"), "3.60");
    EXPECT_EQ(shown(entered, "lblTotal"), "23.60");
    EXPECT_FALSE(entered.update()) << "the next line begins";
    EXPECT_EQ(entered.mode(), "A");
    EXPECT_EQ(entry.focus(), entry.indexOf(QString("txtQTY")));
    EXPECT_EQ(entry["Desc"], "Bolts\nzinc") << "carried";
    type(entry, "txtQTY", "0");
    EXPECT_FALSE(entered.update());
    EXPECT_EQ(rows("RQILIST", {"REQITEMNO", "REQLINENO", "POTAG", "SHORTDESC", "AMOUNT",
                               "COSTCODEA", "POITEMNO"})
                  .mid(1),
              (QStringList{"2|2|0|Bolts|3.6| 100|0", "2|3|0|Bolts|0| 100|0"}))
        << "a text line has the number above it";
}

TEST_F(DocumentScreens, WholeQuantitiesWhereTheSiteHasNoDecimals)
{
    addRequisition(1);
    switchOn("VEXNODECIMAL");
    DataSession entered = line(requisitions, 10, "E", 100);
    ASSERT_TRUE(entered.open());
    type(entered.entry(), "txtQTY", "2.5");
    EXPECT_EQ(entered.entry()["QTY"], "2") << "half to even";
    type(entered.entry(), "txtQTY", "1,003.5");
    EXPECT_TRUE(entered.update());
    EXPECT_EQ(rows("RQILIST", {"QTY"}), QStringList{"1004"});
}

TEST_F(DocumentScreens, AnOrderLineFollowsItsItemIntoTheLedger)
{
    add("POLIST", {{"POTAG", 70},
                   {"REQTAG", 0},
                   {"PONO", "A"},
                   {"CONO", 1},
                   {"JOBNO", job},
                   {"FDATE", "03/07/2026"},
                   {"LDATE", "20260307"}});
    DataSession entered = line(purchaseOrders, 70, "A");
    ASSERT_TRUE(entered.open());
    Entry& entry = entered.entry();
    type(entry, "txtPARTNO", "p-1");
    type(entry, "txtILCCODE", "01");
    type(entry, "txtPARTNO", "p-1");
    EXPECT_EQ(entry["Desc"], "Gate valve");
    EXPECT_EQ(entry["UNITPRICE"], "12.500");
    type(entry, "txtQTY", "4");
    EXPECT_FALSE(entered.update(true)) << "it stays";
    EXPECT_EQ(entered.mode(), "E");
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"4"});
    type(entry, "txtQTY", "6");
    EXPECT_TRUE(entered.update());
    EXPECT_EQ(rows("INVTRANS", {"DOCTAG", "QUANTITY"}), QStringList{"70|6"});
    EXPECT_EQ(rows("RQILIST", {"ISNTAG", "ILCTAG", "POITEMNO", "REQLINENO", "AMOUNT"}),
              QStringList{"5|1|1|0|75"});
    const int tag = rows("RQILIST", {"RQITAG"}).first().toInt();

    DataSession unlinked = line(purchaseOrders, 70, "E", tag);
    ASSERT_TRUE(unlinked.open());
    type(unlinked.entry(), "txtPARTNO", "");
    EXPECT_TRUE(unlinked.update());
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"0"});
    EXPECT_EQ(rows("RQILIST", {"ISNTAG"}), QStringList{"0"});

    add("PAYMENTS", {{"PAYTAG", 1}, {"RQITAG", tag}, {"POTAG", 70}});
    DataSession paid = line(purchaseOrders, 70, "E", tag);
    ASSERT_TRUE(paid.open());
    type(paid.entry(), "txtQTY", "0");
    refuse(paid, "Payment Items Found for this PO Item. Quantity cannot be Zero.");
}

// An ordered line is the same in its requisition: payments of its own order do not stand against
// it, and it cannot lose its quantity there either.
TEST_F(DocumentScreens, PaymentsStandAgainstALineWhereverItIsEdited)
{
    addRequisition(1);
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 10}, {"PONO", "A"}});
    {
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.rows.Edit();
        lines.rows["POTAG"] = 70;
        lines.rows.Update();
    }
    add("PAYMENTS", {{"PAYTAG", 1}, {"RQITAG", 100}, {"POTAG", 70}, {"VENINV", "INV1"}});
    add("PAYMENTS", {{"PAYTAG", 2}, {"RQITAG", 900}, {"POTAG", 71}, {"VENINV", "INV2"}});
    for (const auto& [kind, tag] : {std::pair{&requisitions, 10}, {&purchaseOrders, 70}}) {
        DataSession edited = line(*kind, tag, "E", 100);
        ASSERT_TRUE(edited.open());
        type(edited.entry(), "txtVINVNO", "INV1");
        user.expect("Duplicate Invoice No.",
                    "Duplicate Vendor Invoice Number Detected. PO Number: ???????????????");
        type(edited.entry(), "txtVINVNO", "INV2");
        EXPECT_TRUE(user.allCame());
        type(edited.entry(), "txtQTY", "0");
        refuse(edited, "Payment Items Found for this PO Item. Quantity cannot be Zero.");
    }
}

TEST_F(DocumentScreens, MarkupMakesTheRetailPriceAndKeepsIt)
{
    addRequisition(1);
    DataSession edited = line(requisitions, 10, "E", 100);
    ASSERT_TRUE(edited.open());
    Entry& entry = edited.entry();
    type(entry, "txtWHOLESALE", "10.25");
    type(entry, "txtMARKUP", "50");
    EXPECT_EQ(entry["RETAIL"], "15.37") << "5.125 becomes 5.12";
    type(entry, "txtRETAIL", "16");
    EXPECT_EQ(entry.errors().text(),
              "Invalid Retail. Cannot Change Retail Unless Default Mark Up is Zero.");
    type(entry, "txtMARKUP", "101");
    EXPECT_TRUE(
        entry.errors().text().startsWith("Invalid Markup. Value Must Be Between 0 - 100\n"));
    type(entry, "txtMARKUP", "0");
    type(entry, "txtRETAIL", "16");
    EXPECT_EQ(entry.errors().ErrorCount(), 0);
    EXPECT_TRUE(edited.update());
    EXPECT_EQ(rows("RQILIST", {"RETAIL"}), QStringList{"16"});
}

TEST_F(DocumentScreens, AClonedLineIsEditedWithItsItem)
{
    addRequisition(3);
    markLine(requisitions, 10, 102);
    const auto created = createOrder(session, {.REQTAG = 10, .PONO = "X", .done = {}});
    ASSERT_TRUE(created);
    const qint32 copy = cloneOrder(session, created->POTAG, "Y");
    DataSession edited =
        line(purchaseOrders, copy, "E", rows("RQILIST", {"RQITAG"}).last().toInt());
    ASSERT_TRUE(edited.open());
    EXPECT_EQ(edited.entry().named("txtILCCODE"), "01") << "of the item: the clone has none";
    type(edited.entry(), "txtQTY", "3");
    EXPECT_TRUE(edited.update());
    EXPECT_EQ(rows("INVENTORY", {"ONORDER"}), QStringList{"5"}) << "from now on it counts";
}

TEST_F(DocumentScreens, ALineTellsThatItsItemIsAnother)
{
    addRequisition(3);
    add("INVENTORY", {{"ISNTAG", 6},
                      {"ILCTAG", 1},
                      {"PARTNO", "P-2"},
                      {"Desc", "Line 3"},
                      {"UOM", "FT"},
                      {"RETAIL", 10.0}});
    DataSession edited = line(requisitions, 10, "E", 102);
    ASSERT_TRUE(edited.open());
    Entry& entry = edited.entry();
    const auto warns = [&] { return !shown(edited, "lblINVWarning").isEmpty(); };
    const auto update = [&] {
        for (const DataCommand& command : edited.spec().commands)
            if (command.name == "cmdUpdateFields") {
                EXPECT_EQ(command.isShown(), warns());
                edited.run(command);
            }
    };
    EXPECT_TRUE(warns()) << "the price was typed";
    type(entry, "txtPARTNO", "");
    EXPECT_FALSE(warns());
    type(entry, "txtPARTNO", "P-2");
    EXPECT_TRUE(warns()) << "of another unit";
    update();
    EXPECT_FALSE(warns());
    EXPECT_EQ(entry["UNIT"], "FT");
    EXPECT_TRUE(edited.update());
    EXPECT_EQ(rows("RQILIST", {"ISNTAG", "UNIT"}).last(), "6|FT");
}

TEST_F(DocumentScreens, AnOrderWithoutADatePostsNothing)
{
    add("POLIST", {{"POTAG", 70}, {"PONO", "A"}, {"CONO", 1}, {"JOBNO", job}, {"FDATE", ""}});
    DataSession entered = line(purchaseOrders, 70, "A");
    ASSERT_TRUE(entered.open());
    type(entered.entry(), "txtILCCODE", "01");
    type(entered.entry(), "txtPARTNO", "P-1");
    user.expect("Cannot Update",
                "Cannot Update Inventory Because PO Date is Invalid.\n"
                "PO Date is used as the Transaction Date for Inventory Item.");
    EXPECT_FALSE(entered.update());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 0);
}

TEST_F(DocumentScreens, ALineIsDeletedOnce)
{
    addRequisition(3);
    DataSession deleted = line(requisitions, 10, "D", 101);
    ASSERT_TRUE(deleted.open());
    user.expect("Confirm Delete",
                "OK to Delete Requisition Item\nand any related Payment/Receiving Detail?",
                Answer::Yes);
    EXPECT_TRUE(deleted.update());
    EXPECT_EQ(rows("RQILIST", {"RQITAG"}), (QStringList{"100", "102"}));
}

TEST_F(DocumentScreens, TheListOfLinesWritesTotalsAndGivesTheLockUp)
{
    addRequisition(3);
    site.addRow("ZORNET.mdb", "RECORDLOCKS", {{"TAGNO", 10}, {"TableName", "REQUISITIONS"}});
    BrowseSession list(frmVEXRQI01(session, requisitions, {.docTag = 10}), session);
    list.open();
    list.setParent({{"REQTAG", 10}});
    EXPECT_EQ(list.list().lines()[0].cells[4], "");
    run(list, "cmdTagAll");
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 3);
    run(list, "cmdClearTags");
    {
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.rows.Edit();
        lines.rows["POTAG"] = 70;
        lines.rows.Update();
    }
    list.list().home();
    user.expect("Cannot Tag Item", "Item is Already Posted to a Purchase Order ");
    run(list, "cmdTAG");
    run(list, "cmdInsert");
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 4);
    list.close();
    EXPECT_EQ(rows("REQLIST", {"AMOUNT"}), QStringList{"40"});
    EXPECT_EQ(site.rowCount("ZORNET.mdb", "RECORDLOCKS"), 0);
}

TEST_F(DocumentScreens, AFilterThatFindsNothingTurnsItselfOff)
{
    addRequisition(1);
    setUser("VEXREQFILTEROPT", 3);
    setUser("VEXREQFILTERVENTAG", 41);
    user.expect("Filter Error",
                "Cannot Find any Records Matching Vendor Filter Selection.\n"
                "Filter Selection will be Turned Off.");
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    EXPECT_TRUE(user.allCame());
    EXPECT_EQ(list.spec().status(list), "Filter: <none>");
    EXPECT_EQ(list.list().lines()[0].cells.mid(1, 6),
              (QStringList{"00023", "1", "4711", "03/07/2026", ".00", "Open"}));
    run(list, "cmdTAGEM");
    EXPECT_EQ(list.list().lines()[0].cells[0], "T");
    list.close();
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "VEXSETTINGS", {"VEXREQFILTEROPT", "REQTAG"}),
              QStringList{"1|10"});
    setUser("VEXREQFILTEROPT", 2);
    setUser("VEXREQFILTERCONO", 1);
    setUser("VEXREQFILTERJOBNO", job);
    BrowseSession again(frmVEXREQ01(), session);
    again.open();
    EXPECT_EQ(again.spec().status(again), "Filter: Company/Job Number");
    EXPECT_EQ(again.currentTag(), 10);
}

TEST_F(DocumentScreens, AVendorRenamedByAnotherUserIsShownAtTheNextPainting)
{
    addRequisition(0);
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    EXPECT_EQ(list.list().lines()[0].cells.mid(7, 2), (QStringList{"V1", "Harbor"}));
    site.setFirst("ZORVEX.mdb", "VENDORS", "Name", "Harbour");
    list.list().repaint();
    EXPECT_EQ(list.list().lines()[0].cells.mid(7, 2), (QStringList{"V1", "Harbour"}));
    site.emptyTable("ZORVEX.mdb", "VENDORS");
    list.list().repaint();
    EXPECT_EQ(list.list().lines()[0].cells.mid(7, 2), (QStringList{"?????", "?????"}));
}

TEST_F(DocumentScreens, AVendorIsAddedFromTheHead)
{
    user.expect("Cannot Update", "Vendor Number is Blank.");
    EXPECT_FALSE(saveVendorPanel(session, "", {}));
    user.expect("Cannot Update", "Vendor Name is Blank.");
    EXPECT_FALSE(saveVendorPanel(session, "", {.VENNO = "V2"}));
    user.expect("Cannot Update",
                "Duplicate Vendor Number Detected.\nThe Vendor Number you have entered\n"
                "already exists in the Vendor Table.");
    EXPECT_FALSE(saveVendorPanel(session, "", {.VENNO = "v1", .Name = "Other"}));
    EXPECT_TRUE(saveVendorPanel(session, "", {.VENNO = "v2", .Name = "Other"}));
    EXPECT_TRUE(saveVendorPanel(session, "V1", {.VENNO = "V1", .Name = "Harbour"}));
    EXPECT_EQ(rows("VENDORS", {"VENNO", "Name"}), (QStringList{"V1|Harbour", "V2|Other"}));
}

}  // namespace
