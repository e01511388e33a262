#include "screens/search/search_window.h"

#include "core/cost_code_groups.h"
#include "screens/browse/browse_grid.h"
#include "screens/search/cost_code_searches.h"
#include "screens/search/inventory_searches.h"
#include "screens/search/job_searches.h"
#include "screens/search/order_searches.h"
#include "screens/search/vendor_searches.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class SearchWindowTest : public testing::Test
{
protected:
    SearchWindowTest()
    {
        for (const char* name : {"Anvil", "Bolt", "Cable"}) {
            site.addRow("ZORVEX.mdb", "VENDORS",
                        {{"Name", name}, {"VENNO", QString(name).toUpper().right(2)}});
        }
    }
    // The name of the vendor that the search gives; the window is worked by `act`.
    QString search(std::function<void(frmDNSearch&)> act)
    {
        whenModalOpens([&](QDialog& dialog) {
            auto& window = dynamic_cast<frmDNSearch&>(dialog);
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            act(window);
            if (window.isVisible()) {
                ADD_FAILURE() << "the window is still there";
                window.reject();
            }
        });
        const QString bookmark = zorSearchVendor(site.siteFolder());
        if (bookmark == " ")
            return bookmark;
        OpenTable vendors = site.open("ZORVEX.mdb", "VENDORS");
        vendors.rows.Bookmark(bookmark);
        return textOf(vendors.rows["Name"]);
    }
    static QTableView& rows(const frmDNSearch& window)
    {
        return control<QTableView>(window, "hsbMAIN");
    }
    static QPoint rowAt(const frmDNSearch& window, int row)
    {
        return window.findChild<BrowseGrid*>()->cellRect(row, 0).center();
    }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(SearchWindowTest, FindsByTypingAndGivesTheRecord)
{
    EXPECT_EQ(search([](frmDNSearch& window) {
                  EXPECT_EQ(window.windowTitle(), "Search Vendors");
                  EXPECT_EQ(labelText(window, "lblSearch"), " ");
                  QTest::keyClicks(window.focusWidget(), "bx");
                  EXPECT_EQ(labelText(window, "lblSearch"), "bx");
                  QTest::keyClick(window.focusWidget(), Qt::Key_Space);
                  QTest::keyClick(window.focusWidget(), Qt::Key_Backspace);
                  QTest::keyClick(window.focusWidget(), Qt::Key_Backspace);
                  EXPECT_EQ(labelText(window, "lblSearch"), "b");
                  press(window, "cmdSelect");
              }),
              "Bolt");
    EXPECT_EQ(search([](frmDNSearch& window) {
                  QTest::keyClick(window.focusWidget(), Qt::Key_Down);
                  QTest::keyClick(window.focusWidget(), Qt::Key_Return);
              }),
              "Bolt");
}

TEST_F(SearchWindowTest, GivesNothingOnEscCancelAndTheEndOfTheList)
{
    EXPECT_EQ(search([](frmDNSearch& window) { QTest::keyClick(&window, Qt::Key_Escape); }), " ");
    EXPECT_EQ(search([](frmDNSearch& window) { press(window, "cmdCancel"); }), " ");
    EXPECT_EQ(search([](frmDNSearch& window) {
                  for (int i = 0; i < 3; ++i)
                      QTest::keyClick(window.focusWidget(), Qt::Key_Down);
                  control<QToolButton>(window, "cmdDNBACTION").click();
                  QTest::mouseClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 3));
                  QTest::mouseDClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 3));
                  EXPECT_TRUE(window.isVisible()) << "there is no record on that row";
                  QTest::keyClick(window.focusWidget(), Qt::Key_Return);
              }),
              " ");
}

TEST_F(SearchWindowTest, TakesARowByTheMouse)
{
    EXPECT_EQ(search([](frmDNSearch& window) {
                  QTest::mouseClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 1));
                  EXPECT_TRUE(window.isVisible()) << "a click only highlights";
                  EXPECT_EQ(window.search().list().BrowseRow, 1);
                  QTest::mouseClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 1));
                  EXPECT_TRUE(window.isVisible());
                  QTest::mouseClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 2));
                  QTest::mouseDClick(rows(window).viewport(), Qt::LeftButton, {}, rowAt(window, 2));
              }),
              "Cable");
    EXPECT_EQ(search([](frmDNSearch& window) {
                  control<QToolButton>(window, "cmdDNBDNARROW").click();
                  control<QToolButton>(window, "cmdDNBACTION").click();
              }),
              "Bolt");
}

TEST_F(SearchWindowTest, ChangesTheColumnByTitleAndByKey)
{
    EXPECT_EQ(search([](frmDNSearch& window) {
                  QTest::keyClicks(window.focusWidget(), "x");
                  QHeaderView* titles = rows(window).horizontalHeader();
                  QTest::mouseClick(
                      titles->viewport(), Qt::LeftButton, {},
                      {titles->sectionViewportPosition(2) + 20, titles->height() / 2});
                  EXPECT_EQ(window.search().columnKey(), "Number|Name");
                  EXPECT_EQ(labelText(window, "lblSearch"), " ");
                  QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
                  EXPECT_EQ(window.search().columnKey(), "Name|Number");
                  QTest::keyClick(&window, Qt::Key_1, Qt::AltModifier);
                  EXPECT_EQ(window.search().columnKey(), "Name|Number");
                  QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
                  QTest::keyClicks(window.focusWidget(), "LT");
                  press(window, "cmdSelect");
              }),
              "Bolt");
}

