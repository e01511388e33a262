// The browse of items and the screen of one, without their windows.
#include "inventory/items.h"

#include "core/user_settings.h"
#include "inventory/item_search.h"
#include "inventory/item_vendor.h"
#include "tests/inventory/item_site.h"

namespace {

class Items : public ItemSite
{
protected:
    void addItem(int ISNTAG, const QString& PARTNO, int ILCTAG = 1, int SERIESTAG = 10,
                 int SUBCATTAG = 20) const
    {
        add("INVENTORY", {{"ISNTAG", ISNTAG},
                          {"ILCTAG", ILCTAG},
                          {"PARTNO", PARTNO},
                          {"SERIESTAG", SERIESTAG},
                          {"SUBCATTAG", SUBCATTAG},
                          {"BINTAG", 31},
                          {"UPCCODE", "U" + PARTNO},
                          {"TAGGED", " "}});
    }
    DataSession screen(const QString& mode, int ISNTAG = 0)
    {
        return DataSession(frmVEXINV02(session, {.ILCTAG = 1}), session,
                           {.mode = mode,
                            .index = "INVISNTAG",
                            .keys = {{"ISNTAG", ISNTAG}},
                            .parent = {{"ILCTAG", 1}},
                            .tag = ISNTAG});
    }
    static QStringList partNumbers(BrowseSession& list)
    {
        QStringList numbers;
        for (const BrowseLine& line : list.list().lines())
            if (line.cells.size() > 1)
                numbers.append(line.cells[1]);
        return numbers;
    }
};

TEST_F(Items, AddAnItemInItsCodesWithItsPartNumber)
{
    DataSession added = screen("A");
    ASSERT_TRUE(added.open());
    EXPECT_EQ(added.caption(), "Inventory Item - Add");
    refuse(added,
           "Series Code is Empty.\nCategory Name is Empty.\nSubcategory Code is Blank\n"
           "Subcategory Name is Empty.\nPart Number is Empty.");
    fill(added.entry(), "p-1");
    added.entry().setNamed("txtSERIESCODE", "9");
    added.entry().setNamed("txtVENNO", "V9");
    added.entry().setNamed("txtBINNO", "Z9");
    refuse(added,
           "Cannot Find Series Code: 9\nCannot Find Subcategory for Above Series Code.\n"
           "Cannot Find Vendor Number: V9\nCannot Find Bin Number: Z9");
    fill(added.entry(), "p-1");
    added.entry().setNamed("txtVENNO", "v1");
    added.entry().setNamed("txtBINNO", "");
    added.entry().setNamed("txtDESC", "Gate valve\n2 inch");
    EXPECT_TRUE(added.update());
    EXPECT_EQ(rows("INVENTORY", {"ILCTAG", "SERIESTAG", "SUBCATTAG", "PARTNO", "SHORTDESC",
                                 "VENTAG", "BINTAG", "AVAILABLE", "TAGGED"}),
              QStringList{"1|10|20|P-1|Gate valve 2 inch|40|0|0| "});
    EXPECT_EQ(rows("INVPNMASTER", {"ILCTAG", "PARTNO", "FDATE"}), QStringList{"1|P-1| <Current>"});

    DataSession next = screen("A");
    ASSERT_TRUE(next.open());
    EXPECT_EQ(next.entry().named("txtSERIESNAME"), "Pipe") << "the user's last item";
    EXPECT_EQ(next.entry().named("txtVENNO"), "V1");
    fill(next.entry(), "P-1");
    refuse(next, "Duplicate Part Number Detected.");
}

TEST_F(Items, PricesFollowEachOther)
{
    DataSession added = screen("A");
    ASSERT_TRUE(added.open());
    Entry& entry = added.entry();
    fill(entry, "P-1");
    type(entry, "txtWHOLESALE", "80");
    type(entry, "txtMARKUP", "150");
    EXPECT_EQ(entry.named("txtRETAIL"), "200.00");
    type(entry, "txtWHOLESALE", "100");
    EXPECT_EQ(entry.named("txtRETAIL"), "250.00");
    type(entry, "txtRETAIL", "210");
    refuse(added, "Invalid Retail. Cannot Change Retail Unless Default Mark Up is Zero.");
    type(entry, "txtMARKUP", "-1");
    refuse(added,
           "Invalid Markup. Value Must Be Between 0 - 100\n"
           "Invalid Retail. Cannot Change Retail Unless Default Mark Up is Zero.");
    type(entry, "txtWHOLESALE", "1000");
    type(entry, "txtMARKUP", "0");
    type(entry, "txtRETAIL", "1333.33");
    EXPECT_EQ(entry.named("txtMARKUP"), "33.33");
    EXPECT_TRUE(added.update()) << "the markup shows less than the retail price says";
    EXPECT_EQ(rows("INVENTORY", {"RETAIL"}), QStringList{"1333.33"});
}

TEST_F(Items, AQuantityIsTheTypedOneElseTheLedgers)
{
    DataSession added = screen("A");
    ASSERT_TRUE(added.open());
    fill(added.entry(), "P-1");
    type(added.entry(), "txtAVAILABLE", "12");
    EXPECT_TRUE(added.update());
    EXPECT_EQ(rows("INVENTORY", {"AVAILABLE", "ONORDER", "ISSUED"}), QStringList{"12|0|0"});

    DataSession edited = screen("E", site.first("ZORVEX.mdb", "INVENTORY", "ISNTAG").toInt());
    ASSERT_TRUE(edited.open());
    site.setFirst("ZORVEX.mdb", "INVENTORY", "AVAILABLE", 20);
    type(edited.entry(), "txtONORDER", "3");
    EXPECT_TRUE(edited.update());
    EXPECT_EQ(rows("INVENTORY", {"AVAILABLE", "ONORDER"}), QStringList{"20|3"})
        << "a posting has come between";
}

TEST_F(Items, SaveAndStayGoesOnWithTheItemAndItsFormerNumber)
{
    addItem(5, "OLD");
    DataSession edited = screen("E", 5);
    ASSERT_TRUE(edited.open());
    edited.entry().setNamed("txtPARTNO", "NEW");
    user.expect("Confirm Add.",
                "OK to Add Old Part Number: OLD\nto Master Part Number Table as a Superseded Part "
                "Number?\n\nIf Change was a Minor Edit Change Then Do Not Add, Click NO.",
                Answer::Yes);
    EXPECT_FALSE(edited.update(true));
    EXPECT_EQ(edited.mode(), "E");
    EXPECT_TRUE(edited.update()) << "unchanged now: nothing is asked";
    EXPECT_EQ(rows("INVPNMASTER", {"PARTNO", "FDATE"}),
              (QStringList{"OLD|03/07/2026", "NEW| <Current>"}));
}

TEST_F(Items, DeletionIsRefusedForDetail)
{
    addItem(5, "P-1");
    add("RQILIST", {{"ISNTAG", 5}});
    DataSession deleted = screen("D", 5);
    ASSERT_TRUE(deleted.open());
    user.expect("Cannot Delete.", "Related Detail Found: \nPurchase Order Line Items Found.");
    EXPECT_FALSE(deleted.update());
    site.emptyTable("ZORVEX.mdb", "RQILIST");
    user.expect("Confirm Delete.", "OK to Delete?");
    EXPECT_TRUE(deleted.update());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "INVENTORY"), 0);
}

