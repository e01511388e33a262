#include "cost/job_deletion.h"

#include <gtest/gtest.h>

#include "tests/support/table_rows.h"

namespace {

const QString job = "      12";
const QString other = "      13";

class JobDeletion : public testing::Test
{
protected:
    void add(const char* file, const char* table, TestInstallation::NewRow values) const
    {
        site.addRow(file, table, values);
    }
    void addPair(const char* file, const char* table, const QString& number) const
    {
        add(file, table, {{"CONO", 1}, {"JOBNO", number}});
    }
    void addLine(int tag, int requisition, int order) const
    {
        add("ZORVEX.mdb", "RQILIST", {{"RQITAG", tag}, {"REQTAG", requisition}, {"POTAG", order}});
        add("ZORVEX.mdb", "PAYMENTS", {{"RQITAG", tag}});
        add("ZORVEX.mdb", "RECEIVED", {{"RQITAG", tag}});
    }
    // A job with rows in all steps, beside another that has the same.
    void fillSite() const;

    bool run()
    {
        return deleteJob(site.siteFolder(), 1, job,
                         {.deleted =
                              [this](const QString& name, int count) {
                                  report.append(name + ": " + deletionCountText(count));
                              },
                          .remark = [this](const QString& text) { report.append(text); },
                          .proceed =
                              [this](const QString&, int) {
                                  ++asked;
                                  return asked < stopAt;
                              }});
    }
    QStringList rows(const char* file, const char* table, const char* field) const
    {
        return rowsOf(site, file, table, {field});
    }

    TestInstallation site;
    QStringList report;
    int asked = 0;
    int stopAt = 1'000'000;
};

void JobDeletion::fillSite() const
{
    int tag = 0;
    for (const QString& number : {job, other}) {
        for (const char* table :
             {"TCLIST", "CCALIST", "CCBLIST", "CCCLIST", "CCCLIST", "UALIST", "JOBLIST"})
            addPair("MAIN.mdb", table, number);
        for (const char* table : {"JOB_NO_DEFAULTS", "INVCODES"})
            addPair("ZORVEX.mdb", table, number);
        for (const char* table : {"ETINV", "ETLIST", "ETLIST"})
            addPair("ZORBRQ.mdb", table, number);
        ++tag;
        add("MAIN.mdb", "PCLIST", {{"PCTAG", tag}, {"CONO", 1}, {"JOBNO", number}});
        add("MAIN.mdb", "CCLIST", {{"CCTAG", 10 + tag}, {"PCTAG", tag}});
        for (const char* table : {"CCRATES", "CCUNION"})
            add("MAIN.mdb", table, {{"CCTAG", 10 + tag}});
        add("MAIN.mdb", "EXTCOSTCATS", {{"ECCTAG", tag}, {"CONO", 1}, {"JOBNO", number}});
        add("MAIN.mdb", "EXTCOSTRATES", {{"ECRTAG", tag}, {"ECCTAG", tag}});
        add("MAIN.mdb", "EXTCOSTITEMS", {{"ECCTAG", tag}});
        add("ZORVEX.mdb", "REQLIST",
            {{"REQTAG", tag}, {"REQNO", tag}, {"CONO", 1}, {"JOBNO", number}});
        add("ZORVEX.mdb", "POLIST",
            {{"POTAG", tag}, {"PONO", QString::number(tag)}, {"CONO", 1}, {"JOBNO", number}});
        addLine(100 * tag, tag, 0);        // not ordered yet
        addLine(100 * tag + 1, tag, tag);  // ordered
        addLine(100 * tag + 2, 0, tag);    // ordered without a requisition
        add("ZORVEX.mdb", "ISSUED", {{"RQITAG", 100 * tag + 2}});
        add("ZORVEX.mdb", "INVTRANS", {{"ITEMTAG", 100 * tag}});
        add("ZORBRQ.mdb", "CATCODES", {{"CATTAG", tag}, {"CONO", 1}, {"JOBNO", number}});
        add("ZORBRQ.mdb", "SUBCATS", {{"SCTAG", tag}, {"CATTAG", tag}});
        add("ZORBRQ.mdb", "SCRATES", {{"SCDTAG", tag}, {"SCTAG", tag}});
        add("ZORBRQ.mdb", "SCRDETAIL", {{"SCDTAG", tag}});
        add("ZORBRQ.mdb", "FUELTYPES", {{"FTTAG", tag}, {"CONO", 1}, {"JOBNO", number}});
    }
}

TEST_F(JobDeletion, TakesAllThatHangsOnTheJobAndTellsHowMany)
{
    fillSite();
    EXPECT_TRUE(run());
    EXPECT_EQ(report.join('\n'),
              "Time Card Items: 1 Record Deleted.\n"
              "Cost Code: Group A Cost Code: 1 Record Deleted.\n"
              "Cost Code: Group B Cost Code: 1 Record Deleted.\n"
              "Cost Code: Group C Cost Code: 2 Records Deleted.\n"
              "Position Codes: 1 Record Deleted.\n"
              "Class Codes: 1 Record Deleted.\n"
              "Class Codes Rates by Date: 1 Record Deleted.\n"
              "Class Code Benefits by Date: 1 Record Deleted.\n"
              "External Cost Categories: 1 Record Deleted.\n"
              "External Cost Rates: 1 Record Deleted.\n"
              "External Cost Items: 1 Record Deleted.\n"
              "Requisitions: 1 Record Deleted.\n"
              "Req/PO Detail : 2 Records Deleted.\n"
              "Purchase Orders: 1 Record Deleted.\n"
              "Req/PO Detail : 1 Record Deleted.\n"
              "Payment Detail: 3 Records Deleted.\n"
              "Received Detail: 3 Records Deleted.\n"
              "Issued Detail: 1 Record Deleted.\n"
              "Job Number Defaults: 1 Record Deleted.\n"
              "Invoice Codes: 1 Record Deleted.\n"
              "Equipment Usage Items: 1 Record Deleted.\n"
              "Equipment Usage Items: 2 Records Deleted.\n"
              "Equipment Category Codes: 1 Record Deleted.\n"
              "Equipment Subcategory Codes: 1 Record Deleted.\n"
              "Equipment Subcategory Rates: 1 Record Deleted.\n"
              "Subcategory Rates by Date: 1 Record Deleted.\n"
              "Fuel Types: 1 Record Deleted.\n"
              "Job Numbers: 1 Record Deleted.");
    EXPECT_EQ(rows("ZORVEX.mdb", "RQILIST", "RQITAG"), (QStringList{"200", "201", "202"}));
    EXPECT_EQ(rows("ZORVEX.mdb", "PAYMENTS", "RQITAG"), (QStringList{"200", "201", "202"}));
    EXPECT_EQ(rows("MAIN.mdb", "CCRATES", "CCTAG"), QStringList{"12"});
    EXPECT_EQ(rows("ZORBRQ.mdb", "SCRDETAIL", "SCDTAG"), QStringList{"2"});
    EXPECT_EQ(rows("MAIN.mdb", "JOBLIST", "JOBNO"), QStringList{other});
    EXPECT_EQ(rows("MAIN.mdb", "CCBLIST", "JOBNO"), QStringList{other});
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "INVTRANS"), 2) << "the ledger stays";
    EXPECT_EQ(site.rowCount("MAIN.mdb", "UALIST"), 2) << "agreement codes are the labour module's";
}

