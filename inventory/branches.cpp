#include "inventory/branches.h"

#include "core/locators.h"
#include "inventory/item_codes.h"
#include "inventory/items.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/search/inventory_searches.h"

namespace {

// True if a record of the table has the tag as the first key of the index.
bool isUsed(const BrowseSession& screen, const QString& table, const QString& index, int tag)
{
    OpenTable others = openTable(screen.session(), "ZORVEX.mdb", table);
    others.rows.Index(index);
    return others.rows.Seek("=", tag);
}

QString branchDeleteTest(const BrowseSession& screen, storage::Recordset& rows)
{
    return isUsed(screen, "SERIESCODES", "SERIESCODE", intOf(rows["ILCTAG"]))
               ? "Cannot Delete. Inventory Series Codes Detected Under this Branch Code."
               : QString();
}

QString binDeleteTest(const BrowseSession& screen, storage::Recordset& rows)
{
    return isUsed(screen, "INVENTORY", "INVBINTAG", intOf(rows["BINTAG"]))
               ? "Cannot Delete. Inventory Items have been Detected with this Bin Number."
               : QString();
}

QString seriesDeleteTest(const BrowseSession& screen, storage::Recordset& rows)
{
    return isUsed(screen, "SUBCATEGORIES", "SUBCATCODE", intOf(rows["SERIESTAG"]))
               ? "Cannot Delete. Subcategory Codes have been Detected For this Series Code."
               : QString();
}

// The branch's code and name after the words; the words alone without one.
QString branchTitle(const BrowseSession& screen, const QString& words)
{
    const auto branch =
        codeRowAt(screen.session().JobSitePath, branchCodes, screen.parentKey("ILCTAG").toInt());
    return branch ? words + " for Branch Code: " + branch->code + " - " + branch->name : words;
}

QString seriesPrintTitle(const BrowseSession& screen)
{
    return branchTitle(screen, "Series Codes");
}

QString binPrintTitle(const BrowseSession& screen)
{
    return branchTitle(screen, "Bin Numbers");
}

bool isOnLine(const BrowseSession& screen)
{
    if (!screen.list().isOnRecord())
        showCritical("Cannot Proceed",
                     "You Must be on a Valid Line Item to Proceed. Move up to a Valid Line Item.");
    return screen.list().isOnRecord();
}

void openSubcategories(BrowseSession& screen)
{
    if (isOnLine(screen))
        openBrowseScreen(frmVEXINVS01(screen.session(), screen.currentTag()), screen.session(),
                         {{"SERIESTAG", screen.currentTag()}});
}

void openItemsOfSeries(BrowseSession& screen)
{
    if (isOnLine(screen))
        openBrowseScreen(inventoryItems({.level = 1,
                                         .ILCTAG = screen.parentKey("ILCTAG").toInt(),
                                         .SERIESTAG = screen.currentTag()}),
                         screen.session());
}

QString subcategoryDeleteTest(const BrowseSession& screen, storage::Recordset& rows)
{
    const qint32 series = intOf(rows["SERIESTAG"]);
    const auto row = codeRowAt(screen.session().JobSitePath, seriesCodes, series);
    OpenTable items = openTable(screen.session(), "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVSUBPARTNO");
    return row && items.rows.Seek("=", row->owner, series, rows["SUBCATTAG"].value())
               ? "Cannot Delete. Inventory Items Detected with this Subcategory Code."
               : QString();
}

}  // namespace

BrowseSpec frmVEXILC01()
{
    return {
        .name = "frmVEXILC01",
        .caption = "Branch Codes",
        .table = "ILCLIST",
        .index = "ILCCODE",
        .columns = {{.field = "ILCCODE",
                     .length = 2,
                     .heading = "Code",
                     .width = 1000,
                     .entry = "txtILCCODE",
                     .keys = {.upperCase = true},
                     .alignment = Qt::AlignHCenter,
                     .check =
                         inOrder({required("ILCCODE", "Category Code is Empty."),
                                  unusedCode("ILCCODE", "Duplicate Category Code Detected.")})},
                    {.field = "ILCNAME",
                     .length = 40,
                     .heading = "Description",
                     .width = 6000,
                     .entry = "txtILCNAME",
                     .check = required("ILCNAME", "Description is Empty.")}},
        .tag = {.field = "ILCTAG"},
        .deleteQuestion = askToDelete("Branch Code:", {"ILCCODE", "ILCNAME"}, " - ", ""),
        .deleteTest = branchDeleteTest,
        .search =
            [](const BrowseSession& screen) {
                return zorSearchBranch(screen.session().JobSitePath);
            },
        .print = {.window = "Print Inventory Branch Codes", .title = "Inventory Branch Codes"},
    };
}

