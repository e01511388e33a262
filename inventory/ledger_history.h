// The history of an item, or of a catalog item over all branches: its rows of the ledger with the
// document that each comes from, and what was on order and on hand after it.
#pragma once

#include <QHash>

#include "core/locators.h"
#include "inventory/ledger_replay.h"

struct HistoryLine
{
    QString DOCDESC;
    QString DOCNO;
    QString DOCFDATE;
    QString DOCLDATE;
    float quantity = 0;
    float onOrder = 0;
    float available = 0;
};

// One field of the row that has a tag, looked up once for each tag.
class FieldByTag
{
public:
    FieldByTag() = default;
    FieldByTag(storage::Recordset rows, const QString& index, schema::FieldName field);

    // Nothing when no row has the tag.
    std::optional<QString> of(qint32 tag);

private:
    storage::Recordset m_rows;
    schema::FieldName m_field;
    QHash<qint32, std::optional<QString>> m_known;
};

class LedgerHistory
{
public:
    LedgerHistory(const QString& jobSitePath, const LedgerReading& reading);
    ~LedgerHistory();
    LedgerHistory(const LedgerHistory&) = delete;
    LedgerHistory& operator=(const LedgerHistory&) = delete;

    // Before each item.
    void begin() { m_balances = {}; }
    // The row on which the handle stands. One of unknown kind says so and moves nothing; a document
    // that is gone has the number "?????????".
    HistoryLine take(const storage::Recordset& transactions);

private:
    QString numberOf(const LedgerKind& kind, qint32 docTag);

    const QString m_path;
    const LedgerReading& m_reading;
    StockQuantities m_balances;
    storage::Workspace m_workspace;
    QHash<const char*, FieldByTag> m_numbers;  // by table
};

// What the line and the fields of buffers of the same names have in common, in an edit that the
// caller has begun.
void store(storage::Recordset& buffer, const HistoryLine& line);

// Fill the empty buffers INVHISTORY and INVCATHISTORY; how many rows there are. Fail as the store
// does.
int fillItemHistory(const QString& jobSitePath, qint32 isnTag, OpenTable& buffer);
int fillCatalogHistory(const QString& jobSitePath, qint32 icnTag, OpenTable& buffer);
