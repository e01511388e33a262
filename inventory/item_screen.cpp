// The screen of one item.
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/stamps.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_rules.h"
#include "inventory/items.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_session.h"
#include "screens/search/inventory_searches.h"
#include "screens/search/vendor_searches.h"

using Kind = EntryField::Kind;

namespace {

constexpr char priceMask[] = "#########.00";
constexpr char markupMask[] = "###.00";
constexpr char quantityMask[] = "######.00";

constexpr char seriesCodeField[] = "txtSERIESCODE";
constexpr char seriesNameField[] = "txtSERIESNAME";
constexpr char subcatCodeField[] = "txtSUBCATCODE";
constexpr char subcatNameField[] = "txtSUBCATNAME";
constexpr char vendorField[] = "txtVENNO";
constexpr char binField[] = "txtBINNO";

const QString& siteOf(const Entry& entry)
{
    return entry.session().JobSitePath;
}

qint32 branchOf(const Entry& entry)
{
    return entry.parentKey("ILCTAG").toInt();
}

std::optional<CodeRow> seriesIn(const Entry& entry)
{
    return codeRow(siteOf(entry), seriesCodes, branchOf(entry), entry.named(seriesCodeField));
}

std::optional<CodeRow> subcategoryIn(const Entry& entry)
{
    const std::optional<CodeRow> series = seriesIn(entry);
    if (!series)
        return {};
    return codeRow(siteOf(entry), subcategoryCodes, series->tag, entry.named(subcatCodeField));
}

std::optional<CodeRow> vendorIn(const Entry& entry)
{
    return codeRow(siteOf(entry), vendorCodes, 0, entry.named(vendorField));
}

std::optional<CodeRow> binIn(const Entry& entry)
{
    return codeRow(siteOf(entry), binCodes, branchOf(entry), entry.named(binField));
}

// ---- checks, in the order of the fields
QString checkSeries(const Entry& entry)
{
    if (dnIsBlank(entry.named(seriesCodeField)))
        return "Series Code is Empty.";
    return seriesIn(entry) ? QString()
                           : "Cannot Find Series Code: " + entry.named(seriesCodeField).trimmed();
}

QString checkSubcategory(const Entry& entry)
{
    if (dnIsBlank(entry.named(subcatCodeField)))
        return "Subcategory Code is Blank";
    return subcategoryIn(entry) ? QString() : "Cannot Find Subcategory for Above Series Code.";
}

EntryCheck named(const char* control, const QString& refusal)
{
    return
        [=](const Entry& entry) { return dnIsBlank(entry.named(control)) ? refusal : QString(); };
}

QString checkPartNumber(const Entry& entry)
{
    if (entry.isBlank("PARTNO"))
        return "Part Number is Empty.";
    return entry.isTakenInParent("INVPARTNO", {{"PARTNO", entry["PARTNO"].trimmed()}})
               ? "Duplicate Part Number Detected."
               : QString();
}

QString checkUpcCode(const Entry& entry)
{
    return !entry.isBlank("UPCCODE") &&
                   entry.isTakenInParent("INVUPCCODE", {{"UPCCODE", entry["UPCCODE"].trimmed()}})
               ? "Duplicate UPC Number Detected."
               : QString();
}

QString checkMarkup(const Entry& entry)
{
    return entry.number("MARKUP") < 0 ? "Invalid Markup. Value Must Be Between 0 - 100" : QString();
}

QString priceText(double price)
{
    return dnFormat(price, priceMask).trimmed();
}

// A retail price that was typed has given the markup, which shows two places of it: it stands for
// every retail price that shows the same.
QString checkRetail(const Entry& entry)
{
    const double wholesale = entry.number("WHOLESALE");
    const double markup = entry.number("MARKUP");
    const double retail = entry.number("RETAIL");
    if (markup == 0 || priceText(retail) == priceText(retailOf(wholesale, markup)))
        return {};
    const bool showsTheSame =
        wholesale != 0 && dnFormat(markupOf(wholesale, retail), markupMask).trimmed() ==
                              dnFormat(markup, markupMask).trimmed();
    return showsTheSame ? QString()
                        : "Invalid Retail. Cannot Change Retail Unless Default Mark Up is Zero.";
}

QString checkVendor(const Entry& entry)
{
    const QString number = entry.named(vendorField).trimmed();
    return number.isEmpty() || vendorIn(entry) ? QString() : "Cannot Find Vendor Number: " + number;
}

QString checkBin(const Entry& entry)
{
    const QString number = entry.named(binField).trimmed();
    return number.isEmpty() || binIn(entry) ? QString() : "Cannot Find Bin Number: " + number;
}

// ---- what a field does to others
void seriesLeft(Entry& entry)
{
    if (const std::optional<CodeRow> series = seriesIn(entry))
        entry.setNamed(seriesNameField, series->name);
}

void subcategoryLeft(Entry& entry)
{
    if (const std::optional<CodeRow> subcategory = subcategoryIn(entry))
        entry.setNamed(subcatNameField, subcategory->name);
}

void markupLeft(Entry& entry)
{
    entry.setText("RETAIL", priceText(retailOf(entry.number("WHOLESALE"), entry.number("MARKUP"))));
}

void retailLeft(Entry& entry)
{
    const double wholesale = entry.number("WHOLESALE");
    if (entry.number("MARKUP") == 0 && wholesale != 0)
        entry.setText("MARKUP",
                      dnFormat(markupOf(wholesale, entry.number("RETAIL")), markupMask).trimmed());
}

// ---- look-ups
QString codeOfFound(const Entry& entry, const CodeTable& codes, const QString& bookmark)
{
    OpenTable open = openTable(entry.session(), "ZORVEX.mdb", codes.table);
    return goToFound(open.rows, bookmark) ? trimmedTextOf(open.rows[codes.code]) : QString();
}

QString searchSeries(const Entry& entry)
{
    return codeOfFound(entry, seriesCodes, zorSearchSeries(siteOf(entry), branchOf(entry)));
}

QString searchSubcategory(const Entry& entry)
{
    const std::optional<CodeRow> series = seriesIn(entry);
    if (!series)
        return {};
    return codeOfFound(entry, subcategoryCodes,
                       zorSearchSubcategory(siteOf(entry), series->tag, series->code));
}

QString searchVendor(const Entry& entry)
{
    return codeOfFound(entry, vendorCodes, zorSearchVendor(siteOf(entry)));
}

QString searchBin(const Entry& entry)
{
    return codeOfFound(entry, binCodes, zorSearchBin(siteOf(entry), branchOf(entry)));
}

// The user's last item; null where he has none.
storage::Value lastOf(const Session& session, schema::FieldName field)
{
    OpenTable last = openTable(session, "ZORUSER.mdb", "VEXINVLASTUPDATE");
    return last.rows.RecordCount() == 0 ? storage::Value() : last.rows[field].value();
}

class ItemRules : public EntryRules
{
public:
    explicit ItemRules(const ItemFilter& filter) : m_filter(filter) {}

