// The browse of a branch's items, with what is asked from it.
#include <QCheckBox>
#include <QLineEdit>

#include "core/locators.h"
#include "core/number_format.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "inventory/item_codes.h"
#include "inventory/item_prints.h"
#include "inventory/item_rules.h"
#include "inventory/item_search.h"
#include "inventory/items.h"
#include "multiuser/users.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/vendor_searches.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

namespace {

constexpr char editRight[] = "INV02";

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
    std::vector<KeyField> keys = {{"ILCTAG", filter.ILCTAG}};
    if (filter.level >= 1)
        keys.push_back({"SERIESTAG", filter.SERIESTAG});
    if (filter.level >= 2)
        keys.push_back({"SUBCATTAG", filter.SUBCATTAG});
    constexpr const char* indexes[] = {"INVPARTNO", "INVSERIESPARTNO", "INVSUBPARTNO"};
    list.browseBy(indexes[filter.level], keys);
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

// ---- what is shown
QString binNumber(const BrowseSession& list, storage::Recordset& rows)
{
    const int tag = intOf(rows["BINTAG"]);
    storage::Recordset& bins = list.beside("BINLIST");
    if (tag == 0)
        return {};
    return bins.Seek("=", tag) ? trimmedTextOf(bins["BINNO"]) : QString(" ??????");
}

QString codeText(storage::Recordset& codes, const CodeTable& table, int tag)
{
    if (!codes.Seek("=", tag))
        return "??? - ?????";
    return trimmedTextOf(codes[table.code]) + " - " + trimmedTextOf(codes[table.name]);
}

// Series, subcategory and catalog number of the item under the highlight. The table stands beside
// the list a second time, so that looking does not move the list.
QString itemText(const BrowseSession& list)
{
    storage::Recordset& item = list.beside("INVENTORY");
    const QString filter = filterOf(list).level > 0 ? "\nFilter is On" : "\n";
    if (!list.hasParent() || !goToFound(item, list.list().BrowseCurrent))
        return filter;
    const int ICNTAG = intOf(item["ICNTAG"]);
    storage::Recordset& catalog = list.beside("INVCATALOG");
    const QString number = ICNTAG == 0                 ? "<none>"
                           : catalog.Seek("=", ICNTAG) ? trimmedTextOf(catalog["ICNUMBER"])
                                                       : QString("Invalid Tag");
    return "Series: " +
           codeText(list.beside("SERIESCODES"), seriesCodes, intOf(item["SERIESTAG"])) +
           "     Subcategory: " +
           codeText(list.beside("SUBCATEGORIES"), subcategoryCodes, intOf(item["SUBCATTAG"])) +
           "     I/C Number: " + number + filter;
}

// ---- commands
bool mayEdit(const BrowseSession& list)
{
    return dnOK2Access(editRight, list.session().UserName, true);
}

void search(BrowseSession& list)
{
    const QString found = zorVEXINVSearch(list.session(), filterOf(list));
    OpenTable items = openTable(list.session(), "ZORVEX.mdb", "INVENTORY");
    if (!goToFound(items.rows, found))
        return;
    const qint32 branch = intOf(items.rows["ILCTAG"]);
    const qint32 tag = intOf(items.rows["ISNTAG"]);
    if (branch != branchOf(list)) {
        if (!codeRowAt(siteOf(list), branchCodes, branch))
            return list.setParent({});
        OpenTable settings = openSettings(list.session());
        zorSaveUserSetting(settings.rows, list.session().SiteTag, "ILCTAG", branch);
        browse(list, {.ILCTAG = branch});
    }
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
    tagItems(siteOf(list), list.list().source().index, list.list().source().parent);
    list.list().rebuild();
}

void clearTags(BrowseSession& list)
{
    clearItemTags(siteOf(list));
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
    const qint32 copy = cloneItem(siteOf(list), list.currentTag(), list.session().UserName);
    list.list().rebuild();
    list.showTag(copy);
}

void postPreferredVendor(BrowseSession& list)
{
    if (!list.hasParent() || !mayEdit(list))
        return;
    if (!hasTaggedItems(siteOf(list), branchOf(list)))
        return showCritical("Cannot Post.", "Nothing to Do (There are No Tagged Items).");
    const std::optional<qint32> vendor = frmVEXINV06(list.session());
    if (!vendor)
        return;
    postVendor(siteOf(list), branchOf(list), *vendor);
    showInformation("Posting Complete", "Preferred Vendor Selection has Been Posted.");
    list.list().rebuild();
}

bool openItem(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    return openDataScreen(frmVEXINV02(list.session(), filterOf(list)), list.session(),
                          {.mode = mode,
                           .index = "INVISNTAG",
                           .keys = {{"ISNTAG", tag}},
                           .parent = {{"ILCTAG", branchOf(list)}},
                           .winTag = winTag,
                           .tag = tag});
}

void openHistory(BrowseSession& list)
{
    openItemHistory(list.session(), list.currentTag());
}

void openPrint(BrowseSession& list)
{
    if (const qint32 tag = list.currentTag(); tag != 0)
        openScreen(new ReportWindow(frmVEXINV03(tag), list.session()));
}

void openBranchChange(BrowseSession& list)
{
    openDataScreen(frmVEXINV10(), list.session(),
                   {.mode = "E", .index = "INVISNTAG", .keys = {{"ISNTAG", list.currentTag()}}});
}

void notReady(BrowseSession&)
{
    dnNotReady();
}

// ---- where the user was
void showLast(BrowseSession& list, bool& isFirst)
{
    if (!std::exchange(isFirst, false))
        return;
    OpenTable settings = openSettings(list.session());
    list.showTag(
        zorGetUserSetting(settings.rows, list.session().SiteTag, "LASTACTIVEISNTAG").toInt());
}

void keepLast(BrowseSession& list)
{
    const qint32 tag = list.currentTag();
    OpenTable settings = openSettings(list.session());
    zorSaveUserSetting(settings.rows, list.session().SiteTag, "LASTACTIVEISNTAG", tag);
}

std::vector<BrowseColumn> columns()
{
    const QString quantity = "###,###.00";
    return {{.field = "TAGGED",
             .length = 1,
             .heading = "Tag",
             .width = 500,
             .alignment = Qt::AlignHCenter},
            {.field = "PARTNO", .length = 18, .heading = "Part #", .width = 2100},
            {.field = "SHORTDESC", .length = 50, .heading = "Description", .width = 4600},
            {.field = "UPCCODE", .length = 14, .heading = "UPC Code", .width = 1500},
            {.field = "BINTAG", .length = 6, .heading = "Bin #", .width = 1000, .shows = binNumber},
            {.field = "ONORDER",
             .length = 10,
             .heading = "On Order",
             .width = 1300,
             .format = quantity,
             .alignment = Qt::AlignRight},
            {.field = "AVAILABLE",
             .length = 10,
             .heading = "On Hand",
             .width = 1300,
             .format = quantity,
             .alignment = Qt::AlignRight},
            {.field = "INACTIVE",
             .length = 3,
             .heading = "Inactive",
             .width = 900,
             .alignment = Qt::AlignHCenter,
             .shows = [](const BrowseSession&, storage::Recordset& rows) {
                 return rows["INACTIVE"].value().toBool() ? QString("Yes") : QString();
             }}};
}

std::vector<BrowseCommand> commands()
{
    return {{.name = "cmdFilter",
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
             .key = Qt::Key_O},
            {.name = "cmdChangeBranch",
             .caption = "Change &Branch",
             .run = openBranchChange,
             .key = Qt::Key_B,
             .needsRecord = true},
            {.name = "cmdADJUSTMENTS",
             .caption = "Ad&justments",
             .run = notReady,
             .key = Qt::Key_J,
             .needsRecord = true},
            {.name = "cmdAdd2Catalog",
             .caption = "Add to &Catalog",
             .run = notReady,
             .key = Qt::Key_C,
             .needsRecord = true}};
}

}  // namespace

