#include "inventory/ledger_documents.h"

#include "core/dates.h"
#include "core/storage/file_paths.h"

using storage::Scan;

// Material reports: each line moves stock of one item, or of two.
struct LedgerDocuments::ReportFamily
{
    const char* headers;
    const char* lines;  // and their index
    schema::FieldName tag;
    schema::FieldName lineTag;
    // The item that a line names in a field, and what happens to it; the second may be none.
    schema::FieldName item;
    const LedgerKind* kind;
    schema::FieldName otherItem;
    const LedgerKind* otherKind;
};

LedgerDocuments::LedgerDocuments(const QString& path, storage::Workspace workspace,
                                 storage::Database file, qint32 ilcTag,
                                 const std::function<bool()>& proceed,
                                 std::function<void(const QString&)> tell)
    : m_path(path),
      m_workspace(std::move(workspace)),
      m_file(std::move(file)),
      m_ilcTag(ilcTag),
      m_proceed(proceed),
      m_tell(std::move(tell))
{
}

bool LedgerDocuments::read()
{
    constexpr ReportFamily transfers = {"MTRLIST",  "MTRITEMS",         "MTRTAG",
                                        "MTRITAG",  "FROMISNTAG",       &ledger::transferOut,
                                        "TOISNTAG", &ledger::transferIn};
    constexpr ReportFamily returns = {"MRRLIST", "MRRITEMS",        "MRRTAG", "MRRITAG",
                                      "ISNTAG",  &ledger::returned, "ISNTAG", nullptr};
    readItems();
    return takeCounts() && takeOrders() && takeReports(transfers) && takeReports(returns) &&
           takeRepairOrders() && takeAdjustments();
}

void LedgerDocuments::readItems()
{
    Scan items(m_file.OpenRecordset("INVENTORY"), {"ISNTAG", "ILCTAG", "ICNTAG"});
    for (bool more = items.from(); more; more = items.next())
        m_items.insert(items.tag(0), {items.tag(1), items.tag(2)});
}

bool LedgerDocuments::isTaken(qint32 isnTag)
{
    if (isnTag == 0)
        return false;
    const auto item = m_items.constFind(isnTag);
    if (item != m_items.constEnd())
        return item->ilcTag == m_ilcTag;
    m_tell("Cannot Find the Inventory Item Tag: " + QString::number(isnTag));
    return false;
}

void LedgerDocuments::add(const LedgerKind& kind, qint32 docTag, qint32 itemTag, qint32 isnTag,
                          const Dates& dates, double quantity)
{
    m_effects.push_back({&kind, docTag, itemTag, isnTag, std::string(dates.fDate),
                         std::string(dates.lDate), quantity});
}

template <class Take>
bool LedgerDocuments::forEachHeader(const storage::Database& file, const char* table,
                                    const char* index,
                                    std::initializer_list<schema::FieldName> fields, Take take)
{
    storage::Recordset rows = file.OpenRecordset(table);
    rows.Index(index);
    Scan headers(rows, fields);
    for (bool more = headers.from(); more; more = headers.next())
        if (!take(headers) || !m_proceed())
            return false;
    return true;
}

bool LedgerDocuments::takeCounts()
{
    LinesByTag items(m_file.OpenRecordset("PIITEMS"), "PITAG", {"PITAG", "ISNTAG", "PICOUNT"});
    const auto takeCount = [&](const Scan& counts) {
        if (counts.tag(0) != m_ilcTag)
            return true;
        const qint32 tag = counts.tag(1);
        const Dates dates{counts.text(2), counts.text(3)};
        bool goesOn = true;
        items.forEach(tag, [&] {
            const qint32 isnTag = items.line().tag(1);
            if (isTaken(isnTag))
                add(ledger::count, tag, 0, isnTag, dates, items.line().number(2));
            return goesOn = m_proceed();
        });
        return goesOn;
    };
    return forEachHeader(m_file, "PILIST", "PILDATE", {"ILCTAG", "PITAG", "PIFDATE", "PILDATE"},
                         takeCount);
}

