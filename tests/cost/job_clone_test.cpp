#include "cost/job_clone.h"

#include <gtest/gtest.h>

#include "core/storage/storage_error.h"
#include "tests/support/table_rows.h"

namespace {

const QString source = "      12";
const QString target = "      99";

class Clone : public testing::Test
{
protected:
    Clone()
    {
        for (const int company : {1, 2})
            site.addRow("MAIN.mdb", "COLIST", {{"CONO", company}});
        addJob(source);
    }
    void addJob(const QString& number) const
    {
        site.addRow("MAIN.mdb", "JOBLIST",
                    {{"CONO", 1},
                     {"JOBNO", number},
                     {"JOBNAME", "Mill"},
                     {"REMARKS", "not cloned"},
                     {"CCNAMEA", "Phase"},
                     {"CCSIZEA", 4},
                     {"TAXCOST", 0.25},
                     {"ENABLEDT", true},
                     {"CHECKSTHRS", true},
                     {"CLONEDOW", 2}});
    }
    JobClone request(std::vector<CloneStep> steps) const
    {
        return {.jobSitePath = site.siteFolder(),
                .userSettingsPath = site.userFolder(),
                .sourceCONO = 1,
                .sourceJOBNO = source,
                .targetCONO = 2,
                .targetJOBNO = target,
                .targetName = "Mill II",
                .steps = std::move(steps)};
    }
    bool run(std::vector<CloneStep> steps)
    {
        return cloneJob(
            request(std::move(steps)),
            [this](std::optional<CloneStep>, bool, const QString& text) { told.append(text); });
    }
    QStringList rows(const char* file, const char* table, const QStringList& fields) const
    {
        return rowsOf(site, file, table, fields);
    }

    TestInstallation site;
    QStringList told;
};

TEST_F(Clone, IsRefusedInTheOrderOfItsChecks)
{
    const auto refusal = [&](auto change) {
        JobClone clone = request({});
        change(clone);
        const auto found = refuseJobClone(clone);
        return found ? found->title + ": " + found->text : QString();
    };
    EXPECT_EQ(refusal([](JobClone& c) {
                  c.targetCONO = 0;
                  c.targetJOBNO = "";
              }),
              "Invalid Company No.: Target Company Number is Zero");
    EXPECT_EQ(refusal([](JobClone& c) { c.targetCONO = 8; }),
              "Cannot Find Company No.: Cannot Find Target Company Number: 8");
    EXPECT_EQ(refusal([](JobClone& c) {
                  c.targetJOBNO = "        ";
                  c.targetName = "";
              }),
              "Blank Job Number: Cannot Clone. Job Number is Empty.");
    EXPECT_EQ(refusal([](JobClone& c) { c.targetName = " "; }),
              "Blank Job Name: Cannot Clone. Job Name is Empty.");
    EXPECT_EQ(refusal([](JobClone& c) {
                  c.targetCONO = 1;
                  c.targetJOBNO = source;
              }),
              "Job Number Already Exists.: Cannot Clone. Job Number Already in Job Number Table.");
    EXPECT_EQ(refusal([](JobClone&) {}), "");
}

TEST_F(Clone, TakesOverTheSettingsThatBelongToANewJob)
{
    EXPECT_TRUE(run({}));
    EXPECT_EQ(told, QStringList{"Adding New Record to Job Table"});
    EXPECT_EQ(rows("MAIN.mdb", "JOBLIST",
                   {"CONO", "JOBNO", "JOBNAME", "REMARKS", "CCNAMEA", "CCSIZEA", "TAXCOST",
                    "ENABLEDT", "CHECKSTHRS", "CLONEDOW"})
                  .last(),
              "2|      99|Mill II|~|Phase|4|0.25|-1|0|2");
    site.emptyTable("MAIN.mdb", "JOBLIST");
    EXPECT_FALSE(run({}));
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 0) << "no job is made of one that is gone";
}

