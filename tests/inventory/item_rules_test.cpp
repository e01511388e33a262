// The rules of inventory items, on their tables.
#include "inventory/item_rules.h"

#include "inventory/part_number_rules.h"

#include <gtest/gtest.h>

#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/table_rows.h"

namespace {

class ItemRules : public testing::Test
{
protected:
    ItemRules()
    {
        for (const char* table :
             {"INVENTORY", "INVPNMASTER", "INVTRANS", "PIITEMS", "INVADJLIST", "RQILIST"})
            site.emptyTable("ZORVEX.mdb", table);
    }
    void addItem(int ISNTAG, int ILCTAG, const QString& PARTNO, const char* TAGGED = " ") const
    {
        site.addRow("ZORVEX.mdb", "INVENTORY",
                    {{"ISNTAG", ISNTAG},
                     {"ILCTAG", ILCTAG},
                     {"PARTNO", PARTNO},
                     {"SERIESTAG", 4},
                     {"Desc", "Valve"},
                     {"MFGPARTNO", "M-1"},
                     {"VENTAG", 9},
                     {"ICNTAG", 3},
                     {"AVAILABLE", 12},
                     {"Maximum", 20},
                     {"TAGGED", TAGGED}});
    }
    QStringList items(const QStringList& fields) const
    {
        return rowsOf(site, "ZORVEX.mdb", "INVENTORY", fields);
    }
    QStringList numbers() const
    {
        return rowsOf(site, "ZORVEX.mdb", "INVPNMASTER",
                      {"ILCTAG", "ISNTAG", "PARTNO", "FDATE", "LDATE"});
    }
    void keep(const QString& oldNumber, const QString& number) const
    {
        keepPartNumber(site.siteFolder(), {.ILCTAG = 1, .ISNTAG = 5}, oldNumber, number);
    }

