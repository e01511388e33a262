#include "cost/job_deletion.h"

#include <QHash>
#include <memory>
#include <span>
#include <vector>

#include "core/keyed_access.h"
#include "core/storage/file_paths.h"
#include "core/write_batch.h"

namespace {

// Rows of a table that belong to the job, or to the row of the parent by its tag.
struct DeletedTable
{
    const char* table;
    const char* index;
    const char* reportName;
    schema::FieldName tag = {};  // by which the children know their parent
    std::span<const DeletedTable> children = {};
};

constexpr DeletedTable lineDetail[] = {
    {"PAYMENTS", "PAYRQI", "Payment Detail"},
    {"RECEIVED", "RECRQI", "Received Detail"},
    {"ISSUED", "ISSUEDRQI", "Issued Detail"},
};
constexpr DeletedTable requisitionLines[] = {
    {"RQILIST", "RQIREQLINENO", "Req/PO Detail ", "RQITAG", lineDetail}};
constexpr DeletedTable orderLines[] = {
    {"RQILIST", "RQIPOITEMNO", "Req/PO Detail ", "RQITAG", lineDetail}};
constexpr DeletedTable classDetail[] = {
    {"CCRATES", "CCRATES", "Class Codes Rates by Date"},
    {"CCUNION", "CCUNION", "Class Code Benefits by Date"},
};
constexpr DeletedTable classes[] = {{"CCLIST", "CCLIST", "Class Codes", "CCTAG", classDetail}};
constexpr DeletedTable externalCosts[] = {
    {"EXTCOSTRATES", "EXTCOSTRATES", "External Cost Rates"},
    {"EXTCOSTITEMS", "EXTCOSTITEMS", "External Cost Items"},
};
constexpr DeletedTable rateDetail[] = {{"SCRDETAIL", "SCRDETAIL", "Subcategory Rates by Date"}};
constexpr DeletedTable subcategoryRates[] = {
    {"SCRATES", "SCRATES", "Equipment Subcategory Rates", "SCDTAG", rateDetail}};
constexpr DeletedTable subcategories[] = {
    {"SUBCATS", "SUBCATS", "Equipment Subcategory Codes", "SCTAG", subcategoryRates}};

constexpr DeletedTable shared[] = {
    {"TCLIST", "TCCOJOB", "Time Card Items"},
    {"CCALIST", "CCALIST", "Cost Code: Group A Cost Code"},
    {"CCBLIST", "CCBLIST", "Cost Code: Group B Cost Code"},
    {"CCCLIST", "CCCLIST", "Cost Code: Group C Cost Code"},
    {"PCLIST", "PCLIST", "Position Codes", "PCTAG", classes},
    {"EXTCOSTCATS", "EXTCOSTCATS", "External Cost Categories", "ECCTAG", externalCosts},
};
constexpr DeletedTable documents[] = {
    {"REQLIST", "REQLIST", "Requisitions", "REQTAG", requisitionLines},
    {"POLIST", "POLIST", "Purchase Orders", "POTAG", orderLines},
};
constexpr DeletedTable materialCodes[] = {
    {"JOB_NO_DEFAULTS", "JOB_NO_DEFAULTS", "Job Number Defaults"},
    {"INVCODES", "INVCODES", "Invoice Codes"},
};
constexpr DeletedTable equipment[] = {
    {"ETINV", "ETINV", "Equipment Usage Items"},
    {"ETLIST", "ETLIST", "Equipment Usage Items"},
    {"CATCODES", "CATCODES", "Equipment Category Codes", "CATTAG", subcategories},
    {"FUELTYPES", "FUELTYPES", "Fuel Types"},
};
constexpr DeletedTable job[] = {{"JOBLIST", "JOBLIST", "Job Numbers"}};

// What was deleted of a line's detail is told once for both kinds of documents.
bool isLineDetail(const DeletedTable& table)
{
    return &table >= std::begin(lineDetail) && &table < std::end(lineDetail);
}

constexpr int rowsAStep = 1'000;

// The run over the tables of one database.
class Deletion
{
public:
    Deletion(const QString& jobSitePath, const QString& file, int CONO, const QString& JOBNO,
             const JobDeletionListener& listener)
        : m_workspace(storage::CreateWorkspace("wks" + file.chopped(4))),
          m_database(m_workspace.OpenDatabase(storage::joinPath(jobSitePath, file))),
          m_job({CONO, JOBNO}),
          m_listener(listener),
          m_batch(m_workspace)
    {
    }

