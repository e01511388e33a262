// Every browse-and-edit screen, driven by the keyboard as its user would.
#include "screens/browse/browse_window.h"

#include "cost/gl_codes.h"
#include "cost/invoice_codes.h"
#include "inventory/branches.h"
#include "purchasing/code_lists.h"
#include "purchasing/document_texts.h"
#include "purchasing/terms_codes.h"
#include "screens/browse/browse_grid.h"
#include "screens/job_sites.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

struct Listed
{
    BrowseSpec (*spec)();
    QStringList first;   // an entry for each field
    QStringList second;  // sorts after it
    const char* deleteQuestion;
};

const Listed screens[] = {
    {frmVEXGLC01, {"1000", "Cash"}, {"2000", "Loans"}, "OK to Delete G/L Code 1000 Cash?"},
    {frmVEXMC01, {"A", "Anchors"}, {"B", "Bolts"}, "OK to Delete Material Code A Anchors?"},
    {frmVEXRT01, {"M", "Material"}, {"R", "Rental"}, "OK to Delete Requisition Type M Material?"},
    {frmVEXSHIPTO01, {"Gate 1"}, {"Gate 2"}, "OK to Delete Ship To Item Gate 1?"},
    {frmVEXSHIPVIA01, {"Rail"}, {"Truck"}, "OK to Delete Ship Via Item Rail?"},
    {frmVEXWHODIDIT01, {"Ann"}, {"Ben"}, "OK to Delete Requisitioned by Item Ann?"},
    {frmVEXTRMC01,
     {"N3", "Net 30", "30", "10", "2.5"},
     {"N6", "Net 60", "60", "0", "0"},
     "OK to Delete Terms Code N3 Net 30?"},
    {frmVEXIC01, {"A1", "Labor", "HR"}, {"B1", "Steel", "TON"}, "OK to Delete Invoice Code: A1?"},
    {frmVEXILC01, {"01", "North"}, {"02", "South"}, "OK to Delete Branch Code: 01 - North"},
    {frmVEXINVBIN01, {"A1", "Shelf"}, {"B1", "Yard"}, "OK to Delete Bin Number: A1 - Shelf"},
    {frmVEXINVSC01, {"100", "Pipe"}, {"200", "Valves"}, "OK to Delete Series Code: 100 - Pipe"},
    {frmCCBQSHIP01,
     {"AIR", "Air freight"},
     {"SEA", "Ship"},
     "OK to Delete Shipper Code AIR Air freight?"},
    {frmDBPBrowse,
     {"EAST YARD", "C:\\EAST"},
     {"WEST YARD", "C:\\WEST"},
     "OK to Delete Job Site: EAST YARD  ?"},
    {frmZORJS01, {"NORTH YARD"}, {"SOUTH YARD"}, "OK to Delete Job Site: NORTH YARD  ?"},
};

class BrowseScreens : public testing::TestWithParam<Listed>
{
protected:
    BrowseScreens() : spec(GetParam().spec())
    {
        context.session.JobSitePath = site.siteFolder();
        context.session.UserSettingsPath = site.userFolder();
        context.session.SiteTag = 1;
        context.session.UserName = TestInstallation::userName;
        if (spec.table == QString("DATABASES"))
            site.addRow("DBPATHS.mdb", "DBPATHS",
                        {{"PATHNAME", "SOUTH YARD"}, {"PathText", "/south"}, {"DBTAG", 9}});
        else
            site.emptyTable(spec.file, spec.table);
        if (!spec.editRight.isEmpty())
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", 1}, {"UAICODE", spec.editRight}, {"Desc", "Edit"}});
    }