BrowseSpec frmVEXINVBIN01()
{
    return {
        .name = "frmVEXINVBIN01",
        .caption = "Bin Numbers",
        .table = "BINLIST",
        .index = "BINNO",
        .parent = branchParent(),
        .columns = {{.field = "BINNO",
                     .length = 6,
                     .heading = "Number",
                     .width = 1000,
                     .entry = "txtBINNO",
                     .keys = {.upperCase = true},
                     .check = inOrder({required("BINNO", "Bin Number is Empty."),
                                       unusedCode("BINNO", "Duplicate Bin Number Detected.")})},
                    {.field = "BINNAME",
                     .length = 40,
                     .heading = "Description",
                     .width = 6000,
                     .entry = "txtBINNAME"}},
        .tag = {.field = "BINTAG"},
        .deleteQuestion = askToDelete("Bin Number:", {"BINNO", "BINNAME"}, " - ", ""),
        .deleteTest = binDeleteTest,
        .search =
            [](const BrowseSession& screen) {
                return zorSearchBin(screen.session().JobSitePath,
                                    screen.parentKey("ILCTAG").toInt());
            },
        .print = {.window = "Print Bin Numbers", .titleFor = binPrintTitle},
    };
}

BrowseSpec frmVEXINVSC01()
{
    return {
        .name = "frmVEXINVSC01",
        .caption = "Series Codes",
        .table = "SERIESCODES",
        .index = "SERIESCODE",
        .parent = branchParent(),
        .columns = {{.field = "SERIESCODE",
                     .length = 3,
                     .heading = "Code",
                     .width = 1000,
                     .entry = "txtSERIESCODE",
                     .keys = {.upperCase = true},
                     .check =
                         inOrder({required("SERIESCODE", "Series Code is Empty."),
                                  unusedCode("SERIESCODE", "Duplicate Series Code Detected.")})},
                    {.field = "SERIESNAME",
                     .length = 40,
                     .heading = "Description",
                     .width = 6000,
                     .entry = "txtSERIESNAME",
                     .check = required("SERIESNAME", "Description is Empty.")}},
        .tag = {.field = "SERIESTAG"},
        .editRight = "INV02",
        .deleteQuestion = askToDelete("Series Code:", {"SERIESCODE", "SERIESNAME"}, " - ", ""),
        .deleteTest = seriesDeleteTest,
        .search =
            [](const BrowseSession& screen) {
                return zorSearchSeries(screen.session().JobSitePath,
                                       screen.parentKey("ILCTAG").toInt());
            },
        .print = {.window = "Print List of Inventory Series Codes", .titleFor = seriesPrintTitle},
        .commands = {{"cmdDetail", "&Browse SubCategories", openSubcategories, false, Qt::Key_B},
                     {"cmdInventory", "Browse &Inventory", openItemsOfSeries, false, Qt::Key_I}},
    };
}

BrowseSpec frmVEXINVS01(const Session& session, qint32 SERIESTAG)
{
    const CodeRow series =
        codeRowAt(session.JobSitePath, seriesCodes, SERIESTAG).value_or(CodeRow{});
    const auto openItems = [series](BrowseSession& screen) {
        if (isOnLine(screen))
            openBrowseScreen(inventoryItems({.level = 2,
                                             .ILCTAG = series.owner,
                                             .SERIESTAG = series.tag,
                                             .SUBCATTAG = screen.currentTag()}),
                             screen.session());
    };
    return {
        .name = "frmVEXINVS01",
        .caption = "Subategory Codes",
        .table = "SUBCATEGORIES",
        .index = "SUBCATCODE",
        .parent = {.kind = BrowseParent::Kind::Given, .keys = {"SERIESTAG"}},
        .columns = {{.field = "SUBCATCODE",
                     .length = 4,
                     .heading = "Code",
                     .width = 1000,
                     .entry = "txtSUBCATCODE",
                     .keys = {.upperCase = true},
                     .check = inOrder(
                         {required("SUBCATCODE", "Subcategory Code is Empty."),
                          unusedCode("SUBCATCODE", "Duplicate Subcategory Code Detected.")})},
                    {.field = "SUBCATNAME",
                     .length = 40,
                     .heading = "Description",
                     .width = 6000,
                     .entry = "txtSUBCATNAME",
                     .check = required("SUBCATNAME", "Description is Empty.")}},
        .tag = {.field = "SUBCATTAG"},
        .editRight = "INV02",
        .deleteQuestion = askToDelete("Subcategory Code:", {"SUBCATCODE", "SUBCATNAME"}, " - ", ""),
        .deleteTest = subcategoryDeleteTest,
        .search =
            [series](const BrowseSession& screen) {
                return zorSearchSubcategory(screen.session().JobSitePath, series.tag, series.code);
            },
        .print = {.window = "Print Inventory Subcategories Related to a Category ",
                  .title = "Subcategories of Series Code: " + series.code + " - " + series.name},
        .commands = {{.name = "cmdInventory",
                      .caption = "&Browse Inventory",
                      .run = openItems,
                      .key = Qt::Key_B}},
        .status =
            [series](const BrowseSession&) {
                return "Series Code: " + series.code + " - " + series.name;
            },
    };
}
