#include "inventory/catalog_rules.h"

#include <QHash>
#include <array>
#include <limits>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/stamps.h"
#include "core/tags.h"
#include "core/write_batch.h"
#include "inventory/item_codes.h"
#include "inventory/item_rules.h"
#include "inventory/part_number_rules.h"

namespace {

constexpr char siteFile[] = "ZORVEX.mdb";

// ---- I/C numbers
constexpr schema::FieldName counterFields[] = {"ICNCOUNTER1", "ICNCOUNTER2", "ICNCOUNTER3"};
constexpr int lastOfGroup = 999;
using Counters = std::array<int, 3>;

QString icNumber(const Counters& counters)
{
    return QString("%1-%2-%3")
        .arg(counters[2], 3, 10, QChar('0'))
        .arg(counters[1], 3, 10, QChar('0'))
        .arg(counters[0], 3, 10, QChar('0'));
}

// False when the numbers are used up.
bool advance(Counters& counters)
{
    for (int& counter : counters) {
        if (++counter <= lastOfGroup)
            return true;
        counter = 1;
    }
    return false;
}

Counters countersOf(const storage::Recordset& row)
{
    Counters counters{};
    for (size_t i = 0; i < counters.size(); ++i)
        counters[i] = row[counterFields[i]].value().toInt();
    if (counters[0] == 0)
        counters[0] = 1;
    return counters;
}

// ---- copies
// Series and subcategory under another owner, by their codes: what is missing there is added.
class GroupMap
{
public:
    GroupMap(const QString& jobSitePath, qint32 owner) : m_site(jobSitePath), m_owner(owner) {}

    // Nothing where the row of the tag is gone.
    std::optional<qint32> series(qint32 tag)
    {
        return tag == 0 ? 0 : mapped(m_series, seriesCodes, tag, m_owner);
    }
    std::optional<qint32> subcategory(qint32 tag, qint32 series)
    {
        if (tag != 0 && series != 0)
            return mapped(m_subcategories, subcategoryCodes, tag, series);
        if (tag != 0 && !codeRowAt(m_site, subcategoryCodes, tag))
            return {};
        return 0;
    }

private:
    // By the former tag and the owner there.
    using Known = QHash<std::pair<qint32, qint32>, qint32>;

    std::optional<qint32> mapped(Known& known, const CodeTable& codes, qint32 tag,
                                 qint32 owner) const
    {
        if (const auto found = known.constFind({tag, owner}); found != known.cend())
            return *found;
        const auto row = codeRowAt(m_site, codes, tag);
        if (!row)
            return {};
        const auto there = codeRow(m_site, codes, owner, row->code);
        const qint32 tagThere =
            there ? there->tag : addCode(m_site, codes, owner, row->code, row->name);
        known.insert({tag, owner}, tagThere);
        return tagThere;
    }

    QString m_site;
    qint32 m_owner;
    Known m_series;
    Known m_subcategories;
};

// Both ways of copying: what an item takes along, and what happens to its tag.
class ItemCopier
{
public:
    ItemCopier(const ItemCopies& copies, const ItemKind& from, const ItemKind& to)
        : m_copies(copies),
          m_from(openTable(copies.jobSitePath, siteFile, from.table)),
          m_to(openTable(copies.jobSitePath, siteFile, to.table)),
          m_fromKind(from),
          m_toKind(to),
          m_groups(copies.jobSitePath, to.isOfBranch ? copies.ILCTAG : 0)
    {
        source.Index(from.byTag);
    }

    // The former handle stands on the item; the latter is free.
    storage::Recordset& source = m_from.rows;
    storage::Recordset& target = m_to.rows;

    // `copy` does what is to be done with one item and gives true for a copy; then its tag goes.
    template <class Copy>
    int forEachTagged(Copy copy)
    {
        int count = 0;
        for (const qint32 tag : taggedItems(m_fromKind, m_copies.jobSitePath, m_copies.ILCTAG)) {
            if (!m_copies.proceed())
                break;
            if (!source.Seek("=", tag))
                continue;
            count += copy() ? 1 : 0;
            if (source.Seek("=", tag))
                write("TAGGED", " ");
        }
        return count;
    }
    // Of the item in hand.
    void write(schema::FieldName field, const storage::Value& value)
    {
        source.Edit();
        source[field] = value;
        source.Update();
    }
    void tell(const QString& remark) const
    {
        m_copies.tell(trimmedTextOf(source["PARTNO"]), remark);
    }