    // The screen with a parent where it needs one.
    void open()
    {
        switch (spec.parent.kind) {
            case BrowseParent::Kind::Company:
                parent = {{"CONO", 1}};
                break;
            case BrowseParent::Kind::CompanyAndJob:
                parent = {{"CONO", 1}, {"JOBNO", QString("    1001")}};
                break;
            case BrowseParent::Kind::Branch:
                parent = {{"ILCTAG", 1000001}};
                break;
            default:
                break;
        }
        window = std::make_unique<BrowseWindow>(GetParam().spec(), context);
        if (!parent.empty())
            window->session().setParent(parent);
        window->resize(900, 500);
        window->show();
        window->grid().takeFocus();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void key(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
    void typeEntry(const QStringList& texts)
    {
        for (const QString& text : texts) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            key(Qt::Key_Return);
        }
    }
    void add(const QStringList& texts)
    {
        key(Qt::Key_A);
        typeEntry(texts);
        // Enter has gone through the fields, and past them to the first command of an entry.
        control<QPushButton>(*window, "cmdUpdate").click();
    }
    QStringList column(size_t index) const
    {
        QStringList cells;
        for (const BrowseLine& line : window->session().list().lines())
            if (line.kind == BrowseLine::Kind::Record)
                cells.append(line.cells[static_cast<qsizetype>(index)]);
        return cells;
    }

    TestInstallation site;
    ScriptedMessages user;
    BrowseSpec spec;
    ScreenContext context;
    std::vector<KeyField> parent;
    std::unique_ptr<BrowseWindow> window;
};

INSTANTIATE_TEST_SUITE_P(All, BrowseScreens, testing::ValuesIn(screens),
                         [](const auto& screen) { return screen.param.spec().name.toStdString(); });

TEST_P(BrowseScreens, AddsEditsCancelsAndDeletesByTheKeyboard)
{
    open();
    add(GetParam().second);
    add(GetParam().first);
    EXPECT_EQ(column(0), (QStringList{GetParam().first[0], GetParam().second[0]}));

    window->session().list().home();
    key(Qt::Key_Return);
    ASSERT_FALSE(window->session().isBrowsing()) << "Enter edits";
    QTest::keyClicks(QApplication::focusWidget(), "ZZ");
    key(Qt::Key_Escape);
    ASSERT_TRUE(window->session().isBrowsing()) << "Esc cancels";
    EXPECT_EQ(column(0), (QStringList{GetParam().first[0], GetParam().second[0]}));

    user.expect("Confirm Delete", GetParam().deleteQuestion, Answer::Cancel);
    key(Qt::Key_Delete);
    EXPECT_EQ(column(0).size(), 2);
    user.expect("Confirm Delete", GetParam().deleteQuestion, Answer::Ok);
    key(Qt::Key_D);
    EXPECT_EQ(column(0), QStringList{GetParam().second[0]});
}

TEST_P(BrowseScreens, WritesWhatWasTyped)
{
    open();
    add(GetParam().first);
    ASSERT_TRUE(window->session().isBrowsing());
    const OpenTable table = site.open(spec.file, spec.table);
    const Entry& entry = window->session().entry();
    for (int i = 0; i < entry.count(); ++i)
        EXPECT_EQ(textOf(table.rows[entry.field(i).field]), GetParam().first[i])
            << entry.field(i).name.toStdString();
    for (const KeyField& key : parent)
        EXPECT_EQ(table.rows[key.field].value(), key.key);
    if (!spec.tag.field.isEmpty()) {
        EXPECT_NE(table.rows.fieldNamed(spec.tag.field).value().toInt(), 0);
    }
}

TEST_P(BrowseScreens, KeepsAnEntryWhoseRecordWasDeletedMeanwhile)
{
    open();
    add(GetParam().first);
    window->session().list().home();
    key(Qt::Key_E);
    site.emptyTable(spec.file, spec.table);
    user.expect("Cannot Update",
                "Another user has deleted this record.\n"
                "Update again to add it anew, or Cancel.");
    control<QPushButton>(*window, "cmdUpdate").click();
    EXPECT_FALSE(window->session().isBrowsing());
    control<QPushButton>(*window, "cmdUpdate").click();
    EXPECT_EQ(column(0), QStringList{GetParam().first[0]});
}

TEST_P(BrowseScreens, ForgetsTheErrorsOfAnEntryThatIsCancelled)
{
    open();
    key(Qt::Key_A);
    key(Qt::Key_Tab);
    key(Qt::Key_Escape);
    EXPECT_TRUE(window->session().isBrowsing());
    EXPECT_TRUE(control<QFrame>(*window, "tqErrorBox1").isHidden());
    EXPECT_EQ(window->session().entry().errors().ErrorCount(), 0);
}

TEST_P(BrowseScreens, GivesEachCommandAKeyOfItsOwn)
{
    open();
    for (const bool entering : {false, true}) {
        if (entering) {
            control<QPushButton>(*window, "cmdAdd").setFocus();
            key(Qt::Key_A);
            EXPECT_FALSE(window->session().isBrowsing()) << "a letter acts on a button, too";
        }
        QSet<QString> keys;
        for (const QPushButton* button : window->findChildren<QPushButton*>()) {
            if (!button->isVisible())
                continue;
            const QString key = QKeySequence::mnemonic(button->text()).toString();
            EXPECT_FALSE(key.isEmpty()) << qPrintable(button->objectName());
            EXPECT_FALSE(keys.contains(key)) << qPrintable(key);
            keys.insert(key);
        }
    }
}

}  // namespace
