#include "core/cost_code_groups.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class CostCodeGroups : public testing::Test
{
protected:
    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(CostCodeGroups, AreDescribedAsTheFilesHaveThem)
{
    for (const CostCodeGroup& group : costCodeGroups) {
        OpenTable codes = site.open("MAIN.mdb", group.table);
        EXPECT_NO_THROW(codes.rows.Index(group.table));
        EXPECT_NO_THROW(codes.rows.Index(group.nameIndex));
        for (const schema::FieldName field : {group.code, group.description, group.clientCode})
            EXPECT_GE(codes.rows.definition().fieldPosition(field), 0) << group.letter;
        const OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
        for (const schema::FieldName field :
             {group.jobName, group.jobType, group.jobSize, group.jobClientName})
            EXPECT_GE(jobs.rows.definition().fieldPosition(field), 0) << group.letter;
        EXPECT_EQ(findCostCodeGroup(group.letterText()), &group);
    }
    EXPECT_EQ(findCostCodeGroup("D"), nullptr);
}

TEST_F(CostCodeGroups, TellTheDescriptionOfACode)
{
    site.addRow("MAIN.mdb", "CCBLIST",
                {{"CONO", 1}, {"JOBNO", "      12"}, {"COSTCODEB", " 12A"}, {"DESCB", "Area"}});
    OpenTable codes = site.open("MAIN.mdb", "CCBLIST");
    const auto find = [&](const char* letter, int company, const char* code) {
        return zorFindCCDESC(codes.rows, letter, company, "      12", code);
    };
    EXPECT_EQ(find("B", 1, " 12A"), "Area");
    EXPECT_EQ(find("B", 1, "12A"), QString(30, '?')) << "not in the stored form";
    EXPECT_EQ(find("B", 2, " 12A"), QString(30, '?'));
    EXPECT_TRUE(find("B", 1, "    ").trimmed().isEmpty());
    user.expect("Invalid Identifier", "Invalid Cost Code Group ID in Function zorFindCCDESC");
    EXPECT_TRUE(find("D", 1, " 12A").trimmed().isEmpty());
}

TEST_F(CostCodeGroups, AreSettledByTheJob)
{
    site.addRow("MAIN.mdb", "JOBLIST",
                {{"CONO", 1},
                 {"JOBNO", "      12"},
                 {"CCNAMEB", "Area "},
                 {"CCTYPEB", "N"},
                 {"CCSIZEB", 4}});
    const auto settings = costCodeSettingsOf(site.siteFolder(), 1, "      12");
    ASSERT_TRUE(settings);
    EXPECT_FALSE((*settings)[0].isDefined());
    EXPECT_TRUE((*settings)[1].isDefined());
    EXPECT_EQ((*settings)[1].name, "Area");
    EXPECT_EQ((*settings)[1].stored(" 7x"), "   7");
    EXPECT_FALSE(costCodeSettingsOf(site.siteFolder(), 2, "      12"));
}

TEST(CostCodeGroupNames, AreCaptionsOfLetters)
{
    EXPECT_EQ(zorCCGroupName("B", "Phase", "Area", ""), "Area");
    EXPECT_EQ(zorCCGroupName(" ", "Phase", "Area", ""), "(none)");
    EXPECT_EQ(zorCCGroupName("D", "Phase", "Area", ""), "?????????");
}

}  // namespace