    bool begin(Entry& entry) override
    {
        const storage::Recordset& rows = entry.rows();
        if (entry.isAdding()) {
            beginNew(entry);
            return true;
        }
        m_oldPartNumber = trimmedTextOf(rows["PARTNO"]);
        showCodes(entry, intOf(rows["SERIESTAG"]), intOf(rows["SUBCATTAG"]), intOf(rows["VENTAG"]));
        if (const auto bin = codeRowAt(siteOf(entry), binCodes, intOf(rows["BINTAG"])))
            entry.setNamed(binField, bin->code);
        return true;
    }

    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        const auto tagOf = [](const std::optional<CodeRow>& row) { return row ? row->tag : 0; };
        rows["SERIESTAG"] = tagOf(seriesIn(entry));
        rows["SUBCATTAG"] = tagOf(subcategoryIn(entry));
        rows["VENTAG"] = tagOf(vendorIn(entry));
        rows["BINTAG"] = tagOf(binIn(entry));
        rows["PARTNO"] = entry["PARTNO"].trimmed();
        rows["MFGPARTNO"] = entry["MFGPARTNO"].trimmed();
        rows["SHORTDESC"] = shortDescription(entry["Desc"]);
        if (!entry.isAdding())
            return;
        rows["ICNTAG"] = 0;
        rows["ISSUED"] = 0;
        rows["INVADJUSTMENTS"] = 0;
        rows["INACTIVE"] = false;
        rows["TAGGED"] = " ";
    }

