// Inventory items on paper.
#include "inventory/item_prints.h"

#include "inventory/issue_summary.h"
#include "inventory/transaction_history.h"
#include "screens/report/report_run.h"
#include "tests/inventory/item_site.h"
#include "tests/support/page_text.h"

namespace {

class ItemPrints : public ItemSite
{
protected:
    ItemPrints()
    {
        addItem(5, "P-2", 1, 10, 0);
        addItem(6, "P-1", 1, 10, 77);
        addItem(7, "Q-1", 1, 11, 0);
        addItem(8, "P-9", 2, 10, 0);
    }
    void addItem(int ISNTAG, const char* PARTNO, int ILCTAG, int SERIESTAG, int VENTAG) const
    {
        add("INVENTORY", {{"ISNTAG", ISNTAG},
                          {"PARTNO", PARTNO},
                          {"ILCTAG", ILCTAG},
                          {"SERIESTAG", SERIESTAG},
                          {"VENTAG", VENTAG},
                          {"AVAILABLE", 12}});
    }
    QString print(const ReportSpec& spec,
                  const std::vector<std::pair<QString, QString>>& selection = {})
    {
        ReportRun run(spec, session);
        run.selection.set("ILCTAG", "1");
        run.selection.tick("IsValid");
        for (const auto& [name, value] : selection)
            run.selection.set(name, value);
        run.begin();
        QStringList lines;
        for (int page = 1; page <= run.pages.pageCount(); ++page)
            lines += linesOn(run.pages, page);
        return lines.join('\n');
    }
};

TEST_F(ItemPrints, ListsShowTheBranchUnderTheHeadsOfTheirOrder)
{
    const QString bySeries = print(frmVEXINVP04());
    EXPECT_TRUE(bySeries.contains("Branch Code: 1 - Yard"));
    EXPECT_LT(bySeries.indexOf("Series Code: 100 - Pipe"), bySeries.indexOf("P-1"));
    EXPECT_LT(bySeries.indexOf("P-1"), bySeries.indexOf("P-2"));
    EXPECT_LT(bySeries.indexOf("P-2"), bySeries.indexOf("Series Code: ??????"));
    EXPECT_FALSE(bySeries.contains("P-9")) << "another branch's";
    const QString byVendor = print(frmVEXINVP07());
    EXPECT_LT(byVendor.indexOf("Vendor Not Selected."), byVendor.indexOf("P-2"));
    EXPECT_LT(byVendor.indexOf("Preferred Vendor: ??????"), byVendor.indexOf("P-1"));
    const QString inRange = print(frmVEXINVP05(), {{"txtBPARTNO", "p-2"}, {"txtEPARTNO", "P-9"}});
    EXPECT_TRUE(inRange.contains("P-2"));
    EXPECT_FALSE(inRange.contains("P-1") || inRange.contains("Q-1"));
}

TEST_F(ItemPrints, DataSheetNamesWhatIsMissing)
{
    const QString sheet = print(frmVEXINV03(5));
    for (const char* text : {"Inventory Item Information", "100 - Pipe", "P-2",
                             "Vendor Not Selected.", "<None>", "12.00"})
        EXPECT_TRUE(sheet.contains(text)) << text;
}

TEST_F(ItemPrints, IssueSummaryTellsItsPeriodsAndRefusesWhatIsNone)
{
    const std::vector<std::pair<QString, QString>> whole = {{"txtBSERIESCODE", "100"},
                                                            {"txtESERIESCODE", "100"},
                                                            {"txtBDATE", "03/01/2026"},
                                                            {"txtEDATE", "03/15/2026"}};
    add("INVTRANS", {{"ISNTAG", 5},
                     {"ILCTAG", 1},
                     {"DOCTYPE", "RO"},
                     {"ITEMTYPE", "ROI"},
                     {"LDATE", "20260310"},
                     {"QUANTITY", 4}});
    auto active = whole;
    active.emplace_back("ckbVEXISROPT1", "-1");
    const QString page = print(frmVEXINVISR(), active);
    EXPECT_TRUE(page.contains("Issue Summary Report - Only Items with Activity for Period"));
    EXPECT_TRUE(page.contains("for Branch Code: 1 - Yard"));
    EXPECT_TRUE(page.contains("Period: 03/01/2026 - 03/15/2026"));
    EXPECT_TRUE(page.contains("Last Month: 02/01/2026 - 02/28/2026"));
    EXPECT_TRUE(page.contains("P-2") && page.contains("4.00"));
    EXPECT_FALSE(page.contains("P-1"));

    struct
    {
        const char* name;
        const char* value;
        const char* told;
    } const cases[] = {
        {"txtBSERIESCODE", "999", "Cannot Find Series Code: 999"},
        {"txtESERIESCODE", "", "Ending Series Code is Empty."},
        {"txtBDATE", "13/45/2026", "Invalid Beginning Date: 13/45/2026"},
        {"txtEDATE", "02/01/2026", "Ending Date is Less Than Beginning Date"},
    };
    for (const auto& bad : cases) {
        auto selection = whole;
        selection.emplace_back(bad.name, bad.value);
        user.expect("Cannot Print Report", bad.told);
        print(frmVEXINVISR(), selection);
        EXPECT_TRUE(user.allCame()) << bad.told;
    }
}

TEST_F(ItemPrints, TransactionHistoryNeedsItemsThatAreThereAndPrintsOnPaperOnRequest)
{
    add("INVTRANS", {{"ISNTAG", 5},
                     {"ILCTAG", 1},
                     {"DOCTYPE", "IA"},
                     {"ITEMTYPE", "IAI"},
                     {"DOCTAG", 7},
                     {"FDATE", "03/10/2026"},
                     {"LDATE", "20260310"},
                     {"QUANTITY", 4}});
    std::vector<std::pair<QString, QString>> wanted = {{"txtBPARTNO", "P-1"},
                                                       {"txtEPARTNO", "P-2"},
                                                       {"txtBDATE", "03/01/2026"},
                                                       {"txtEDATE", "03/15/2026"},
                                                       {"ckbVEXINVP08PPR", "-1"}};
    const QString page = print(frmVEXINVP08(), wanted);
    EXPECT_TRUE(page.contains("Adjustment") && page.contains("P-2"));
    wanted.back().second = "0";
    EXPECT_FALSE(print(frmVEXINVP08(), wanted).contains("P-2"));
    wanted[1].second = "P-7";
    user.expect("Cannot Print Report", "Cannot Find Ending Part Number: P-7");
    print(frmVEXINVP08(), wanted);
    wanted[0].second = "X";
    user.expect("Cannot Print Report", "Cannot Find Beginning Part Number: X");
    print(frmVEXINVP08(), wanted);
}

}  // namespace
