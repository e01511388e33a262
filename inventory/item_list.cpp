// The browse of items, those of a branch or those of the catalog, with what is asked from it.
#include "core/locators.h"
#include "core/number_format.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "inventory/catalog_copies.h"
#include "inventory/catalog_rules.h"
#include "inventory/item_codes.h"
#include "inventory/item_columns.h"
#include "inventory/item_prints.h"
#include "inventory/item_rules.h"
#include "inventory/item_search.h"
#include "inventory/item_vendor.h"
#include "inventory/items.h"
#include "multiuser/users.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/small_dialog.h"

namespace {

const ItemKind& kindOf(const BrowseSession& list)
{
    return list.spec().table == catalogItems.table ? catalogItems : branchItems;
}

const QString& siteOf(const BrowseSession& list)
{
    return list.session().JobSitePath;
}

qint32 branchOf(const BrowseSession& list)
{
    return list.parentKey("ILCTAG").toInt();
}

OpenTable openSettings(const Session& session)
{
    return openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
}

// ---- the filter: what the list is bound to
ItemFilter filterOf(const BrowseSession& list)
{
    const storage::Value series = list.parentKey("SERIESTAG");
    const storage::Value subcategory = list.parentKey("SUBCATTAG");
    return {.level = !subcategory.isNull() ? 2
                     : !series.isNull()    ? 1
                                           : 0,
            .ILCTAG = branchOf(list),
            .SERIESTAG = series.toInt(),
            .SUBCATTAG = subcategory.toInt()};
}

void browse(BrowseSession& list, const ItemFilter& filter)
{
    const ItemKind& kind = kindOf(list);
    std::vector<KeyField> keys;
    if (kind.isOfBranch)
        keys.push_back({"ILCTAG", filter.ILCTAG});
    if (filter.level >= 1)
        keys.push_back({"SERIESTAG", filter.SERIESTAG});
    if (filter.level >= 2)
        keys.push_back({"SUBCATTAG", filter.SUBCATTAG});
    constexpr const char* orders[] = {"PARTNO", "SERIESPARTNO", "SUBPARTNO"};
    list.browseBy(kind.index(orders[filter.level]), keys);
}

void nextFilter(BrowseSession& list)
{
    ItemFilter filter = filterOf(list);
    const qint32 tag = list.currentTag();
    const storage::Recordset& rows = list.list().rows();
    filter.level = (filter.level + 1) % 3;
    if (filter.level == 1)
        filter.SERIESTAG = intOf(rows["SERIESTAG"]);
    else if (filter.level == 2)
        filter.SUBCATTAG = intOf(rows["SUBCATTAG"]);
    browse(list, filter);
    list.showTag(tag);
}

// ---- commands
bool mayEdit(const BrowseSession& list)
{
    return dnOK2Access(kindOf(list).editRight, list.session().UserName, true);
}

// An item of another branch takes the list there, and the choice above it; that of a branch that is
// gone is empty.
void goToBranch(BrowseSession& list, qint32 branch)
{
    OpenTable settings = openSettings(list.session());
    zorSaveUserSetting(settings.rows, list.session().SiteTag, "ILCTAG", branch);
    browse(list, {.ILCTAG = branch});
    list.setParentValid(codeRowAt(siteOf(list), branchCodes, branch).has_value());
}

void search(BrowseSession& list)
{
    const ItemKind& kind = kindOf(list);
    const QString found = kind.isOfBranch ? zorVEXINVSearch(list.session(), filterOf(list))
                                          : zorVEXINVCATSearch(list.session(), filterOf(list));
    OpenTable items = openTable(list.session(), "ZORVEX.mdb", kind.table);
    if (!goToFound(items.rows, found))
        return;
    const qint32 tag = intOf(items.rows[kind.tag]);
    if (kind.isOfBranch && intOf(items.rows["ILCTAG"]) != branchOf(list))
        goToBranch(list, intOf(items.rows["ILCTAG"]));
    else if (!list.showTag(tag))
        browse(list, {.ILCTAG = branchOf(list)});  // the filter has left it out
    list.showTag(tag);
}

void toggle(BrowseSession& list, schema::FieldName field, const storage::Value& value)
{
    storage::Recordset& rows = list.list().rows();
    rows.Edit();
    rows[field] = value;
    rows.Update();
    list.list().repaint();
}

void toggleTag(BrowseSession& list)
{
    const bool isTagged = textOf(list.list().rows()["TAGGED"]) == "Y";
    toggle(list, "TAGGED", isTagged ? " " : "Y");
}

void tagAll(BrowseSession& list)
{
    if (!list.hasParent())
        return;
    tagItems(kindOf(list), siteOf(list), list.list().source().index, list.list().source().parent);
    list.list().rebuild();
}

void clearTags(BrowseSession& list)
{
    clearItemTags(kindOf(list), siteOf(list));
    if (list.hasParent())
        list.list().rebuild();
}

void toggleInactive(BrowseSession& list)
{
    if (mayEdit(list) && list.list().goToCurrent())
        toggle(list, "INACTIVE", !list.list().rows()["INACTIVE"].value().toBool());
}

void clone(BrowseSession& list)
{
    if (!mayEdit(list) ||
        !askYesNo("Confirm Clone",
                  "Clone This Item?\n\nNote: Only the Quantities Maximum and Minimum Will be "
                  "Cloned.\nEdit the On Order and Available Quantities as Needed for New Item."))
        return;
    const qint32 copy =
        cloneItem(kindOf(list), siteOf(list), list.currentTag(), list.session().UserName);
    list.list().rebuild();
    list.showTag(copy);
}

bool hasTagged(BrowseSession& list)
{
    if (hasTaggedItems(kindOf(list), siteOf(list), branchOf(list)))
        return true;
    showCritical("Cannot Post.", "Nothing to Do (There are No Tagged Items).");
    return false;
}

void postPreferredVendor(BrowseSession& list)
{
    if (!list.hasParent() || !mayEdit(list) || !hasTagged(list))
        return;
    const std::optional<qint32> vendor = frmVEXINV06(list.session());
    if (!vendor)
        return;
    postVendor(kindOf(list), siteOf(list), branchOf(list), *vendor);
    showInformation("Posting Complete", "Preferred Vendor Selection has Been Posted.");
    list.list().rebuild();
}

// Tagged items into the catalog, or from it into a branch.
void copyTagged(BrowseSession& list)
{
    if (!list.hasParent() || !mayEdit(list) || !hasTagged(list))
        return;
    openScreen(kindOf(list).isOfBranch ? frmVEXINV09(list.session(), branchOf(list))
                                       : frmVEXINVCAT09(list.session()));
}

bool openItem(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    const ItemKind& kind = kindOf(list);
    if (!kind.isOfBranch && mode == "D") {
        const QString refusal = catalogUseText(siteOf(list), tag);
        if (!refusal.isEmpty()) {
            showCritical("Cannot Delete", refusal);
            return false;
        }
    }
    DataRecord record{
        .mode = mode, .index = kind.byTag, .keys = {{kind.tag, tag}}, .winTag = winTag, .tag = tag};
    if (kind.isOfBranch)
        record.parent = {{"ILCTAG", branchOf(list)}};
    return openDataScreen(kind.isOfBranch ? frmVEXINV02(list.session(), filterOf(list))
                                          : frmVEXINVCAT02(filterOf(list)),
                          list.session(), record);
}

void openHistory(BrowseSession& list)
{
    openItemHistory(kindOf(list), list.session(), list.currentTag());
}

void openPrint(BrowseSession& list)
{
    const qint32 tag = list.currentTag();
    if (tag != 0)
        openScreen(new ReportWindow(
            kindOf(list).isOfBranch ? frmVEXINV03(tag) : frmVEXINVCAT03(tag), list.session()));
}

void openBranchChange(BrowseSession& list)
{
    openDataScreen(frmVEXINV10(), list.session(),
                   {.mode = "E", .index = "INVISNTAG", .keys = {{"ISNTAG", list.currentTag()}}});
}

void openAdjustments(BrowseSession& list)
{
    if (mayEdit(list))
        dnNotReady();
}

// ---- where the user was
void showLast(BrowseSession& list, bool& isFirst)
{
    if (!std::exchange(isFirst, false))
        return;
    OpenTable settings = openSettings(list.session());
    list.showTag(zorGetUserSetting(settings.rows, list.session().SiteTag, kindOf(list).lastOnScreen)
                     .toInt());
}

void keepLast(BrowseSession& list)
{
    const qint32 tag = list.currentTag();
    OpenTable settings = openSettings(list.session());
    zorSaveUserSetting(settings.rows, list.session().SiteTag, kindOf(list).lastOnScreen, tag);
}

std::vector<BrowseCommand> commands(const ItemKind& kind)
{
    std::vector<BrowseCommand> all = {
        {.name = "cmdFilter",
         .caption = "&Filter",
         .run = nextFilter,
         .key = Qt::Key_F,
         .needsRecord = true},
        {.name = "cmdSearch", .caption = "&Search", .run = search, .key = Qt::Key_S},
        {.name = "cmdTAGEM",
         .caption = "&Tag",
         .run = toggleTag,
         .key = Qt::Key_T,
         .needsRecord = true},
        {.name = "cmdTagAll", .caption = "Tag A&ll", .run = tagAll, .key = Qt::Key_L},
        {.name = "cmdClearTags", .caption = "Clear Ta&gs", .run = clearTags, .key = Qt::Key_G},
        {.name = "cmdINACTIVE",
         .caption = "&Inactive",
         .run = toggleInactive,
         .key = Qt::Key_I,
         .needsRecord = true},
        {.name = "cmdClone",
         .caption = "Clo&ne",
         .run = clone,
         .key = Qt::Key_N,
         .needsRecord = true},
        {.name = "cmdHistory",
         .caption = "&History",
         .run = openHistory,
         .key = Qt::Key_H,
         .needsRecord = true},
        {.name = "cmdPostVendor",
         .caption = "Post Vend&or",
         .run = postPreferredVendor,
         .key = Qt::Key_O}};
    if (!kind.isOfBranch) {
        all.push_back({.name = "cmdAdd2Inventory",
                       .caption = "Add to &Branch",
                       .run = copyTagged,
                       .key = Qt::Key_B});
        return all;
    }
    all.push_back({.name = "cmdChangeBranch",
                   .caption = "Change &Branch",
                   .run = openBranchChange,
                   .key = Qt::Key_B,
                   .needsRecord = true});
    all.push_back({.name = "cmdADJUSTMENTS",
                   .caption = "Ad&justments",
                   .run = openAdjustments,
                   .key = Qt::Key_J,
                   .needsRecord = true});
    all.push_back({.name = "cmdAdd2Catalog",
                   .caption = "Add to &Catalog",
                   .run = copyTagged,
                   .key = Qt::Key_C});
    return all;
}

// What both browses have in common.
BrowseSpec items(const ItemKind& kind, const char* name, const char* caption)
{
    return {
        .name = name,
        .caption = caption,
        .table = kind.table,
        .index = kind.index("PARTNO"),
        .columns = itemColumns(kind),
        .besides = {{"ZORVEX.mdb", kind.table},
                    {"ZORVEX.mdb", "SERIESCODES", "SERIESTAG"},
                    {"ZORVEX.mdb", "SUBCATEGORIES", "SUBCATTAG"}},
        .editRight = kind.editRight,
        .detail = {.tagField = QString::fromLatin1(kind.tag.text()),
                   .tagIndex = kind.byTag,
                   .open = openItem,
                   .hasView = true,
                   .tellsNoRecord = false},
        .print = {.run = openPrint},
        .commands = commands(kind),
        .status =
            [&kind](const BrowseSession& list) {
                return itemText(kind, list, filterOf(list).level > 0);
            },
        .closing = keepLast,
        .fillsDesktop = true,
        .readsAnewInFront = true,
    };
}

}  // namespace

