// Vendors and manufacturers: what is refused, how fields are tidied, locks, deletion and prints.
#include "inventory/address_books.h"

#include "core/window_registry.h"
#include "multiuser/record_locks.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_run.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class AddressBooks : public testing::Test, public Desktop
{
protected:
    AddressBooks() : before(Desktop::install(this))
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.UserName = TestInstallation::userName;
        session.UserTag = 1;
        session.SiteTag = 3;
        for (const char* code : {"VEN02", "MFG02"})
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", code[0]}, {"UAICODE", code}, {"Desc", "Edit"}});
        for (const char* table : {"VENDORS", "MANUFACTURERS", "TERMSCODES"})
            site.emptyTable("ZORVEX.mdb", table);
        site.addRow("ZORVEX.mdb", "TERMSCODES",
                    {{"TERMSCODETAG", 7}, {"TERMSCODE", "N3"}, {"TCNAME", "Net 30"}});
    }
    ~AddressBooks() override { Desktop::install(before); }
    void openScreen(QWidget* screen) override { opened.reset(screen); }

    void addVendor(int tag, const QString& number, const QString& name, int terms = 0)
    {
        site.addRow("ZORVEX.mdb", "VENDORS",
                    {{"VENTAG", tag}, {"VENNO", number}, {"Name", name}, {"TERMSCODETAG", terms}});
    }
    DataRecord vendor(const QString& mode, int tag)
    {
        return {.mode = mode, .index = "VENTAG", .keys = {{"VENTAG", tag}}, .tag = tag};
    }
    int locks() const { return site.rowCount("ZORNET.mdb", "RECORDLOCKS"); }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
    std::unique_ptr<QWidget> opened;
    Desktop* before;
};

TEST_F(AddressBooks, AddAVendorInTheFormsThatAreKept)
{
    addVendor(1, "OLD", "Other");
    DataSession screen(frmVEXVEN02(session), session, {});
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.caption(), "Vendors - Add");
    screen.entry().setNamed("txtTERMSCODE", "zz");
    user.expect("Cannot Update",
                "Errors Detected: \n\nVendor Number is Empty.\nVendor Name is Empty.\n"
                "Cannot Find Terms Code: ZZ");
    EXPECT_FALSE(screen.update());
    screen.entry().setText("VENNO", "old");
    screen.entry().setText("Name", "Harbor Supply");
    screen.entry().setNamed("txtTERMSCODE", " n3 x");
    user.expect("Cannot Update",
                "Errors Detected: \n\nA Duplicate Vendor Number has been Detected.\nThe Vendor "
                "Number you have entered\nalready exists on another line.");
    EXPECT_FALSE(screen.update());
    screen.entry().setText("VENNO", " new ");
    screen.entry().setText("CITY", "salt lake of the hills");
    screen.entry().setText("State", "ut");
    screen.entry().setText("PHONE", "8015550142");
    ASSERT_TRUE(screen.update());
    OpenTable vendors = site.open("ZORVEX.mdb", "VENDORS");
    vendors.rows.Index("VENNO");
    ASSERT_TRUE(vendors.rows.Seek("=", "NEW"));
    EXPECT_EQ(textOf(vendors.rows["VENNO"]), "NEW");
    EXPECT_EQ(textOf(vendors.rows["CITY"]), "Salt Lake of the Hills");
    EXPECT_EQ(textOf(vendors.rows["State"]), "UT");
    EXPECT_EQ(textOf(vendors.rows["PHONE"]), "(801) 555-0142");
    EXPECT_EQ(intOf(vendors.rows["TERMSCODETAG"]), 7);
    EXPECT_EQ(intOf(vendors.rows["VENTAG"]) / 1000000, 3) << "the site's number stands before";
}

TEST_F(AddressBooks, EditAVendorKeepingItsNumberAndDroppingItsTerms)
{
    addVendor(1, "A1", "Alpha", 7);
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "VEXUCASEONLY", true);
    DataSession screen(frmVEXVEN02(session), session, vendor("E", 1));
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.entry().named("txtTERMSCODE"), "N3");
    screen.entry().setNamed("txtTERMSCODE", " ");
    screen.entry().setText(screen.entry().indexOf(schema::FieldName("CONTACT")), "jo");
    EXPECT_EQ(screen.entry()["CONTACT"], "JO") << "upper case only";
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "TERMSCODETAG").toInt(), 0);
}

TEST_F(AddressBooks, EditLeavesWhatIsNotTouchedAsItWasStored)
{
    site.addRow("ZORVEX.mdb", "VENDORS",
                {{"VENTAG", 1},
                 {"VENNO", "A1"},
                 {"Name", "Alpha"},
                 {"CITY", "SLC and so on"},
                 {"PHONE", "801-555-0142 x12"},
                 {"TERMSCODETAG", 99}});  // gone
    DataSession screen(frmVEXVEN02(session), session, vendor("E", 1));
    ASSERT_TRUE(screen.open());
    screen.entry().setText("Name", "");
    user.expect("Cannot Update", "Errors Detected: \n\nVendor Name is Empty.");
    EXPECT_FALSE(screen.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "Name").toString(), "Alpha");
    screen.entry().setText("Name", "Alpha Pipe");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "Name").toString(), "Alpha Pipe");
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "CITY").toString(), "SLC and so on");
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "PHONE").toString(), "801-555-0142 x12");
    EXPECT_EQ(site.first("ZORVEX.mdb", "VENDORS", "TERMSCODETAG").toInt(), 0);
}

