#include "tools/demo/demo.h"

#include "core/storage/file_paths.h"
#include "inventory/ledger_replay.h"
#include "tools/demo/world.h"

namespace demo {
namespace {

// The I/C number's groups run from 001 to 999, the last one fastest.
void storeCatalogCounters(Recordset& row, int given)
{
    row["ICNCOUNTER1"] = given % 999 + 1;
    row["ICNCOUNTER2"] = given / 999;
    row["ICNCOUNTER3"] = 0;
}

void storeCounters(World& world)
{
    Recordset tags = world.zorvex.OpenRecordset("VEXTAGS");
    world.loader.add(tags, [&](Recordset& row) {
        world.tags.store(row);
        storeCatalogCounters(row, world.tags.next("ICNTAG") - 1);
    });
    Recordset shared = world.main.OpenRecordset("SYSTAGS");
    world.loader.add(shared, [&](Recordset& row) { world.tags.store(row); });
    Recordset downloads = world.zordlu.OpenRecordset("VEXDLTAG");
    world.loader.add(downloads, [&](Recordset& row) { world.tags.store(row); });
}

// Rows go in several times faster while their tables have no index, and an index is made of a full
// table in one go. Nobody uses a job site that is being filled.
class IndexesAside
{
public:
    explicit IndexesAside(const QString& path)
        : m_workspace(storage::CreateWorkspace("wksDEMO")),
          m_tables(m_workspace.OpenDatabase(path).TableDefs())
    {
        m_workspace.BeginTrans();
        for (const QString& name : m_tables.Names()) {
            storage::TableDefinition table = m_tables[name].definition();
            for (const storage::IndexDefinition& index : table.indexes)
                m_tables[name].Indexes().Delete(index.name);
            m_wanted.push_back(std::move(table));
        }
        m_workspace.CommitTrans();
    }

    void putBack()
    {
        for (const storage::TableDefinition& table : m_wanted) {
            m_workspace.BeginTrans();
            for (const storage::IndexDefinition& index : table.indexes)
                m_tables[table.name].Indexes().Append(index);
            m_workspace.CommitTrans();
        }
    }

private:
    storage::Workspace m_workspace;
    storage::TableDefs m_tables;
    std::vector<storage::TableDefinition> m_wanted;
};

void replayAllItems(const QString& path)
{
    storage::Workspace workspace = storage::CreateWorkspace("wksDEMO");
    const storage::Database zorvex = workspace.OpenDatabase(path);
    workspace.BeginTrans();
    LinesByTag ledger = ledgerByItem(zorvex.OpenRecordset("INVTRANS"));
    Recordset items = zorvex.OpenRecordset("INVENTORY");
    items.Index("INVISNTAG");
    for (items.MoveFirst(); !items.EOF(); items.MoveNext()) {
        LedgerReplay replay(postingReading);
        ledger.forEach(items["ISNTAG"].value().toInt(), [&] { return replay.takeLine(ledger); });
        items.Edit();
        store(items, replay.quantities());
        items.Update();
    }
    workspace.CommitTrans();
}

void writeAll(const Plan& plan, const QString& storedSitePath, qint32 siteTag)
{
    World world(plan, storedSitePath, siteTag);
    world.users.assign(demoUsers.begin(), demoUsers.end());
    addCompaniesAndJobs(world);
    addSupportTables(world);
    addVendors(world);
    addInventory(world);
    addPurchasing(world);
    addStockDocuments(world);
    storeCounters(world);
    world.loader.finish();
}

}  // namespace

const std::array<const char*, 4> demoUsers = {"alma", "dwight", "karen", "pete"};

void fillJobSite(const Plan& plan, const QString& storedSitePath, qint32 siteTag)
{
    const QString zorvex = storage::joinPath(storedSitePath, "ZORVEX.mdb");
    IndexesAside indexes(zorvex);
    writeAll(plan, storedSitePath, siteTag);
    indexes.putBack();
    replayAllItems(zorvex);
}

}  // namespace demo