    // Adds the item in hand under the new tag; `number` names it in the remarks on missing groups,
    // `complete` writes what is particular to the target.
    template <class Complete>
    void add(qint32 tag, const QString& number, Complete complete)
    {
        constexpr schema::FieldName fields[] = {"PARTNO", "MFGPARTNO", "Desc",      "SHORTDESC",
                                                "UOM",    "UPCCODE",   "WHOLESALE", "MARKUP",
                                                "RETAIL", "VENTAG"};
        const qint32 series = mappedSeries(number);
        const qint32 subcategory = mappedSubcategory(series, number);
        target.AddNew();
        beginStock(m_toKind, target);
        for (const schema::FieldName field : fields)
            target[field] = source[field].value();
        target["SERIESTAG"] = series;
        target["SUBCATTAG"] = subcategory;
        target[m_toKind.tag] = tag;
        complete(target);
        target.Update();
        zorStampAdd(target, target.LastModified(), m_copies.userName);
    }

private:
    qint32 mappedSeries(const QString& number)
    {
        const auto series = m_groups.series(intOf(source["SERIESTAG"]));
        if (!series)
            tell("Cannot Find Series Tag #. " + number);
        return series.value_or(0);
    }
    qint32 mappedSubcategory(qint32 series, const QString& number)
    {
        const auto subcategory = m_groups.subcategory(intOf(source["SUBCATTAG"]), series);
        if (!subcategory)
            tell("Cannot Find Subcategory Tag #. " + number);
        return subcategory.value_or(0);
    }

    const ItemCopies& m_copies;
    OpenTable m_from;
    OpenTable m_to;
    const ItemKind& m_fromKind;
    const ItemKind& m_toKind;
    GroupMap m_groups;
};

// Links the item in hand to the catalog's part of the same number, or adds it there.
bool linkToCatalog(const ItemCopies& copies, ItemCopier& copier)
{
    storage::Recordset& item = copier.source;
    storage::Recordset& catalog = copier.target;
    const ItemKey own = itemKeyOf(branchItems, item);
    const auto numberFound = [&catalog] { return trimmedTextOf(catalog["ICNUMBER"]); };
    if (const int linked = intOf(item["ICNTAG"]); linked != 0) {
        catalog.Index("ICNTAG");
        copier.tell(catalog.Seek("=", linked)
                        ? "Inventory Item Found in Catalog. I/C Number: " + numberFound()
                        : QString("Inventory Item has I/C Tag. Tag NOT FOUND in Catalog."));
        return false;
    }
    catalog.Index("ICNPARTNO");
    const QString PARTNO = trimmedTextOf(item["PARTNO"]);
    const bool isThere = catalog.Seek("=", PARTNO);
    qint32 tag = isThere ? intOf(catalog["ICNTAG"]) : 0;
    if (isThere) {
        copier.tell("Part Number Found in Inventory Catalog. I/C Number: " + numberFound());
    } else {
        tag = dnGetNewTag(copies.jobSitePath, "ICNTAG", siteFile, "VEXTAGS", 0);
        const QString number = zorVEXGetNewICNumber(copies.jobSitePath, true);
        copier.add(tag, "Part #: " + PARTNO, [&](storage::Recordset& row) {
            row["ICNUMBER"] = number;
            if (copies.VENTAG != 0)
                row["VENTAG"] = copies.VENTAG;
        });
        copier.tell("Item Added to Inventory Catalog. I/C Number: " + number);
    }
    copyPartNumbers(copies.jobSitePath, own, {.ICNTAG = tag});
    copier.write("ICNTAG", tag);
    return !isThere;
}

bool addToBranch(const ItemCopies& copies, ItemCopier& copier)
{
    const storage::Recordset& item = copier.source;
    const ItemKey own = itemKeyOf(catalogItems, item);
    const QString number = "I/C Number: " + trimmedTextOf(item["ICNUMBER"]);
    copier.target.Index("INVPARTNO");
    if (copier.target.Seek("=", copies.ILCTAG, trimmedTextOf(item["PARTNO"]))) {
        copier.tell("Part Number Found in Branch Inventory. " + number);
        return false;
    }
    const qint32 tag = dnGetNewTag(copies.jobSitePath, "ISNTAG", siteFile, "VEXTAGS", 0);
    copier.add(tag, number, [&](storage::Recordset& row) {
        row["ILCTAG"] = copies.ILCTAG;
        row["ICNTAG"] = own.ICNTAG;
        row["BINTAG"] = 0;
    });
    copyPartNumbers(copies.jobSitePath, own, {.ILCTAG = copies.ILCTAG, .ISNTAG = tag});
    copier.tell("Item Added to Branch Inventory. " + number);
    return true;
}

}  // namespace