TEST_F(SearchWindowTest, ShowsTwelveRowsAtLeast)
{
    for (int i = 0; i < 40; ++i)
        site.addRow("ZORVEX.mdb", "VENDORS", {{"Name", "Z"}, {"VENNO", QString::number(i)}});
    search([](frmDNSearch& window) {
        const size_t rowsAtFirst = window.search().list().lines().size();
        EXPECT_GE(rowsAtFirst, 12U);
        window.resize(window.width(), window.height() + 200);
        QCoreApplication::processEvents();
        EXPECT_GT(window.search().list().lines().size(), rowsAtFirst + 3);
        window.reject();
    });
}

// ---- the look-ups

struct LookUp
{
    const char* name;
    std::function<QString(const QString& folder)> open;
    bool searchesItsFirstColumn = true;
};

std::vector<LookUp> lookUps()
{
    using Path = const QString&;
    const auto order = CostCodeOrder::ByCode;
    return {
        {"POItem", [](Path at) { return zorSearchPOItem(at, 7); }},
        {"Vendor", zorSearchVendor},
        {"Bin", [](Path at) { return zorSearchBin(at, 7); }},
        {"Terms", zorSearchTerms},
        {"MaterialCode", zorSearchMaterialCode},
        {"Manufacturer", zorSearchManufacturer},
        {"Payment", zorSearchPayment},
        {"Branch", zorSearchBranch},
        {"Series", [](Path at) { return zorSearchSeries(at, 7); }},
        {"Subcategory", [](Path at) { return zorSearchSubcategory(at, 7, "S1"); }},
        {"GLCode", [](Path at) { return zorSearchGLCode(at, 7); }},
        {"Requisition", [](Path at) { return zorSearchRequisition(at, 7, "V1", "Anvil"); }},
        {"POByVendor", [](Path at) { return zorSearchPOByVendor(at, 7, "V1", "Anvil"); }},
        {"POByJob", [](Path at) { return zorSearchPOByJob(at, 7, "  J1"); }},
        {"PO", zorSearchPO},
        {"POByCMRNO", zorSearchPOByCMRNO},
        {"Template", zorSearchTemplate},
        {"InvoiceCode", [](Path at) { return zorSearchInvoiceCode(at, 7, "  J1"); }},
        {"MTR", zorSearchMTR},
        {"MRR", zorSearchMRR},
        {"MIR", zorSearchMIR},
        {"Addendum", zorSearchAddendum, false},
        {"ShipTo", zorSearchShipTo},
        {"ShipVia", zorSearchShipVia},
        {"WhoDidIt", zorSearchWhoDidIt},
        {"WorkOrder", zorSearchWorkOrder},
        {"Company", zorSearchCompany},
        {"Job", [](Path at) { return zorSearchJob(at, 7); }},
        {"UDS", [](Path at) { return zorSearchUDS(at, 7, "  J1"); }},
        {"CCA", [](Path at) { return zorSearchCCA(at, 7, "  J1", "Phase", order); }},
        {"CCADescription",
         [](Path at) {
             return zorSearchCCA(at, 7, "  J1", "Phase", CostCodeOrder::ByDescription);
         }},
        {"CCB", [](Path at) { return zorSearchCCB(at, 7, "  J1", "ACTIVITY"); }},
        {"CCC", [](Path at) { return zorSearchCCC(at, 7, "  J1", "Areas"); }},
        {"Project", zorSearchProject},
        {"JobSite", [](Path) { return zorSearchJobSite(); }},
        {"Xref", [](Path at) { return zorSearchXref(at, 7, "  J1"); }},
        {"VEXINV", [](Path at) { return zorVEXINVSearch(at, 7); }},
        {"VEXINVCAT", zorVEXINVCATSearch},
    };
}

const schema::Table* schemaTable(const QString& file, const QString& table)
{
    for (const schema::File& one : schema::files)
        if (QString::fromLatin1(one.name) == file)
            for (const schema::Table* each : one.tables)
                if (QString::fromLatin1(each->name) == table)
                    return each;
    return nullptr;
}

bool same(std::string_view name, const QString& text)
{
    return schema::sameName(name, text.toStdString());
}