TEST_F(AddressBooks, OpenTheRecordUnderTheHighlightWhereATagStandsTwiceOrNotAtAll)
{
    addVendor(1, "A1", "Alpha");
    addVendor(1, "B1", "Beta");
    addVendor(0, "C1", "Carl");
    addVendor(0, "D1", "Dora");
    BrowseSession list(frmVEXVEN01(), session);
    list.open();
    for (const char* number : {"A1", "B1", "C1", "D1"}) {
        list.openDetail("V");
        ASSERT_TRUE(opened);
        EXPECT_EQ(static_cast<DataWindow&>(*opened).session().entry()["VENNO"], number);
        opened.reset();
        list.list().nextRow();
    }
}

TEST_F(AddressBooks, ARecordThatAnotherUserHasOrThatMayNotBeEditedIsNotOpened)
{
    addVendor(1, "A1", "Alpha");
    BrowseSession list(frmVEXVEN01(), session);
    list.open();
    int told = 0;
    installLockedScreen([&told](const HeldLock&, bool) {
        ++told;
        return false;
    });
    ASSERT_FALSE(dnRecordLock(1, "VENDORS", 2, "Other", 20));
    list.edit();
    list.remove();
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(opened);
    EXPECT_EQ(locks(), 1);
    installLockedScreen({});
    EXPECT_EQ(list.currentTag(), 1);
}

TEST_F(AddressBooks, HoldTheLockWhileAScreenIsOpenAndFollowItBack)
{
    addVendor(1, "A1", "Alpha", 7);
    addVendor(2, "B1", "Beta");
    BrowseSession list(frmVEXVEN01(), session);
    list.open();
    EXPECT_EQ(list.list().lines()[0].cells.last(), "N3");
    EXPECT_EQ(list.list().lines()[1].cells.last(), "?");
    list.edit();
    ASSERT_TRUE(opened);
    EXPECT_EQ(locks(), 1);
    opened.reset();
    EXPECT_EQ(locks(), 0) << "also when the window is taken down";
    list.openDetail("V");
    EXPECT_EQ(locks(), 0);
    opened->show();
    user.expect("Changes Not Allowed", "Changes Not Allowed When Viewing");
    press(*opened, "cmdUpdate");
    list.remove();
    EXPECT_EQ(locks(), 1);
    user.expect("Confirm Delete.", "OK to Delete?");
    opened->show();
    press(*opened, "cmdUpdate");
    opened.reset();
    EXPECT_EQ(locks(), 0);
    list.comeToFront();
    EXPECT_EQ(list.list().lines()[0].cells[0], "B1");
    EXPECT_EQ(list.currentTag(), 2);
    list.list().nextRow();
    list.edit();
    list.remove();
    EXPECT_FALSE(opened) << "nothing happens, and nothing is said, on the end of the list";
}

TEST_F(AddressBooks, PrintSheetsAndLists)
{
    ReportRun empty(frmVEXMFG03(0), session);
    user.expect("Cannot Print Report", "No Current Manufacturer");
    empty.begin(0);
    user.expect("Manufacturer Table Empty", "No Manufacturer Information to Print");
    empty.begin(1);
    user.expect("Manufacturer Table Empty", "List of Manufacturers is Empty.");
    empty.begin(2);
    addVendor(1, "A1", "Alpha");
    addVendor(2, "B1", "Beta");
    ReportRun prints(frmVEXVEN03(2), session);
    prints.begin(0);
    ASSERT_EQ(prints.pages.pageCount(), 1);
    EXPECT_TRUE(placesOn(prints.pages, 1).contains("Beta"));
    prints.selectionChanged();
    prints.begin(1);
    ASSERT_EQ(prints.pages.pageCount(), 2);
    EXPECT_TRUE(placesOn(prints.pages, 1).contains("Alpha"));
    prints.selectionChanged();
    prints.begin(2);
    EXPECT_EQ(prints.pages.pageCount(), 1);
    EXPECT_TRUE(placesOn(prints.pages, 1).contains("Vendor List"));
}

TEST_F(AddressBooks, ManufacturersAreTheSameWithoutTerms)
{
    DataSession screen(frmVEXMFG02(session), session, {});
    ASSERT_TRUE(screen.open());
    EXPECT_EQ(screen.entry().indexOf(QString("txtTERMSCODE")), -1);
    user.expect("Cannot Update",
                "Errors Detected: \n\nManufacturer Number is Empty.\nManufacturer Name is Empty.");
    EXPECT_FALSE(screen.update());
    screen.entry().setText("MFGNO", "m1");
    screen.entry().setText("MFGNAME", "Maker");
    EXPECT_TRUE(screen.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "MANUFACTURERS", "MFGNO").toString(), "M1");
}

}  // namespace
