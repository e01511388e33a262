#include "inventory/item_rules.h"

#include <vector>

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/stamps.h"
#include "core/storage/file_paths.h"
#include "core/system.h"
#include "core/tags.h"
#include "core/write_batch.h"

namespace {

constexpr char siteFile[] = "ZORVEX.mdb";
constexpr char equipmentFile[] = "ZORBRQ.mdb";
constexpr char currentNumber[] = " <Current>";

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

// ---- part numbers
class PartNumbers
{
public:
    PartNumbers(const QString& jobSitePath, qint32 ILCTAG, qint32 ISNTAG)
        : m_open(openTable(jobSitePath, siteFile, "INVPNMASTER")),
          m_rows(m_open.rows),
          m_branch(ILCTAG),
          m_item(ISNTAG)
    {
        m_rows.Index("INVPNMASTERISNTAG");
    }

    bool seek(const QString& PARTNO) { return m_rows.Seek("=", m_branch, m_item, PARTNO); }

    void addCurrent(const QString& PARTNO) { add(PARTNO, currentNumber, QString(10, ' ')); }
    void addSuperseded(const QString& PARTNO) { add(PARTNO, today(), dnDateKey(today())); }
    // The row that `seek` has found.
    void stamp()
    {
        m_rows.Edit();
        m_rows["FDATE"] = today();
        m_rows["LDATE"] = dnDateKey(today());
        m_rows.Update();
    }
    void rename(const QString& PARTNO)
    {
        m_rows.Edit();
        m_rows["PARTNO"] = PARTNO;
        m_rows.Update();
    }

private:
    static QString today() { return System::current().now().toString("MM/dd/yyyy"); }

    void add(const QString& PARTNO, const QString& FDATE, const QString& LDATE)
    {
        m_rows.AddNew();
        m_rows["ILCTAG"] = m_branch;
        m_rows["ISNTAG"] = m_item;
        m_rows["ICNTAG"] = 0;
        m_rows["PARTNO"] = PARTNO;
        m_rows["FDATE"] = FDATE;
        m_rows["LDATE"] = LDATE;
        m_rows.Update();
    }