    // Both false when stopped.
    bool runAll(std::span<const DeletedTable> tables);
    bool run(const DeletedTable& table);

    void report(const DeletedTable& table);

private:
    using Keys = std::vector<storage::Value>;

    bool runRows(const DeletedTable& table, const Keys& keys);
    bool runChildren(const DeletedTable& table, const storage::Recordset& row);
    storage::Recordset& open(const DeletedTable& table);

    storage::Workspace m_workspace;
    storage::Database m_database;
    const Keys m_job;
    const JobDeletionListener& m_listener;
    WriteBatch m_batch;
    QHash<const DeletedTable*, std::shared_ptr<storage::Recordset>> m_open;
    QHash<const DeletedTable*, int> m_deleted;
    int m_sinceAsked = 0;
};

storage::Recordset& Deletion::open(const DeletedTable& table)
{
    auto& handle = m_open[&table];
    if (!handle) {
        handle = std::make_shared<storage::Recordset>(m_database.OpenRecordset(table.table));
        handle->Index(table.index);
    }
    return *handle;
}

bool Deletion::runChildren(const DeletedTable& table, const storage::Recordset& row)
{
    if (table.children.empty())
        return true;
    // A record that was stored without a tag owns nothing; rows of tag 0 are others'.
    const int tag = intOf(row[table.tag]);
    if (tag == 0)
        return true;
    for (const DeletedTable& child : table.children)
        if (!runRows(child, {tag}))
            return false;
    return true;
}

bool Deletion::runRows(const DeletedTable& table, const Keys& keys)
{
    storage::Recordset& rows = open(table);
    // Sought anew for each row: the first of them is gone, so the search stays as short, and reads
    // one row where a walk would read a block that the deletion makes stale.
    while (rows.seekKeys("=", keys)) {
        if (!runChildren(table, rows))
            return false;
        m_batch.begin();
        rows.Delete();
        m_batch.added();
        ++m_deleted[&table];
        if (++m_sinceAsked >= rowsAStep) {
            m_sinceAsked = 0;
            m_batch.commit();  // whoever is asked may take his time
            if (!m_listener.proceed(table.reportName, m_deleted[&table]))
                return false;
        }
    }
    return true;
}

bool Deletion::run(const DeletedTable& table)
{
    const bool isWhole = runRows(table, m_job);
    m_batch.commit();
    report(table);
    return isWhole;
}

bool Deletion::runAll(std::span<const DeletedTable> tables)
{
    for (const DeletedTable& table : tables)
        if (!run(table))
            return false;
    return true;
}

void Deletion::report(const DeletedTable& table)
{
    m_listener.deleted(table.reportName, m_deleted.value(&table));
    for (const DeletedTable& child : table.children)
        if (!isLineDetail(child))
            report(child);
}

// In place of the tables of a database that the site does not have.
bool isMissing(const QString& jobSitePath, const QString& file, const char* remark,
               const JobDeletionListener& listener)
{
    if (storage::pathExists(storage::joinPath(jobSitePath, file)))
        return false;
    listener.remark(remark);
    return true;
}

}  // namespace

bool deleteJob(const QString& jobSitePath, int CONO, const QString& JOBNO,
               const JobDeletionListener& listener)
{
    const auto in = [&](const char* file) {
        return Deletion(jobSitePath, file, CONO, JOBNO, listener);
    };
    if (!in("MAIN.mdb").runAll(shared))
        return false;
    if (!isMissing(jobSitePath, "ZORVEX.mdb", "Cannot Find Material Database", listener)) {
        Deletion material = in("ZORVEX.mdb");
        const bool isWhole = material.runAll(documents);
        for (const DeletedTable& table : lineDetail)
            material.report(table);
        if (!isWhole || !material.runAll(materialCodes))
            return false;
    }
    if (!isMissing(jobSitePath, "ZORBRQ.mdb", "Cannot Find Equipment Database", listener) &&
        !in("ZORBRQ.mdb").runAll(equipment))
        return false;
    return in("MAIN.mdb").runAll(job);
}

QString deletionCountText(int count)
{
    if (count == 0)
        return "No Items Found";
    return count == 1 ? QString("1 Record Deleted.") : QString::number(count) + " Records Deleted.";
}
