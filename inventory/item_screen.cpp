// The screen of one item, of a branch or of the catalog.
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/site_settings.h"
#include "core/text.h"
#include "inventory/catalog_rules.h"
#include "inventory/item_checks.h"
#include "inventory/item_code_commands.h"
#include "inventory/item_entry.h"
#include "inventory/item_rules.h"
#include "inventory/items.h"
#include "inventory/part_number_rules.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_session.h"

using Kind = EntryField::Kind;
using item::siteOf;

namespace {

constexpr char quantityMask[] = "######.00";
constexpr int shownNumbers = 4;

// ---- commands
void useLastVendor(const ItemKind& kind, DataSession& screen)
{
    const qint32 tag = lastItemField(kind, screen.session(), "VENTAG").toInt();
    if (tag == 0)
        return showCritical("Invalid Vendor",
                            "Last Vendor Selected Tag Number is Zero. (No Vendor Selected Yet.)");
    const auto vendor = codeRowAt(screen.session().JobSitePath, vendorCodes, tag);
    if (!vendor)
        return showCritical("Invalid Vendor", "Cannot Find Last Vendor Selected Tag Number.");
    screen.entry().setNamed(item::vendor, vendor->code);
}

// A new item has no list yet.
bool isStored(const DataSession& screen)
{
    if (!screen.entry().isAdding())
        return true;
    showCritical("Cannot Update", "This Item has Not Been Saved Yet.");
    return false;
}

void supersedePresent(const ItemKind& kind, DataSession& screen)
{
    Entry& entry = screen.entry();
    if (!isStored(screen) || !entry.goToRecord())
        return;
    supersedeNow(siteOf(entry), itemKeyOf(kind, screen.rows()),
                 trimmedTextOf(screen.rows()["PARTNO"]));
}

void browseNumbers(const ItemKind& kind, DataSession& screen)
{
    if (!isStored(screen) || !screen.entry().goToRecord())
        return;
    const ItemKey key = itemKeyOf(kind, screen.rows());
    if (kind.isOfBranch)
        openBrowseScreen(frmVEXINV08(), screen.session(),
                         {{"ILCTAG", key.ILCTAG}, {"ISNTAG", key.ISNTAG}});
    else
        openBrowseScreen(frmVEXINVCAT08(), screen.session(), {{"ICNTAG", key.ICNTAG}});
}

std::vector<DataCommand> commands(const ItemKind& kind)
{
    std::vector<DataCommand> all = itemCodeCommands();
    all.push_back({"cmdUseLastVendorSelected", "&5 - Use Last Vendor",
                   [&kind](DataSession& in) { useLastVendor(kind, in); }});
    all.push_back({"cmdSSAdd", "&Add to Superseded Part No.'s",
                   [&kind](DataSession& in) { supersedePresent(kind, in); }});
    all.push_back({"cmdSSPNBrowse", "&6 - Superseded Part Numbers",
                   [&kind](DataSession& in) { browseNumbers(kind, in); }});
    return all;
}

// ---- fields
EntryField shown(const char* name, const QString& caption,
                 std::function<QString(const Entry&)> shows)
{
    return {.kind = Kind::Shown, .name = name, .caption = caption, .shows = std::move(shows)};
}

QString nameText(const std::optional<CodeRow>& row)
{
    return row ? row->name : QString();
}

std::vector<EntryField> identityFields(const ItemKind& kind)
{
    return {
        {.name = item::seriesCode,
         .caption = "Se&ries Code:",
         .length = 3,
         .keys = {.upperCase = true},
         .check = item::checkSeries,
         .search = item::searchSeries,
         .left = item::seriesLeft},
        {.name = item::seriesName,
         .caption = "Series Name:",
         .length = 40,
         .check = item::notBlank(item::seriesName, "Category Name is Empty.")},
        {.name = item::subcatCode,
         .caption = "Su&bcategory Code:",
         .length = 4,
         .keys = {.upperCase = true},
         .check = item::checkSubcategory(kind.isOfBranch ? "Subcategory Code is Blank"
                                                         : "SubSeries Code is Blank"),
         .search = item::searchSubcategory,
         .left = item::subcategoryLeft},
        {.name = item::subcatName,
         .caption = "Subcategory Name:",
         .length = 40,
         .check = item::notBlank(item::subcatName, "Subcategory Name is Empty.")},
        {.name = "txtPARTNO",
         .field = "PARTNO",
         .caption = "&Part Number:",
         .keys = {.upperCase = true},
         .check = item::checkPartNumber(kind)},
        {.name = "txtMFGPARTNO",
         .field = "MFGPARTNO",
         .caption = "&MFG Part Number:",
         .keys = {.upperCase = true}},
        {.kind = Kind::Memo, .name = "txtDESC", .field = "Desc", .caption = "&Description:"},
        {.name = "txtUOM", .field = "UOM", .caption = "U&nit of Measure:"},
        {.name = "txtUPCCODE",
         .field = "UPCCODE",
         .caption = "UPC &Code:",
         .check = item::checkUpcCode(kind)},
    };
}

EntryField number(const char* name, schema::FieldName field, const QString& caption,
                  const char* mask)
{
    return {.name = name,
            .field = field,
            .caption = caption,
            .length = 13,
            .format = mask,
            .alignment = Qt::AlignRight};
}

std::vector<EntryField> priceFields()
{
    std::vector<EntryField> fields = {
        number("txtWHOLESALE", "WHOLESALE", "&Wholesale:", item::priceMask),
        number("txtMARKUP", "MARKUP", "Default Mar&kup %:", item::markupMask),
        number("txtRETAIL", "RETAIL", "R&etail:", item::priceMask),
        {.name = item::vendor,
         .caption = "&Vendor Number:",
         .length = 10,
         .keys = {.upperCase = true},
         .check = item::checkVendor,
         .search = item::searchVendor},
        shown("lblVENNAME", "", [](const Entry& entry) { return nameText(item::vendorIn(entry)); }),
    };
    fields[0].left = item::pricesLeft;
    fields[1].check = item::checkMarkup;
    fields[1].left = item::pricesLeft;
    fields[2].check = item::checkRetail;
    fields[2].left = item::retailLeft;
    return fields;
}

std::vector<EntryField> stockFields(bool isQuantityLocked)
{
    const auto isLive = [isQuantityLocked](const Entry&) { return !isQuantityLocked; };
    std::vector<EntryField> fields = {
        {.name = item::bin,
         .caption = "B&in Number:",
         .length = 6,
         .keys = {.upperCase = true},
         .check = item::checkBin,
         .search = item::searchBin},
        shown("lblBINNAME", "", [](const Entry& entry) { return nameText(item::binIn(entry)); }),
        number("txtONORDER", "ONORDER", "Quantity on &Order:", quantityMask),
        number("txtAVAILABLE", "AVAILABLE", "Quantity Avai&lable:", quantityMask),
        number("txtMaximum", "Maximum", "Ma&ximum:", quantityMask),
        number("txtMINIMUM", "MINIMUM", "Minimum:", quantityMask),
    };
    for (EntryField& field : fields)
        if (field.name == "txtONORDER" || field.name == "txtAVAILABLE")
            field.isLive = isLive;
    return fields;
}

// The head of the item's list, one of its two columns.
std::function<QString(const Entry&)> numberLines(const ItemKind& kind, QString BornNumber::*column)
{
    return [&kind, column](const Entry& entry) -> QString {
        if (entry.isAdding() || !entry.goToRecord())
            return {};
        QStringList lines;
        for (const BornNumber& number :
             bornNumbers(siteOf(entry), itemKeyOf(kind, entry.rows()), shownNumbers))
            lines.append(number.*column);
        return lines.join('\n');
    };
}

std::vector<EntryField> listFields(const ItemKind& kind)
{
    return {shown("lblLastPARTNO", "Last Part Number Entered:",
                  [&kind](const Entry& entry) {
                      return lastItemField(kind, entry.session(), "PARTNO").toString().trimmed();
                  }),
            shown("lblSSPARTNO", "Superseded Part No.'s:", numberLines(kind, &BornNumber::PARTNO)),
            shown("lblFDATE", "Date Superseded:", numberLines(kind, &BornNumber::FDATE))};
}

DataSection sectionOf(const std::vector<std::vector<EntryField>>& groups)
{
    DataSection section{.fields = {}, .columns = 2};
    for (const std::vector<EntryField>& group : groups)
        section.fields.insert(section.fields.end(), group.begin(), group.end());
    return section;
}

DataSpec itemScreen(const ItemKind& kind, const char* name, const DataSection& section,
                    const std::shared_ptr<EntryRules>& rules)
{
    return {
        .name = name,
        .caption = kind.noun,
        .table = kind.table,
        .index = kind.index("PARTNO"),
        .sections = {section},
        .tag = {.field = QString::fromLatin1(kind.tag.text())},
        .rules = rules,
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
        .commands = commands(kind),
        .refusesFocusInView = true,
        .viewRefusal = "Changes Not Allowed When Viewing",
        .updateCaption = "&Save and Exit",
        .updateName = "cmdSaveAndExit",
        .stayCaption = "&Update",
    };
}

EntryField heading(const QString& caption)
{
    return {.kind = Kind::Heading, .caption = caption};
}

}  // namespace

