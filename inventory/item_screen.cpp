// The screen of one item, of a branch or of the catalog.
#include <array>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/stamps.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "inventory/catalog_rules.h"
#include "inventory/item_checks.h"
#include "inventory/item_code_commands.h"
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

// The user's last item; null where he has none.
storage::Value lastOf(const ItemKind& kind, const Session& session, schema::FieldName field)
{
    OpenTable last = openTable(session, "ZORUSER.mdb", kind.remembered);
    return last.rows.RecordCount() == 0 ? storage::Value() : last.rows[field].value();
}

// ---- the line that an item is added for
const char* resultSetting(const ItemCaller& caller)
{
    return caller.line == ItemCaller::Line::Purchase ? "RQIISNTAG" : "ROIISNTAG";
}

OpenTable openCaller(const Session& session, const ItemCaller& caller)
{
    const bool isPurchase = caller.line == ItemCaller::Line::Purchase;
    OpenTable lines = isPurchase ? openTable(session, "ZORVEX.mdb", "RQILIST")
                                 : openTable(session, "ZORBRQ.mdb", "BRQROMAT");
    lines.rows.Index(isPurchase ? "RQITAG" : "BRQROMTAG");
    return lines;
}

void leaveResult(const Session& session, const ItemCaller& caller, qint32 ISNTAG)
{
    OpenTable settings = openTable(session, "ZORUSER.mdb", "VEXSETTINGS");
    zorSaveUserSetting(settings.rows, session.SiteTag, resultSetting(caller), ISNTAG);
}

void beginFrom(Entry& entry, const ItemCaller& caller)
{
    leaveResult(entry.session(), caller, 0);
    if (caller.line != ItemCaller::Line::Purchase)
        return;
    OpenTable lines = openCaller(entry.session(), caller);
    if (!lines.rows.Seek("=", caller.tag))
        return;
    const QString price = dnFormat(numberOf(lines.rows["UNITPRICE"]), item::priceMask).trimmed();
    entry.setText("Desc", textOf(lines.rows["Desc"]));
    entry.setText("UOM", trimmedTextOf(lines.rows["UNIT"]));
    entry.setText("WHOLESALE", price);
    entry.setText("RETAIL", price);
}

void tellCaller(const Session& session, const ItemCaller& caller, qint32 ISNTAG)
{
    OpenTable lines = openCaller(session, caller);
    if (lines.rows.Seek("=", caller.tag)) {
        lines.rows.Edit();
        lines.rows["ISNTAG"] = ISNTAG;
        lines.rows.Update();
    }
    leaveResult(session, caller, ISNTAG);
}

class ItemRules : public EntryRules
{
public:
    ItemRules(const ItemKind& kind, const ItemFilter& filter, const ItemCaller& caller)
        : m_kind(kind), m_filter(filter), m_caller(caller)
    {
    }

    bool begin(Entry& entry) override
    {
        const storage::Recordset& rows = entry.rows();
        if (entry.isAdding()) {
            beginNew(entry);
            if (m_caller.line != ItemCaller::Line::None)
                beginFrom(entry, m_caller);
            return true;
        }
        for (Quantity& quantity : m_quantities)
            quantity.before = entry[quantity.field];
        m_oldPartNumber = trimmedTextOf(rows["PARTNO"]);
        showCodes(entry, intOf(rows["SERIESTAG"]), intOf(rows["SUBCATTAG"]), intOf(rows["VENTAG"]));
        if (m_kind.isOfBranch)
            if (const auto bin = codeRowAt(siteOf(entry), binCodes, intOf(rows["BINTAG"])))
                entry.setNamed(item::bin, bin->code);
        return true;
    }

