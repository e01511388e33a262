#include "inventory/ledger_rebuild.h"

#include <QHash>
#include <algorithm>
#include <vector>

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/write_batch.h"
#include "inventory/ledger_replay.h"
#include "inventory/ledger_row.h"
#include "inventory/lines_by_tag.h"

namespace {

const QString title = "Error: Transaction Recalc";

// Rows are gathered and written by so many: a write between two moves would have each move read
// its block anew, and rows sorted by item share pages of the index.
constexpr size_t rowsAtOnce = 50'000;

// Material reports: each line moves stock of one item, or of two.
struct LineEffect
{
    schema::FieldName item;
    const LedgerKind* kind;
};
struct ReportFamily
{
    const char* headers;
    const char* lines;  // and their index
    schema::FieldName tag;
    schema::FieldName lineTag;
    std::vector<LineEffect> effects;
};

class Rebuild
{
public:
    Rebuild(const QString& path, qint32 ilcTag, const std::function<bool()>& proceed)
        : m_path(path),
          m_ilcTag(ilcTag),
          m_proceed(proceed),
          m_workspace(storage::CreateWorkspace("wksZORVEX")),
          m_database(m_workspace.OpenDatabase(storage::joinPath(path, "ZORVEX.mdb"))),
          m_writer(m_database.OpenRecordset("INVTRANS"))
    {
    }

    // All false when stopped.
    bool run();

private:
    struct ItemPlace
    {
        qint32 ilcTag;
        qint32 icnTag;
    };
    struct Dates
    {
        QString fDate;
        QString lDate;
    };

    void readItems();
    bool deleteOldRows();
    bool takeCounts();
    bool takeOrders();
    bool takeReports(const ReportFamily& family);
    bool takeRepairOrders();
    bool takeAdjustments();
    bool replayItems();

    // Of the branch alone; a line without an item, or of another branch, is not taken.
    bool isTaken(qint32 isnTag);
    void add(const LedgerKind& kind, qint32 docTag, qint32 itemTag, qint32 isnTag,
             const Dates& dates, double quantity);
    bool goOn();
    bool flush();
    bool writeQuantities(std::vector<std::pair<qint32, StockQuantities>>& replayed);
    template <class Take>
    bool forEachHeader(storage::Recordset headers, const char* index, Take take);

