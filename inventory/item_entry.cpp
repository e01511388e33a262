#include "inventory/item_entry.h"

#include <array>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/stamps.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "inventory/catalog_rules.h"
#include "inventory/item_checks.h"
#include "inventory/item_rules.h"
#include "inventory/part_number_rules.h"

using item::siteOf;

namespace {

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
            return lastItemField(m_kind, entry.session(), field).toInt();
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

}  // namespace

storage::Value lastItemField(const ItemKind& kind, const Session& session, schema::FieldName field)
{
    OpenTable last = openTable(session, "ZORUSER.mdb", kind.remembered);
    return last.rows.RecordCount() == 0 ? storage::Value() : last.rows[field].value();
}

std::shared_ptr<EntryRules> itemEntryRules(const ItemKind& kind, const ItemFilter& filter,
                                           const ItemCaller& caller)
{
    return std::make_shared<ItemRules>(kind, filter, caller);
}
