#include "inventory/ledger_rebuild.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/write_batch.h"
#include "inventory/ledger_documents.h"
#include "inventory/ledger_row.h"

namespace {

const QString title = "Error: Transaction Recalc";

// Rows come in and go by many at a time: each commit writes every page that it touched, and rows of
// one document lie on as many pages as they name items.
constexpr WriteBatch::Limits manyRows = {.rows = 10'000, .milliseconds = 250};

// What names a row: rows that are equal in it are told apart by their order alone.
auto identity(const LedgerKind* kind, qint32 docTag, qint32 itemTag, qint32 isnTag)
{
    return std::tuple(reinterpret_cast<quintptr>(kind), docTag, itemTag, isnTag);
}

auto identity(const DocumentEffect& effect)
{
    return identity(effect.kind, effect.docTag, effect.itemTag, effect.isnTag);
}

// The ledger of a branch beside its documents. Most of it is mostly right, so that what differs is
// written alone: the end is as if all had been written anew, thirty times as soon.
class Rebuild
{
public:
    Rebuild(const QString& path, qint32 ilcTag, const std::function<bool()>& proceed)
        : m_ilcTag(ilcTag),
          m_proceed([this, &proceed] { return !m_isStopped && proceed(); }),
          m_workspace(storage::CreateWorkspace("wksZORVEX")),
          m_database(m_workspace.OpenDatabase(storage::joinPath(path, "ZORVEX.mdb"))),
          m_documents(path, m_workspace, m_database, ilcTag, m_proceed,
                      [this](const QString& text) { tell(text); })
    {
    }

    // False when stopped.
    bool run()
    {
        if (!m_documents.read())
            return false;
        sortEffects();
        return compareRows() && deleteRows() && addRows() && replayItems();
    }

private:
    void tell(const QString& text);
    void sortEffects();
    bool compareRows();
    bool stands(const storage::Scan& row);
    bool deleteRows();
    bool addRows();
    bool replayItems();
    void writeQuantities(const std::vector<qint32>& items);

    const qint32 m_ilcTag;
    bool m_isStopped = false;
    const std::function<bool()> m_proceed;
    storage::Workspace m_workspace;
    storage::Database m_database;
    LedgerDocuments m_documents;

    // Of the effects, by identity: the next one that has no row yet of those with the same one.
    std::vector<size_t> m_next;
    std::vector<bool> m_hasRow;
    std::vector<QString> m_surplus;  // bookmarks of rows that no document has
};

// There may be a box for each of many items: Cancel ends the run.
void Rebuild::tell(const QString& text)
{
    m_isStopped = Messages::current().show({.kind = MessageKind::Critical,
                                            .title = title,
                                            .text = text,
                                            .buttons = Buttons::OkCancel}) == Answer::Cancel;
}

void Rebuild::sortEffects()
{
    std::vector<DocumentEffect>& effects = m_documents.effects();
    std::stable_sort(
        effects.begin(), effects.end(),
        [](const DocumentEffect& a, const DocumentEffect& b) { return identity(a) < identity(b); });
    m_next.resize(effects.size());
    for (size_t i = 0; i < effects.size(); ++i)
        m_next[i] = i;
    m_hasRow.assign(effects.size(), false);
}

// Places of the fields that are compared.
enum RowField : size_t {
    ilcTag,
    docType,
    docTag,
    itemType,
    itemTag,
    isnTag,
    icnTag,
    fDate,
    lDate,
    quantity
};

// Whether the row is what a document gives. Rows of one identity are held to the effects of it in
// their order, because the later of two counts is the one that holds.
bool Rebuild::stands(const storage::Scan& row)
{
    const LedgerKind* kind = ledgerKind(row.text(docType), row.text(itemType), rebuildReading);
    if (!kind || kind->itemType != row.string(itemType))
        return false;
    const std::vector<DocumentEffect>& effects = m_documents.effects();
    const auto wanted = identity(kind, row.tag(docTag), row.tag(itemTag), row.tag(isnTag));
    const auto first = std::lower_bound(
        effects.begin(), effects.end(), wanted,
        [](const DocumentEffect& effect, const auto& key) { return identity(effect) < key; });
    if (first == effects.end() || identity(*first) != wanted)
        return false;
    size_t& next = m_next[static_cast<size_t>(first - effects.begin())];
    if (next == effects.size() || identity(effects[next]) != wanted)
        return false;  // more rows than effects
    const DocumentEffect& effect = effects[next];
    const bool isAlike = std::abs(effect.quantity) <= std::numeric_limits<float>::max() &&
                         float(effect.quantity) == float(row.number(quantity)) &&
                         effect.lDate == row.text(lDate) && effect.fDate == row.text(fDate) &&
                         m_documents.catalogTag(effect.isnTag) == row.tag(icnTag);
    if (isAlike)
        m_hasRow[next++] = true;
    return isAlike;
}

bool Rebuild::compareRows()
{
    storage::Scan rows(m_database.OpenRecordset("INVTRANS"),
                       {"ILCTAG", "DOCTYPE", "DOCTAG", "ITEMTYPE", "ITEMTAG", "ISNTAG", "ICNTAG",
                        "FDATE", "LDATE", "QUANTITY"});
    for (bool more = rows.from(); more; more = rows.next()) {
        if (rows.tag(ilcTag) == m_ilcTag && !stands(rows))
            m_surplus.push_back(rows.bookmark());
        if (!m_proceed())
            return false;
    }
    return true;
}

bool Rebuild::deleteRows()
{
    storage::Recordset rows = m_database.OpenRecordset("INVTRANS");
    WriteBatch batch(m_workspace, manyRows);
    for (const QString& bookmark : m_surplus) {
        batch.begin();
        if (goToFound(rows, bookmark))
            rows.Delete();
        if (batch.added() && !m_proceed())
            return false;
    }
    batch.commit();
    return true;
}

// By item, so that rows lie together as a replay reads them.
bool Rebuild::addRows()
{
    const std::vector<DocumentEffect>& effects = m_documents.effects();
    std::vector<const DocumentEffect*> missing;
    for (size_t i = 0; i < effects.size(); ++i)
        if (!m_hasRow[i])
            missing.push_back(&effects[i]);
    std::stable_sort(missing.begin(), missing.end(),
                     [](const DocumentEffect* a, const DocumentEffect* b) {
                         return std::tie(a->isnTag, a->lDate) < std::tie(b->isnTag, b->lDate);
                     });
    storage::Recordset rows = m_database.OpenRecordset("INVTRANS");
    WriteBatch batch(m_workspace, manyRows);
    for (const DocumentEffect* effect : missing) {
        batch.begin();
        rows.AddNew();
        storeAll(rows, {.ilcTag = m_ilcTag,
                        .icnTag = m_documents.catalogTag(effect->isnTag),
                        .isnTag = effect->isnTag,
                        .docType = effect->kind->docType,
                        .docTag = effect->docTag,
                        .itemType = effect->kind->itemType,
                        .itemTag = effect->itemTag,
                        .fDate = QString::fromStdString(effect->fDate),
                        .lDate = QString::fromStdString(effect->lDate),
                        .quantity = effect->quantity});
        rows.Update();
        if (batch.added() && !m_proceed())
            return false;
    }
    batch.commit();
    return true;
}

// Each item anew, within the transaction: somebody may have posted to it since it was compared.
void Rebuild::writeQuantities(const std::vector<qint32>& changed)
{
    storage::Recordset items = m_database.OpenRecordset("INVENTORY");
    const storage::Recordset ledgerRows = m_database.OpenRecordset("INVTRANS");
    items.Index("INVISNTAG");
    WriteBatch batch(m_workspace);
    for (const qint32 isnTag : changed) {
        batch.begin();
        LinesByTag rows = ledgerByItem(ledgerRows);
        LedgerReplay replay(rebuildReading);
        if (rows.forEach(isnTag, [&] { return replay.takeLine(rows); }) &&
            replay.refusal().isEmpty() && items.Seek("=", isnTag)) {
            items.Edit();
            store(items, replay.quantities());
            items.Update();
        }
        batch.added();
    }
    batch.commit();
}

// What is written stays when the run is stopped.
bool Rebuild::replayItems()
{
    constexpr size_t manyItems = 1000;
    storage::Recordset inventory = m_database.OpenRecordset("INVENTORY");
    inventory.Index("INVISNTAG");
    storage::Scan items(inventory, {"ISNTAG", "AVAILABLE", "ONORDER", "ISSUED", "INVADJUSTMENTS"});
    LinesByTag rows = ledgerByItem(m_database.OpenRecordset("INVTRANS"));
    std::vector<qint32> changed;
    bool isWhole = true;
    for (bool more = items.from(); more && isWhole; more = items.next()) {
        LedgerReplay replay(rebuildReading);
        const StockQuantities stored = {.available = float(items.number(1)),
                                        .onOrder = float(items.number(2)),
                                        .issued = float(items.number(3)),
                                        .adjustments = float(items.number(4))};
        if (rows.forEach(items.tag(0), [&] { return replay.takeLine(rows); })) {
            if (!replay.refusal().isEmpty())
                tell(replay.refusal());
            else if (replay.quantities() != stored)
                changed.push_back(items.tag(0));
        }
        isWhole = m_proceed();
        if (changed.size() == manyItems || !isWhole) {
            writeQuantities(changed);
            changed.clear();
        }
    }
    writeQuantities(changed);
    return isWhole;
}

}  // namespace

bool rebuildLedger(const QString& jobSitePath, qint32 ilcTag, const std::function<bool()>& proceed)
{
    return Rebuild(jobSitePath, ilcTag, proceed).run();
}