    OpenTable m_open;
    storage::Recordset& m_rows;
    qint32 m_branch;
    qint32 m_item;
};

void supersede(PartNumbers& numbers, const QString& oldPARTNO, const QString& PARTNO)
{
    if (!numbers.seek(oldPARTNO)) {
        if (askYesNo("Confirm Add.",
                     "OK to Add Old Part Number: " + oldPARTNO +
                         "\nto Master Part Number Table as a Superseded Part Number?\n\n"
                         "If Change was a Minor Edit Change Then Do Not Add, Click NO."))
            numbers.addSuperseded(oldPARTNO);
        return;
    }
    if (askYesNo("Confirm Update.",
                 "OK to Update Old Part Number: " + oldPARTNO +
                     "\nin Master Part Number Table as a Superseded Part Number\n"
                     "with Today's Date as the Date this Part Number was Superseded?\n\n"
                     "If Minor Edit Change and not a New Part Number then Click NO.\n"
                     "You will be Given the Option of Updating the Master Part List with Revised "
                     "Part Number Next.")) {
        if (numbers.seek(oldPARTNO))
            numbers.stamp();
    } else if (askYesNo("Confirm Update.",
                        "OK to Update Old Part Number: " + oldPARTNO +
                            "\nin Master Part Number Table with Revised Part Number: " + PARTNO)) {
        if (numbers.seek(oldPARTNO))
            numbers.rename(PARTNO);
    }
}

// ---- rows of an item
// Writes a field of each row whose key along the index is the tag; how many. Which they are is
// found out first: the field may be a key of the index.
template <class Wanted>
int writeWhere(OpenTable& open, const QString& index, KeyFields keys, schema::FieldName field,
               const storage::Value& value, Wanted isWanted)
{
    storage::Recordset& rows = open.rows;
    std::vector<QString> found;
    forEachWithin(rows, index, keys, [&] {
        if (isWanted(rows))
            found.push_back(rows.Bookmark());
        return true;
    });
    WriteBatch batch(open.workspace);
    for (const QString& bookmark : found) {
        batch.begin();
        if (!goToFound(rows, bookmark))
            continue;
        rows.Edit();
        rows[field] = value;
        rows.Update();
        batch.added();
    }
    batch.commit();
    return static_cast<int>(found.size());
}

constexpr auto anyRow = [](const storage::Recordset&) { return true; };

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

void keepPartNumber(const QString& jobSitePath, qint32 ILCTAG, qint32 ISNTAG,
                    const QString& oldPARTNO, const QString& PARTNO)
{
    PartNumbers numbers(jobSitePath, ILCTAG, ISNTAG);
    const bool isChanged = !oldPARTNO.trimmed().isEmpty() && oldPARTNO != PARTNO;
    if (isChanged)
        supersede(numbers, oldPARTNO, PARTNO);
    if ((isChanged || oldPARTNO.trimmed().isEmpty()) && !numbers.seek(PARTNO))
        numbers.addCurrent(PARTNO);
}

void rememberItem(const QString& userSettingsPath, const storage::Recordset& item)
{
    OpenTable open = openTable(userSettingsPath, "ZORUSER.mdb", "VEXINVLASTUPDATE");
    storage::Recordset& row = open.rows;
    if (row.RecordCount() == 0) {
        row.AddNew();
    } else {
        row.MoveFirst();
        row.Edit();
    }
    constexpr schema::FieldName fields[] = {"SERIESTAG", "SUBCATTAG", "PARTNO", "Desc",   "UOM",
                                            "UPCCODE",   "WHOLESALE", "MARKUP", "RETAIL", "BINTAG"};
    for (const schema::FieldName field : fields)
        row[field] = item[field].value();
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

qint32 cloneItem(const QString& jobSitePath, qint32 ISNTAG, const QString& userName)
{
    constexpr schema::FieldName fields[] = {
        "ILCTAG", "SERIESTAG", "SUBCATTAG", "WHOLESALE", "MARKUP",  "RETAIL",  "VENTAG",
        "BINTAG", "Desc",      "SHORTDESC", "UOM",       "UPCCODE", "Maximum", "MINIMUM"};
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    storage::Recordset& rows = items.rows;
    rows.Index("INVISNTAG");
    if (!rows.Seek("=", ISNTAG))
        return 0;
    std::vector<storage::Value> values;
    for (const schema::FieldName field : fields)
        values.push_back(rows[field].value());
    const qint32 tag = dnGetNewTag(jobSitePath, "ISNTAG", siteFile, "VEXTAGS", 0);
    rows.AddNew();
    for (size_t i = 0; i < std::size(fields); ++i)
        rows[fields[i]] = values[i];
    rows["ISNTAG"] = tag;
    rows["PARTNO"] = "COPY";
    rows["ICNTAG"] = 0;
    for (const schema::FieldName quantity :
         {schema::FieldName("ONORDER"), {"AVAILABLE"}, {"ISSUED"}, {"INVADJUSTMENTS"}})
        rows[quantity] = 0;
    rows["INACTIVE"] = false;
    rows["TAGGED"] = " ";
    rows.Update();
    zorStampAdd(rows, rows.LastModified(), userName);
    return tag;
}

bool hasTaggedItems(const QString& jobSitePath, qint32 ILCTAG)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    bool isFound = false;
    forEachWithin(items.rows, "INVTAGGED", {{"TAGGED", "Y"}}, [&] {
        isFound = intOf(items.rows["ILCTAG"]) == ILCTAG;
        return !isFound;
    });
    return isFound;
}

int postVendor(const QString& jobSitePath, qint32 ILCTAG, qint32 VENTAG)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    return writeWhere(
        items, "INVTAGGED", {{"TAGGED", "Y"}}, "VENTAG", VENTAG,
        [ILCTAG](const storage::Recordset& rows) { return intOf(rows["ILCTAG"]) == ILCTAG; });
}

int tagItems(const QString& jobSitePath, const QString& index, const std::vector<KeyField>& keys)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    return writeWhere(items, index, keys, "TAGGED", "Y", anyRow);
}

void clearItemTags(const QString& jobSitePath)
{
    OpenTable items = openTable(jobSitePath, siteFile, "INVENTORY");
    writeWhere(items, "INVTAGGED", {{"TAGGED", "Y"}}, "TAGGED", " ", anyRow);
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
        const int count = writeWhere(open, detail.index, {{"ISNTAG", change.ISNTAG}}, "ILCTAG",
                                     change.ILCTAG, anyRow);
        if (count > 0)
            report += '\n' + QString(detail.line) + QString("%1").arg(count, places);
    }
    return report;
}