DataSpec frmVEXINV02(const Session& session, const ItemFilter& filter, const ItemCaller& caller)
{
    const bool isQuantityLocked = siteSwitch(session.JobSitePath, "VEXQTYNOEDIT");
    DataSpec screen = itemScreen(branchItems, "frmVEXINV02",
                                 sectionOf({{heading("Item")},
                                            identityFields(branchItems),
                                            {heading("Price and Stock")},
                                            priceFields(),
                                            stockFields(isQuantityLocked),
                                            listFields(branchItems)}),
                                 itemEntryRules(branchItems, filter, caller));
    screen.parent = {"ILCTAG"};
    screen.deleteTest = [](const Session& in, storage::Recordset& rows) {
        return itemDetailText(in.JobSitePath, intOf(rows["ISNTAG"]));
    };
    screen.deleteRefusalTitle = "Cannot Delete.";
    return screen;
}

DataSpec frmVEXINVCAT02(const ItemFilter& filter)
{
    // Of a new item the number that it will bear, as far as one can tell.
    const EntryField number = shown("lblICNUMBER", "I/C Number:", [](const Entry& entry) {
        if (entry.isAdding())
            return zorVEXGetNewICNumber(siteOf(entry), false);
        return entry.goToRecord() ? trimmedTextOf(entry.rows()["ICNUMBER"]) : QString();
    });
    DataSpec screen = itemScreen(catalogItems, "frmVEXINVCAT02",
                                 sectionOf({{heading("Catalog Item"), number},
                                            identityFields(catalogItems),
                                            {heading("Price")},
                                            priceFields(),
                                            listFields(catalogItems)}),
                                 itemEntryRules(catalogItems, filter));
    screen.deleteTest = [](const Session& in, storage::Recordset& rows) {
        return catalogUseText(in.JobSitePath, intOf(rows["ICNTAG"]));
    };
    return screen;
}
