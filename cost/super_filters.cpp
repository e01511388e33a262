#include "cost/super_filters.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/text.h"
#include "core/write_batch.h"

namespace {

constexpr int levelCount = 3;

int deleteTree(UdsTables& tables, int level, qint32 ownerTag, WriteBatch& batch)
{
    if (level > levelCount || ownerTag == 0)
        return 0;
    int deleted = 0;
    storage::Recordset& nodes = tables.level(level);
    while (nodes.Seek("=", ownerTag)) {
        deleted += deleteTree(tables, level + 1, intOf(nodes["UDSDTAG"]), batch);
        batch.begin();
        nodes.Delete();
        batch.added();
        ++deleted;
    }
    return deleted;
}

}  // namespace

UdsTables openUdsTables(const QString& jobSitePath)
{
    OpenTable first = openTable(jobSitePath, "MAIN.mdb", "UDSLEVEL1");
    UdsTables tables{.workspace = first.workspace, .database = first.database, .levels = {}};
    for (int level = 1; level <= levelCount; ++level) {
        const QString number = QString::number(level);
        tables.level(level) = tables.database.OpenRecordset("UDSLEVEL" + number);
        tables.level(level).Index("UDSCCL" + number);
    }
    return tables;
}

bool zorUDSMatch(UdsTables& tables, qint32 UDSTAG, const std::array<QString, 3>& groups,
                 const std::array<QString, 3>& costCodes)
{
    static const QStringList letters = {"A", "B", "C"};
    qint32 owner = UDSTAG;
    for (int level = 1; level <= levelCount; ++level) {
        const QString& group = groups.at(static_cast<size_t>(level - 1));
        if (dnIsBlank(group))
            return true;
        const qsizetype place = letters.indexOf(group);
        storage::Recordset& nodes = tables.level(level);
        if (place < 0 || !nodes.Seek("=", owner, costCodes.at(static_cast<size_t>(place))))
            return false;
        owner = intOf(nodes["UDSDTAG"]);
    }
    return true;
}

int deleteUdsNodes(UdsTables& tables, int level, qint32 ownerTag)
{
    WriteBatch batch(tables.workspace);
    const int deleted = deleteTree(tables, level, ownerTag, batch);
    batch.commit();
    return deleted;
}

void deleteUdsNode(UdsTables& tables, int level)
{
    storage::Recordset& nodes = tables.level(level);
    const QString bookmark = nodes.Bookmark();
    deleteUdsNodes(tables, level + 1, intOf(nodes["UDSDTAG"]));
    nodes.Bookmark(bookmark);
    nodes.Delete();
}

void deleteUdsFilter(const QString& jobSitePath, qint32 UDSTAG)
{
    UdsTables tables = openUdsTables(jobSitePath);
    deleteUdsNodes(tables, 1, UDSTAG);
    storage::Recordset filters = tables.database.OpenRecordset("UDSLIST");
    filters.Index("UDSTAG");
    if (filters.Seek("=", UDSTAG))
        filters.Delete();
}