    // The number is drawn once, also where the store refuses the item at first.
    Step beforeWrite(Entry& entry) override
    {
        takeQuantities(entry);
        if (m_kind.isOfBranch || !entry.isAdding() || !entry.given("ICNUMBER").isNull())
            return Step::Write;
        const QString number = zorVEXGetNewICNumber(siteOf(entry), true);
        if (dnIsBlank(number))
            return Step::Stay;
        entry.give("ICNUMBER", number);
        return Step::Write;
    }

    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        const auto tagOf = [](const std::optional<CodeRow>& row) { return row ? row->tag : 0; };
        rows["SERIESTAG"] = tagOf(item::seriesIn(entry));
        rows["SUBCATTAG"] = tagOf(item::subcategoryIn(entry));
        rows["VENTAG"] = tagOf(item::vendorIn(entry));
        if (m_kind.isOfBranch)
            rows["BINTAG"] = tagOf(item::binIn(entry));
        rows["PARTNO"] = entry["PARTNO"].trimmed();
        rows["MFGPARTNO"] = entry["MFGPARTNO"].trimmed();
        rows["SHORTDESC"] = shortDescription(entry["Desc"]);
        if (entry.isAdding())
            beginStock(m_kind, rows);
        if (m_kind.isOfBranch)
            for (const Quantity& quantity : m_quantities)
                rows[quantity.field] = quantity.value;
    }

    void written(Entry& entry, storage::Recordset& rows) override
    {
        const QString bookmark = rows.Bookmark();
        const bool isNew = entry.isAdding();
        const QString& user = entry.session().UserName;
        isNew ? zorStampAdd(rows, bookmark, user) : zorStampEdit(rows, bookmark, user);
        rows.Bookmark(bookmark);
        const QString number = trimmedTextOf(rows["PARTNO"]);
        keepPartNumber(siteOf(entry), itemKeyOf(m_kind, rows), isNew ? QString() : m_oldPartNumber,
                       number);
        m_oldPartNumber = number;
        rememberItem(m_kind, entry.session().UserSettingsPath, rows);
        if (isNew && m_caller.line != ItemCaller::Line::None)
            tellCaller(entry.session(), m_caller, intOf(rows["ISNTAG"]));
    }

private:
    // What may be typed of what the ledger keeps.
    struct Quantity
    {
        schema::FieldName field;
        QString before = {};
        storage::Value value = {};
    };
    // One that nobody typed stays as postings have left it while the screen stood open.
    void takeQuantities(const Entry& entry)
    {
        const bool isStored = m_kind.isOfBranch && !entry.isAdding() && entry.goToRecord();
        for (Quantity& quantity : m_quantities) {
            if (isStored && entry[quantity.field] == quantity.before)
                quantity.value = entry.rows()[quantity.field].value();
            else
                quantity.value = entry.number(quantity.field);
        }
    }
    void beginNew(Entry& entry) const
    {
        const auto last = [&](schema::FieldName field) {
            return lastOf(m_kind, entry.session(), field).toInt();
        };
        const bool hasSeries = m_filter.level >= 1;
        const bool hasSubcategory = m_filter.level >= 2;
        showCodes(entry, hasSeries ? m_filter.SERIESTAG : last("SERIESTAG"),
                  hasSubcategory ? m_filter.SUBCATTAG
                  : hasSeries    ? 0
                                 : last("SUBCATTAG"),
                  last("VENTAG"));
    }
    // A series of another branch is none here.
    static void showCodes(Entry& entry, qint32 SERIESTAG, qint32 SUBCATTAG, qint32 VENTAG)
    {
        const auto series = codeRowAt(siteOf(entry), seriesCodes, SERIESTAG);
        if (series && series->owner == item::branchOf(entry)) {
            entry.setNamed(item::seriesCode, series->code);
            entry.setNamed(item::seriesName, series->name);
            const auto subcategory = codeRowAt(siteOf(entry), subcategoryCodes, SUBCATTAG);
            if (subcategory && subcategory->owner == series->tag) {
                entry.setNamed(item::subcatCode, subcategory->code);
                entry.setNamed(item::subcatName, subcategory->name);
            }
        }
        if (const auto vendor = codeRowAt(siteOf(entry), vendorCodes, VENTAG))
            entry.setNamed(item::vendor, vendor->code);
    }

    const ItemKind& m_kind;
    ItemFilter m_filter;
    ItemCaller m_caller;
    QString m_oldPartNumber;
    std::array<Quantity, 2> m_quantities{{{"ONORDER"}, {"AVAILABLE"}}};
};

// ---- commands
void useLastVendor(const ItemKind& kind, DataSession& screen)
{
    const qint32 tag = lastOf(kind, screen.session(), "VENTAG").toInt();
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
                      return lastOf(kind, entry.session(), "PARTNO").toString().trimmed();
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
                                 std::make_shared<ItemRules>(branchItems, filter, caller));
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
                                 std::make_shared<ItemRules>(catalogItems, filter, ItemCaller{}));
    screen.deleteTest = [](const Session& in, storage::Recordset& rows) {
        return catalogUseText(in.JobSitePath, intOf(rows["ICNTAG"]));
    };
    return screen;
}