BrowseSpec frmVEXINV01()
{
    return inventoryItems({});
}

BrowseSpec inventoryItems(const ItemFilter& filter)
{
    const auto isFirst = std::make_shared<bool>(true);
    BrowseSpec spec = items(branchItems, "frmVEXINV01", "Inventory Items");
    spec.parent = branchParent();
    spec.besides.push_back({"ZORVEX.mdb", "BINLIST", "BINTAG"});
    spec.besides.push_back({"ZORVEX.mdb", "INVCATALOG", "ICNTAG"});
    spec.parentChosen = [isFirst, filter](BrowseSession& list) {
        // The filter was that of the branch before.
        if (list.list().source().index != list.spec().index)
            browse(list, {.ILCTAG = branchOf(list)});
        if (filter.level > 0 && filter.ILCTAG == branchOf(list) && std::exchange(*isFirst, false))
            browse(list, filter);
        else
            showLast(list, *isFirst);
    };
    return spec;
}

BrowseSpec frmVEXINVCAT01()
{
    const auto isFirst = std::make_shared<bool>(true);
    BrowseSpec spec = items(catalogItems, "frmVEXINVCAT01", "Inventory Catalog");
    spec.opened = [isFirst](BrowseSession& list) { showLast(list, *isFirst); };
    return spec;
}
