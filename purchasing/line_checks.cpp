#include "purchasing/line_checks.h"

#include <cmath>

#include "core/keyed_access.h"
#include "core/line_amount.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/site_settings.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_search.h"
#include "screens/search/cost_code_searches.h"
#include "screens/search/inventory_searches.h"
#include "screens/search/job_searches.h"
#include "screens/search/order_searches.h"

namespace line {

namespace {

const QString& siteOf(const Entry& entry)
{
    return entry.session().JobSitePath;
}

Item itemOn(const storage::Recordset& rows)
{
    return {.ISNTAG = intOf(rows["ISNTAG"]),
            .ILCTAG = intOf(rows["ILCTAG"]),
            .PARTNO = trimmedTextOf(rows["PARTNO"]),
            .UOM = trimmedTextOf(rows["UOM"]),
            .Desc = textOf(rows["Desc"]),
            .RETAIL = numberOf(rows["RETAIL"])};
}

QString codeOfFound(const Entry& entry, const char* table, schema::FieldName field,
                    const QString& bookmark)
{
    OpenTable open = openTable(entry.session(), "ZORVEX.mdb", table);
    return goToFound(open.rows, bookmark) ? trimmedTextOf(open.rows[field]) : QString();
}

const CostCodeSettings& settingsOf(const LineOwner& owner, const CostCodeGroup& group)
{
    return owner.groups[static_cast<size_t>(group.letter - 'A')];
}

OpenTable costCodeRow(const Entry& entry, const LineOwner& owner, const CostCodeGroup& group,
                      bool& isThere)
{
    OpenTable open = openTable(entry.session(), "MAIN.mdb", group.table);
    open.rows.Index(group.table);
    isThere = open.rows.Seek("=", owner.CONO, owner.JOBNO, storedCode(entry, owner, group));
    return open;
}

double markedUp(double wholesale, double markup)
{
    return wholesale + roundedToCents(wholesale * markup * 0.01);
}

}  // namespace

std::optional<Item> itemAt(const Session& session, qint32 ISNTAG)
{
    OpenTable items = openTable(session, "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVISNTAG");
    if (ISNTAG == 0 || !items.rows.Seek("=", ISNTAG))
        return {};
    return itemOn(items.rows);
}

qint32 branchOf(const Entry& entry)
{
    const auto row = codeRow(siteOf(entry), branchCodes, 0, entry.named(branch));
    return row ? row->tag : 0;
}

std::optional<Item> itemOf(const Entry& entry)
{
    const QString PARTNO = entry.named(part).trimmed();
    const qint32 ILCTAG = branchOf(entry);
    if (PARTNO.isEmpty() || ILCTAG == 0)
        return {};
    OpenTable items = openTable(entry.session(), "ZORVEX.mdb", "INVENTORY");
    items.rows.Index("INVPARTNO");
    if (!items.rows.Seek("=", ILCTAG, PARTNO))
        return {};
    return itemOn(items.rows);
}

void takeItem(Entry& entry)
{
    const auto item = itemOf(entry);
    if (!item)
        return;
    entry.setText("UNIT", item->UOM);
    entry.setText("Desc", item->Desc);
    entry.setText("UNITPRICE", dnFormat(item->RETAIL, priceMask).trimmed());
}

double quantityOf(const Entry& entry)
{
    const double typed = entry.number("QTY");
    // The platform's rounding: an exact half to the even number.
    return siteSwitch(siteOf(entry), "VEXNODECIMAL") ? std::nearbyint(typed) : typed;
}

std::optional<double> amountOf(const Entry& entry)
{
    return lineAmount(quantityOf(entry), entry.number("UNITPRICE"), entry["UNITFACT"]);
}

QString storedCode(const Entry& entry, const LineOwner& owner, const CostCodeGroup& group)
{
    const QString typed = entry[group.code];
    return dnIsBlank(typed) ? QString() : settingsOf(owner, group).stored(typed);
}

QString branchName(const Entry& entry)
{
    const auto row = codeRow(siteOf(entry), branchCodes, 0, entry.named(branch));
    return row ? row->name : QString();
}

QString checkBranch(const Entry& entry)
{
    const QString code = entry.named(branch).trimmed();
    return code.isEmpty() || branchOf(entry) != 0 ? QString() : "Cannot Find Branch Code: " + code;
}

QString searchBranch(const Entry& entry)
{
    return codeOfFound(entry, "ILCLIST", "ILCCODE", zorSearchBranch(siteOf(entry)));
}

QString checkPart(const Entry& entry)
{
    if (dnIsBlank(entry.named(part)))
        return {};
    if (dnIsBlank(entry.named(branch)))
        return "Inventory Location Code is Empty. \nCannot Verify Part Number with Blank ILC.";
    return itemOf(entry) ? QString() : "Cannot Find Above Part Number";
}

// The item may be another branch's.
bool choosePart(Entry& entry)
{
    const qint32 ILCTAG = branchOf(entry);
    if (ILCTAG == 0) {
        showCritical("ILC Error",
                     "Inventory Location Code is Undefined. Cannot Search Until this Code is "
                     "Selected.");
        return false;
    }
    const QString found = zorVEXINVSearch(entry.session(), {.ILCTAG = ILCTAG});
    OpenTable items = openTable(entry.session(), "ZORVEX.mdb", "INVENTORY");
    if (!goToFound(items.rows, found))
        return false;
    const Item item = itemOn(items.rows);
    if (const auto row = codeRowAt(siteOf(entry), branchCodes, item.ILCTAG))
        entry.setNamed(branch, row->code);
    entry.setNamed(part, item.PARTNO);
    partLeft(entry);
    return true;
}

void partLeft(Entry& entry)
{
    if (entry.isAdding())
        takeItem(entry);
}

// Asked in its requisition, too: an ordered line is one and the same there.
QString checkQuantity(const Entry& entry)
{
    if (quantityOf(entry) != 0 || entry.isAdding() || !entry.goToRecord())
        return {};
    const int RQITAG = intOf(entry.rows()["RQITAG"]);
    OpenTable payments = openTable(entry.session(), "ZORVEX.mdb", "PAYMENTS");
    payments.rows.Index("PAYRQI");
    return payments.rows.Seek("=", RQITAG)
               ? "Payment Items Found for this PO Item. Quantity cannot be Zero."
               : QString();
}

void quantityLeft(Entry& entry)
{
    entry.setText("QTY", dnFormat(quantityOf(entry), quantityMask).trimmed());
}

std::function<void(Entry&)> vendorInvoiceLeft(const LineOwner& owner)
{
    return [POTAG = owner.kind->isOrder() ? owner.docTag : 0](Entry& entry) {
        const QString number = entry["VINVNO"].trimmed();
        if (number.isEmpty())
            return;
        // A line of a requisition may have been ordered.
        const qint32 own = POTAG == 0 && !entry.isAdding() && entry.goToRecord()
                               ? intOf(entry.rows()["POTAG"])
                               : POTAG;
        OpenTable payments = openTable(entry.session(), "ZORVEX.mdb", "PAYMENTS");
        qint32 other = 0;
        forEachWithin(payments.rows, "PAYVENINV", {{"VENINV", number}}, [&] {
            const int tag = intOf(payments.rows["POTAG"]);
            other = tag != own ? tag : 0;
            return other == 0;
        });
        if (other == 0)
            return;
        OpenTable orders = openTable(entry.session(), "ZORVEX.mdb", "POLIST");
        orders.rows.Index("POTAG");
        showCritical("Duplicate Invoice No.",
                     "Duplicate Vendor Invoice Number Detected. PO Number: " +
                         (orders.rows.Seek("=", other) ? trimmedTextOf(orders.rows["PONO"])
                                                       : QString(15, '?')));
    };
}

QString checkFactor(const Entry& entry)
{
    return lineAmount(0, 0, entry["UNITFACT"])
               ? QString()
               : "Invalid Unit Factor. Must be nothing or e, d, g, c, or m.";
}

EntryCheck checkCostCode(const LineOwner& owner, const CostCodeGroup& group)
{
    return [owner, &group](const Entry& entry) -> QString {
        const CostCodeSettings& settings = settingsOf(owner, group);
        if (!settings.isDefined() || entry.isBlank(group.code))
            return {};
        bool isThere = false;
        costCodeRow(entry, owner, group, isThere);
        return isThere ? QString()
                       : "Cannot Find " + settings.name + ": " + entry[group.code].trimmed();
    };
}

std::function<QString(const Entry&)> searchCostCode(const LineOwner& owner,
                                                    const CostCodeGroup& group)
{
    return [owner, &group](const Entry& entry) {
        return pickCostCode(group, siteOf(entry), entry[group.code],
                            static_cast<qint16>(owner.CONO), owner.JOBNO,
                            settingsOf(owner, group).name, CostCodeOrder::ByCode)
            .trimmed();
    };
}

std::function<QString(const Entry&)> costCodeName(const LineOwner& owner,
                                                  const CostCodeGroup& group)
{
    return [owner, &group](const Entry& entry) -> QString {
        if (!settingsOf(owner, group).isDefined() || entry.isBlank(group.code))
            return {};
        bool isThere = false;
        const OpenTable row = costCodeRow(entry, owner, group, isThere);
        return isThere ? trimmedTextOf(row.rows[group.description]) : QString();
    };
}

std::function<void(Entry&)> costCodeLeft(const LineOwner& owner, const CostCodeGroup& group)
{
    return [owner, &group](Entry& entry) {
        if (entry.isBlank(group.code))
            return;
        bool isThere = false;
        const OpenTable row = costCodeRow(entry, owner, group, isThere);
        if (!isThere)
            return;
        if (const QString code = trimmedTextOf(row.rows["GLCODE"]); !code.isEmpty())
            entry.setText("GLCODE", code);
        const bool hasDefault = dnNotBlank(siteSetting(siteOf(entry), "MCODEDEFAULT").toString());
        if (const QString code = trimmedTextOf(row.rows["MCODE"]); !code.isEmpty() && !hasDefault)
            entry.setText("MCODE", code);
    };
}

QString checkMaterialCode(const Entry& entry)
{
    const QString code = entry["MCODE"].trimmed();
    OpenTable codes = openTable(entry.session(), "ZORVEX.mdb", "MCLIST");
    codes.rows.Index("MCODE");
    return code.isEmpty() || codes.rows.Seek("=", code) ? QString()
                                                        : "Cannot Find Material Code: " + code;
}

QString searchMaterialCode(const Entry& entry)
{
    return codeOfFound(entry, "MCLIST", "MCODE", zorSearchMaterialCode(siteOf(entry)));
}

EntryCheck checkGlCode(const LineOwner& owner)
{
    return [CONO = owner.CONO](const Entry& entry) -> QString {
        const QString code = entry["GLCODE"].trimmed();
        OpenTable codes = openTable(entry.session(), "ZORVEX.mdb", "GLCODES");
        codes.rows.Index("GLCODES");
        return code.isEmpty() || codes.rows.Seek("=", CONO, code) ? QString()
                                                                  : "Cannot Find G/L Code: " + code;
    };
}

std::function<QString(const Entry&)> searchGlCode(const LineOwner& owner)
{
    return [CONO = owner.CONO](const Entry& entry) {
        return codeOfFound(entry, "GLCODES", "GLCODE",
                           zorSearchGLCode(siteOf(entry), static_cast<qint16>(CONO)));
    };
}

EntryCheck yesNo(schema::FieldName field, const QString& refusal)
{
    return [=](const Entry& entry) {
        const QString text = entry[field].trimmed().toUpper();
        return text.isEmpty() || text == "Y" || text == "N" ? QString() : refusal;
    };
}

QString checkMarkup(const Entry& entry)
{
    const double markup = entry.number("MARKUP");
    return markup < 0 || markup > 100 ? "Invalid Markup. Value Must Be Between 0 - 100" : QString();
}

void markupLeft(Entry& entry)
{
    const double markup = entry.number("MARKUP");
    if (markup > 0)
        entry.setText(
            "RETAIL",
            dnFormat(markedUp(entry.number("WHOLESALE"), markup), "#########.00").trimmed());
}

QString checkRetail(const Entry& entry)
{
    const double markup = entry.number("MARKUP");
    const double computed = markedUp(entry.number("WHOLESALE"), markup);
    return markup == 0 || std::abs(entry.number("RETAIL") - computed) < 0.005
               ? QString()
               : "Invalid Retail. Cannot Change Retail Unless Default Mark Up is Zero.";
}

}  // namespace line
