// The catalog: its numbers, the copies between it and a branch, and its screens.
#include "inventory/catalog_rules.h"

#include "inventory/item_rules.h"
#include "inventory/item_search.h"
#include "inventory/items.h"
#include "inventory/part_number_rules.h"
#include "tests/inventory/item_site.h"

namespace {

class Catalog : public ItemSite
{
protected:
    Catalog()
    {
        site.emptyTable("ZORVEX.mdb", "VEXTAGS");
        add("VEXTAGS", {{"ISNTAG", 100}, {"ICNTAG", 200}, {"SERIESTAG", 50}, {"SUBCATTAG", 60}});
    }
    void addItem(int ISNTAG, const QString& PARTNO, int ICNTAG = 0, int SERIESTAG = 10) const
    {
        add("INVENTORY", {{"ISNTAG", ISNTAG},
                          {"ILCTAG", 1},
                          {"ICNTAG", ICNTAG},
                          {"PARTNO", PARTNO},
                          {"SERIESTAG", SERIESTAG},
                          {"SUBCATTAG", 20},
                          {"VENTAG", 4},
                          {"UOM", "EA"},
                          {"TAGGED", "Y"}});
    }
    void addPart(int ICNTAG, const QString& PARTNO, const char* TAGGED = " ") const
    {
        add("INVCATALOG", {{"ICNTAG", ICNTAG},
                           {"ICNUMBER", "000-000-" + QString::number(ICNTAG)},
                           {"PARTNO", PARTNO},
                           {"SERIESTAG", 11},
                           {"SUBCATTAG", 21},
                           {"TAGGED", TAGGED}});
    }
    void addNumber(int ILCTAG, int ISNTAG, int ICNTAG, const QString& PARTNO) const
    {
        add("INVPNMASTER", {{"ILCTAG", ILCTAG},
                            {"ISNTAG", ISNTAG},
                            {"ICNTAG", ICNTAG},
                            {"PARTNO", PARTNO},
                            {"FDATE", " <Current>"},
                            {"LDATE", "          "}});
    }
    void setCounters(int first, int second, int third) const
    {
        OpenTable open = site.open("ZORVEX.mdb", "VEXTAGS");
        open.rows.Edit();
        open.rows["ICNCOUNTER1"] = first;
        open.rows["ICNCOUNTER2"] = second;
        open.rows["ICNCOUNTER3"] = third;
        open.rows.Update();
    }
    QString number(bool commit) const { return zorVEXGetNewICNumber(site.siteFolder(), commit); }
    ItemCopies copies(int VENTAG = 0)
    {
        return {.jobSitePath = site.siteFolder(),
                .userName = "pat",
                .ILCTAG = 1,
                .VENTAG = VENTAG,
                .tell = [this](const QString& PARTNO,
                               const QString& remark) { told.append(PARTNO + ": " + remark); },
                .proceed = [] { return true; }};
    }

