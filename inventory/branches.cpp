#include "inventory/branches.h"

#include "core/locators.h"
#include "screens/browse/browse_session.h"
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

QString binPrintTitle(const BrowseSession& screen)
{
    OpenTable branches = openTable(screen.session(), "ZORVEX.mdb", "ILCLIST");
    branches.rows.Index("ILCTAG");
    if (!branches.rows.Seek("=", screen.parentKey("ILCTAG")))
        return "Bin Numbers";
    return "Bin Numbers for Branch Code: " + trimmedTextOf(branches.rows["ILCCODE"]) + " - " +
           trimmedTextOf(branches.rows["ILCNAME"]);
}

void openBelow(BrowseSession& screen)
{
    if (screen.list().isOnRecord())
        dnNotReady();
    else
        showCritical("Cannot Proceed",
                     "You Must be on a Valid Line Item to Proceed. Move up to a Valid Line Item.");
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
        .print = {.run = [](BrowseSession&) { dnNotReady(); }},
        .commands = {{"cmdDetail", "&Browse SubCategories", openBelow, false, Qt::Key_B},
                     {"cmdInventory", "Browse &Inventory", openBelow, false, Qt::Key_I}},
    };
}