    FixedSystem system;
    TestInstallation site;
    ScriptedMessages user;
};

const QString current = "| <Current>|          ";
const QString addOld =
    "\nto Master Part Number Table as a Superseded Part Number?\n\n"
    "If Change was a Minor Edit Change Then Do Not Add, Click NO.";
const QString updateOld =
    "\nin Master Part Number Table as a Superseded Part Number\n"
    "with Today's Date as the Date this Part Number was Superseded?\n\n"
    "If Minor Edit Change and not a New Part Number then Click NO.\n"
    "You will be Given the Option of Updating the Master Part List with Revised "
    "Part Number Next.";

TEST_F(ItemRules, ShortDescriptionIsTheBeginningOnOneLine)
{
    EXPECT_EQ(shortDescription("  Gate valve\r\n2 inch\nbrass  "), "Gate valve 2 inch brass");
    EXPECT_EQ(shortDescription(QString(60, 'x')), QString(50, 'x'));
    EXPECT_EQ(shortDescription(QString(48, 'x') + "\r\nyy"), QString(48, 'x'));
}

TEST_F(ItemRules, MarkupAndRetailFollowEachOther)
{
    EXPECT_DOUBLE_EQ(retailOf(80, 150), 200);
    EXPECT_DOUBLE_EQ(markupOf(80, 200), 150);
}

TEST_F(ItemRules, ListOfPartNumbersKeepsWhatTheUserSaysOfTheOldOne)
{
    keep({}, "A1");
    EXPECT_EQ(numbers(), QStringList{"1|5|A1" + current});
    keep("A1", "A1");
    EXPECT_EQ(numbers().size(), 1);
    user.expect("Confirm Update.", "OK to Update Old Part Number: A1" + updateOld, Answer::Yes);
    keep("A1", "B1");
    EXPECT_EQ(numbers(), (QStringList{"1|5|A1|03/07/2026|20260307", "1|5|B1" + current}));
    user.expect("Confirm Update.", "OK to Update Old Part Number: B1" + updateOld, Answer::No);
    user.expect("Confirm Update.",
                "OK to Update Old Part Number: B1\nin Master Part Number Table with Revised Part "
                "Number: C1",
                Answer::Yes);
    keep("B1", "C1");
    EXPECT_EQ(numbers(), (QStringList{"1|5|A1|03/07/2026|20260307", "1|5|C1" + current}));
    user.expect("Confirm Add.", "OK to Add Old Part Number: X9" + addOld, Answer::No);
    keep("X9", "C1");
    EXPECT_EQ(numbers().size(), 2) << "the present number stands there already";
    user.expect("Confirm Add.", "OK to Add Old Part Number: X9" + addOld, Answer::Yes);
    keep("X9", "D1");
    EXPECT_EQ(numbers().mid(2), (QStringList{"1|5|X9|03/07/2026|20260307", "1|5|D1" + current}));
}

TEST_F(ItemRules, CloneTakesNeitherQuantitiesNorWhatNamesTheItem)
{
    addItem(5, 1, "A1");
    const qint32 copy = cloneItem(branchItems, site.siteFolder(), 5, "pat");
    EXPECT_GT(copy, 0);
    EXPECT_EQ(items({"ISNTAG", "ILCTAG", "PARTNO", "SERIESTAG", "VENTAG", "ICNTAG", "AVAILABLE",
                     "Maximum"})
                  .last(),
              QString::number(copy) + "|1|COPY|4|9|0|0|20");
    EXPECT_EQ(items({"MFGPARTNO"}).last().trimmed().remove('~'), "");
    EXPECT_NE(cloneItem(branchItems, site.siteFolder(), 5, "pat"), copy)
        << "a second one is not refused";
    EXPECT_EQ(cloneItem(branchItems, site.siteFolder(), 77, "pat"), 0);
}

TEST_F(ItemRules, VendorGoesToTheTaggedItemsOfTheBranch)
{
    addItem(5, 1, "A1", "Y");
    addItem(6, 1, "A2");
    addItem(7, 2, "A1", "Y");
    const QString path = site.siteFolder();
    EXPECT_TRUE(hasTaggedItems(branchItems, path, 1));
    EXPECT_FALSE(hasTaggedItems(branchItems, path, 3));
    EXPECT_EQ(postVendor(branchItems, path, 1, 33), 1);
    EXPECT_EQ(items({"VENTAG", "TAGGED"}), (QStringList{"33|Y", "9| ", "9|Y"}));
    EXPECT_EQ(postVendor(branchItems, path, 2, 0), 1);
    clearItemTags(branchItems, path);
    EXPECT_EQ(items({"VENTAG", "TAGGED"}), (QStringList{"33| ", "9| ", "0| "}));
}

TEST_F(ItemRules, DetailKeepsAnItemFromBeingDeletedButTheLedgerDoesNot)
{
    const QString path = site.siteFolder();
    site.addRow("ZORVEX.mdb", "INVTRANS", {{"ISNTAG", 5}});
    site.addRow("ZORVEX.mdb", "PIITEMS", {{"ISNTAG", 5}});
    EXPECT_EQ(itemDetailText(path, 5), "");
    site.addRow("ZORVEX.mdb", "RQILIST", {{"ISNTAG", 5}});
    site.addRow("ZORVEX.mdb", "INVADJLIST", {{"ISNTAG", 5}});
    EXPECT_EQ(itemDetailText(path, 5),
              "Related Detail Found: \nPurchase Order Line Items Found.\n"
              "Inventory Adjustment Line Items Found.");
    site.addRow("ZORBRQ.mdb", "BRQROMAT", {{"ISNTAG", 6}});
    EXPECT_EQ(itemDetailText(path, 6),
              "Related Detail Found: \nRepair Order Material Line Items Found.");
}

TEST_F(ItemRules, BranchChangeTakesTheDetailAlongButOnlyOnePartNumber)
{
    const QString path = site.siteFolder();
    addItem(5, 1, "A1");
    addItem(6, 1, "A2");
    for (const char* number : {"A1", "A0"})
        site.addRow("ZORVEX.mdb", "INVPNMASTER",
                    {{"ILCTAG", 1}, {"ISNTAG", 5}, {"PARTNO", number}});
    for (const int item : {5, 5, 6})
        site.addRow("ZORVEX.mdb", "INVTRANS", {{"ISNTAG", item}, {"ILCTAG", 1}});
    site.addRow("ZORVEX.mdb", "RQILIST", {{"ISNTAG", 5}, {"ILCTAG", 1}});
    const BranchChange change{.ISNTAG = 5,
                              .ILCTAG = 2,
                              .ILCCODE = "B2",
                              .SERIESTAG = 40,
                              .SUBCATTAG = 41,
                              .BINTAG = 42,
                              .PARTNO = "N1"};
    EXPECT_EQ(changeBranch(path, change),
              "Inventory Item Branch Code Changed to: B2\n"
              "PO Line Items Updated:    1\nInventory Transaction Items Updated:    2");
    EXPECT_EQ(items({"ISNTAG", "ILCTAG", "SERIESTAG", "SUBCATTAG", "BINTAG", "PARTNO"}).first(),
              "5|2|40|41|42|N1");
    EXPECT_EQ(rowsOf(site, "ZORVEX.mdb", "INVTRANS", {"ISNTAG", "ILCTAG"}),
              (QStringList{"5|2", "5|2", "6|1"}));
    EXPECT_EQ(rowsOf(site, "ZORVEX.mdb", "INVPNMASTER", {"ILCTAG", "PARTNO"}),
              (QStringList{"1|A1", "2|N1"}))
        << "the first along the index";
    user.expect("Error", "Cannot Find Part Number in Master List of Part Numbers.");
    changeBranch(path, {.ISNTAG = 6, .ILCTAG = 2, .ILCCODE = "B2", .PARTNO = "A2"});
    EXPECT_EQ(changeBranch(path, {.ISNTAG = 99, .ILCTAG = 2}), "");
}

TEST_F(ItemRules, LastVendorStaysOverItemsWithoutOne)
{
    site.emptyTable("ZORUSER.mdb", "VEXINVLASTUPDATE");
    addItem(5, 1, "A1");
    OpenTable open = site.open("ZORVEX.mdb", "INVENTORY");
    rememberItem(branchItems, site.userFolder(), open.rows);
    open.rows.Edit();
    open.rows["VENTAG"] = 0;
    open.rows["PARTNO"] = "A2";
    open.rows.Update();
    rememberItem(branchItems, site.userFolder(), open.rows);
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "VEXINVLASTUPDATE", {"PARTNO", "VENTAG", "SERIESTAG"}),
              QStringList{"A2|9|4"});
}

}  // namespace