std::optional<qint32> frmVEXINV06(const Session& session)
{
    SmallDialog dialog("frmVEXINV06", "Post Preferred Vendor");
    dialog.addText("lblNotice",
                   "Notice: Select a Vendor Number or Click on the 'Clear Existing Vendors' Check "
                   "Box Below to CLEAR ALL PREFERRED VENDORS for those Items that have Been "
                   "Tagged.");
    const QString& site = session.JobSitePath;
    auto* vendor =
        new LookUpField("txtVENNO", "lblVENNAME",
                        {.nameOf = [&site](const QString& code) -> std::optional<QString> {
                             const auto row = codeRow(site, vendorCodes, 0, code);
                             return row ? std::optional<QString>(row->name) : std::nullopt;
                         },
                         .choices = [] { return std::vector<CodeChoice>(); },
                         .search =
                             [&session, &site] {
                                 OpenTable vendors = openTable(session, "ZORVEX.mdb", "VENDORS");
                                 return goToFound(vendors.rows, zorSearchVendor(site))
                                            ? trimmedTextOf(vendors.rows["VENNO"])
                                            : QString();
                             },
                         .notFound = "Vendor Not Found"});
    auto* clear = new QCheckBox("&Clear Existing Vendors");
    clear->setObjectName("ckbClearVENTAGS");
    dialog.addField("&Vendor Number:", vendor);
    dialog.addAcross(clear);
    std::optional<qint32> chosen;
    dialog.enterTakes(dialog.addButton("cmdPost", "&Post", [&] {
        chosen = vendorToPost(site, vendor->code(), clear->isChecked());
        if (chosen)
            dialog.accept();
        else
            vendor->edit().setFocus();
    }));
    dialog.escTakes(dialog.addClosingButton("cmdExit", "E&xit"));
    vendor->edit().setFocus();
    return dialog.exec() == QDialog::Accepted ? chosen : std::nullopt;
}

