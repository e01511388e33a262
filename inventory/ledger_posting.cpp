#include "inventory/ledger_posting.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include "core/dates.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/storage/workspace.h"
#include "core/text.h"
#include "inventory/ledger_replay.h"
#include "inventory/ledger_row.h"

namespace {

constexpr int millisecondsBetweenEvents = 20;
constexpr int rowsBetweenLooks = 64;  // at the clock

const QString updateTitle = "Error in Function: zorInvTransUpdate";
const QString deleteTitle = "Error: zorInvTransDelete";
const QString cannotComplete = "Cannot Complete Inventory Transaction Update.";

QString itemNotFound(qint32 isnTag)
{
    return "Cannot Find the Inventory Item Tag: " + QString::number(isnTag) + '\n' + cannotComplete;
}

// Screens are painted meanwhile; what is typed and clicked waits, because whoever posts is in the
// middle of an update.
class ScreenEvents
{
public:
    ScreenEvents() { m_timer.start(); }
    void proceed()
    {
        if (++m_rows % rowsBetweenLooks != 0 || m_timer.elapsed() < millisecondsBetweenEvents)
            return;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_timer.start();
    }

private:
    QElapsedTimer m_timer;
    int m_rows = 0;
};

// The files of one posting.
class Posting
{
public:
    explicit Posting(const QString& file)
        : m_workspace(storage::CreateWorkspace("wksZORVEX")),
          m_database(m_workspace.OpenDatabase(file)),
          m_transactions(m_database.OpenRecordset("INVTRANS")),
          m_inventory(m_database.OpenRecordset("INVENTORY"))
    {
    }
    ~Posting() { m_workspace.Close(); }
    Posting(const Posting&) = delete;
    Posting& operator=(const Posting&) = delete;

    // Reads the catalog tag of the row's item; false for no such item.
    bool findItem(LedgerRow& row);
    void write(const LedgerRow& row, qint32 oldIsnTag);
    void remove(const LedgerRow& row);
    // What kept the replay of the item from being written.
    QString recalc(qint32 isnTag);

private:
    bool seek(const LedgerRow& row, qint32 isnTag);
    void add(const LedgerRow& row);
    void change(const LedgerRow& row);

    storage::Workspace m_workspace;
    storage::Database m_database;
    storage::Recordset m_transactions;
    storage::Recordset m_inventory;
};

bool Posting::findItem(LedgerRow& row)
{
    if (row.isnTag == 0)
        return true;
    m_inventory.Index("INVISNTAG");
    if (!m_inventory.Seek("=", row.isnTag))
        return false;
    row.icnTag = m_inventory["ICNTAG"].value().toInt();
    return true;
}

bool Posting::seek(const LedgerRow& row, qint32 isnTag)
{
    m_transactions.Index("INVTRANSACTION");
    return m_transactions.Seek("=", row.docType, row.docTag, row.itemType, row.itemTag, isnTag);
}

void Posting::add(const LedgerRow& row)
{
    m_transactions.AddNew();
    storeAll(m_transactions, row);
    m_transactions.Update();
}

void Posting::change(const LedgerRow& row)
{
    m_transactions.Edit();
    storeChanged(m_transactions, row);
    m_transactions.Update();
}

void Posting::write(const LedgerRow& row, qint32 oldIsnTag)
{
    if (oldIsnTag == 0) {
        add(row);
        return;
    }
    const bool isFound = seek(row, oldIsnTag);
    if (row.isnTag == oldIsnTag)
        isFound ? change(row) : add(row);
    else if (isFound && row.isnTag == 0)
        m_transactions.Delete();
    else if (isFound)
        change(row);
}

void Posting::remove(const LedgerRow& row)
{
    if (seek(row, row.isnTag))
        m_transactions.Delete();
}

QString Posting::recalc(qint32 isnTag)
{
    m_transactions.Close();
    m_transactions = m_database.OpenRecordset("INVTRANS");
    // Nobody posts between what is read and what is written of it: else a slow replay could write
    // over one that knew more.
    m_workspace.BeginTrans();
    const QString refusal = zorInvTransRecalc(m_inventory, m_transactions, isnTag);
    m_workspace.CommitTrans();
    return refusal;
}

bool tell(const QString& title, const QString& text)
{
    showCritical(title, text);
    return false;
}

// The two routines tell alike of a file that is missing, and each of one in its own name.
bool fileExists(const QString& path, const QString& title, const char* toldName)
{
    if (storage::pathExists(storage::joinPath(path, "ZORVEX.mdb")))
        return true;
    return tell(title, cannotComplete +
                           "\nCannot Find the Database File: " + storage::joinPath(path, toldName));
}

bool update(const QString& path, LedgerRow row, qint32 oldIsnTag)
{
    QString refusal;
    {
        Posting posting(storage::joinPath(path, "ZORVEX.mdb"));
        if (!posting.findItem(row)) {
            refusal = itemNotFound(row.isnTag);
        } else {
            posting.write(row, oldIsnTag);
            if (oldIsnTag != 0 && oldIsnTag != row.isnTag)
                refusal = posting.recalc(oldIsnTag);
            if (refusal.isEmpty() && row.isnTag != 0)
                refusal = posting.recalc(row.isnTag);
        }
    }
    return refusal.isEmpty() || tell(updateTitle, refusal);
}

}  // namespace

