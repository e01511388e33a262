// The grid under a user's hands: mouse, wheel, scroll bar, column widths, clipboard.
#include "screens/browse/browse_grid.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QWheelEvent>

#include "screens/browse/browse_list.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

constexpr int codeCount = 60;

QStringList cellsOf(storage::Recordset& rows)
{
    return {trimmedTextOf(rows["GLCODE"]), trimmedTextOf(rows["Desc"])};
}

class BrowseGridTest : public testing::Test
{
protected:
    BrowseGridTest()
    {
        OpenTable codes = site.open("ZORVEX.mdb", "GLCODES");
        for (int i = 0; i < codeCount + 2; ++i) {
            codes.rows.AddNew();
            codes.rows["CONO"] = i < codeCount ? 2 : 3;
            codes.rows["GLCODE"] = QString("%1").arg(i, 3, 10, QChar('0'));
            codes.rows["Desc"] = QString("tab\there %1").arg(i);
            codes.rows.Update();
        }
        codes = {};
        list.open({site.siteFolder(), "ZORVEX.mdb", "GLCODES", "GLCODES", {}, {}}, "wksVEX");
        list.fill({{"CONO", 2}});
        grid.setColumns({{"Code", 1400}, {"Description", 4000}});
        grid.resize(600, 300);
        grid.show();
    }
    QString codeInHand() { return list.lines()[size_t(list.BrowseRow)].cells.value(0); }
    void click(int row, bool twice = false)
    {
        const QPoint at = grid.cellRect(row, 1).center();
        QTest::mouseClick(grid.view()->viewport(), Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(grid.view()->viewport(), Qt::LeftButton, {}, at);
    }

    TestInstallation site;
    ScriptedMessages user;
    BrowseList list{cellsOf};
    BrowseGrid grid{list, "hsbMAIN"};
};

TEST_F(BrowseGridTest, TakesAsManyRowsAsThereIsRoomForAndKeepsTheHighlightInView)
{
    const int before = static_cast<int>(list.lines().size());
    EXPECT_GT(before, 5);
    list.pageDown();
    const QString code = codeInHand();
    grid.resize(600, 500);
    QTest::qWait(1);
    EXPECT_GT(static_cast<int>(list.lines().size()), before);
    EXPECT_EQ(codeInHand(), code);
    grid.resize(600, 120);
    QTest::qWait(1);
    EXPECT_LT(static_cast<int>(list.lines().size()), before);
    EXPECT_EQ(codeInHand(), code);
}

TEST_F(BrowseGridTest, ClickHighlightsAndClickOnTheHighlightActs)
{
    QSignalSpy acted(&grid, &BrowseGrid::acted);
    click(3);
    EXPECT_EQ(codeInHand(), "003");
    EXPECT_EQ(acted.size(), 0);
    click(3);
    EXPECT_EQ(acted.size(), 1);
    grid.setActsOnClick(false);
    click(3);
    EXPECT_EQ(acted.size(), 1);
    click(4, true);
    EXPECT_EQ(acted.size(), 2) << "a double click acts all the same";
    grid.setMovesEnabled(false);
    click(1, true);
    EXPECT_EQ(acted.size(), 2);
    EXPECT_EQ(codeInHand(), "004");
}

TEST_F(BrowseGridTest, ScrollBarTellsThePlaceAndGoesThere)
{
    auto& bar = control<QScrollBar>(grid, "hsbMAINPosition");
    list.showAt(40);
    grid.refresh();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.value() == 40; }, 2000));
    EXPECT_EQ(bar.maximum(), codeCount - 1) << "another company's records do not count";
    bar.setSliderPosition(10);
    bar.triggerAction(QAbstractSlider::SliderMove);
    EXPECT_EQ(codeInHand(), "010");
}

TEST_F(BrowseGridTest, WheelMovesRows)
{
    const QPointF at = grid.view()->viewport()->rect().center();
    QWheelEvent down(at, grid.view()->viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid.view()->viewport(), &down);
    EXPECT_EQ(codeInHand(), "003");
}

TEST_F(BrowseGridTest, CtrlWithAnArrowShowsWhatTheWindowCuts)
{
    grid.setColumns({{"Code", 4000}, {"Description", 14000}, {"Last", 2000}});
    const QScrollBar& bar = *grid.view()->horizontalScrollBar();
    const QString before = codeInHand();
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(grid.view(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(bar.value(), 0);
    EXPECT_EQ(bar.value(), bar.maximum());
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(grid.view(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(codeInHand(), before);
}

TEST_F(BrowseGridTest, CopiesTheWholeListAsTabSeparatedText)
{
    list.pageDown();
    grid.copyList();
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), codeCount + 2) << "headings, the list and the end of the last line";
    EXPECT_EQ(lines[0], "Code\tDescription");
    EXPECT_EQ(lines[1], "000\ttab here 0");
    EXPECT_EQ(lines[codeCount], "059\ttab here 59");
}

TEST_F(BrowseGridTest, KeepsTheWidthsThatTheUserGave)
{
    const UserLayout layout(site.userFolder());
    grid.keepWidths(layout, "test/columns");
    QHeaderView* headings = grid.view()->horizontalHeader();
    const int edge = headings->sectionViewportPosition(1) + headings->sectionSize(1) - 1;
    const int before = headings->sectionSize(1);
    const int y = headings->height() / 2;
    QTest::mousePress(headings->viewport(), Qt::LeftButton, {}, {edge, y});
    QTest::mouseMove(headings->viewport(), {edge + 40, y});
    QTest::mouseRelease(headings->viewport(), Qt::LeftButton, {}, {edge + 40, y});
    ASSERT_EQ(headings->sectionSize(1), before + 40);

    BrowseGrid again(list, "hsbMAIN");
    again.setColumns({{"Code", 1400}, {"Description", 4000}});
    again.keepWidths(layout, "test/columns");
    EXPECT_EQ(again.view()->horizontalHeader()->sectionSize(1), before + 40);
}

}  // namespace