class LookUpTest : public testing::TestWithParam<LookUp>
{
protected:
    // Opens the look-up's window and works it.
    QString open(std::function<void(frmDNSearch&)> act) const
    {
        whenModalOpens([&act](QDialog& dialog) {
            act(dynamic_cast<frmDNSearch&>(dialog));
            dialog.reject();
        });
        return GetParam().open(site.siteFolder());
    }
    SearchRequest request() const
    {
        SearchRequest found;
        open([&found](frmDNSearch& window) { found = window.search().request(); });
        return found;
    }
    LookUpTest()
    {
        site.open("ZORBRQ.mdb", "BRQWOLIST");
        site.open("EDUMAIN.mdb", "PROJECTS");
    }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_P(LookUpTest, NamesOnlyWhatTheSchemaHas)
{
    const SearchRequest request = this->request();
    const schema::Table* table = schemaTable(request.DBName + ".mdb", request.TableName);
    ASSERT_TRUE(table);
    const std::vector<SearchColumn> columns = searchColumns(request);
    ASSERT_TRUE(columns[0].isUsed());
    for (const SearchColumn& column : columns) {
        if (column.isUsed()) {
            EXPECT_TRUE(std::any_of(table->fields.begin(), table->fields.end(), [&](auto& field) {
                return same(field.name, column.field);
            })) << qPrintable(column.field);
            EXPECT_TRUE(column.type == 'C' || column.type == 'N') << qPrintable(column.field);
        }
        if (column.index == " ")
            continue;
        const auto index = std::find_if(table->indexes.begin(), table->indexes.end(),
                                        [&](auto& one) { return same(one.name, column.index); });
        ASSERT_NE(index, table->indexes.end()) << qPrintable(column.index);
        ASSERT_LT(request.keys.size(), index->keyCount());
        for (size_t i = 0; i < request.keys.size(); ++i)
            EXPECT_TRUE(schema::sameName(index->keys[i], request.keys[i].field.text()));
        EXPECT_EQ(same(index->keys[request.keys.size()], column.field),
                  GetParam().searchesItsFirstColumn)
            << "the field that is searched comes next in " << qPrintable(column.index);
    }
}

TEST_P(LookUpTest, GivesARecordOfItsParentAndNoOther)
{
    const SearchRequest request = this->request();
    const QString file = request.DBName + ".mdb";
    if (file != "DBPATHS.mdb") {
        EXPECT_EQ(open([](frmDNSearch& window) {
                      EXPECT_EQ(window.search().list().lines()[0].kind,
                                BrowseLine::Kind::ListIsEmpty);
                      press(window, "cmdSelect");
                  }),
                  " ");
    }
    site.emptyTable(file, request.TableName);
    OpenTable opened = site.open(file, request.TableName);
    // In the parent, or in one beside it that differs in its first key.
    const auto add = [&](int beside) {
        opened.rows.AddNew();
        for (const KeyField& key : request.keys)
            opened.rows[key.field] = key.key;
        if (beside != 0)
            opened.rows[request.keys[0].field] = request.keys[0].key.toInt() + beside;
        opened.rows.Update();
        return opened.rows.LastModified();
    };
    if (!request.keys.empty()) {
        add(-1);
        add(1);
    }
    const QString wanted = add(0);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End})
        EXPECT_EQ(open([key](frmDNSearch& window) {
                      QTest::keyClick(window.focusWidget(), key);
                      press(window, "cmdSelect");
                  }),
                  wanted);
}

INSTANTIATE_TEST_SUITE_P(All, LookUpTest, testing::ValuesIn(lookUps()),
                         [](const auto& one) { return one.param.name; });

TEST_F(SearchWindowTest, WritesTheCostCodeGroupsName)
{
    EXPECT_EQ(costCodeGroupPlural("phase "), "Phases");
    EXPECT_EQ(costCodeGroupPlural("ACTIVITY"), "Activities");
    EXPECT_EQ(costCodeGroupPlural("Areas"), "Areas");
    whenModalOpens([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Search Activities");
        EXPECT_EQ(labelText(dialog, "lblSearchTitle"), "Activities for Company: 7 and Job: J1");
        dialog.reject();
    });
    zorSearchCCB(site.siteFolder(), 7, "J1", "ACTIVITY");
    user.expect("Invalid Cost Code", "Cost Code Group 'C' is not Defined for Job Number: J1");
    EXPECT_EQ(zorSearchCCC(site.siteFolder(), 7, "J1", "  "), " ");
}

TEST_F(SearchWindowTest, GivesAnEntryFieldTheCostCodeThatWasPicked)
{
    site.addRow("MAIN.mdb", "CCBLIST",
                {{"CONO", 7}, {"JOBNO", "J1"}, {"COSTCODEB", "  12"}, {"DESCB", "Area"}});
    const auto search = [this](auto answer) {
        whenModalOpens(answer);
        return zorCCBSearch(site.siteFolder(), "ab", 7, "J1", "Area");
    };
    EXPECT_EQ(search([](QDialog& dialog) { press(dialog, "cmdSelect"); }), "  12");
    EXPECT_EQ(search([](QDialog& dialog) { dialog.reject(); }), "ab") << "what was typed stays";
    user.expect("Invalid Cost Code", "Cost Code Group 'A' is not Defined for Job Number: J1");
    EXPECT_EQ(zorCCASearch(site.siteFolder(), "ab", 7, "J1", "", CostCodeOrder::ByCode), " ");
}

}  // namespace