    const QString m_path;
    const qint32 m_ilcTag;
    const std::function<bool()>& m_proceed;
    storage::Workspace m_workspace;
    storage::Database m_database;
    storage::Recordset m_writer;
    QHash<qint32, ItemPlace> m_items;
    std::vector<LedgerRow> m_rows;
};

qint32 tagOf(const storage::Recordset& rows, schema::FieldName field)
{
    return rows[field].value().toInt();
}

QString stringOf(const storage::Recordset& rows, schema::FieldName field)
{
    return rows[field].value().toString();
}

void Rebuild::readItems()
{
    storage::Recordset items = m_database.OpenRecordset("INVENTORY");
    for (bool more = items.RecordCount() > 0; more; more = items.MoveNext())
        m_items.insert(tagOf(items, "ISNTAG"), {tagOf(items, "ILCTAG"), tagOf(items, "ICNTAG")});
}

bool Rebuild::deleteOldRows()
{
    storage::Recordset walk = m_database.OpenRecordset("INVTRANS");
    walk.Index("INVTRANSILCTAG");
    std::vector<QString> found;
    while (walk.Seek("=", m_ilcTag)) {
        found.clear();
        do
            found.push_back(walk.Bookmark());
        while (found.size() < rowsAtOnce && walk.MoveNext() && tagOf(walk, "ILCTAG") == m_ilcTag);
        WriteBatch batch(m_workspace);
        for (const QString& bookmark : found) {
            batch.begin();
            if (goToFound(m_writer, bookmark))
                m_writer.Delete();
            if (batch.added() && !m_proceed())
                return false;
        }
        batch.commit();
    }
    return true;
}

bool Rebuild::isTaken(qint32 isnTag)
{
    if (isnTag == 0)
        return false;
    const auto item = m_items.constFind(isnTag);
    if (item != m_items.constEnd())
        return item->ilcTag == m_ilcTag;
    showCritical(title, "Cannot Find the Inventory Item Tag: " + QString::number(isnTag));
    return false;
}

void Rebuild::add(const LedgerKind& kind, qint32 docTag, qint32 itemTag, qint32 isnTag,
                  const Dates& dates, double quantity)
{
    m_rows.push_back({.ilcTag = m_ilcTag,
                      .icnTag = m_items[isnTag].icnTag,
                      .isnTag = isnTag,
                      .docType = kind.docType,
                      .docTag = docTag,
                      .itemType = kind.itemType,
                      .itemTag = itemTag,
                      .fDate = dates.fDate,
                      .lDate = dates.lDate,
                      .quantity = quantity});
}

bool Rebuild::goOn()
{
    return m_proceed() && (m_rows.size() < rowsAtOnce || flush());
}

bool Rebuild::flush()
{
    std::stable_sort(m_rows.begin(), m_rows.end(), [](const LedgerRow& a, const LedgerRow& b) {
        return std::tie(a.isnTag, a.lDate) < std::tie(b.isnTag, b.lDate);
    });
    WriteBatch batch(m_workspace);
    for (const LedgerRow& row : m_rows) {
        batch.begin();
        m_writer.AddNew();
        storeAll(m_writer, row);
        m_writer.Update();
        if (batch.added() && !m_proceed())
            return false;
    }
    batch.commit();
    m_rows.clear();
    return true;
}

template <class Take>
bool Rebuild::forEachHeader(storage::Recordset headers, const char* index, Take take)
{
    if (headers.RecordCount() == 0)
        return true;
    headers.Index(index);
    headers.MoveFirst();
    do
        if (!take(headers) || !goOn())
            return false;
    while (headers.MoveNext());
    return true;
}

bool Rebuild::takeCounts()
{
    LinesByTag items(m_database.OpenRecordset("PIITEMS"), "PITAG", "PITAG");
    return forEachHeader(
        m_database.OpenRecordset("PILIST"), "PILDATE", [&](const storage::Recordset& counts) {
            if (tagOf(counts, "ILCTAG") != m_ilcTag)
                return true;
            const qint32 tag = tagOf(counts, "PITAG");
            const Dates dates{stringOf(counts, "PIFDATE"), stringOf(counts, "PILDATE")};
            bool goesOn = true;
            items.forEach(tag, [&] {
                const qint32 isnTag = tagOf(items.rows(), "ISNTAG");
                if (isTaken(isnTag))
                    add(ledger::count, tag, 0, isnTag, dates,
                        items.rows()["PICOUNT"].value().toDouble());
                return goesOn = goOn();
            });
            return goesOn;
        });
}

bool Rebuild::takeOrders()
{
    LinesByTag lines(m_database.OpenRecordset("RQILIST"), "RQIPOITEMNO", "POTAG");
    LinesByTag receipts(m_database.OpenRecordset("RECEIVED"), "RECRQI", "RQITAG");
    const auto takeReceipts = [&](qint32 order, qint32 line, qint32 isnTag) {
        bool goesOn = true;
        receipts.forEach(line, [&] {
            const storage::Recordset& rows = receipts.rows();
            add(ledger::received, order, tagOf(rows, "RECTAG"), isnTag,
                {stringOf(rows, "DATEREC"), stringOf(rows, "LDATEREC")},
                rows["QTYREC"].value().toDouble());
            return goesOn = goOn();
        });
        return goesOn;
    };
    const auto takeOrder = [&](const storage::Recordset& orders) {
        const qint32 order = tagOf(orders, "POTAG");
        const Dates dates{stringOf(orders, "FDATE"), stringOf(orders, "LDATE")};
        bool goesOn = true;
        lines.forEach(order, [&] {
            const storage::Recordset& rows = lines.rows();
            const qint32 isnTag = tagOf(rows, "ISNTAG");
            if (isTaken(isnTag)) {
                const qint32 line = tagOf(rows, "RQITAG");
                add(ledger::ordered, order, line, isnTag, dates, rows["QTY"].value().toDouble());
                goesOn = takeReceipts(order, line, isnTag);
            }
            return goesOn = goesOn && goOn();
        });
        return goesOn;
    };
    return forEachHeader(m_database.OpenRecordset("POLIST"), "POTAG", takeOrder);
}

bool Rebuild::takeReports(const ReportFamily& family)
{
    LinesByTag lines(m_database.OpenRecordset(family.lines), family.lines, family.tag);
    return forEachHeader(
        m_database.OpenRecordset(family.headers), "", [&](const storage::Recordset& reports) {
            const qint32 report = tagOf(reports, family.tag);
            const Dates dates{stringOf(reports, "FDATE"), stringOf(reports, "LDATE")};
            bool goesOn = true;
            lines.forEach(report, [&] {
                const storage::Recordset& rows = lines.rows();
                for (const LineEffect& effect : family.effects) {
                    const qint32 isnTag = tagOf(rows, effect.item);
                    if (isTaken(isnTag))
                        add(*effect.kind, report, tagOf(rows, family.lineTag), isnTag, dates,
                            rows["QTY"].value().toDouble());
                }
                return goesOn = goOn();
            });
            return goesOn;
        });
}

bool Rebuild::takeRepairOrders()
{
    const QString file = storage::joinPath(m_path, "ZORBRQ.mdb");
    if (!storage::pathExists(file))
        return true;
    const storage::Database equipment = m_workspace.OpenDatabase(file);
    LinesByTag lines(equipment.OpenRecordset("BRQROMAT"), "BRQROMAT", "BRQROTAG");
    return forEachHeader(equipment.OpenRecordset("BRQROLIST"), "",
                         [&](const storage::Recordset& orders) {
                             const qint32 order = tagOf(orders, "BRQROTAG");
                             bool goesOn = true;
                             lines.forEach(order, [&] {
                                 const storage::Recordset& rows = lines.rows();
                                 const qint32 isnTag = tagOf(rows, "ISNTAG");
                                 if (isTaken(isnTag)) {
                                     const QString date = stringOf(rows, "FDATE");
                                     add(ledger::used, order, tagOf(rows, "BRQROMTAG"), isnTag,
                                         {date, dnDateKey(date)}, rows["QTY"].value().toDouble());
                                 }
                                 return goesOn = goOn();
                             });
                             return goesOn;
                         });
}

bool Rebuild::takeAdjustments()
{
    return forEachHeader(m_database.OpenRecordset("INVADJLIST"), "",
                         [&](const storage::Recordset& rows) {
                             const qint32 isnTag = tagOf(rows, "ISNTAG");
                             if (isTaken(isnTag))
                                 add(ledger::adjusted, tagOf(rows, "INVADJTAG"), 0, isnTag,
                                     {stringOf(rows, "FDATE"), stringOf(rows, "LDATE")},
                                     rows["QUANTITY"].value().toDouble());
                             return true;
                         });
}

bool Rebuild::writeQuantities(std::vector<std::pair<qint32, StockQuantities>>& replayed)
{
    storage::Recordset items = m_database.OpenRecordset("INVENTORY");
    items.Index("INVISNTAG");
    WriteBatch batch(m_workspace);
    for (const auto& [isnTag, quantities] : replayed) {
        batch.begin();
        if (!items.Seek("=", isnTag))
            continue;
        items.Edit();
        store(items, quantities);
        items.Update();
        if (batch.added() && !m_proceed())
            return false;
    }
    batch.commit();
    replayed.clear();
    return true;
}

bool Rebuild::replayItems()
{
    LinesByTag rows(m_database.OpenRecordset("INVTRANS"), "INVTRANSISNTAG", "ISNTAG");
    std::vector<std::pair<qint32, StockQuantities>> replayed;
    const bool isWhole = forEachHeader(
        m_database.OpenRecordset("INVENTORY"), "INVISNTAG", [&](const storage::Recordset& items) {
            const qint32 isnTag = tagOf(items, "ISNTAG");
            LedgerReplay replay(rebuildReading);
            if (!rows.forEach(isnTag, [&] { return replay.take(rows.rows()); }))
                return true;
            if (!replay.refusal().isEmpty())
                showCritical(title, replay.refusal());
            else if (replay.quantities() != storedQuantities(items))
                replayed.emplace_back(isnTag, replay.quantities());
            return replayed.size() < rowsAtOnce || writeQuantities(replayed);
        });
    return isWhole && writeQuantities(replayed);
}

bool Rebuild::run()
{
    const ReportFamily transfers = {
        "MTRLIST",
        "MTRITEMS",
        "MTRTAG",
        "MTRITAG",
        {{"FROMISNTAG", &ledger::transferOut}, {"TOISNTAG", &ledger::transferIn}}};
    const ReportFamily returns = {
        "MRRLIST", "MRRITEMS", "MRRTAG", "MRRITAG", {{"ISNTAG", &ledger::returned}}};
    readItems();
    return deleteOldRows() && takeCounts() && takeOrders() && takeReports(transfers) &&
           takeReports(returns) && takeRepairOrders() && takeAdjustments() && flush() &&
           replayItems();
}

}  // namespace

bool rebuildLedger(const QString& jobSitePath, qint32 ilcTag, const std::function<bool()>& proceed)
{
    return Rebuild(jobSitePath, ilcTag, proceed).run();
}