TEST_F(Items, AnItemAddedForALineTakesItsTextsAndNamesItself)
{
    add("RQILIST", {{"RQITAG", 70},
                    {"ISNTAG", 0},
                    {"Desc", "Gate valve"},
                    {"UNIT", "EA"},
                    {"UNITPRICE", 12.5}});
    const auto result = [&] {
        OpenTable settings = site.open("ZORUSER.mdb", "VEXSETTINGS");
        return zorGetUserSetting(settings.rows, 1, "RQIISNTAG").toInt();
    };
    const auto open = [&] {
        return DataSession(
            frmVEXINV02(session, {.ILCTAG = 1}, {.line = ItemCaller::Line::Purchase, .tag = 70}),
            session, {.mode = "A", .parent = {{"ILCTAG", 1}}});
    };
    DataSession added = open();
    ASSERT_TRUE(added.open());
    EXPECT_EQ(added.entry()["Desc"], "Gate valve");
    EXPECT_EQ(added.entry()["UOM"], "EA");
    EXPECT_EQ(added.entry().number("RETAIL"), 12.5);
    EXPECT_FALSE(added.entry().isChanged()) << "Esc asks nothing";
    fill(added.entry(), "p-1");
    EXPECT_TRUE(added.update());
    const QString tag = rows("INVENTORY", {"ISNTAG"}).first();
    EXPECT_EQ(rows("RQILIST", {"ISNTAG"}), QStringList{tag});
    EXPECT_EQ(QString::number(result()), tag);
    DataSession left = open();
    ASSERT_TRUE(left.open());
    left.close();
    EXPECT_EQ(result(), 0) << "left without saving";
}