bool LedgerDocuments::takeOrders()
{
    LinesByTag lines(m_file.OpenRecordset("RQILIST"), "RQIPOITEMNO",
                     {"POTAG", "ISNTAG", "RQITAG", "QTY"});
    LinesByTag receipts(m_file.OpenRecordset("RECEIVED"), "RECRQI",
                        {"RQITAG", "RECTAG", "DATEREC", "LDATEREC", "QTYREC"});
    const auto takeReceipts = [&](qint32 order, qint32 line, qint32 isnTag) {
        bool goesOn = true;
        receipts.forEach(line, [&] {
            const Scan& row = receipts.line();
            add(ledger::received, order, row.tag(1), isnTag, {row.text(2), row.text(3)},
                row.number(4));
            return goesOn = m_proceed();
        });
        return goesOn;
    };
    const auto takeOrder = [&](const Scan& orders) {
        const qint32 order = orders.tag(0);
        const Dates dates{orders.text(1), orders.text(2)};
        bool goesOn = true;
        lines.forEach(order, [&] {
            const qint32 isnTag = lines.line().tag(1);
            if (isTaken(isnTag)) {
                const qint32 line = lines.line().tag(2);
                add(ledger::ordered, order, line, isnTag, dates, lines.line().number(3));
                goesOn = takeReceipts(order, line, isnTag);
            }
            return goesOn = goesOn && m_proceed();
        });
        return goesOn;
    };
    return forEachHeader(m_file, "POLIST", "POTAG", {"POTAG", "FDATE", "LDATE"}, takeOrder);
}

bool LedgerDocuments::takeReports(const ReportFamily& family)
{
    LinesByTag lines(m_file.OpenRecordset(family.lines), family.lines,
                     {family.tag, family.lineTag, "QTY", family.item, family.otherItem});
    const auto takeReport = [&](const Scan& reports) {
        const qint32 report = reports.tag(0);
        const Dates dates{reports.text(1), reports.text(2)};
        const auto takeItem = [&](const LedgerKind* kind, qint32 isnTag) {
            if (kind && isTaken(isnTag))
                add(*kind, report, lines.line().tag(1), isnTag, dates, lines.line().number(2));
        };
        bool goesOn = true;
        lines.forEach(report, [&] {
            takeItem(family.kind, lines.line().tag(3));
            takeItem(family.otherKind, lines.line().tag(4));
            return goesOn = m_proceed();
        });
        return goesOn;
    };
    return forEachHeader(m_file, family.headers, "", {family.tag, "FDATE", "LDATE"}, takeReport);
}

bool LedgerDocuments::takeRepairOrders()
{
    const QString file = storage::joinPath(m_path, "ZORBRQ.mdb");
    if (!storage::pathExists(file))
        return true;
    const storage::Database equipment = m_workspace.OpenDatabase(file);
    LinesByTag lines(equipment.OpenRecordset("BRQROMAT"), "BRQROMAT",
                     {"BRQROTAG", "ISNTAG", "FDATE", "BRQROMTAG", "QTY"});
    const auto takeOrder = [&](const Scan& orders) {
        const qint32 order = orders.tag(0);
        bool goesOn = true;
        lines.forEach(order, [&] {
            const Scan& row = lines.line();
            const qint32 isnTag = row.tag(1);
            if (isTaken(isnTag)) {
                const std::string key = dnDateKey(row.string(2)).toStdString();
                add(ledger::used, order, row.tag(3), isnTag, {row.text(2), key}, row.number(4));
            }
            return goesOn = m_proceed();
        });
        return goesOn;
    };
    return forEachHeader(equipment, "BRQROLIST", "", {"BRQROTAG"}, takeOrder);
}

bool LedgerDocuments::takeAdjustments()
{
    const auto takeAdjustment = [&](const Scan& rows) {
        const qint32 isnTag = rows.tag(0);
        if (isTaken(isnTag))
            add(ledger::adjusted, rows.tag(1), 0, isnTag, {rows.text(2), rows.text(3)},
                rows.number(4));
        return true;
    };
    return forEachHeader(m_file, "INVADJLIST", "",
                         {"ISNTAG", "INVADJTAG", "FDATE", "LDATE", "QUANTITY"}, takeAdjustment);
}
