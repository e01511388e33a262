#include "inventory/ledger_history.h"

#include "core/storage/file_paths.h"
#include "core/text.h"
#include "core/write_batch.h"

namespace {

const QString numberOfNone = "?????????";
constexpr int tagDigits = 10;

using Walk = bool (*)(storage::Recordset&, qint32, const std::function<bool()>&);

int fill(const QString& jobSitePath, qint32 tag, Walk walk, OpenTable& buffer)
{
    const OpenTable ledger = openTable(jobSitePath, "ZORVEX.mdb", "INVTRANS");
    storage::Recordset transactions = ledger.rows;
    LedgerHistory history(jobSitePath, historyReading);
    WriteBatch batch(buffer.workspace);
    int count = 0;
    walk(transactions, tag, [&] {
        batch.begin();
        buffer.rows.AddNew();
        buffer.rows["LINENO"] = ++count;
        store(buffer.rows, history.take(transactions));
        buffer.rows.Update();
        batch.added();
        return true;
    });
    batch.commit();
    return count;
}

}  // namespace

FieldByTag::FieldByTag(storage::Recordset rows, const QString& index, schema::FieldName field)
    : m_rows(std::move(rows)), m_field(field)
{
    m_rows.Index(index);
}

std::optional<QString> FieldByTag::of(qint32 tag)
{
    const auto known = m_known.constFind(tag);
    if (known != m_known.constEnd())
        return *known;
    std::optional<QString> found;
    if (m_rows.isOpen() && m_rows.Seek("=", tag))
        found = m_rows[m_field].value().toString();
    m_known.insert(tag, found);
    return found;
}

LedgerHistory::LedgerHistory(const QString& jobSitePath, const LedgerReading& reading)
    : m_path(jobSitePath), m_reading(reading), m_workspace(storage::CreateWorkspace("wksHISTORY"))
{
}

LedgerHistory::~LedgerHistory()
{
    m_workspace.Close();
}

QString LedgerHistory::numberOf(const LedgerKind& kind, qint32 docTag)
{
    const DocumentNumber& number = kind.number;
    if (number.prefix)
        return number.prefix + dnPadLeftZero(QString::number(docTag), tagDigits);
    if (!m_numbers.contains(number.table)) {
        // Without the file of a sibling nothing is found.
        const QString file = storage::joinPath(m_path, number.file);
        m_numbers.insert(
            number.table,
            storage::pathExists(file)
                ? FieldByTag(m_workspace.OpenDatabase(file).OpenRecordset(number.table),
                             number.index, number.number)
                : FieldByTag());
    }
    return m_numbers[number.table].of(docTag).value_or(numberOfNone).trimmed();
}

HistoryLine LedgerHistory::take(const storage::Recordset& transactions)
{
    const auto text = [&](schema::FieldName field) {
        return transactions[field].value().toString();
    };
    HistoryLine line{.DOCDESC = {},
                     .DOCNO = {},
                     .DOCFDATE = text("FDATE"),
                     .DOCLDATE = text("LDATE"),
                     .quantity = static_cast<float>(transactions["QUANTITY"].value().toDouble())};
    const QString docType = text("DOCTYPE");
    if (const LedgerKind* kind =
            ledgerKind(docType.toStdString(), text("ITEMTYPE").toStdString(), m_reading)) {
        const bool isRenamed = kind == &ledger::returned && m_reading.returnDescription;
        line.DOCDESC = isRenamed ? m_reading.returnDescription : kind->description;
        line.DOCNO = numberOf(*kind, transactions["DOCTAG"].value().toInt());
        m_balances.apply(kind->effect, line.quantity, m_reading);
    } else {
        line.DOCDESC = "Unknown Document: " + docType.trimmed();
    }
    line.onOrder = m_balances.onOrder;
    line.available = m_balances.available;
    return line;
}

void store(storage::Recordset& buffer, const HistoryLine& line)
{
    buffer["DOCDESC"] = line.DOCDESC;
    buffer["DOCNO"] = line.DOCNO;
    buffer["DOCFDATE"] = line.DOCFDATE;
    buffer["DOCLDATE"] = line.DOCLDATE;
    buffer["QUANTITY"] = double(line.quantity);
    buffer["ONORDER"] = double(line.onOrder);
    buffer["AVAILABLE"] = double(line.available);
}

int fillItemHistory(const QString& jobSitePath, qint32 isnTag, OpenTable& buffer)
{
    return fill(jobSitePath, isnTag, forEachOfItem, buffer);
}

int fillCatalogHistory(const QString& jobSitePath, qint32 icnTag, OpenTable& buffer)
{
    return fill(jobSitePath, icnTag, forEachOfCatalogItem, buffer);
}