TEST_F(Items, ThePresentNumberIsPutAmongTheSupersededOnes)
{
    addItem(5, "P-1");
    add("INVPNMASTER", {{"ILCTAG", 1},
                        {"ISNTAG", 5},
                        {"ICNTAG", 0},
                        {"PARTNO", "P-0"},
                        {"FDATE", "03/01/2026"},
                        {"LDATE", "20260301"}});
    DataSession edited = screen("E", 5);
    ASSERT_TRUE(edited.open());
    const auto shown = [&](const QString& control) {
        return edited.entry().field(edited.entry().indexOf(control)).shows(edited.entry());
    };
    EXPECT_EQ(shown("lblSSPARTNO"), "P-0");
    user.expect("Confirm Add.",
                "OK to Add Old Part Number: P-1\nto Master Part Number Table as a Superseded Part "
                "Number?\n\nIf Change was a Minor Edit Change Then Do Not Add, Click NO.",
                Answer::Yes);
    run(edited, "cmdSSAdd");
    EXPECT_EQ(shown("lblSSPARTNO"), "P-0\nP-1");
    EXPECT_EQ(shown("lblFDATE").section('\n', 0, 0), "03/01/2026");
}

TEST_F(Items, BrowseNarrowsToSeriesAndSubcategoryAndStaysOnItsItem)
{
    addItem(5, "P-1");
    addItem(6, "P-2", 1, 10, 21);
    addItem(7, "P-3", 1, 11, 0);
    addItem(8, "P-0", 2);
    BrowseSession list(frmVEXINV01(), session);
    list.open();
    list.setParent({{"ILCTAG", 1}});
    EXPECT_EQ(partNumbers(list), (QStringList{"P-1", "P-2", "P-3"}));
    EXPECT_EQ(list.list().lines()[0].cells[4], " ??????") << "the bin is gone";
    list.showTag(6);
    run(list, "cmdFilter");
    EXPECT_EQ(list.list().source().index, "INVSERIESPARTNO");
    EXPECT_EQ(list.currentTag(), 6);
    list.list().home();
    EXPECT_EQ(partNumbers(list), (QStringList{"P-1", "P-2"}));
    list.showTag(6);
    run(list, "cmdFilter");
    EXPECT_EQ(partNumbers(list), QStringList{"P-2"});
    EXPECT_TRUE(list.spec().status(list).contains("Filter is On"));
    run(list, "cmdTagAll");
    run(list, "cmdFilter");
    EXPECT_EQ(list.currentTag(), 6);
    EXPECT_EQ(rows("INVENTORY", {"ISNTAG", "TAGGED"}), (QStringList{"5| ", "6|Y", "7| ", "8| "}));
    run(list, "cmdTAGEM");
    EXPECT_EQ(rows("INVENTORY", {"TAGGED"}).at(1), " ");
    list.close();

    BrowseSession again(frmVEXINV01(), session);
    again.open();
    again.setParent({{"ILCTAG", 1}});
    EXPECT_EQ(again.currentTag(), 6) << "where the user was";
    run(again, "cmdFilter");
    again.setParent({{"ILCTAG", 2}});
    EXPECT_EQ(again.currentTag(), 8);
    EXPECT_EQ(again.list().source().index, "INVPARTNO") << "without the filter";
}

