#include "screens/browse/browse_list.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

using Kind = BrowseLine::Kind;

QStringList codeOf(storage::Recordset& rows)
{
    return {trimmedTextOf(rows["GLCODE"])};
}

// G/L codes of two companies on eight rows.
class BrowseListTest : public testing::Test
{
protected:
    void addCodes(int company, int count) const
    {
        OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
        for (int i = 1; i <= count; ++i)
            addCode(codes, company, i);
    }
    static void addCode(OpenTable& codes, int company, int number)
    {
        codes.rows.AddNew();
        codes.rows["CONO"] = company;
        codes.rows["GLCODE"] = QString("%1").arg(number, 3, 10, QChar('0'));
        codes.rows["Desc"] = "x";
        codes.rows.Update();
    }
    void deleteCode(const QString& code) const
    {
        OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
        codes.rows.Index("GLCODES");
        ASSERT_TRUE(codes.rows.Seek("=", 2, code));
        codes.rows.Delete();
    }
    void open(int company = 2)
    {
        list.open({site.siteFolder(), "ZORVEX.mdb", "GLCODES", "GLCODES", {}, {}}, "wksVEX");
        list.fill({{"CONO", company}});
    }
    // The page as one text: codes, "-" for the end of the list, "=" for an empty list; the
    // highlight in brackets.
    QString page() const
    {
        QStringList rows;
        for (size_t i = 0; i < list.lines().size(); ++i) {
            const BrowseLine& line = list.lines()[i];
            QString text = line.kind == Kind::Record        ? line.cells[0]
                           : line.kind == Kind::EndOfList   ? "-"
                           : line.kind == Kind::ListIsEmpty ? "="
                                                            : "";
            rows.append(static_cast<int>(i) == list.BrowseRow ? '[' + text + ']' : text);
        }
        while (!rows.isEmpty() && rows.last().isEmpty())
            rows.removeLast();
        return rows.join(' ');
    }

    TestInstallation site;
    ScriptedMessages user;
    BrowseList list{codeOf};
};

TEST_F(BrowseListTest, ShowsAnEmptyListAndStaysThere)
{
    addCodes(1, 3);
    addCodes(3, 3);
    open();
    for (auto move : {&BrowseList::nextRow, &BrowseList::previousRow, &BrowseList::pageDown,
                      &BrowseList::pageUp, &BrowseList::home, &BrowseList::end})
        (list.*move)();
    EXPECT_EQ(page(), "[=]");
    EXPECT_FALSE(list.isOnRecord());
    EXPECT_EQ(list.makeEntryRow(), 0);
}

TEST_F(BrowseListTest, WalksAShortListToItsEndAndBack)
{
    addCodes(1, 2);
    addCodes(2, 2);
    addCodes(3, 2);
    open();
    EXPECT_EQ(page(), "[001] 002 -");
    list.nextRow();
    list.nextRow();
    EXPECT_EQ(page(), "001 002 [-]");
    EXPECT_FALSE(list.isOnRecord());
    list.nextRow();
    list.pageDown();
    EXPECT_EQ(page(), "001 002 [-]") << "nothing happens on the end of the list";
    list.previousRow();
    EXPECT_EQ(page(), "001 [002] -");
    list.previousRow();
    list.previousRow();
    EXPECT_EQ(page(), "[001] 002 -");
}

TEST_F(BrowseListTest, ScrollsOneRowAtEachEdge)
{
    addCodes(2, 9);
    open();
    for (int i = 0; i < 8; ++i)
        list.nextRow();
    EXPECT_EQ(page(), "002 003 004 005 006 007 008 [009]");
    list.nextRow();
    EXPECT_EQ(page(), "003 004 005 006 007 008 009 [-]");
    for (int i = 0; i < 8; ++i)
        list.previousRow();
    EXPECT_EQ(page(), "[002] 003 004 005 006 007 008 009");
}

TEST_F(BrowseListTest, GoesByPagesAndToTheEnds)
{
    addCodes(2, 20);
    open();
    list.nextRow();
    list.pageDown();
    EXPECT_EQ(page(), "009 [010] 011 012 013 014 015 016");
    list.pageDown();
    EXPECT_EQ(page(), "017 [018] 019 020 -");
    list.pageUp();
    EXPECT_EQ(page(), "009 [010] 011 012 013 014 015 016");
    list.end();
    EXPECT_EQ(page(), "[020] -");
    list.nextRow();
    list.pageUp();
    EXPECT_TRUE(list.isOnRecord());
    list.home();
    EXPECT_EQ(page(), "[001] 002 003 004 005 006 007 008");
}

