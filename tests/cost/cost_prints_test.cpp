// The prints of companies and jobs.
#include "cost/cost_prints.h"

#include <gtest/gtest.h>

#include "cost/cost_codes.h"
#include "screens/report/report_run.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class CostPrints : public testing::Test
{
protected:
    CostPrints()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        for (const char* table : {"COLIST", "JOBLIST"})
            site.emptyTable("MAIN.mdb", table);
        site.addRow("MAIN.mdb", "COLIST",
                    {{"CONO", 12},
                     {"CONAME", "Twelve"},
                     {"ADDRESS1", "1 Mill St"},
                     {"CITY", "Reno"},
                     {"State", "NV"},
                     {"ZIP", "89501"},
                     {"PLUS4", "1234"}});
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 7}, {"CONAME", "Seven"}});
        const auto addJob = [this](int CONO, const char* JOBNO, const char* JOBNAME) {
            site.addRow("MAIN.mdb", "JOBLIST",
                        {{"CONO", CONO},
                         {"JOBNO", JOBNO},
                         {"JOBNAME", JOBNAME},
                         {"CCNAMEA", "Phase"},
                         {"CCTYPEA", "N"},
                         {"CCSIZEA", 4},
                         {"CLONEDOW", 1},
                         {"VERIFYCC", true}});
        };
        addJob(7, "    1002", "Mill");
        addJob(7, "    1001", "Yard");
        addJob(12, "    1001", "Elsewhere");
    }
    static QStringList allLines(const ReportRun& run)
    {
        QStringList lines;
        for (int page = 1; page <= run.pages.pageCount(); ++page)
            lines += linesOn(run.pages, page);
        return lines;
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(CostPrints, CompaniesStandInTheOrderOfTheirNumbersWithTheirAddress)
{
    ReportRun run(frmZORCO03(), session);
    run.begin();
    const QStringList lines = allLines(run);
    EXPECT_TRUE(lines.contains("Company Numbers"));
    const QString text = lines.join('|');
    EXPECT_GE(text.indexOf("Seven"), 0) << text.toStdString();
    EXPECT_GT(text.indexOf("Twelve"), text.indexOf("Seven"));
    EXPECT_TRUE(text.contains("1 Mill St"));
    EXPECT_TRUE(text.contains("Reno, NV 89501-1234"));
}

TEST_F(CostPrints, SheetsOfOneJobOrAllOfTheCompanyAndTheirList)
{
    enum { one, all, list };
    ReportRun run(frmZORJOB04(7, "    1002"), session);
    EXPECT_EQ(run.spec().begins[one].caption, "&D/S for: 1002");
    run.begin(one);
    QStringList lines = allLines(run);
    EXPECT_EQ(run.pages.pageCount(), 1) << "a sheet is a page";
    EXPECT_TRUE(lines.contains("Job Number Information"));
    // A value stands a little above its label.
    const QString text = lines.join('|');
    for (const char* line : {"Mill|Job Name:", "Phase, numbers only, size 4|Group A:",
                             "(none)|Group B:", "Verify Cost Code Combinations|Yes",
                             "Check Burden Table|No", "Saturday|Cloned Week Ends on:"})
        EXPECT_TRUE(text.contains(line)) << line << '\n' << text.toStdString();
    for (const PlacedText& label : textsOf(run.pages, 1))
        for (const PlacedText& value : textsOf(run.pages, 1)) {
            const bool isBefore = std::abs(label.y - value.y) < 100 && label.x < value.x;
            EXPECT_TRUE(!isBefore || label.x + label.width <= value.x)
                << label.text.toStdString() << " lies over " << value.text.toStdString();
        }

    run.begin(all);
    EXPECT_EQ(run.pages.pageCount(), 2);
    EXPECT_EQ(allLines(run).filter("Elsewhere").size(), 0);

    run.begin(list);
    lines = allLines(run);
    EXPECT_TRUE(lines.contains("Job Numbers"));
    EXPECT_TRUE(lines.contains("Company:  7 Seven") || lines.contains("Company: 7 Seven"));
    ASSERT_GE(lines.indexOf("1001|Yard"), 0) << lines.join('\n').toStdString();
    EXPECT_GT(lines.indexOf("1002|Mill"), lines.indexOf("1001|Yard"));
}

TEST_F(CostPrints, OneSheetNeedsAJob)
{
    ReportRun run(frmZORJOB04(7, ""), session);
    user.expect("No Current Job Number",
                "To Print a Data Sheet for One Job Number\n"
                "Highlight it in the List of Job Numbers.");
    run.begin(0);
    EXPECT_EQ(run.state(), ReportRun::State::Idle);
}

TEST_F(CostPrints, CostCodesStandUnderTheirJobAndInTheOrderOfTheirStoredForm)
{
    site.emptyTable("MAIN.mdb", "CCALIST");
    const auto addCode = [this](const char* JOBNO, const char* code, const char* description) {
        site.addRow("MAIN.mdb", "CCALIST",
                    {{"CONO", 7}, {"JOBNO", JOBNO}, {"COSTCODEA", code}, {"DESCA", description}});
    };
    addCode("    1001", "  12", "Roof");
    addCode("    1001", "   2", "Walls");
    addCode("    1002", "   3", "Elsewhere");
    ReportRun run(frmPLGCCG02(costCodeGroups[0], 7, "    1001", "  12"), session);
    run.begin(0);
    QStringList lines = allLines(run);
    EXPECT_TRUE(lines.contains("Job Number: 1001 Yard"));
    EXPECT_TRUE(lines.contains("Group A: Phase"));
    const QString text = lines.join('\n');
    EXPECT_LT(text.indexOf("Walls"), text.indexOf("Roof"));
    EXPECT_FALSE(text.contains("Elsewhere"));
    run.begin(1);
    lines = allLines(run);
    EXPECT_TRUE(lines.join('\n').contains("Roof"));
    EXPECT_FALSE(lines.join('\n').contains("Walls"));

    ReportRun onNone(frmPLGCCG02(costCodeGroups[0], 7, "    1001", " "), session);
    user.expect("No Current Cost Code",
                "To Print a Data Sheet for One Cost Code\n"
                "Highlight it in the List of Cost Codes.");
    onNone.begin(1);
}

}  // namespace