    void written(Entry& entry, storage::Recordset& rows) override
    {
        const QString bookmark = rows.Bookmark();
        const bool isNew = entry.isAdding();
        const QString& user = entry.session().UserName;
        isNew ? zorStampAdd(rows, bookmark, user) : zorStampEdit(rows, bookmark, user);
        rows.Bookmark(bookmark);
        const QString number = trimmedTextOf(rows["PARTNO"]);
        keepPartNumber(siteOf(entry), intOf(rows["ILCTAG"]), intOf(rows["ISNTAG"]),
                       isNew ? QString() : m_oldPartNumber, number);
        m_oldPartNumber = number;
        rememberItem(entry.session().UserSettingsPath, rows);
    }

private:
    void beginNew(Entry& entry) const
    {
        const Session& session = entry.session();
        const bool hasSeries = m_filter.level >= 1;
        const bool hasSubcategory = m_filter.level >= 2;
        showCodes(entry, hasSeries ? m_filter.SERIESTAG : lastOf(session, "SERIESTAG").toInt(),
                  hasSubcategory ? m_filter.SUBCATTAG
                  : hasSeries    ? 0
                                 : lastOf(session, "SUBCATTAG").toInt(),
                  lastOf(session, "VENTAG").toInt());
    }
    // A series of another branch is none here.
    static void showCodes(Entry& entry, qint32 SERIESTAG, qint32 SUBCATTAG, qint32 VENTAG)
    {
        const auto series = codeRowAt(siteOf(entry), seriesCodes, SERIESTAG);
        if (series && series->owner == branchOf(entry)) {
            entry.setNamed(seriesCodeField, series->code);
            entry.setNamed(seriesNameField, series->name);
            const auto subcategory = codeRowAt(siteOf(entry), subcategoryCodes, SUBCATTAG);
            if (subcategory && subcategory->owner == series->tag) {
                entry.setNamed(subcatCodeField, subcategory->code);
                entry.setNamed(subcatNameField, subcategory->name);
            }
        }
        if (const auto vendor = codeRowAt(siteOf(entry), vendorCodes, VENTAG))
            entry.setNamed(vendorField, vendor->code);
    }

    ItemFilter m_filter;
    QString m_oldPartNumber;
};

// ---- commands
void useLastVendor(DataSession& screen)
{
    const qint32 tag = lastOf(screen.session(), "VENTAG").toInt();
    if (tag == 0)
        return showCritical("Invalid Vendor",
                            "Last Vendor Selected Tag Number is Zero. (No Vendor Selected Yet.)");
    const auto vendor = codeRowAt(screen.session().JobSitePath, vendorCodes, tag);
    if (!vendor)
        return showCritical("Invalid Vendor", "Cannot Find Last Vendor Selected Tag Number.");
    screen.entry().setNamed(vendorField, vendor->code);
}

// Adds or renames the series, or the subcategory under it, that is typed.
struct CodeCommand
{
    const CodeTable& codes;
    const char* codeField;
    const char* nameField;
    QString word;  // such as "Series"

    std::optional<qint32> owner(const Entry& entry) const
    {
        if (codes.owner == schema::FieldName("ILCTAG"))
            return branchOf(entry);
        const std::optional<CodeRow> series = seriesIn(entry);
        return series ? std::optional<qint32>(series->tag) : std::nullopt;
    }
    QString refusal(const Entry& entry, bool adds) const
    {
        const std::optional<qint32> owns = owner(entry);
        if (!owns)
            return checkSeries(entry);
        const QString code = entry.named(codeField).trimmed();
        if (code.isEmpty())
            return word + " Code is Empty.";
        const bool isThere = codeRow(siteOf(entry), codes, *owns, code).has_value();
        if (adds && isThere)
            return "Duplicate " + word + " Code Detected.";
        if (!adds && !isThere)
            return "Cannot Find " + word + " Code: " + code;
        return dnIsBlank(entry.named(nameField)) ? "Description is Empty." : QString();
    }
    void run(DataSession& screen, bool adds) const
    {
        Entry& entry = screen.entry();
        if (const QString text = refusal(entry, adds); !text.isEmpty())
            return showCritical("Cannot Update", text);
        (adds ? addCode : renameCode)(siteOf(entry), codes, *owner(entry), entry.named(codeField),
                                      entry.named(nameField));
        for (const char* control : {codeField, nameField})
            entry.setNamed(control, entry.named(control));  // their errors are out of date
    }
};

