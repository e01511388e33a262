#include "inventory/item_rules.h"

#include <vector>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/stamps.h"
#include "core/storage/file_paths.h"
#include "core/tags.h"
#include "core/text.h"
#include "core/write_where.h"
#include "inventory/catalog_rules.h"

namespace {

constexpr char siteFile[] = "ZORVEX.mdb";
constexpr char equipmentFile[] = "ZORBRQ.mdb";

bool hasEquipment(const QString& jobSitePath)
{
    return storage::pathExists(storage::joinPath(jobSitePath, equipmentFile));
}

bool hasRow(const QString& jobSitePath, const QString& file, const QString& table,
            const QString& index, qint32 tag)
{
    OpenTable open = openTable(jobSitePath, file, table);
    open.rows.Index(index);
    return open.rows.Seek("=", tag);
}

// ---- rows of an item
bool isWithin(const ItemKind& kind, const storage::Recordset& item, qint32 ILCTAG)
{
    return !kind.isOfBranch || intOf(item["ILCTAG"]) == ILCTAG;
}

struct ItemDetail
{
    const char* file;
    const char* table;
    const char* index;
    const char* line;
};
constexpr ItemDetail movedDetail[] = {
    {siteFile, "PIITEMS", "ISNTAG", "Physical Inventory Items Updated: "},
    {siteFile, "INVADJLIST", "INVADJLIST", "Inventory Adjustment Items Updated: "},
    {siteFile, "RQILIST", "RQIISNTAG", "PO Line Items Updated: "},
    {siteFile, "INVTRANS", "INVTRANSISNTAG", "Inventory Transaction Items Updated: "},
    {equipmentFile, "BRQROMAT", "BRQROMISNTAG", "BRQ Repair Order Items Updated: "},
};

bool moveItem(const QString& jobSitePath, const BranchChange& change, qint32& oldBranch)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    items.rows.Index("INVISNTAG");
    if (!items.rows.Seek("=", change.ISNTAG))
        return false;
    oldBranch = intOf(items.rows["ILCTAG"]);
    items.rows.Edit();
    items.rows["ILCTAG"] = change.ILCTAG;
    items.rows["BINTAG"] = change.BINTAG;
    items.rows["PARTNO"] = change.PARTNO;
    items.rows["SERIESTAG"] = change.SERIESTAG;
    items.rows["SUBCATTAG"] = change.SUBCATTAG;
    items.rows.Update();
    return true;
}

// One row alone: the others of the item keep the old branch.
void movePartNumber(const QString& jobSitePath, const BranchChange& change, qint32 oldBranch)
{
    OpenTable numbers = openTable(jobSitePath, siteFile, "INVPNMASTER");
    numbers.rows.Index("INVPNMASTERISNTAG");
    if (!numbers.rows.Seek("=", oldBranch, change.ISNTAG))
        return showCritical("Error", "Cannot Find Part Number in Master List of Part Numbers.");
    numbers.rows.Edit();
    numbers.rows["ILCTAG"] = change.ILCTAG;
    numbers.rows["PARTNO"] = change.PARTNO;
    numbers.rows.Update();
}

}  // namespace

QString shortDescription(const QString& Desc)
{
    constexpr int length = 50;
    QString text = Desc.trimmed().left(length);
    text.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    return text.trimmed();
}

double retailOf(double WHOLESALE, double MARKUP)
{
    return WHOLESALE + WHOLESALE * 0.01 * MARKUP;
}

double markupOf(double WHOLESALE, double RETAIL)
{
    return (RETAIL - WHOLESALE) / WHOLESALE * 100;
}

void rememberItem(const ItemKind& kind, const QString& userSettingsPath,
                  const storage::Recordset& item)
{
    OpenTable open = openTable(userSettingsPath, "ZORUSER.mdb", kind.remembered);
    storage::Recordset& row = open.rows;
    if (row.RecordCount() == 0) {
        row.AddNew();
    } else {
        row.MoveFirst();
        row.Edit();
    }
    constexpr schema::FieldName fields[] = {"SERIESTAG", "SUBCATTAG", "PARTNO", "Desc",  "UOM",
                                            "UPCCODE",   "WHOLESALE", "MARKUP", "RETAIL"};
    for (const schema::FieldName field : fields)
        row[field] = item[field].value();
    if (kind.isOfBranch)
        row["BINTAG"] = item["BINTAG"].value();
    if (intOf(item["VENTAG"]) != 0)
        row["VENTAG"] = item["VENTAG"].value();
    row.Update();
}