TEST_F(Items, WithoutABranchNothingIsShownNorDone)
{
    addItem(5, "P-1");
    BrowseSession list(frmVEXINV01(), session);
    list.open();
    list.setParent({});
    list.comeToFront();
    EXPECT_EQ(partNumbers(list), QStringList());
    for (const char* command : {"cmdTagAll", "cmdPostVendor", "cmdAdd2Catalog"})
        run(list, command);
    EXPECT_EQ(rows("INVENTORY", {"TAGGED"}), QStringList{" "});
    user.expect("Error", "Select a Valid Branch Code");
    run(list, "cmdClone");
}

TEST_F(Items, CloneAndPostedVendor)
{
    addItem(5, "P-1");
    BrowseSession list(frmVEXINV01(), session);
    list.open();
    list.setParent({{"ILCTAG", 1}});
    cloneCurrent(list);
    EXPECT_EQ(partNumbers(list).first(), "COPY");
    user.expect("Cannot Post.", "Nothing to Do (There are No Tagged Items).");
    run(list, "cmdPostVendor");
    user.expect("Cannot Post", "Nothing to Post. Vendor Number is Blank.");
    EXPECT_FALSE(vendorToPost(site.siteFolder(), " ", false));
    user.expect("Cannot Post", "Cannot Find Vendor Number: V9");
    EXPECT_FALSE(vendorToPost(site.siteFolder(), "V9", false));
    EXPECT_EQ(vendorToPost(site.siteFolder(), "v1", false), 40);
    EXPECT_EQ(vendorToPost(site.siteFolder(), "", true), 0);
}

TEST_F(Items, PartNumbersAreFoundInEveryBranch)
{
    addItem(8, "P-0", 2);
    add("INVPNMASTER", {{"ILCTAG", 2}, {"ISNTAG", 8}, {"ICNTAG", 0}, {"PARTNO", "P-OLD"}});
    add("INVPNMASTER", {{"ILCTAG", 2}, {"ISNTAG", 9}, {"ICNTAG", 0}, {"PARTNO", "P-GONE"}});
    OpenTable numbers = site.open("ZORVEX.mdb", "INVPNMASTER");
    const QString bookmark = itemOfPartNumber(branchItems, session, numbers.rows.Bookmark());
    OpenTable items = site.open("ZORVEX.mdb", "INVENTORY");
    ASSERT_TRUE(goToFound(items.rows, bookmark));
    EXPECT_EQ(trimmedTextOf(items.rows["PARTNO"]), "P-0");
    numbers.rows.MoveNext();
    user.expect("Error: zorVEXINVSearch",
                "Cannot Find the Inventory Tag Number: 9\n"
                "Cannot Select Proper Inventory Item Record.");
    EXPECT_EQ(itemOfPartNumber(branchItems, session, numbers.rows.Bookmark()), " ");
}

