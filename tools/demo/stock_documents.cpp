// Issues to jobs, returns to vendors, transfers between branches, and adjustments. They take no
// more than the opening count left, so that no day of the ledger goes below zero.

#include "tools/demo/world.h"

namespace demo {
namespace {

struct Family  // of material reports: alike but for their names
{
    const char* header;
    const char* lines;
    schema::FieldName tag;
    schema::FieldName number;
    schema::FieldName comment;
    schema::FieldName lineTag;
    const char* prefix;
};
constexpr Family issues = {"MIRLIST",    "MIRITEMS", "MIRTAG", "MIRNO",
                           "MIRCOMMENT", "MIRITAG",  "MIR"};
constexpr Family returns = {"MRRLIST",    "MRRITEMS", "MRRTAG", "MRRNO",
                            "MRRCOMMENT", "MRRITAG",  "MRR"};
constexpr Family transfers = {"MTRLIST",    "MTRITEMS", "MTRTAG", "MTRNO",
                              "MTRCOMMENT", "MTRITAG",  "MTR"};

class StockDocuments
{
public:
    explicit StockDocuments(World& world) : m_world(world), m_random(world.plan.seed, "movements")
    {
    }

    void addIssues(int lines)
    {
        report(issues, lines, [&](Recordset& row, int branch) {
            row["ILCTAG"] = m_world.branches[static_cast<size_t>(branch)];
            row["ISSUEDTO"] = personName(m_random);
        });
    }

    void addReturns(int lines)
    {
        report(returns, lines, [&](Recordset& row, int branch) {
            row["ILCTAG"] = m_world.branches[static_cast<size_t>(branch)];
            row["VENTAG"] = m_random.pick(m_world.vendors).tag;
        });
    }

    // From the first branch, which stocks every part, to the second.
    void addTransfers(int lines)
    {
        report(transfers, lines, [&](Recordset& row, int) {
            row["FROMILCTAG"] = m_world.branches[0];
            row["TOILCTAG"] = m_world.branches[1];
        });
    }

    void addAdjustments(int count)
    {
        static const char* const reasons[] = {"Damaged in storage", "Found behind rack", "Miscount",
                                              "Sample for testing"};
        Recordset rows = m_world.zorvex.OpenRecordset("INVADJLIST");
        for (int i = 0; i < count; ++i) {
            Item& item = m_world.item(m_random.below(static_cast<int>(m_world.items.size())));
            const int quantity = m_random.chance(40)
                                     ? m_random.between(1, 6)
                                     : -std::min(item.unspent, m_random.between(1, 6));
            if (quantity == 0)
                continue;
            if (quantity < 0)
                item.unspent += quantity;
            const int day = workday(i, count);
            const qint32 tag = m_world.tags.plain("INVADJTAG");
            m_world.loader.add(rows, [&](Recordset& row) {
                row["INVADJTAG"] = tag;
                row["ISNTAG"] = item.isnTag;
                row["ILCTAG"] = m_world.branches[static_cast<size_t>(item.branch)];
                row["FDATE"] = m_world.calendar.shown(day);
                row["LDATE"] = m_world.calendar.sortable(day);
                row["Desc"] = m_random.pick(reasons);
                row["QUANTITY"] = quantity;
                stamp(row, m_world, m_random, day);
            });
            m_world.post(item, "IA", tag, "IAI", 0, day, quantity);
        }
    }

private:
    // The document's day: they are spread over the two years in order.
    int workday(int made, int wanted) const
    {
        return std::min(
            m_world.calendar.workday(
                2 + static_cast<int>(qint64(made) * (Calendar::lastDay - 4) / std::max(1, wanted))),
            Calendar::lastDay);
    }