    QStringList told;
};

TEST_F(Catalog, NumbersCountFromTheRightAndCarry)
{
    EXPECT_EQ(number(false), "000-000-001") << "of a fresh site";
    EXPECT_EQ(number(false), "000-000-001") << "looking draws nothing";
    EXPECT_EQ(number(true), "000-000-001");
    EXPECT_EQ(number(true), "000-000-002");
    setCounters(999, 0, 0);
    EXPECT_EQ(number(true), "000-000-999");
    EXPECT_EQ(number(true), "000-001-001");
    setCounters(999, 999, 4);
    EXPECT_EQ(number(true), "004-999-999");
    EXPECT_EQ(number(true), "005-001-001");
    setCounters(999, 999, 999);
    for (const bool commit : {true, false}) {
        user.expect("Error Creating I/C Number",
                    "Limit of 999,999,999 Items has been Reached.\n"
                    "Third Counter for I/C Number has reached 999. ");
        EXPECT_EQ(number(commit), QString(11, ' '));
        EXPECT_TRUE(user.allCame());
    }
    EXPECT_EQ(rows("VEXTAGS", {"ICNCOUNTER1", "ICNCOUNTER2", "ICNCOUNTER3"}).first(),
              "999|999|999");
}

TEST_F(Catalog, TaggedItemsOfABranchAreLinkedOrAdded)
{
    addPart(7, "P-7");
    addItem(1, "P-1", 7);      // linked already
    addItem(2, "P-2", 99);     // linked to nothing
    addItem(3, "P-7");         // the catalog has its number
    addItem(4, "P-4");         // new
    addItem(5, "P-5", 0, 13);  // new, of a series that is gone
    addNumber(1, 4, 0, "P-4");
    addNumber(1, 4, 0, "P-OLD");
    EXPECT_EQ(copyToCatalog(copies()), 2);
    EXPECT_EQ(told, (QStringList{"P-1: Inventory Item Found in Catalog. I/C Number: 000-000-7",
                                 "P-2: Inventory Item has I/C Tag. Tag NOT FOUND in Catalog.",
                                 "P-7: Part Number Found in Inventory Catalog. "
                                 "I/C Number: 000-000-7",
                                 "P-4: Item Added to Inventory Catalog. I/C Number: 000-000-001",
                                 "P-5: Cannot Find Series Tag #. Part #: P-5",
                                 "P-5: Item Added to Inventory Catalog. I/C Number: 000-000-002"}));
    EXPECT_EQ(rows("INVENTORY", {"ISNTAG", "ICNTAG", "TAGGED"}),
              (QStringList{"1|7| ", "2|99| ", "3|7| ", "4|200| ", "5|201| "}));
    EXPECT_EQ(
        rows("INVCATALOG", {"ICNTAG", "PARTNO", "SERIESTAG", "SUBCATTAG", "VENTAG", "UOM"}).mid(1),
        (QStringList{"200|P-4|50|60|4|EA", "201|P-5|0|0|4|EA"}));
    EXPECT_EQ(rows("SERIESCODES", {"ILCTAG", "SERIESTAG", "SERIESCODE", "SERIESNAME"}).at(1),
              "0|50|100|Pipe");
    EXPECT_EQ(rows("SUBCATEGORIES", {"SERIESTAG", "SUBCATTAG", "SUBCATCODE"}).at(1), "50|60|STL");
    EXPECT_EQ(rows("INVPNMASTER", {"ILCTAG", "ISNTAG", "ICNTAG", "PARTNO"}).mid(2),
              (QStringList{"0|0|200|P-4", "0|0|200|P-OLD"}));
    EXPECT_EQ(copyToCatalog(copies()), 0) << "nothing is tagged any more";
}

TEST_F(Catalog, AVendorGoesToWhatIsAddedAndAStopLeavesTheRestTagged)
{
    addItem(3, "P-3");
    addItem(4, "P-4");
    ItemCopies twice = copies(9);
    int asked = 0;
    twice.proceed = [&asked] { return ++asked < 2; };
    EXPECT_EQ(copyToCatalog(twice), 1);
    EXPECT_EQ(rows("INVCATALOG", {"PARTNO", "VENTAG"}), QStringList{"P-3|9"});
    EXPECT_EQ(rows("INVENTORY", {"TAGGED"}), (QStringList{" ", "Y"}));
}

TEST_F(Catalog, TaggedPartsAreAddedToABranchThatLacksThem)
{
    addGroup(0, 11, 21);
    addItem(1, "P-1");
    addPart(7, "P-7", "Y");
    addPart(8, "P-1", "Y");
    addPart(9, "P-9");
    addNumber(0, 0, 7, "P-7");
    EXPECT_EQ(copyToBranch(copies()), 1);
    EXPECT_EQ(told,
              (QStringList{"P-7: Item Added to Branch Inventory. I/C Number: 000-000-7",
                           "P-1: Part Number Found in Branch Inventory. I/C Number: 000-000-8"}));
    EXPECT_EQ(rows("INVENTORY", {"ISNTAG", "ILCTAG", "ICNTAG", "PARTNO", "SERIESTAG", "SUBCATTAG",
                                 "BINTAG", "ONORDER", "AVAILABLE", "TAGGED"})
                  .at(1),
              "100|1|7|P-7|10|20|0|0|0| ")
        << "in the branch's own groups of the same codes";
    EXPECT_EQ(rows("INVPNMASTER", {"ILCTAG", "ISNTAG", "ICNTAG", "PARTNO"}).at(1), "1|100|0|P-7");
    EXPECT_EQ(rows("INVCATALOG", {"TAGGED"}), (QStringList{" ", " ", " "}));
}

TEST_F(Catalog, RefreshGivesNumbersTheBranchOfTheirItem)
{
    addItem(1, "P-1");
    addNumber(2, 1, 0, "P-1");
    addNumber(1, 1, 0, "P-RIGHT");
    addNumber(1, 77, 0, "P-GONE");
    addNumber(0, 0, 7, "P-CAT");
    QStringList log;
    const auto add = [&log](const QString& line) { log.append(line); };
    const NumberRefresh result = refreshPartNumbers(site.siteFolder(), add, [] { return true; });
    EXPECT_TRUE(result.isComplete);
    EXPECT_EQ(result.updated, 1);
    EXPECT_EQ(log, (QStringList{"Updated: P-1", "Cannot Find Inventory Item for: P-GONE",
                                "Cannot Find Inventory Item for: P-CAT"}));
    EXPECT_EQ(rows("INVPNMASTER", {"ILCTAG", "PARTNO"}),
              (QStringList{"1|P-1", "1|P-RIGHT", "1|P-GONE", "0|P-CAT"}));
    EXPECT_FALSE(refreshPartNumbers(site.siteFolder(), add, [] { return false; }).isComplete);
}

TEST_F(Catalog, APartIsAddedUnderANumberOfItsOwn)
{
    addGroup(0, 11, 21);
    DataSession part(frmVEXINVCAT02({}), session, {.mode = "A"});
    ASSERT_TRUE(part.open());
    EXPECT_EQ(part.caption(), "Inventory Catalog Item - Add");
    refuse(part,
           "Series Code is Empty.\nCategory Name is Empty.\nSubSeries Code is Blank\n"
           "Subcategory Name is Empty.\nPart Number is Empty.");
    EXPECT_EQ(number(false), "000-000-001") << "a refusal draws no number";
    fill(part.entry(), "p-1");
    EXPECT_TRUE(part.update());
    EXPECT_EQ(rows("INVCATALOG", {"ICNTAG", "ICNUMBER", "SERIESTAG", "PARTNO", "TAGGED"}),
              QStringList{"200|000-000-001|11|P-1| "});
    EXPECT_EQ(rows("INVPNMASTER", {"ILCTAG", "ISNTAG", "ICNTAG", "PARTNO", "FDATE"}),
              QStringList{"0|0|200|P-1| <Current>"});

    BrowseSession list(frmVEXINVCAT01(), session);
    list.open();
    cloneCurrent(list);
    EXPECT_EQ(rows("INVCATALOG", {"ICNTAG", "ICNUMBER", "PARTNO"}).at(1), "201|000-000-002|COPY");
    run(list, "cmdTagAll");
    EXPECT_EQ(rows("INVCATALOG", {"TAGGED"}), (QStringList{"Y", "Y"}));
}

TEST_F(Catalog, APartThatABranchHasIsNotDeleted)
{
    addPart(7, "P-7");
    addPart(8, "P-8");
    add("INVENTORY", {{"ISNTAG", 1}, {"ILCTAG", 3}, {"ICNTAG", 9}, {"PARTNO", "A"}});
    add("INVENTORY", {{"ISNTAG", 2}, {"ILCTAG", 5}, {"ICNTAG", 7}, {"PARTNO", "B"}});
    add("INVENTORY", {{"ISNTAG", 3}, {"ILCTAG", 5}, {"ICNTAG", 0}, {"PARTNO", "C"}});
    BrowseSession list(frmVEXINVCAT01(), session);
    list.open();
    ASSERT_TRUE(list.showTag(7));
    user.expect("Cannot Delete",
                "Cannot Delete. This Item is Related to Existing Inventory Items. \nAll Inventory "
                "Items with this I/C Number: 000-000-7 must be deleted first.");
    list.remove();
    EXPECT_TRUE(user.allCame());
    EXPECT_EQ(catalogUseText(site.siteFolder(), 8), "");
}

TEST_F(Catalog, SearchesGoThroughTheCatalogAndItsOwnPartNumbers)
{
    const SearchRequest byNumber = itemSearchRequest(2, catalogItems, session, {});
    EXPECT_EQ(byNumber.TableName, "INVPNMASTER");
    EXPECT_EQ(byNumber.IndexList, "INVPNMASTERPARTNO");
    ASSERT_EQ(byNumber.keys.size(), 1u);
    EXPECT_EQ(byNumber.keys[0].field, schema::FieldName("ILCTAG"));
    const SearchRequest byMfg = itemSearchRequest(3, catalogItems, session, {});
    EXPECT_EQ(byMfg.SearchTitle, "Inventory Catalog Items by MFG Part Number");
    EXPECT_EQ(byMfg.WindowTitle, "Search Inventory Catalog Items");
    EXPECT_EQ(byMfg.IndexList, "ICNMFGPARTNO|ICNSHORTDESC|ICNPARTNO");
    addNumber(0, 0, 7, "P-7");
    addNumber(0, 0, 8, "P-8");
    addPart(7, "P-7");
    OpenTable numbers = site.open("ZORVEX.mdb", "INVPNMASTER");
    OpenTable parts = site.open("ZORVEX.mdb", "INVCATALOG");
    EXPECT_TRUE(
        goToFound(parts.rows, itemOfPartNumber(catalogItems, session, numbers.rows.Bookmark())));
    numbers.rows.MoveNext();
    user.expect("Error: zorVEXINVCATSearch",
                "Cannot Find the Inventory Catalog Item Tag Number: 8\n"
                "Cannot Select Proper Inventory Catalog Item Record.");
    EXPECT_EQ(itemOfPartNumber(catalogItems, session, numbers.rows.Bookmark()), " ");
}

}  // namespace