TEST_F(Items, SupersededNumbersHaveADateAndStandOnce)
{
    addItem(5, "P-1");
    BrowseSession list(frmVEXINV08(), session);
    list.open();
    list.setParent({{"ILCTAG", 1}, {"ISNTAG", 5}});
    list.add();
    user.expect("Cannot Update",
                "Errors Detected: 2\nSuperceded Part Number is Empty.\nInvalid Date.");
    EXPECT_FALSE(list.update());
    list.entry().setText("PARTNO", "p-0");
    list.entry().setText("FDATE", "3/1/26");
    EXPECT_TRUE(list.update());
    list.add();
    list.entry().setText("PARTNO", "P-1");
    list.entry().setText("FDATE", "<Current>");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(rows("INVPNMASTER", {"PARTNO", "FDATE", "LDATE"}),
              (QStringList{"P-0|03/01/2026|20260301", "P-1| <Current>|          "}));
    EXPECT_EQ(list.list().lines()[0].cells[0], "P-1") << "the present number is the first";
    list.add();
    list.entry().setText("PARTNO", "P-0");
    list.entry().setText("FDATE", "3/1/26");
    user.expect("Cannot Update",
                "Errors Detected: 1\nDuplicate Superceded Part Number Detected.\nThe Part Number "
                "you have entered\nalready exists in another record.");
    EXPECT_FALSE(list.update());
}

TEST_F(Items, MoveToABranchThatLacksTheirCodes)
{
    addItem(5, "P-1");
    addItem(6, "P-1", 2);
    add("INVPNMASTER", {{"ILCTAG", 1}, {"ISNTAG", 5}, {"ICNTAG", 0}, {"PARTNO", "P-1"}});
    add("BINLIST", {{"ILCTAG", 2}, {"BINTAG", 32}, {"BINNO", "A1"}, {"BINNAME", "Row A"}});
    DataSession moved(frmVEXINV10(), session,
                      {.mode = "E", .index = "INVISNTAG", .keys = {{"ISNTAG", 5}}});
    ASSERT_TRUE(moved.open());
    const auto refuseCommand = [&](const QString& name, const QString& text) {
        user.expect("Cannot Update", text);
        run(moved, name);
        EXPECT_TRUE(user.allCame()) << text.toStdString();
    };
    Entry& entry = moved.entry();
    refuseCommand("cmdSERIESAdd", "New Branch Code is Empty.");
    refuseCommand("cmdSERIESEdit", "Branch Code is Empty.");
    type(entry, "txtNEWILCCODE", "1");
    refuse(moved,
           "New Branch Code is Same as Old Branch Code.\nSeries Code is Empty.\n"
           "Subcategory Code is Blank\nPart Number Already Exists for New Branch Code: 1");
    type(entry, "txtNEWILCCODE", "2");
    type(entry, "txtNEWSERIESCODE", "100");
    refuseCommand("cmdSERIESEdit", "Series Code Description is Empty.");
    refuseCommand("cmdSERIESAdd", "Series Code Description is Empty.");
    type(entry, "txtNEWSERIESNAME", "Pipe");
    refuseCommand("cmdSERIESEdit",
                  "Edit Not Allowed. This Series Code\nDoes Not Yet Exist for Branch Code: 2\n"
                  "Use the Add Button Instead to add this Series Code.");
    run(moved, "cmdSERIESAdd");
    refuseCommand("cmdSERIESAdd", "Series Code: 100 Already Exists for Branch Code");
    type(entry, "txtNEWSUBCATCODE", "STL");
    type(entry, "txtNEWSUBCATNAME", "Steel");
    run(moved, "cmdSUBCATAdd");
    type(entry, "txtNEWBINNO", "A1");
    refuse(moved, "Part Number Already Exists for New Branch Code: 2");
    type(entry, "txtNEWPARTNO", "P-9");
    user.expect("Changes Made", "Changes Made: Inventory Item Branch Code Changed to: 2");
    EXPECT_TRUE(moved.update());
    EXPECT_EQ(rows("INVENTORY", {"ISNTAG", "ILCTAG", "BINTAG", "PARTNO"}),
              (QStringList{"5|2|32|P-9", "6|2|31|P-1"}));
    EXPECT_EQ(rows("SERIESCODES", {"ILCTAG", "SERIESCODE"}), (QStringList{"1|100", "2|100"}));
}

}  // namespace