TEST_F(Clone, CopiesCostCodesAsNeverDownloaded)
{
    site.addRow("MAIN.mdb", "CCALIST",
                {{"CONO", 1},
                 {"JOBNO", source},
                 {"COSTCODEA", "  12"},
                 {"DESCA", "Piping"},
                 {"WOTAG", 5},
                 {"NONREIM", true},
                 {"DLTAG", 7},
                 {"Location", "East"}});
    site.addRow("MAIN.mdb", "CCALIST", {{"CONO", 1}, {"JOBNO", "      13"}, {"COSTCODEA", "1"}});
    site.addRow("MAIN.mdb", "CCBLIST", {{"CONO", 1}, {"JOBNO", source}, {"COSTCODEB", "1"}});
    site.addRow("ZORUSER.mdb", "JCBUFCCALIST", {{"CONO", 9}, {"JOBNO", "left"}});
    EXPECT_TRUE(run({CloneStep::CostCodesC, CloneStep::CostCodesA}));
    EXPECT_EQ(told.mid(1),
              (QStringList{"Now Cloning Cost Code Group A...", "Cost Code Group A Cloned.",
                           "Now Cloning Cost Code Group C...", "Cost Code Group C Cloned."}));
    EXPECT_EQ(rows("MAIN.mdb", "CCALIST",
                   {"CONO", "JOBNO", "COSTCODEA", "DESCA", "WOTAG", "NONREIM", "DLTAG", "Location",
                    "GLCODE"}),
              (QStringList{"1|      12|  12|Piping|5|-1|7|East|~", "1|      13|1|~|~|0|~|~|~",
                           "2|      99|  12|Piping|5|-1|0|East|~"}));
    EXPECT_EQ(site.rowCount("MAIN.mdb", "CCBLIST"), 1) << "not ticked";
    EXPECT_EQ(rows("ZORUSER.mdb", "JCBUFCCALIST", {"CONO", "JOBNO"}), QStringList{"2|      99"})
        << "the buffer stays for the next run to empty";
}

TEST_F(Clone, GivesNewTagsThatChildrenFollow)
{
    site.addRow("MAIN.mdb", "SYSTAGS", {{"PCTAG", 50}, {"UDSTAG", 3}});
    for (const int position : {4, 5}) {
        site.addRow("MAIN.mdb", "PCLIST",
                    {{"PCTAG", position},
                     {"CONO", 1},
                     {"JOBNO", source},
                     {"PCCODE", QString("P%1").arg(position)}});
        site.addRow("MAIN.mdb", "CCLIST",
                    {{"CCTAG", position + 10},
                     {"PCTAG", position},
                     {"CCCODE", QString("C%1").arg(position)}});
        site.addRow("MAIN.mdb", "CCRATES", {{"CCTAG", position + 10}, {"RATE", position * 1.5}});
        site.addRow("MAIN.mdb", "CCUNION", {{"CCTAG", position + 10}, {"RATE", 0.5}});
    }
    site.addRow("MAIN.mdb", "CCLIST", {{"CCTAG", 20}, {"PCTAG", 6}, {"CCCODE", "other job"}});
    site.addRow("MAIN.mdb", "EXTCOSTCATS", {{"ECCTAG", 8}, {"CONO", 1}, {"JOBNO", source}});
    site.addRow("MAIN.mdb", "EXTCOSTRATES", {{"ECRTAG", 9}, {"ECCTAG", 8}, {"RATE", 2.0}});
    EXPECT_TRUE(run({CloneStep::PositionCodes, CloneStep::ExternalCosts}));
    EXPECT_EQ(rows("MAIN.mdb", "PCLIST", {"PCTAG", "CONO", "PCCODE"}).mid(2),
              (QStringList{"50|2|P4", "51|2|P5"}));
    EXPECT_EQ(rows("MAIN.mdb", "CCLIST", {"CCTAG", "PCTAG", "CCCODE"}).mid(3),
              (QStringList{"1|50|C4", "2|51|C5"}));
    EXPECT_EQ(rows("MAIN.mdb", "CCRATES", {"CCTAG", "RATE"}).mid(2), (QStringList{"1|6", "2|7.5"}));
    EXPECT_EQ(site.rowCount("MAIN.mdb", "CCUNION"), 4);
    EXPECT_EQ(rows("MAIN.mdb", "EXTCOSTRATES", {"ECRTAG", "ECCTAG", "RATE"}).mid(1),
              QStringList{"1|1|2"});
    EXPECT_EQ(rows("MAIN.mdb", "SYSTAGS", {"UDSTAG", "PCTAG", "CCTAG", "ECCTAG", "ECRTAG"}),
              QStringList{"3|52|3|2|2"});
}

