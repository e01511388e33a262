#include "tools/ledger_check.h"

#include <gtest/gtest.h>

#include "tests/inventory/ledger_site.h"

namespace {

class LedgerCheck : public LedgerSite
{
protected:
    LedgerCheck()
    {
        add("ILCLIST", {{"ILCTAG", 1}, {"ILCCODE", "NY"}});
        addItem(1);
        post("PO", 10, "RQI", 11, 1, 0, 8, "20260301");
        post("PO", 10, "REC", 12, 1, 0, 5, "20260302");
    }
    // What is found, without the part that names the item.
    QStringList findings() const
    {
        QStringList found = ledgerFindingsIn(site.pathOf("ZORVEX.mdb"));
        for (QString& finding : found) {
            EXPECT_TRUE(finding.startsWith("branch NY, part P-1, item 1: ")) << qPrintable(finding);
            finding = finding.section(": ", 1);
        }
        return found;
    }
    void storeOnHand(double quantity) const
    {
        site.setFirst("ZORVEX.mdb", "INVENTORY", "AVAILABLE", quantity);
    }
};

TEST_F(LedgerCheck, NamesTheRowAfterTheLastAgreement)
{
    EXPECT_EQ(findings(), QStringList());
    addLedgerRow(1, "IA", "IAI", 7, "20260303", -1);
    EXPECT_EQ(findings(),
              QStringList{"stored on hand 5, on order 3, issued 0, adjusted 0; replayed on hand 4, "
                          "on order 3, issued 0, adjusted -1; parts at IA 7 IAI 0 of 03/03/2026, "
                          "quantity -1"});
    addLedgerRow(1, "IA", "IAI", 8, "20260304", 1);
    EXPECT_EQ(findings(), QStringList()) << "the figures alone count";
}

TEST_F(LedgerCheck, NamesTheFirstRowWhereThereWasNoAgreement)
{
    storeOnHand(50);
    EXPECT_EQ(findings(),
              QStringList{"stored on hand 50, on order 3, issued 0, adjusted 0; replayed on hand "
                          "5, on order 3, issued 0, adjusted 0; parts at PO 10 RQI 11 of "
                          "03/01/2026, quantity 8"});
    site.emptyTable("ZORVEX.mdb", "INVTRANS");
    EXPECT_EQ(findings(),
              QStringList{"stored on hand 50, on order 3, issued 0, adjusted 0; replayed on hand "
                          "0, on order 0, issued 0, adjusted 0; the ledger has no row of it"});
}

TEST_F(LedgerCheck, TellsOfARowThatEndsTheReplay)
{
    addLedgerRow(1, "ZZ", "Z", 7, "20260303", -1);
    EXPECT_EQ(findings(), QStringList{"stored on hand 5, on order 3, issued 0, adjusted 0; the "
                                      "replay ends with \"Invalid Document Type: ZZ\""});
}

}  // namespace
