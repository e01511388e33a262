#include "inventory/item_checks.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "core/text.h"
#include "inventory/item_rules.h"
#include "screens/search/inventory_searches.h"
#include "screens/search/vendor_searches.h"

namespace item {

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
    return codeRow(siteOf(entry), seriesCodes, branchOf(entry), entry.named(seriesCode));
}

std::optional<CodeRow> subcategoryIn(const Entry& entry)
{
    const std::optional<CodeRow> series = seriesIn(entry);
    if (!series)
        return {};
    return codeRow(siteOf(entry), subcategoryCodes, series->tag, entry.named(subcatCode));
}

std::optional<CodeRow> vendorIn(const Entry& entry)
{
    return codeRow(siteOf(entry), vendorCodes, 0, entry.named(vendor));
}

std::optional<CodeRow> binIn(const Entry& entry)
{
    return codeRow(siteOf(entry), binCodes, branchOf(entry), entry.named(bin));
}

// ---- checks, in the order of the fields
QString checkSeries(const Entry& entry)
{
    if (dnIsBlank(entry.named(seriesCode)))
        return "Series Code is Empty.";
    return seriesIn(entry) ? QString()
                           : "Cannot Find Series Code: " + entry.named(seriesCode).trimmed();
}

EntryCheck checkSubcategory(const QString& blank)
{
    return [blank](const Entry& entry) -> QString {
        if (dnIsBlank(entry.named(subcatCode)))
            return blank;
        return subcategoryIn(entry) ? QString() : "Cannot Find Subcategory for Above Series Code.";
    };
}

EntryCheck notBlank(const char* control, const QString& refusal)
{
    return
        [=](const Entry& entry) { return dnIsBlank(entry.named(control)) ? refusal : QString(); };
}

EntryCheck checkPartNumber(const ItemKind& kind)
{
    return [index = kind.index("PARTNO")](const Entry& entry) -> QString {
        if (entry.isBlank("PARTNO"))
            return "Part Number is Empty.";
        return entry.isTakenInParent(index, {{"PARTNO", entry["PARTNO"].trimmed()}})
                   ? "Duplicate Part Number Detected."
                   : QString();
    };
}

EntryCheck checkUpcCode(const ItemKind& kind)
{
    return [index = kind.index("UPCCODE")](const Entry& entry) -> QString {
        return !entry.isBlank("UPCCODE") &&
                       entry.isTakenInParent(index, {{"UPCCODE", entry["UPCCODE"].trimmed()}})
                   ? "Duplicate UPC Number Detected."
                   : QString();
    };
}

QString checkMarkup(const Entry& entry)
{
    return entry.number("MARKUP") < 0 ? "Invalid Markup. Value Must Be Between 0 - 100" : QString();
}

static QString priceText(double price)
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
    const QString number = entry.named(vendor).trimmed();
    return number.isEmpty() || vendorIn(entry) ? QString() : "Cannot Find Vendor Number: " + number;
}

QString checkBin(const Entry& entry)
{
    const QString number = entry.named(bin).trimmed();
    return number.isEmpty() || binIn(entry) ? QString() : "Cannot Find Bin Number: " + number;
}

// ---- what a field does to others
void seriesLeft(Entry& entry)
{
    if (const std::optional<CodeRow> series = seriesIn(entry))
        entry.setNamed(seriesName, series->name);
}

void subcategoryLeft(Entry& entry)
{
    if (const std::optional<CodeRow> subcategory = subcategoryIn(entry))
        entry.setNamed(subcatName, subcategory->name);
}

void pricesLeft(Entry& entry)
{
    if (entry.number("MARKUP") < 0)
        return;
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
static QString codeOfFound(const Entry& entry, const CodeTable& codes, const QString& bookmark)
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

}  // namespace item