TEST_F(BrowseListTest, KeepsTheRowInViewWhenTheTableChanged)
{
    addCodes(2, 12);
    open();
    for (int i = 0; i < 5; ++i)
        list.nextRow();
    deleteCode("002");
    deleteCode("003");
    list.rebuild();
    EXPECT_EQ(page(), "001 004 005 [006] 007 008 009 010") << "no more records above";
    deleteCode("006");
    list.rebuild();
    EXPECT_EQ(list.lines()[static_cast<size_t>(list.BrowseRow)].bookmark, list.BrowseCurrent);
}

TEST_F(BrowseListTest, SurvivesARecordDeletedUnderTheHighlight)
{
    addCodes(2, 3);
    open();
    list.nextRow();
    deleteCode("002");
    list.nextRow();
    EXPECT_EQ(page(), "001 [003] -") << "its neighbour takes the highlight";
    deleteCode("001");
    list.home();
    EXPECT_EQ(page(), "[003] -") << "what was the first record is gone, too";
    deleteCode("003");
    EXPECT_FALSE(list.goToCurrent());
    EXPECT_EQ(page(), "[=]");
}

TEST_F(BrowseListTest, MakesRoomForAnEntry)
{
    addCodes(2, 8);
    open();
    EXPECT_EQ(list.makeEntryRow(), 7);
    EXPECT_EQ(page().section(' ', 0, 6), "[002] 003 004 005 006 007 008");
    list.repaint();
    deleteCode("008");
    list.fill({{"CONO", 2}});
    EXPECT_EQ(list.makeEntryRow(), 7) << "the row after the last record";
}

TEST_F(BrowseListTest, TakesAsManyRowsAsThereIsRoomFor)
{
    addCodes(2, 12);
    open();
    list.setRowCount(4);
    list.nextRow();
    list.nextRow();
    list.nextRow();
    EXPECT_EQ(page(), "001 002 003 [004]");
    list.setRowCount(2);
    EXPECT_EQ(page(), "003 [004]");
    list.setRowCount(5);
    EXPECT_EQ(page(), "003 [004] 005 006 007");
    list.selectRow(4);
    EXPECT_EQ(page(), "003 004 005 006 [007]");
    list.selectRow(9);
    EXPECT_EQ(page(), "003 004 005 006 [007]");
}

// Whatever the keys, the page is a stretch of the list and the highlight on what it says.
TEST_F(BrowseListTest, StaysTrueUnderRandomMovesAndOthersWork)
{
    addCodes(1, 3);
    addCodes(2, 30);
    addCodes(3, 3);
    open();
    std::mt19937 random(7);
    OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
    for (int i = 0; i < 400; ++i) {
        bool othersWorked = false;
        if (random() % 4 == 0) {
            const int number = 1 + static_cast<int>(random() % 30);
            codes.rows.Index("GLCODES");
            othersWorked = true;
            if (codes.rows.Seek("=", 2, QString("%1").arg(number, 3, 10, QChar('0'))))
                codes.rows.Delete();
            else
                addCode(codes, 2, number);
        }
        switch (random() % 9) {
            case 0:
                list.nextRow();
                break;
            case 1:
                list.previousRow();
                break;
            case 2:
                list.pageDown();
                break;
            case 3:
                list.pageUp();
                break;
            case 4:
                list.selectRow(static_cast<int>(random() % 9));
                break;
            case 5:
                list.setRowCount(1 + static_cast<int>(random() % 12));
                break;
            case 6:
                random() % 4 == 0 ? list.home() : list.nextRow();
                break;
            case 7:
                random() % 4 == 0 ? list.end() : list.previousRow();
                break;
            default:
                list.rebuild();
        }
        if (list.isEmpty())
            continue;
        ASSERT_GE(list.BrowseRow, 0);
        ASSERT_LE(list.BrowseRow, list.BrowseMaxRow);
        const BrowseLine& lit = list.lines()[static_cast<size_t>(list.BrowseRow)];
        if (list.isOnRecord())
            ASSERT_EQ(lit.bookmark, list.BrowseCurrent) << i << qPrintable(page());
        else
            ASSERT_EQ(static_cast<int>(lit.kind), static_cast<int>(Kind::EndOfList)) << i;
        if (othersWorked)
            continue;  // the page may be as it was before
        list.rebuild();
        const QString shown = page();
        list.rebuild();
        ASSERT_EQ(page(), shown) << "reading anew what did not change moves nothing";
    }
}

}  // namespace
