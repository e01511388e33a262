#include "cost/target_lists.h"

#include <gtest/gtest.h>

#include "tests/support/table_rows.h"

namespace {

const QString job = "      12";

class TargetLists : public testing::Test
{
protected:
    void addTarget(const QString& number, const char* letter, const char* code, bool tagged) const
    {
        site.addRow("MAIN.mdb", "ZORTLCC",
                    {{"CONO", 1},
                     {"JOBNO", number},
                     {"GROUPID", letter},
                     {"COSTCODE", code},
                     {"PRINTME", false},
                     {"TAGGED", tagged}});
    }
    QStringList targets() const
    {
        return rowsOf(site, "MAIN.mdb", "ZORTLCC",
                      {"JOBNO", "GROUPID", "COSTCODE", "Desc", "PRINTME", "ARCHIVED", "TAGGED"});
    }

    TestInstallation site;
};

TEST_F(TargetLists, AreFilledAnewWithAllCodesOfTheGroup)
{
    addTarget(job, "A", "old", true);
    addTarget(job, "B", "kept", false);
    addTarget("      13", "A", "kept", false);
    for (const char* code : {" 2", " 1"})
        site.addRow("MAIN.mdb", "CCALIST",
                    {{"CONO", 1}, {"JOBNO", job}, {"COSTCODEA", code}, {"DESCA", "Code"}});
    site.addRow("MAIN.mdb", "CCALIST",
                {{"CONO", 1}, {"JOBNO", "      13"}, {"COSTCODEA", " 9"}, {"DESCA", "Other"}});
    EXPECT_EQ(fillTargetList(site.siteFolder(), 1, job, costCodeGroups[0]), 2);
    EXPECT_EQ(targets(), (QStringList{"      12|B|kept|~|0|0|0", "      13|A|kept|~|0|0|0",
                                      "      12|A| 1|Code|-1|0|0", "      12|A| 2|Code|-1|0|0"}));
    EXPECT_EQ(fillTargetList(site.siteFolder(), 1, job, costCodeGroups[2]), 0);
}

TEST_F(TargetLists, MarkTheTaggedRowsOfTheJob)
{
    addTarget(job, "A", "1", true);
    addTarget(job, "A", "2", false);
    addTarget(job, "B", "3", true);
    addTarget("      13", "A", "1", true);
    const QString path = site.siteFolder();
    EXPECT_EQ(markTaggedTargets(path, 1, job, TargetMark::Print, true), 2);
    EXPECT_EQ(markTaggedTargets(path, 1, job, TargetMark::Archived, true), 2);
    EXPECT_EQ(targets(), (QStringList{"      12|A|1|~|-1|-1|-1", "      12|A|2|~|0|0|0",
                                      "      12|B|3|~|-1|-1|-1", "      13|A|1|~|0|0|-1"}));
    EXPECT_EQ(markTaggedTargets(path, 1, job, TargetMark::Print, false), 2);
    EXPECT_EQ(clearTargetTags(path, 1, job), 2);
    EXPECT_EQ(markTaggedTargets(path, 1, job, TargetMark::Archived, false), 0) << "none is tagged";
    EXPECT_EQ(targets().first(), "      12|A|1|~|0|-1|0");
    EXPECT_EQ(targets().last(), "      13|A|1|~|0|0|-1");
}

}  // namespace