    template <class FillBranch>
    void report(const Family& family, int wanted, FillBranch fillBranch)
    {
        Recordset headers = m_world.zorvex.OpenRecordset(family.header);
        Recordset lines = m_world.zorvex.OpenRecordset(family.lines);
        int number = 0;
        for (int made = 0; made < wanted;) {
            const int day = workday(made, wanted);
            const int count = std::min(wanted - made, m_random.between(1, 9));
            const int branch = m_random.below(static_cast<int>(m_world.branches.size()));
            const Job& job = m_random.pick(m_world.jobs);
            const qint32 tag = m_world.tags.plain(family.tag);
            m_world.loader.add(headers, [&](Recordset& row) {
                row[family.tag] = tag;
                row[family.number] = QString("%1%2").arg(family.prefix).arg(++number, -5);
                row["CONO"] = job.company;
                row["JOBNO"] = job.number;
                row["FDATE"] = m_world.calendar.shown(day);
                row["LDATE"] = m_world.calendar.sortable(day);
                row[family.comment] = m_random.chance(30) ? m_random.pick(intendedUses) : "";
                fillBranch(row, branch);
            });
            addLines(family, lines, tag, day, branch, count);
            made += count;
        }
    }

    void addLines(const Family& family, Recordset& lines, qint32 tag, int day, int branch,
                  int count)
    {
        const bool transfer = &family == &transfers;
        std::vector<qint32> used;  // a part stands only once on a report
        for (int i = 0; i < count; ++i) {
            const auto [from, to] = transfer ? transferable() : std::pair(stocked(branch), -1);
            if (from < 0)
                continue;
            Item& item = m_world.item(from);
            const int quantity = std::min(item.unspent, m_random.between(1, 12));
            if (quantity == 0 || item.icnTag == 0 ||
                std::find(used.begin(), used.end(), item.icnTag) != used.end())
                continue;
            used.push_back(item.icnTag);
            item.unspent -= quantity;
            const qint32 lineTag = m_world.tags.plain(family.lineTag);
            m_world.loader.add(lines, [&](Recordset& row) {
                row[family.lineTag] = lineTag;
                row[family.tag] = tag;
                row["ITEMNO"] = static_cast<int>(used.size());
                row["ICNTAG"] = item.icnTag;
                row["QTY"] = quantity;
                row["UNIT"] = materials[static_cast<size_t>(item.material)].unit;
                if (transfer) {
                    row["FROMISNTAG"] = item.isnTag;
                    row["TOISNTAG"] = m_world.item(to).isnTag;
                } else {
                    row["ISNTAG"] = item.isnTag;
                }
            });
            postLine(family, item, to, tag, lineTag, day, quantity);
        }
    }

    void postLine(const Family& family, const Item& item, int to, qint32 tag, qint32 lineTag,
                  int day, int quantity)
    {
        if (&family == &issues)
            m_world.post(item, "MI", tag, "MII", lineTag, day, quantity);
        else if (&family == &returns)
            m_world.post(item, "MR", tag, "MRI", lineTag, day, quantity);
        else {
            m_world.post(item, "MT", tag, "MTD", lineTag, day, quantity);
            m_world.post(m_world.item(to), "MT", tag, "MTC", lineTag, day, quantity);
        }
    }

    int stocked(int branch)
    {
        const auto& shelf = m_world.shelf(branch, static_cast<Trade>(m_random.below(tradeCount)));
        return shelf.empty() ? -1 : m_random.pick(shelf);
    }

    std::pair<int, int> transferable()
    {
        const auto& same = m_random.pick(m_world.itemsOfPart);
        if (same.size() < 2 || m_world.item(same[0]).branch != 0 ||
            m_world.item(same[1]).branch != 1)
            return {-1, -1};
        return {same[0], same[1]};
    }

    World& m_world;
    Random m_random;
};

}  // namespace

void addStockDocuments(World& world)
{
    StockDocuments documents(world);
    documents.addIssues(world.plan.lines / 12);
    documents.addReturns(world.plan.lines / 60);
    documents.addTransfers(world.plan.lines / 30);
    documents.addAdjustments(world.plan.lines / 50);
}

}  // namespace demo