TEST_F(Clone, CopiesEquipmentWhereTheSiteHasIt)
{
    EXPECT_FALSE(siteHasEquipment(site.siteFolder()));
    site.addRow("ZORBRQ.mdb", "CATCODES", {{"CATTAG", 1}, {"CONO", 1}, {"JOBNO", source}});
    site.addRow("ZORBRQ.mdb", "SUBCATS", {{"SCTAG", 1}, {"CATTAG", 1}});
    site.addRow("ZORBRQ.mdb", "SCRATES", {{"SCDTAG", 1}, {"SCTAG", 1}});
    site.addRow("ZORBRQ.mdb", "SCRDETAIL", {{"SCDTAG", 1}, {"RATE", 3.0}});
    site.addRow("ZORBRQ.mdb", "FUELTYPES", {{"FTTAG", 1}, {"CONO", 1}, {"JOBNO", source}});
    site.addRow("ZORBRQ.mdb", "ROLBRATES", {{"CONO", 1}, {"JOBNO", source}, {"RATE", 9.0}});
    site.addRow("ZORBRQ.mdb", "BRQTAGS",
                {{"CATTAG", 2}, {"SCTAG", 20}, {"SCDTAG", 200}, {"FTTAG", 2000}});
    EXPECT_TRUE(siteHasEquipment(site.siteFolder()));
    EXPECT_TRUE(run({CloneStep::EquipmentCategories, CloneStep::FuelTypes}));
    EXPECT_EQ(rows("ZORBRQ.mdb", "SUBCATS", {"SCTAG", "CATTAG"}).last(), "20|2");
    EXPECT_EQ(rows("ZORBRQ.mdb", "SCRATES", {"SCDTAG", "SCTAG"}).last(), "200|20");
    EXPECT_EQ(rows("ZORBRQ.mdb", "SCRDETAIL", {"SCDTAG", "RATE"}).last(), "200|3");
    EXPECT_EQ(rows("ZORBRQ.mdb", "FUELTYPES", {"FTTAG", "JOBNO"}).last(), "2000|      99");
    EXPECT_EQ(rows("ZORBRQ.mdb", "ROLBRATES", {"JOBNO", "RATE"}).last(), "      99|9");
    EXPECT_EQ(rows("ZORBRQ.mdb", "BRQTAGS", {"CATTAG", "SCTAG", "SCDTAG", "FTTAG"}),
              QStringList{"3|21|201|2001"});
}

TEST_F(Clone, CopiesTheDefaultsOfNewRequisitions)
{
    site.addRow("ZORVEX.mdb", "JOB_NO_DEFAULTS",
                {{"JNDTAG", 1},
                 {"CONO", 1},
                 {"JOBNO", source},
                 {"SHIPTO", "Gate 4"},
                 {"ITEM6", 7},
                 {"REQNO", 40},
                 {"REPLYTO", "nobody"}});
    site.addRow("ZORVEX.mdb", "VEXTAGS", {{"JNDTAG", 2}});
    EXPECT_TRUE(run({CloneStep::JobDefaults}));
    EXPECT_EQ(rows("ZORVEX.mdb", "JOB_NO_DEFAULTS",
                   {"JNDTAG", "CONO", "JOBNO", "SHIPTO", "ITEM6", "REQNO", "REPLYTO"})
                  .mid(1),
              QStringList{"2|2|      99|Gate 4|7|1|~"});
}

// Codes of a job that was deleted alone: the plain deletion leaves them behind.
TEST_F(Clone, StopsAtRowsThatStandThereAlready)
{
    site.addRow("MAIN.mdb", "CCALIST", {{"CONO", 1}, {"JOBNO", source}, {"COSTCODEA", "1"}});
    site.addRow("MAIN.mdb", "CCALIST", {{"CONO", 2}, {"JOBNO", target}, {"COSTCODEA", "1"}});
    EXPECT_THROW(run({CloneStep::CostCodesA}), storage::StorageError);
    EXPECT_EQ(told.last(), "Now Cloning Cost Code Group A...");
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 2) << "what was done stays";
}

}  // namespace
