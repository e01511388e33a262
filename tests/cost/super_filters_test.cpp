#include "cost/super_filters.h"

#include <gtest/gtest.h>

#include "tests/support/table_rows.h"

namespace {

class SuperFilters : public testing::Test
{
protected:
    // Filter 1: area 10 with phases 01 and 02, of which 01 has package A; area 20. Filter 2: area
    // 10. A node of level 3 whose parents are gone.
    SuperFilters()
    {
        for (const int filter : {1, 2})
            site.addRow("MAIN.mdb", "UDSLIST", {{"UDSTAG", filter}, {"CONO", 1}});
        node(1, 11, 1, "10");
        node(1, 12, 1, "20");
        node(1, 13, 2, "10");
        node(2, 21, 11, "01");
        node(2, 22, 11, "02");
        node(2, 23, 13, "01");
        node(3, 31, 21, "A");
        node(3, 99, 98, "A");
    }
    void node(int level, int tag, int owner, const char* code) const
    {
        site.addRow("MAIN.mdb", QString("UDSLEVEL%1").arg(level),
                    {{"UDSDTAG", tag}, {"OWNERTAG", owner}, {"COSTCODE", code}});
    }
    QString nodes(int level) const
    {
        return rowsOf(site, "MAIN.mdb", QString("UDSLEVEL%1").arg(level), {"UDSDTAG"}).join(' ');
    }

    TestInstallation site;
};

TEST_F(SuperFilters, TakeLinesWhoseCodesMatchEachLevel)
{
    UdsTables tables = openUdsTables(site.siteFolder());
    const auto match = [&](int filter, const std::array<QString, 3>& groups, const char* a,
                           const char* b, const char* c) {
        return zorUDSMatch(tables, filter, groups, {a, b, c});
    };
    // Level 1 is group B, level 2 group A, level 3 group C.
    const std::array<QString, 3> all = {"B", "A", "C"};
    EXPECT_TRUE(match(1, all, "01", "10", "A"));
    EXPECT_FALSE(match(1, all, "01", "10", "B")) << "level 3";
    EXPECT_FALSE(match(1, all, "02", "10", "A")) << "the package is under the other phase";
    EXPECT_FALSE(match(1, all, "03", "10", "A")) << "level 2";
    EXPECT_FALSE(match(1, all, "01", "20", "A")) << "a branch that has no phases";
    EXPECT_FALSE(match(2, all, "01", "10", "A")) << "the other filter's branch has no package";
    const std::array<QString, 3> two = {"B", "A", " "};
    EXPECT_TRUE(match(1, two, "02", "10", "anything"));
    EXPECT_FALSE(match(1, two, "02", "20", "anything"));
    const std::array<QString, 3> one = {"B", "", "C"};
    EXPECT_TRUE(match(1, one, "99", "20", "99")) << "the tree ends at the blank level";
    EXPECT_FALSE(match(1, one, "99", "30", "99"));
    EXPECT_TRUE(match(3, {"", "", ""}, "1", "2", "3")) << "no level, no condition";
}

TEST_F(SuperFilters, GoWithTheirWholeTreeAndNothingElse)
{
    deleteUdsFilter(site.siteFolder(), 1);
    EXPECT_EQ(nodes(1), "13");
    EXPECT_EQ(nodes(2), "23");
    EXPECT_EQ(nodes(3), "99");
    EXPECT_EQ(rowsOf(site, "MAIN.mdb", "UDSLIST", {"UDSTAG"}), QStringList{"2"});
    UdsTables tables = openUdsTables(site.siteFolder());
    EXPECT_EQ(deleteUdsNodes(tables, 2, 13), 1);
    EXPECT_EQ(deleteUdsNodes(tables, 1, 0), 0);
}

TEST_F(SuperFilters, LoseANodeWithAllBelow)
{
    node(2, 0, 12, "05");  // stored after a failure to draw its tag
    node(3, 50, 0, "B");
    UdsTables tables = openUdsTables(site.siteFolder());
    ASSERT_TRUE(tables.level(1).Seek("=", 1, "10"));
    deleteUdsNode(tables, 1);
    EXPECT_EQ(nodes(1), "12 13");
    EXPECT_EQ(nodes(2), "23 0");
    EXPECT_EQ(nodes(3), "99 50");
    ASSERT_TRUE(tables.level(1).Seek("=", 1, "20"));
    deleteUdsNode(tables, 1);
    EXPECT_EQ(nodes(2), "23");
    EXPECT_EQ(nodes(3), "99 50") << "a node without a tag owns nothing";
}

}  // namespace