std::optional<qint32> vendorToPost(const QString& jobSitePath, const QString& VENNO, bool clears)
{
    if (clears)
        return 0;
    if (dnIsBlank(VENNO)) {
        showCritical("Cannot Post", "Nothing to Post. Vendor Number is Blank.");
        return {};
    }
    const auto row = codeRow(jobSitePath, vendorCodes, 0, VENNO);
    if (!row) {
        showCritical("Cannot Post", "Cannot Find Vendor Number: " + VENNO.trimmed());
        return {};
    }
    return row->tag;
}

BrowseSpec frmVEXINV01()
{
    return inventoryItems({});
}

BrowseSpec inventoryItems(const ItemFilter& filter)
{
    const auto isFirst = std::make_shared<bool>(true);
    return {
        .name = "frmVEXINV01",
        .caption = "Inventory Items",
        .table = "INVENTORY",
        .index = "INVPARTNO",
        .parent = branchParent(),
        .columns = columns(),
        .besides = {{"ZORVEX.mdb", "INVENTORY"},
                    {"ZORVEX.mdb", "BINLIST", "BINTAG"},
                    {"ZORVEX.mdb", "SERIESCODES", "SERIESTAG"},
                    {"ZORVEX.mdb", "SUBCATEGORIES", "SUBCATTAG"},
                    {"ZORVEX.mdb", "INVCATALOG", "ICNTAG"}},
        .editRight = editRight,
        .detail = {.tagField = "ISNTAG",
                   .tagIndex = "INVISNTAG",
                   .open = openItem,
                   .hasView = true,
                   .tellsNoRecord = false},
        .print = {.run = openPrint},
        .commands = commands(),
        .status = itemText,
        .parentChosen =
            [isFirst, filter](BrowseSession& list) {
                if (filter.level > 0 && filter.ILCTAG == branchOf(list) &&
                    std::exchange(*isFirst, false))
                    browse(list, filter);
                else
                    showLast(list, *isFirst);
            },
        .closing = keepLast,
        .readsAnewInFront = true,
    };
}