bool zorInvTransUpdate(const QString& path, qint32 ilcTag, const QString& docType, qint32 docTag,
                       const QString& itemType, qint32 itemTag, qint32 newIsnTag, qint32 oldIsnTag,
                       const QString& fDate, const QString& lDate, double quantity)
{
    if (newIsnTag == 0 && oldIsnTag == 0)
        return true;
    if (!fileExists(path, updateTitle, "ZORVEX.mdb"))
        return false;
    // A row without a date would stand before the first count, where nothing it says is heard.
    if (newIsnTag != 0 && (dnIsBlank(lDate) || dnIsBlank(dnDateKey(fDate))))
        return tell(updateTitle, "Invalid Date: " + fDate);
    try {
        return update(path,
                      {.ilcTag = ilcTag,
                       .icnTag = 0,
                       .isnTag = newIsnTag,
                       .docType = docType,
                       .docTag = docTag,
                       .itemType = itemType,
                       .itemTag = itemTag,
                       .fDate = fDate,
                       .lDate = lDate,
                       .quantity = quantity},
                      oldIsnTag);
    } catch (const storage::StorageError& error) {
        return tell(updateTitle, error.description());
    }
}

bool zorInvTransDelete(const QString& path, qint32 ilcTag, const QString& docType, qint32 docTag,
                       const QString& itemType, qint32 itemTag, qint32 isnTag)
{
    if (isnTag == 0)
        return true;
    if (!fileExists(path, deleteTitle, "VEX.mdb"))
        return false;
    QString refusal;
    try {
        Posting posting(storage::joinPath(path, "ZORVEX.mdb"));
        LedgerRow row;
        row.ilcTag = ilcTag;
        row.isnTag = isnTag;
        row.docType = docType;
        row.docTag = docTag;
        row.itemType = itemType;
        row.itemTag = itemTag;
        posting.remove(row);
        refusal = posting.recalc(isnTag);
    } catch (const storage::StorageError& error) {
        refusal = error.description();
    }
    return refusal.isEmpty() || tell(deleteTitle, refusal);
}

QString zorInvTransRecalc(storage::Recordset& inventory, storage::Recordset& transactions,
                          qint32 isnTag)
{
    LedgerReplay replay(postingReading);
    ScreenEvents events;
    LinesByTag rows = ledgerByItem(transactions);
    rows.forEach(isnTag, [&] {
        events.proceed();
        return replay.takeLine(rows);
    });
    if (!replay.refusal().isEmpty())
        return replay.refusal();
    inventory.Index("INVISNTAG");
    if (!inventory.Seek("=", isnTag))
        return itemNotFound(isnTag);
    inventory.Edit();
    store(inventory, replay.quantities());
    inventory.Update();
    return {};
}