QString itemDetailText(const QString& jobSitePath, qint32 ISNTAG)
{
    QStringList lines;
    if (hasRow(jobSitePath, siteFile, "RQILIST", "RQIISNTAG", ISNTAG))
        lines.append("Purchase Order Line Items Found.");
    if (hasRow(jobSitePath, siteFile, "INVADJLIST", "INVADJLIST", ISNTAG))
        lines.append("Inventory Adjustment Line Items Found.");
    if (hasEquipment(jobSitePath) &&
        hasRow(jobSitePath, equipmentFile, "BRQROMAT", "BRQROMISNTAG", ISNTAG))
        lines.append("Repair Order Material Line Items Found.");
    return lines.isEmpty() ? QString() : "Related Detail Found: \n" + lines.join('\n');
}

qint32 cloneItem(const ItemKind& kind, const QString& jobSitePath, qint32 tag,
                 const QString& userName)
{
    std::vector<schema::FieldName> fields = {"SERIESTAG", "SUBCATTAG", "WHOLESALE", "MARKUP",
                                             "RETAIL",    "VENTAG",    "Desc",      "SHORTDESC",
                                             "UOM",       "UPCCODE"};
    if (kind.isOfBranch)
        fields.insert(fields.end(), {{"ILCTAG"}, {"BINTAG"}, {"Maximum"}, {"MINIMUM"}});
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    storage::Recordset& rows = items.rows;
    rows.Index(kind.byTag);
    if (!rows.Seek("=", tag))
        return 0;
    std::vector<storage::Value> values;
    for (const schema::FieldName field : fields)
        values.push_back(rows[field].value());
    const qint32 copy =
        dnGetNewTag(jobSitePath, QString::fromLatin1(kind.tag.text()), siteFile, "VEXTAGS", 0);
    if (copy == 0)
        return 0;  // the user was told
    const QString number = kind.isOfBranch ? QString() : zorVEXGetNewICNumber(jobSitePath, true);
    if (!kind.isOfBranch && dnIsBlank(number))
        return 0;
    rows.AddNew();
    for (size_t i = 0; i < fields.size(); ++i)
        rows[fields[i]] = values[i];
    beginStock(kind, rows);
    rows[kind.tag] = copy;
    rows["PARTNO"] = "COPY";
    if (!kind.isOfBranch)
        rows["ICNUMBER"] = number;
    rows.Update();
    zorStampAdd(rows, rows.LastModified(), userName);
    return copy;
}

void beginStock(const ItemKind& kind, storage::Recordset& rows)
{
    rows["INACTIVE"] = false;
    rows["TAGGED"] = " ";
    if (!kind.isOfBranch)
        return;
    rows["ICNTAG"] = 0;
    for (const schema::FieldName quantity :
         {schema::FieldName("ONORDER"), {"AVAILABLE"}, {"ISSUED"}, {"INVADJUSTMENTS"}})
        rows[quantity] = 0;
}

std::vector<qint32> taggedItems(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG)
{
    std::vector<qint32> tags;
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    forEachWithin(items.rows, kind.index("TAGGED"), {{"TAGGED", "Y"}}, [&] {
        if (isWithin(kind, items.rows, ILCTAG))
            tags.push_back(intOf(items.rows[kind.tag]));
        return true;
    });
    return tags;
}

bool hasTaggedItems(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG)
{
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    return !forEachWithin(items.rows, kind.index("TAGGED"), {{"TAGGED", "Y"}},
                          [&] { return !isWithin(kind, items.rows, ILCTAG); });
}

int postVendor(const ItemKind& kind, const QString& jobSitePath, qint32 ILCTAG, qint32 VENTAG)
{
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    return writeWhere(items, kind.index("TAGGED"), {{"TAGGED", "Y"}}, "VENTAG", VENTAG,
                      [&](const storage::Recordset& rows) { return isWithin(kind, rows, ILCTAG); });
}

int tagItems(const ItemKind& kind, const QString& jobSitePath, const QString& index,
             const std::vector<KeyField>& keys)
{
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    return writeWhere(items, index, keys, "TAGGED", "Y");
}

void clearItemTags(const ItemKind& kind, const QString& jobSitePath)
{
    OpenTable items = openTable(jobSitePath, siteFile, kind.table);
    writeWhere(items, kind.index("TAGGED"), {{"TAGGED", "Y"}}, "TAGGED", " ");
}

QString changeBranch(const QString& jobSitePath, const BranchChange& change)
{
    constexpr int places = 4;
    qint32 oldBranch = 0;
    if (!moveItem(jobSitePath, change, oldBranch))
        return {};
    QString report = "Inventory Item Branch Code Changed to: " + change.ILCCODE;
    movePartNumber(jobSitePath, change, oldBranch);
    for (const ItemDetail& detail : movedDetail) {
        if (detail.file == equipmentFile && !hasEquipment(jobSitePath))
            continue;
        OpenTable open = openTable(jobSitePath, detail.file, detail.table);
        const int count =
            writeWhere(open, detail.index, {{"ISNTAG", change.ISNTAG}}, "ILCTAG", change.ILCTAG);
        if (count > 0)
            report += '\n' + QString(detail.line) + QString("%1").arg(count, places);
    }
    return report;
}
