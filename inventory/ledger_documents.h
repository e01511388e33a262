// What a branch's documents say that its ledger should hold: a row for the effect of each line on
// an item of the branch. Counts come first, then orders with their receipts, transfers, returns,
// repair orders and adjustments. Material issue reports are not among them.
#pragma once

#include <QHash>
#include <functional>
#include <string>
#include <vector>

#include "core/storage/workspace.h"
#include "inventory/ledger_replay.h"

struct DocumentEffect
{
    const LedgerKind* kind;
    qint32 docTag;
    qint32 itemTag;
    qint32 isnTag;
    std::string fDate;
    std::string lDate;
    double quantity;
};

struct ItemPlace
{
    qint32 ilcTag;
    qint32 icnTag;
};

class LedgerDocuments
{
public:
    // `file` is the open ZORVEX.mdb of the job site's folder `path`. `proceed` is called after each
    // document and each line; `tell` with the text of what is wrong with a line.
    LedgerDocuments(const QString& path, storage::Workspace workspace, storage::Database file,
                    qint32 ilcTag, const std::function<bool()>& proceed,
                    std::function<void(const QString&)> tell);

    // False when `proceed` said so; the effects are not all there then.
    bool read();

    std::vector<DocumentEffect>& effects() { return m_effects; }
    // Of the branch's items.
    qint32 catalogTag(qint32 isnTag) const { return m_items.value(isnTag).icnTag; }

private:
    struct ReportFamily;
    struct Dates
    {
        std::string_view fDate;
        std::string_view lDate;
    };

    void readItems();
    bool takeCounts();
    bool takeOrders();
    bool takeReports(const ReportFamily& family);
    bool takeRepairOrders();
    bool takeAdjustments();
    // Of the branch alone; a line without an item, or of another branch, is not taken.
    bool isTaken(qint32 isnTag);
    void add(const LedgerKind& kind, qint32 docTag, qint32 itemTag, qint32 isnTag,
             const Dates& dates, double quantity);
    // `take` gets each header, in the order of the index, until it or `proceed` gives false.
    template <class Take>
    bool forEachHeader(const storage::Database& file, const char* table, const char* index,
                       std::initializer_list<schema::FieldName> fields, Take take);

    const QString m_path;
    storage::Workspace m_workspace;
    const storage::Database m_file;
    const qint32 m_ilcTag;
    const std::function<bool()>& m_proceed;
    const std::function<void(const QString&)> m_tell;
    QHash<qint32, ItemPlace> m_items;
    std::vector<DocumentEffect> m_effects;
};