QString zorVEXGetNewICNumber(const QString& path, bool commit)
{
    OpenTable tags = openTable(path, siteFile, "VEXTAGS");
    // From the first touch on the counters are ours.
    if (commit)
        tags.workspace.BeginTrans();
    if (commit && tags.rows.RecordCount() == 0) {
        tags.rows.AddNew();
        tags.rows.Update();
    }
    const bool hasRow = tags.rows.RecordCount() > 0 && tags.rows.MoveFirst();
    Counters counters = hasRow ? countersOf(tags.rows) : Counters{1, 0, 0};
    const QString number = icNumber(counters);
    const bool isLeft = advance(counters);
    if (commit && isLeft) {
        tags.rows.Edit();
        for (size_t i = 0; i < counters.size(); ++i)
            tags.rows[counterFields[i]] = counters[i];
        tags.rows.Update();
        tags.workspace.CommitTrans();
    } else if (commit) {
        tags.workspace.Rollback();
    }
    if (isLeft)
        return number;
    showCritical("Error Creating I/C Number",
                 "Limit of 999,999,999 Items has been Reached.\n"
                 "Third Counter for I/C Number has reached 999. ");
    return QString(11, ' ');
}

QString catalogUseText(const QString& jobSitePath, qint32 ICNTAG)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    OpenTable catalog = openTable(jobSitePath, siteFile, "INVCATALOG");
    catalog.rows.Index("ICNTAG");
    const QString number =
        catalog.rows.Seek("=", ICNTAG) ? trimmedTextOf(catalog.rows["ICNUMBER"]) : QString();
    storage::Recordset& rows = items.rows;
    rows.Index("INVICNTAG");
    // Branch by branch: the index begins with it.
    for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more;) {
        const int branch = intOf(rows["ILCTAG"]);
        if (rows.Seek("=", branch, ICNTAG))
            return "Cannot Delete. This Item is Related to Existing Inventory Items. \n"
                   "All Inventory Items with this I/C Number: " +
                   number + " must be deleted first.";
        more = branch < std::numeric_limits<qint32>::max() && rows.Seek(">=", branch + 1);
    }
    return {};
}

int copyToCatalog(const ItemCopies& copies)
{
    ItemCopier copier(copies, branchItems, catalogItems);
    return copier.forEachTagged([&] { return linkToCatalog(copies, copier); });
}

int copyToBranch(const ItemCopies& copies)
{
    ItemCopier copier(copies, catalogItems, branchItems);
    return copier.forEachTagged([&] { return addToBranch(copies, copier); });
}

NumberRefresh refreshPartNumbers(const QString& jobSitePath,
                                 const std::function<void(const QString&)>& log,
                                 const std::function<bool()>& proceed)
{
    OpenTable numbers = openTable(jobSitePath, siteFile, "INVPNMASTER");
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    storage::Recordset& rows = numbers.rows;
    items.rows.Index("INVISNTAG");
    WriteBatch batch(numbers.workspace);
    NumberRefresh result;
    for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more; more = rows.MoveNext()) {
        if (!proceed()) {
            batch.commit();
            return result;
        }
        const qint32 ISNTAG = intOf(rows["ISNTAG"]);
        const QString PARTNO = trimmedTextOf(rows["PARTNO"]);
        if (!items.rows.Seek("=", ISNTAG)) {
            log("Cannot Find Inventory Item for: " + PARTNO);
            continue;
        }
        const qint32 branch = intOf(items.rows["ILCTAG"]);
        if (branch == intOf(rows["ILCTAG"]))
            continue;
        batch.begin();
        rows.Edit();
        rows["ILCTAG"] = branch;
        rows.Update();
        batch.added();
        log("Updated: " + PARTNO);
        ++result.updated;
    }
    batch.commit();
    result.isComplete = true;
    return result;
}
