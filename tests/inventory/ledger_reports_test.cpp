#include "inventory/ledger_reports.h"

#include <gtest/gtest.h>

#include "core/zap.h"
#include "tests/inventory/ledger_site.h"

namespace {

class LedgerReports : public LedgerSite
{
protected:
    LedgerReports()
    {
        add("SERIESCODES", {{"SERIESTAG", 4}, {"ILCTAG", 1}, {"SERIESCODE", "010"}});
        addPart(1, "A-1", 1);
        addPart(2, "B-2", 1);
        addPart(3, "C-3", 1, 9);
        addPart(4, "B-2", 2);
    }
    void addPart(int isnTag, const char* part, int branch, int bin = 0) const
    {
        add("INVENTORY", {{"ISNTAG", isnTag},
                          {"ILCTAG", branch},
                          {"PARTNO", part},
                          {"SERIESTAG", 4},
                          {"BINTAG", bin},
                          {"RETAIL", 2.5},
                          {"WHOLESALE", 1.115}});
    }
    static QStringList rowsOf(OpenTable& buffer, std::initializer_list<const char*> fields)
    {
        QStringList found;
        storage::Recordset& rows = buffer.rows;
        if (rows.RecordCount() == 0)
            return found;
        rows.MoveFirst();
        do {
            QStringList texts;
            for (const char* field : fields)
                texts.append(rows.fieldNamed(field).value().toString());
            found.append(texts.join('|'));
        } while (rows.MoveNext());
        return found;
    }
    QStringList summary(IssueActivity activity) const
    {
        OpenTable buffer = emptiedTable(site.userFolder(), "ZORUSER.mdb", "INVISR");
        EXPECT_TRUE(fillIssueSummary({.jobSitePath = site.siteFolder(),
                                      .ILCTAG = 1,
                                      .beginSERIESCODE = "010",
                                      .endSERIESCODE = "010",
                                      .begin = QDate(2026, 2, 15),
                                      .end = QDate(2026, 3, 10),
                                      .activity = activity},
                                     buffer, [] { return true; }));
        return rowsOf(buffer, {"SERIESCODE", "PARTNO", "ISSUED", "MONTHTODATE", "LASTMONTH",
                               "LAST12MONTHS", "MONTHAVERAGE", "EXTCOST", "BINNO"});
    }
};

TEST_F(LedgerReports, TransactionHistoryBeginsBalancesBeforeItsDates)
{
    for (int item = 1; item <= 4; ++item)
        addLedgerRow(item, "PI", "PII", 1, "20260301", 10 * item);
    addLedgerRow(2, "MR", "MRI", 7, "20260302", 4);
    addLedgerRow(2, "MI", "MII", 7, "20260303", 4);
    addLedgerRow(2, "IA", "IAI", 7, "20260304", 4);
    OpenTable buffer = emptiedTable(site.siteFolder(), "VEXREPORTS.mdb", "TransactionHistory");
    EXPECT_TRUE(fillTransactionHistory({.jobSitePath = site.siteFolder(),
                                        .ILCTAG = 1,
                                        .beginPARTNO = "B",
                                        .endPARTNO = "b-2",
                                        .beginLDATE = "20260302",
                                        .endLDATE = "20260303"},
                                       buffer, [] { return true; }));
    EXPECT_EQ(rowsOf(buffer, {"LINENO", "PARTNO", "SERIESCODE", "SUBCATCODE", "DOCDESC", "DOCNO",
                              "AVAILABLE", "UNITPRICE", "AMOUNT"}),
              (QStringList{"1|B-2|010|????|Material Release Report|?????????|16|2.5|10",
                           "2|B-2|010|????|Unknown Document: MI||16|2.5|10"}));
}

TEST_F(LedgerReports, IssueSummaryAddsRepairOrdersUpByPeriod)
{
    const struct
    {
        const char* date;
        double quantity;
    } uses[] = {{"20250228", 1000}, {"20250301", 100}, {"20260201", 20}, {"20260228", 8},
                {"20260301", 3},    {"20260310", 1},   {"20260311", 500}};
    int order = 0;
    for (const auto& use : uses)
        addLedgerRow(1, "RO", "ROI", ++order, use.date, use.quantity);
    addLedgerRow(1, "MI", "MII", 1, "20260301", 9);
    addLedgerRow(2, "IA", "IAI", 1, "20260301", 9);
    const QString active = "010|A-1|12|4|28|128|10.67|13.38|";
    const QStringList others = {"010|B-2|0|0|0|0|0|0|", "010|C-3|0|0|0|0|0|0|??????"};
    EXPECT_EQ(summary(IssueActivity::All), QStringList{active} + others);
    EXPECT_EQ(summary(IssueActivity::OnlyWith), QStringList{active});
    EXPECT_EQ(summary(IssueActivity::OnlyWithout), others);
}

}  // namespace