std::vector<DataCommand> commands()
{
    static const CodeCommand series{seriesCodes, seriesCodeField, seriesNameField, "Series"};
    static const CodeCommand subcategory{subcategoryCodes, subcatCodeField, subcatNameField,
                                         "Subcategory"};
    return {{"cmdSERIESAdd", "&1 - Add Series", [](DataSession& in) { series.run(in, true); }},
            {"cmdSERIESEdit", "&2 - Edit Series", [](DataSession& in) { series.run(in, false); }},
            {"cmdSUBCATAdd", "&3 - Add Subcategory",
             [](DataSession& in) { subcategory.run(in, true); }},
            {"cmdSUBCATEdit", "&4 - Edit Subcategory",
             [](DataSession& in) { subcategory.run(in, false); }},
            {"cmdUseLastVendorSelected", "&5 - Use Last Vendor", useLastVendor},
            {"cmdSSPNBrowse", "&6 - Superseded Part Numbers", [](DataSession& in) {
                 openBrowseScreen(frmVEXINV08(), in.session(),
                                  {{"ILCTAG", in.entry().parentKey("ILCTAG")},
                                   {"ISNTAG", in.rows()["ISNTAG"].value()}});
             }}};
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

std::vector<EntryField> identityFields()
{
    return {
        {.kind = Kind::Heading, .caption = "Item"},
        {.name = seriesCodeField,
         .caption = "Se&ries Code:",
         .length = 3,
         .keys = {.upperCase = true},
         .check = checkSeries,
         .search = searchSeries,
         .left = seriesLeft},
        {.name = seriesNameField,
         .caption = "Series Name:",
         .length = 40,
         .check = named(seriesNameField, "Category Name is Empty.")},
        {.name = subcatCodeField,
         .caption = "Su&bcategory Code:",
         .length = 4,
         .keys = {.upperCase = true},
         .check = checkSubcategory,
         .search = searchSubcategory,
         .left = subcategoryLeft},
        {.name = subcatNameField,
         .caption = "Subcategory Name:",
         .length = 40,
         .check = named(subcatNameField, "Subcategory Name is Empty.")},
        {.name = "txtPARTNO",
         .field = "PARTNO",
         .caption = "&Part Number:",
         .keys = {.upperCase = true},
         .check = checkPartNumber},
        {.name = "txtMFGPARTNO",
         .field = "MFGPARTNO",
         .caption = "&MFG Part Number:",
         .keys = {.upperCase = true}},
        {.kind = Kind::Memo, .name = "txtDESC", .field = "Desc", .caption = "&Description:"},
        {.name = "txtUOM", .field = "UOM", .caption = "U&nit of Measure:"},
        {.name = "txtUPCCODE", .field = "UPCCODE", .caption = "UPC &Code:", .check = checkUpcCode},
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

std::vector<EntryField> stockFields(bool isQuantityLocked)
{
    std::vector<EntryField> fields = {
        {.kind = Kind::Heading, .caption = "Price and Stock"},
        number("txtWHOLESALE", "WHOLESALE", "&Wholesale:", priceMask),
        number("txtMARKUP", "MARKUP", "Default Mar&kup %:", markupMask),
        number("txtRETAIL", "RETAIL", "R&etail:", priceMask),
        {.name = vendorField,
         .caption = "&Vendor Number:",
         .length = 10,
         .keys = {.upperCase = true},
         .check = checkVendor,
         .search = searchVendor},
        shown("lblVENNAME", "", [](const Entry& entry) { return nameText(vendorIn(entry)); }),
        {.name = binField,
         .caption = "B&in Number:",
         .length = 6,
         .keys = {.upperCase = true},
         .check = checkBin,
         .search = searchBin},
        shown("lblBINNAME", "", [](const Entry& entry) { return nameText(binIn(entry)); }),
        number("txtONORDER", "ONORDER", "Quantity on &Order:", quantityMask),
        number("txtAVAILABLE", "AVAILABLE", "Quantity &Available:", quantityMask),
        number("txtMaximum", "Maximum", "Ma&ximum:", quantityMask),
        number("txtMINIMUM", "MINIMUM", "Minimum:", quantityMask),
        shown("lblLastPARTNO", "Last Part Number Entered:",
              [](const Entry& entry) {
                  return lastOf(entry.session(), "PARTNO").toString().trimmed();
              }),
    };
    for (EntryField& field : fields) {
        if (field.name == "txtMARKUP") {
            field.check = checkMarkup;
            field.left = markupLeft;
        } else if (field.name == "txtRETAIL") {
            field.check = checkRetail;
            field.left = retailLeft;
        } else if (field.name == "txtONORDER" || field.name == "txtAVAILABLE") {
            field.isLive = [isQuantityLocked](const Entry&) { return !isQuantityLocked; };
        }
    }
    return fields;
}

}  // namespace

DataSpec frmVEXINV02(const Session& session, const ItemFilter& filter)
{
    DataSection section{.fields = identityFields(), .columns = 2};
    for (const EntryField& field : stockFields(siteSwitch(session.JobSitePath, "VEXQTYNOEDIT")))
        section.fields.push_back(field);
    return {
        .name = "frmVEXINV02",
        .caption = "Inventory Item",
        .table = "INVENTORY",
        .index = "INVPARTNO",
        .parent = {"ILCTAG"},
        .sections = {section},
        .tag = {.field = "ISNTAG"},
        .rules = std::make_shared<ItemRules>(filter),
        .deleteTest =
            [](const Session& in, storage::Recordset& rows) {
                return itemDetailText(in.JobSitePath, intOf(rows["ISNTAG"]));
            },
        .deleteRefusalTitle = "Cannot Delete.",
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
        .commands = commands(),
        .refusesFocusInView = true,
        .viewRefusal = "Changes Not Allowed When Viewing",
        .updateCaption = "&Save and Exit",
        .updateName = "cmdSaveAndExit",
        .stayCaption = "&Update",
    };
}
