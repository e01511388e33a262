// Who may open documents, and what happens when two users want one.
#include "multiuser/record_locks.h"
#include "multiuser/users.h"
#include "purchasing/document_list.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "tests/purchasing/purchasing_site.h"
#include "tests/support/window_helpers.h"

namespace {

class DocumentAccess : public testing::Test, public Desktop, protected PurchasingSite
{
protected:
    DocumentAccess() : m_before(Desktop::install(this))
    {
        int tag = 0;
        for (const char* right : {"REQ02", "REQ03", "PO01", "PO02", "REQ01"})
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", ++tag}, {"UAICODE", right}, {"Desc", right}});
        installRefusalScreen(
            [this](const QString&, const QString& process) { refusals.append(process); });
        installLockedScreen([this](const HeldLock& lock, bool) {
            refusals.append(lock.tableName + " of " + lock.userName);
            return false;
        });
        addRequisition(1);
    }
    ~DocumentAccess() override
    {
        installLockedScreen({});
        installRefusalScreen({});
        Desktop::install(m_before);
    }
    void openScreen(QWidget* screen) override { opened.reset(screen); }

    void deny(int UAITAG) const
    {
        site.addRow("ZORNET.mdb", "USERRIGHTS",
                    {{"USERTAG", 1}, {"UAITAG", UAITAG}, {"ALLOWED", false}});
    }
    void run(BrowseSession& list, const QString& name) const
    {
        for (const BrowseCommand& command : list.spec().commands)
            if (command.name == name)
                return list.run(command);
        ADD_FAILURE() << name.toStdString();
    }
    // Edit, delete and browse detail, one after the other: how many of them opened a screen.
    int openings(BrowseSession& list)
    {
        int count = 0;
        for (const auto& open : {std::function([&] { list.edit(); }),
                                 {[&] { list.remove(); }},
                                 {[&] { run(list, "cmdDetail"); }}}) {
            open();
            count += opened != nullptr;
            closeScreen();
        }
        return count;
    }
    void closeScreen()
    {
        if (const auto screen = std::move(opened))
            screen->close();
    }
    int locks() const { return site.rowCount("ZORNET.mdb", "RECORDLOCKS"); }

    std::unique_ptr<QWidget> opened;
    QStringList refusals;

private:
    Desktop* m_before;
};

TEST_F(DocumentAccess, AClosedRequisitionIsOnlyLookedAtWithoutTheRight)
{
    deny(2);
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    EXPECT_EQ(openings(list), 3) << "a blank status is open";
    EXPECT_EQ(locks(), 0) << "each screen gave its lock up";
    site.setFirst("ZORVEX.mdb", "REQLIST", "Status", "Closed");
    list.edit();
    list.remove();
    EXPECT_FALSE(opened);
    EXPECT_EQ(refusals, (QStringList{"REQ03", "REQ03"}));
    run(list, "cmdStatus");
    EXPECT_EQ(refusals.size(), 3);
    run(list, "cmdDetail");
    ASSERT_TRUE(opened);
    EXPECT_EQ(refusals.size(), 3) << "nothing is said";
    EXPECT_EQ(locks(), 0);
    const BrowseSession& lines = static_cast<BrowseWindow&>(*opened).session();
    EXPECT_FALSE(lines.spec().mayAdd || lines.spec().mayEdit || lines.spec().mayDelete);
    site.setFirst("ZORVEX.mdb", "REQLIST", "AMOUNT", 3);
    closeScreen();
    EXPECT_EQ(rows("REQLIST", {"AMOUNT"}), QStringList{"3"}) << "who looks on writes no totals";
}

TEST_F(DocumentAccess, ARightThatWasTakenAwayHoldsInAnOpenList)
{
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    deny(5);
    EXPECT_EQ(openings(list), 0);
    run(list, "cmdStatus");
    EXPECT_EQ(refusals, QStringList(4, "REQ01"));
    EXPECT_EQ(locks(), 0);
}

TEST_F(DocumentAccess, WhatAnotherUserHasCanBeViewedOnly)
{
    add("POLIST", {{"POTAG", 70}, {"PONO", "A"}, {"CONO", 1}, {"JOBNO", job}});
    ASSERT_FALSE(dnRecordLock(10, "REQUISITIONS", 2, "kim", 20));
    ASSERT_FALSE(dnRecordLock(70, "PURCHASE ORDERS", 2, "kim", 20));
    for (const auto& [spec, lock] :
         {std::pair{frmVEXREQ01(), "REQUISITIONS"}, {frmVEXPO01(), "PURCHASE ORDERS"}}) {
        BrowseSession list(spec, session);
        list.open();
        refusals.clear();
        EXPECT_EQ(openings(list), 0);
        EXPECT_EQ(refusals, QStringList(3, QString(lock) + " of kim"));
        EXPECT_TRUE(list.openDetail("V"));
        closeScreen();
        EXPECT_EQ(locks(), 2) << "kim's stay";
    }
    dnRecordUnlock(10, "REQUISITIONS");
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    run(list, "cmdDetail");
    ASSERT_TRUE(opened);
    EXPECT_EQ(locks(), 2) << "the lines hold the document";
    closeScreen();
    EXPECT_EQ(locks(), 1);
    EXPECT_EQ(rows("REQLIST", {"AMOUNT"}), QStringList{"20"});
}

TEST_F(DocumentAccess, AFilterThatAnotherUserEmptiesTurnsItselfOff)
{
    add("REQLIST", {{"REQTAG", 11}, {"REQNO", 24}, {"CONO", 1}, {"JOBNO", job}, {"VENTAG", 41}});
    setUser("VEXREQFILTEROPT", 3);
    setUser("VEXREQFILTERVENTAG", 40);
    BrowseSession list(frmVEXREQ01(), session);
    list.open();
    EXPECT_EQ(list.list().lines()[0].cells.value(1), "00023");
    {
        OpenTable documents = site.open("ZORVEX.mdb", "REQLIST");
        documents.rows.Delete();
    }
    user.expect("Filter Error",
                "Cannot Find any Records Matching Vendor Filter Selection.\n"
                "Filter Selection will be Turned Off.");
    list.comeToFront();
    EXPECT_TRUE(user.allCame());
    EXPECT_EQ(list.spec().status(list), "Filter: <none>");
    EXPECT_EQ(list.list().lines()[0].cells.value(1), "00024");
}

}  // namespace