TEST_F(JobDeletion, LeavesTheSameNumberOfAnotherCompany)
{
    for (const char* table : {"TCLIST", "CCALIST", "CCCLIST", "JOBLIST"})
        add("MAIN.mdb", table, {{"CONO", 2}, {"JOBNO", job}});
    add("ZORVEX.mdb", "REQLIST", {{"REQTAG", 5}, {"REQNO", 1}, {"CONO", 2}, {"JOBNO", job}});
    addLine(50, 5, 0);
    EXPECT_TRUE(run());
    for (const QString& line : std::as_const(report))
        EXPECT_FALSE(line.contains("Deleted")) << qPrintable(line);
    EXPECT_EQ(site.rowCount("MAIN.mdb", "CCCLIST"), 1);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "PAYMENTS"), 1);
}

TEST_F(JobDeletion, TellsWhichDatabasesAreMissingAndTakesTheRest)
{
    addPair("MAIN.mdb", "JOBLIST", job);
    site.removeFile("ZORVEX.mdb");
    EXPECT_TRUE(run());
    EXPECT_EQ(report.mid(11),
              (QStringList{"Cannot Find Material Database", "Cannot Find Equipment Database",
                           "Job Numbers: 1 Record Deleted."}));
    for (const QString& line : report.first(11))
        EXPECT_TRUE(line.endsWith("No Items Found")) << qPrintable(line);
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 0);
}

// Rows that were stored after a failure to draw a tag have 0, as lines without a document do.
TEST_F(JobDeletion, LeavesTheLinesOfOthersWhereATagIsMissing)
{
    add("ZORVEX.mdb", "REQLIST", {{"REQTAG", 0}, {"REQNO", 1}, {"CONO", 1}, {"JOBNO", job}});
    add("ZORVEX.mdb", "POLIST", {{"PONO", "1"}, {"CONO", 1}, {"JOBNO", job}});
    addLine(5, 0, 7);
    addLine(6, 8, 0);
    EXPECT_TRUE(run());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "REQLIST"), 0);
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 2);
}

TEST_F(JobDeletion, StoppedLeavesNoChildWithoutItsParentAndGoesOnNextTime)
{
    addPair("MAIN.mdb", "JOBLIST", job);
    OpenTable orders = site.open("ZORVEX.mdb", "POLIST");
    storage::Recordset lines = orders.database.OpenRecordset("RQILIST");
    orders.workspace.BeginTrans();
    for (int order = 1; order <= 60; ++order) {
        orders.rows.AddNew();
        orders.rows["POTAG"] = order;
        orders.rows["PONO"] = QString::number(order);
        orders.rows["CONO"] = 1;
        orders.rows["JOBNO"] = job;
        orders.rows.Update();
        for (int line = 0; line < 40; ++line) {
            lines.AddNew();
            lines["RQITAG"] = order * 100 + line;
            lines["POTAG"] = order;
            lines.Update();
        }
    }
    orders.workspace.CommitTrans();
    stopAt = 2;
    EXPECT_FALSE(run());
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 1);
    const QStringList left = rows("ZORVEX.mdb", "POLIST", "POTAG");
    const QStringList leftLines = rows("ZORVEX.mdb", "RQILIST", "POTAG");
    EXPECT_EQ(60 - left.size() + 2400 - leftLines.size(), 2000) << "whole batches, all committed";
    for (const QString& owner : leftLines)
        EXPECT_TRUE(left.contains(owner)) << qPrintable(owner);
    stopAt = 1000;
    EXPECT_TRUE(run());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "RQILIST"), 0);
    EXPECT_EQ(site.rowCount("MAIN.mdb", "JOBLIST"), 0);
}

}  // namespace
