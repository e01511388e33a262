#include "inventory/ledger_refresh.h"

#include "screens/selectors/branch_selector.h"
#include "tests/inventory/item_site.h"
#include "tests/support/window_helpers.h"

namespace {

class LedgerRefresh : public ItemSite
{
protected:
    LedgerRefresh()
    {
        for (const char* table : {"INVADJLIST", "INVTRANS", "PILIST", "POLIST"})
            site.emptyTable("ZORVEX.mdb", table);
        add("INVENTORY", {{"ISNTAG", 1}, {"ILCTAG", 1}, {"PARTNO", "P-1"}});
        for (const int tag : {1, 2, 3})
            add("INVADJLIST", {{"INVADJTAG", tag},
                               {"ISNTAG", 1},
                               {"FDATE", "03/04/2026"},
                               {"LDATE", "20260304"},
                               {"QUANTITY", 5}});
    }
    void show()
    {
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    void choose(const char* branch)
    {
        control<QLineEdit>(dialog, "txtILCCODE").setFocus();
        type(dialog, "txtILCCODE", branch);
        QTest::keyClick(&control<QLineEdit>(dialog, "txtILCCODE"), Qt::Key_Tab);
    }
    QStringList available() const { return rows("INVENTORY", {"AVAILABLE"}); }

    using ItemSite::type;
    static void type(const QObject& window, const QString& name, const QString& text)
    {
        ::type(window, name, text);
    }

    frmVEXINVCALC dialog{session};
};

TEST_F(LedgerRefresh, NeedsABranchAndTellsThatItIsDone)
{
    show();
    user.expect("Error", "Select a Valid Branch Code");
    press(dialog, "cmdRecalculate");
    choose("1");
    user.expect("Finished", "Invenotory Quantities have been Recalculated.");
    press(dialog, "cmdRecalculate");
    EXPECT_EQ(available(), QStringList{"15"});
    EXPECT_EQ(control<QPushButton>(dialog, "CmdExit").text(), "E&xit");
    EXPECT_TRUE(dialog.isVisible());
    press(dialog, "CmdExit");
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(LedgerRefresh, CancelStopsTheRunAndLeavesTheScreen)
{
    show();
    for (const bool byKey : {false, true}) {
        choose("1");
        QTimer::singleShot(0, [&] {
            auto& exit = control<QPushButton>(dialog, "CmdExit");
            EXPECT_EQ(exit.text(), "&Cancel");
            if (byKey)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                press(dialog, "CmdExit");
        });
        user.expect("Process Incomplete",
                    "Process has been interrupted. \n"
                    "Warning: Not all Quantities were Recalculated.");
        control<QPushButton>(dialog, "cmdRecalculate").click();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(available(), QStringList{"~"}) << "as it was";
    }
}

}  // namespace
