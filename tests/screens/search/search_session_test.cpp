#include "screens/search/search_session.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

using Kind = BrowseLine::Kind;

SearchRequest vendors(const QString& folder)
{
    return {.DBPath = folder,
            .TableName = "VENDORS",
            .IndexList = "VENNAME|VENNO",
            .WindowTitle = "Search Vendors",
            .SearchTitle = "Vendors",
            .FieldList = "NAME|VENNO|CITY",
            .TypeList = "C|C|C",
            .LengthList = "4|10",
            .HeadingList = "Name|Number|City",
            .WidthList = "5000|1600|1000",
            .AlignList = "0|1|2"};
}

class SearchSessionTest : public testing::Test
{
protected:
    void addVendor(const QString& name, const QString& number) const
    {
        site.addRow("ZORVEX.mdb", "VENDORS", {{"Name", name}, {"VENNO", number}});
    }
    void addJob(int company, const QString& job, const QString& name) const
    {
        site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", company}, {"JOBNO", job}, {"JOBNAME", name}});
    }
    SearchRequest jobs(std::vector<KeyField> keys, const QString& index = "JOBLIST") const
    {
        return {.DBPath = site.siteFolder(),
                .DBName = "MAIN",
                .TableName = "JOBLIST",
                .IndexList = index,
                .FieldList = keys.empty() ? "CONO" : "JOBNO",
                .TypeList = keys.empty() ? "N" : "C",
                .LengthList = "8",
                .WidthList = "1000",
                .keys = std::move(keys)};
    }
    static void typeIn(SearchSession& search, const QString& text)
    {
        for (const QChar c : text)
            search.type(c);
    }
    // The highlighted row's cell and where it stands, such as "Bolt@0".
    static QString highlight(SearchSession& search)
    {
        const BrowseLine& line =
            search.list().lines()[static_cast<size_t>(search.list().BrowseRow)];
        return line.cells.value(0).trimmed() + '@' + QString::number(search.list().BrowseRow);
    }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(SearchSessionTest, ReadsItsListsAsFarAsTheyGo)
{
    SearchRequest request = vendors({});
    request.TypeList = "N###,###.00|C";
    request.LengthList = "16|10,70";
    request.FieldList = "A|B|C|D|E|F|G|H|I";
    const std::vector<SearchColumn> columns = searchColumns(request);
    ASSERT_EQ(columns.size(), 7U);
    EXPECT_TRUE(columns[0].isNumeric());
    EXPECT_EQ(columns[0].format, "###,###.00");
    EXPECT_FALSE(columns[1].isNumeric());
    EXPECT_EQ(columns[1].format, " ");
    EXPECT_EQ(columns[0].length, 16);
    EXPECT_EQ(columns[1].length, 10);
    EXPECT_EQ(columns[2].length, 0) << "a comma parts nothing";
    EXPECT_EQ(columns[2].index, " ");
    EXPECT_EQ(columns[2].alignment, 2);
    EXPECT_EQ(columns[3].width, 0);
    EXPECT_EQ(columns[6].field, "G");
    EXPECT_EQ(SearchSession(request).usedColumnCount(), 3);
}

TEST_F(SearchSessionTest, ShowsValuesWithAMarginAndFormattedZerosBlank)
{
    site.addRow("ZORVEX.mdb", "RQILIST", {{"POTAG", 7}, {"POITEMNO", 1}, {"QTY", 1234.55}});
    site.addRow("ZORVEX.mdb", "RQILIST", {{"POTAG", 7}, {"POITEMNO", 2}, {"QTY", 0}});
    SearchSession search({.DBPath = site.siteFolder(),
                          .TableName = "RQILIST",
                          .IndexList = "RQIPOITEMNO",
                          .FieldList = "POITEMNO|QTY|UNIT",
                          .TypeList = "N|N###,###.0|C",
                          .LengthList = "3",
                          .WidthList = "500|900|0",
                          .keys = {{"POTAG", 7}}});
    ASSERT_TRUE(search.open());
    EXPECT_EQ(search.list().lines()[0].cells.mid(0, 3), QStringList({" 1", "1,234.6 ", ""}));
    EXPECT_EQ(search.list().lines()[1].cells.mid(0, 3), QStringList({" 2", " ", ""}));
}

TEST_F(SearchSessionTest, JumpsToWhatIsTypedAndBack)
{
    for (const char* name : {"Anvil", "Bolt", "Bolt Brothers", "Cable", "Chain"})
        addVendor(name, QString(name).toUpper().right(3));
    SearchSession search(vendors(site.siteFolder()));
    ASSERT_TRUE(search.open());
    EXPECT_EQ(search.list().lines().size(), 12U);
    EXPECT_EQ(highlight(search), "Anvil@0");
    search.list().nextRow();

    typeIn(search, "c");
    EXPECT_EQ(highlight(search), "Cable@0") << "case makes no difference";
    typeIn(search, "h");
    EXPECT_EQ(highlight(search), "Chain@0");
    search.backspace();
    EXPECT_EQ(search.SearchText(), "c");
    EXPECT_EQ(highlight(search), "Cable@0");

    typeIn(search, "z");
    EXPECT_EQ(highlight(search), "Cable@0") << "nothing at or after it";
    search.backspace();
    search.backspace();
    EXPECT_EQ(search.SearchText(), "");
    EXPECT_EQ(highlight(search), "Anvil@0") << "no text leads back to the first record";
    EXPECT_FALSE(search.backspace());

    typeIn(search, "bolt");
    EXPECT_FALSE(search.type(' ')) << "the column takes four characters";
    EXPECT_FALSE(search.type('\x1b'));
    EXPECT_EQ(search.SearchText(), "bolt");
    EXPECT_EQ(highlight(search), "Bolt@0");
}

TEST_F(SearchSessionTest, TakesBlanksAsCharacters)
{
    addVendor("A B", "1");
    addVendor("A-B", "2");
    addVendor("AB", "3");
    SearchSession search(vendors(site.siteFolder()));
    ASSERT_TRUE(search.open());
    typeIn(search, "a ");
    EXPECT_EQ(search.SearchText(), "a ");
    EXPECT_EQ(highlight(search), "A B@0");
    typeIn(search, "z");
    EXPECT_EQ(highlight(search), "A-B@0");
}

TEST_F(SearchSessionTest, StaysInsideTheParentOfAnyNumberOfKeys)
{
    for (const int company : {1, 2, 3})
        for (const char* code : {"A", "M"})
            site.addRow("ZORVEX.mdb", "INVCODES",
                        {{"CONO", company}, {"JOBNO", "77"}, {"INVCODE", code}});
    site.addRow("ZORVEX.mdb", "INVCODES", {{"CONO", 2}, {"JOBNO", "78"}, {"INVCODE", "N"}});
    SearchSession search({.DBPath = site.siteFolder(),
                          .TableName = "INVCODES",
                          .IndexList = "INVCODES",
                          .FieldList = "INVCODE",
                          .TypeList = "C",
                          .LengthList = "10",
                          .WidthList = "1000",
                          .keys = {{"CONO", 2}, {"JOBNO", "77"}}});
    ASSERT_TRUE(search.open());
    EXPECT_EQ(search.list().lines()[2].kind, Kind::EndOfList) << "two codes, and no other's";
    typeIn(search, "b");
    EXPECT_EQ(highlight(search), "M@0");
    search.backspace();
    EXPECT_EQ(highlight(search), "A@0");
    typeIn(search, "n");
    EXPECT_EQ(search.SearchText(), "n");
    EXPECT_EQ(highlight(search), "A@0") << "the N of another job is not found";
}

TEST_F(SearchSessionTest, SeeksNumbersInNumericColumns)
{
    for (const int company : {5, 12, 105})
        addJob(company, "1", "x");
    SearchSession search(jobs({}, "CONO"));
    ASSERT_TRUE(search.open());
    EXPECT_EQ(search.firstInstruction(), "1. Enter the number of the item you are searching for.");
    typeIn(search, "1");
    EXPECT_EQ(highlight(search), "5@0") << "1 as a number, not as a prefix";
    typeIn(search, "2");
    EXPECT_EQ(highlight(search), "12@0");
    typeIn(search, "9");
    EXPECT_EQ(highlight(search), "12@0") << "129 is after all of them";
    typeIn(search, "99999");
    EXPECT_EQ(highlight(search), "12@0");
    while (search.backspace()) {
    }
    search.list().end();
    typeIn(search, "x");
    EXPECT_EQ(highlight(search), "5@0") << "letters are 0";
}

TEST_F(SearchSessionTest, SwapsTheSearchedColumn)
{
    addVendor("Anvil", "900");
    addVendor("Cable", "100");
    SearchSession search(vendors(site.siteFolder()));
    ASSERT_TRUE(search.open());
    typeIn(search, "c");

    EXPECT_FALSE(search.searchBy(0)) << "the present column";
    EXPECT_EQ(search.SearchText(), "c");
    user.expect("Search Not Available", "There is no Search Available by Column: City");
    EXPECT_FALSE(search.searchBy(2));
    EXPECT_EQ(highlight(search), "Cable@0");

    search.list().nextRow();
    ASSERT_TRUE(search.searchBy(1));
    EXPECT_EQ(search.columnKey(), "Number|Name|City");
    EXPECT_EQ(search.SearchText(), "");
    EXPECT_EQ(highlight(search), "100@0") << "the first by number";
    EXPECT_EQ(search.columns()[0].alignment, 1);
    EXPECT_EQ(search.columns()[1].width, 5000);
    typeIn(search, "90000");
    EXPECT_EQ(search.SearchText(), "90000") << "the length went with its column";
    ASSERT_TRUE(search.searchBy(1));
    EXPECT_EQ(search.columnKey(), "Name|Number|City");
    EXPECT_EQ(highlight(search), "Anvil@0");
}

TEST_F(SearchSessionTest, FindsNothingInAnEmptyTable)
{
    SearchSession search(vendors(site.siteFolder()));
    ASSERT_TRUE(search.open());
    EXPECT_EQ(search.list().lines()[0].kind, Kind::ListIsEmpty);
    EXPECT_EQ(search.Current(), " ");
    typeIn(search, "a");
    EXPECT_EQ(search.Current(), " ");
    ASSERT_TRUE(search.searchBy(1));
    EXPECT_EQ(search.Current(), " ");

    addVendor("Anvil", "900");
    typeIn(search, "9");
    EXPECT_EQ(highlight(search), "900@0") << "another user added the first";
}

TEST_F(SearchSessionTest, GoesOnWhenTheHighlightedRecordIsDeleted)
{
    addVendor("Anvil", "1");
    addVendor("Bolt", "2");
    addVendor("Cable", "3");
    SearchSession search(vendors(site.siteFolder()));
    ASSERT_TRUE(search.open());
    OpenTable other = site.open("ZORVEX.mdb", "VENDORS");
    other.rows.Index("VENNAME");
    ASSERT_TRUE(other.rows.Seek("=", "Anvil"));
    other.rows.Delete();
    typeIn(search, "b");
    EXPECT_EQ(highlight(search), "Bolt@0");
    search.backspace();
    EXPECT_EQ(highlight(search), "Bolt@0") << "the first record is another one now";
    search.list().nextRow();
    EXPECT_EQ(highlight(search), "Cable@1");
}

TEST_F(SearchSessionTest, TellsWhyItCannotOpen)
{
    SearchRequest request = vendors(site.siteFolder());
    request.TableName = "NOSUCH";
    user.expect("Error: dnSearch",
                "Error Opening Search Window\n3078 Could not find the table 'NOSUCH'.");
    EXPECT_FALSE(SearchSession(request).open());

    request = vendors(site.siteFolder());
    request.keys.assign(5, {"CONO", 1});
    user.expect("Error: dnSearch", "Invalid Key Count in dnSearch");
    EXPECT_FALSE(SearchSession(request).open());
}

}  // namespace
