#include "tools/demo/demo.h"

#include "tools/demo/ledger.h"

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

void replayAllItems(World& world)
{
    Recordset ledger = world.zorvex.OpenRecordset("INVTRANS");
    Recordset items = world.zorvex.OpenRecordset("INVENTORY");
    items.Index("INVISNTAG");
    for (const Item& item : world.items) {
        Quantities quantities;
        replayItem(ledger, item.isnTag, quantities);
        items.Seek("=", item.isnTag);
        items.Edit();
        items["AVAILABLE"] = static_cast<double>(quantities.available);
        items["ONORDER"] = static_cast<double>(quantities.onOrder);
        items["ISSUED"] = static_cast<double>(quantities.issued);
        items["INVADJUSTMENTS"] = static_cast<double>(quantities.adjustments);
        items.Update();
    }
    world.loader.commit();
}

}  // namespace

const std::array<const char*, 4> demoUsers = {"alma", "dwight", "karen", "pete"};

void fillJobSite(const Plan& plan, const QString& storedSitePath, qint32 siteTag)
{
    World world(plan, storedSitePath, siteTag);
    world.users.assign(demoUsers.begin(), demoUsers.end());
    addCompaniesAndJobs(world);
    addSupportTables(world);
    addVendors(world);
    addInventory(world);
    addPurchasing(world);
    addStockDocuments(world);
    world.loader.commit();
    replayAllItems(world);
    storeCounters(world);
    world.loader.finish();
}

}  // namespace demo
