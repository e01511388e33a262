// Branches with their bins, series and subcategories, the catalog, the items and their opening
// count.

#include "tools/demo/world.h"

namespace demo {
namespace {

constexpr int openingDay = 0;
constexpr int binsOfBranch = 40;

struct Shelving  // what a branch, or the catalog, files its parts under
{
    std::vector<qint32> series;         // by trade
    std::vector<qint32> subcategories;  // by material
    std::vector<qint32> bins;
};

struct Part
{
    int material;
    qint32 icnTag;
    QString partNo;
    QString makersNo;
    QString description;
    QString shortDescription;
    QString upcCode;
    double wholesale;
    double markup;
    double retail;
    qint32 vendorTag;
};

void addBranches(World& world)
{
    static const char* const branches[][2] = {
        {"01", "Main Warehouse"}, {"02", "East Yard"}, {"03", "Fabrication Shop"}};
    Recordset rows = world.zorvex.OpenRecordset("ILCLIST");
    for (const auto& branch : branches) {
        world.branches.push_back(world.tags.plain("ILCTAG"));
        world.loader.add(rows, [&](Recordset& row) {
            row["ILCTAG"] = world.branches.back();
            row["ILCCODE"] = branch[0];
            row["ILCNAME"] = branch[1];
        });
    }
}

// The catalog's own series stand under branch 0.
Shelving addShelving(World& world, qint32 branch)
{
    Shelving shelving;
    Recordset series = world.zorvex.OpenRecordset("SERIESCODES");
    for (const TradeWords& trade : trades) {
        shelving.series.push_back(world.tags.plain("SERIESTAG"));
        world.loader.add(series, [&](Recordset& row) {
            row["ILCTAG"] = branch;
            row["SERIESTAG"] = shelving.series.back();
            row["SERIESCODE"] = trade.seriesCode;
            row["SERIESNAME"] = trade.seriesName;
        });
    }
    Recordset subcategories = world.zorvex.OpenRecordset("SUBCATEGORIES");
    for (const Material& material : materials) {
        shelving.subcategories.push_back(world.tags.plain("SUBCATTAG"));
        world.loader.add(subcategories, [&](Recordset& row) {
            row["SERIESTAG"] = shelving.series[static_cast<size_t>(material.trade)];
            row["SUBCATTAG"] = shelving.subcategories.back();
            row["SUBCATCODE"] = QString(material.subcategory).trimmed();
            row["SUBCATNAME"] = QString(material.name).left(40);
        });
    }
    return shelving;
}

void addBins(World& world, qint32 branch, Shelving& shelving)
{
    Recordset rows = world.zorvex.OpenRecordset("BINLIST");
    for (int i = 0; i < binsOfBranch; ++i) {
        shelving.bins.push_back(world.tags.plain("BINTAG"));
        world.loader.add(rows, [&](Recordset& row) {
            row["ILCTAG"] = branch;
            row["BINTAG"] = shelving.bins.back();
            row["BINNO"] =
                QString("%1%2").arg(QChar('A' + i / 10)).arg(i % 10 + 1, 2, 10, QChar('0'));
            row["BINNAME"] = QString("Row %1, Shelf %2").arg(QChar('A' + i / 10)).arg(i % 10 + 1);
        });
    }
}

Part makePart(World& world, Random& random, int number)
{
    Part part{};
    part.material = number % static_cast<int>(materials.size());
    const Material& material = materials[static_cast<size_t>(part.material)];
    const TradeWords& trade = trades[static_cast<size_t>(material.trade)];
    part.partNo = QString("%1-%2").arg(trade.prefix).arg(10001 + number);
    part.makersNo = QString("%1%2%3")
                        .arg(trade.prefix)
                        .arg(random.between(1000, 9999))
                        .arg(QChar('A' + random.below(26)));
    const QString size = random.pick(sizes);
    const QString grade = random.pick(grades);
    part.description = QString("%1, %2\r\n%3").arg(material.name, size, grade);
    part.shortDescription = QString(part.description).replace("\r\n", " ").left(50).trimmed();
    part.upcCode = random.chance(80) ? QString::number(700000000000LL + number * 11LL) : QString();
    part.markup = random.chance(70) ? random.between(2, 8) * 5 : 0;
    part.wholesale = random.price(material.lowPrice, material.highPrice);
    part.retail = std::round(part.wholesale * (100 + part.markup)) / 100;
    const auto& sellers = world.vendorsOfTrade[static_cast<size_t>(material.trade)];
    part.vendorTag =
        random.chance(75) ? world.vendors[static_cast<size_t>(random.pick(sellers))].tag : 0;
    return part;
}

// What an item and a catalog item have in common.
void writePart(Recordset& row, const Part& part, const Shelving& shelving)
{
    const Material& material = materials[static_cast<size_t>(part.material)];
    row["SERIESTAG"] = shelving.series[static_cast<size_t>(material.trade)];
    row["SUBCATTAG"] = shelving.subcategories[static_cast<size_t>(part.material)];
    row["PARTNO"] = part.partNo;
    row["MFGPARTNO"] = part.makersNo;
    row["Desc"] = part.description;
    row["SHORTDESC"] = part.shortDescription;
    row["UOM"] = material.unit;
    row["UPCCODE"] = part.upcCode;
    row["WHOLESALE"] = part.wholesale;
    row["MARKUP"] = part.markup;
    row["RETAIL"] = part.retail;
    row["VENTAG"] = part.vendorTag;
    row["TAGGED"] = " ";
}

void addPartNumber(World& world, Recordset& rows, qint32 branch, qint32 isnTag, qint32 icnTag,
                   const QString& partNo, int supersededOn = -1)
{
    world.loader.add(rows, [&](Recordset& row) {
        row["ILCTAG"] = branch;
        row["ISNTAG"] = isnTag;
        row["ICNTAG"] = icnTag;
        row["PARTNO"] = partNo;
        row["FDATE"] = supersededOn < 0 ? " <Current>" : world.calendar.shown(supersededOn);
        row["LDATE"] = supersededOn < 0 ? QString(10, ' ') : world.calendar.sortable(supersededOn);
    });
}

// Nine parts of ten are in the catalog.
std::vector<Part> addCatalog(World& world, Random& random, int partCount)
{
    const Shelving shelving = addShelving(world, 0);
    Recordset catalog = world.zorvex.OpenRecordset("INVCATALOG");
    Recordset partNumbers = world.zorvex.OpenRecordset("INVPNMASTER");
    std::vector<Part> parts;
    for (int number = 0; number < partCount; ++number) {
        Part part = makePart(world, random, number);
        if (random.chance(90)) {
            part.icnTag = world.tags.plain("ICNTAG");
            const int running = part.icnTag - 1;
            world.loader.add(catalog, [&](Recordset& row) {
                row["ICNTAG"] = part.icnTag;
                row["ICNUMBER"] = QString("000-%1-%2")
                                      .arg(running / 999, 3, 10, QChar('0'))
                                      .arg(running % 999 + 1, 3, 10, QChar('0'));
                writePart(row, part, shelving);
                stamp(row, world, random, openingDay);
            });
            addPartNumber(world, partNumbers, 0, 0, part.icnTag, part.partNo);
        }
        parts.push_back(part);
    }
    return parts;
}

class Stocker
{
public:
    explicit Stocker(World& world)
        : m_world(world),
          m_random(world.plan.seed, "stock"),
          m_items(world.zorvex.OpenRecordset("INVENTORY")),
          m_partNumbers(world.zorvex.OpenRecordset("INVPNMASTER")),
          m_countLines(world.zorvex.OpenRecordset("PIITEMS"))
    {
    }

    void startBranch(int branch)
    {
        m_branch = branch;
        m_shelving = addShelving(m_world, branchTag());
        addBins(m_world, branchTag(), m_shelving);
        m_count = m_world.tags.ofSite("PITAG");
        Recordset counts = m_world.zorvex.OpenRecordset("PILIST");
        m_world.loader.add(counts, [&](Recordset& row) {
            row["PITAG"] = m_count;
            row["ILCTAG"] = branchTag();
            row["PIFDATE"] = m_world.calendar.shown(openingDay);
            row["PILDATE"] = m_world.calendar.sortable(openingDay);
            row["PIDESC"] = "Physical Inventory as of " + m_world.calendar.shown(openingDay);
        });
    }

    void stock(int partPosition, const Part& part)
    {
        const int usual = materials[static_cast<size_t>(part.material)].usualQuantity;
        Item item{m_world.tags.plain("ISNTAG"),
                  part.icnTag,
                  m_branch,
                  part.material,
                  part.partNo,
                  part.description,
                  part.retail,
                  usual * m_random.between(2, 12)};
        addItem(item, part, usual);
        addPartNumber(m_world, m_partNumbers, branchTag(), item.isnTag, 0, part.partNo);
        if (m_random.chance(4))
            addPartNumber(m_world, m_partNumbers, branchTag(), item.isnTag, 0, part.partNo + "-OLD",
                          m_random.between(10, Calendar::lastDay));
        addCount(item);
        remember(item, partPosition);
    }

private:
    qint32 branchTag() const { return m_world.branches[static_cast<size_t>(m_branch)]; }

    void addItem(const Item& item, const Part& part, int usual)
    {
        m_world.loader.add(m_items, [&](Recordset& row) {
            row["ISNTAG"] = item.isnTag;
            row["ILCTAG"] = branchTag();
            row["ICNTAG"] = item.icnTag;
            writePart(row, part, m_shelving);
            row["BINTAG"] = m_random.chance(92) ? m_random.pick(m_shelving.bins) : 0;
            row["Maximum"] = usual * 10;
            row["MINIMUM"] = usual * 2;
            row["INACTIVE"] = m_random.chance(3);
            stamp(row, m_world, m_random, openingDay);
        });
    }

    void addCount(const Item& item)
    {
        m_world.loader.add(m_countLines, [&](Recordset& row) {
            row["PITAG"] = m_count;
            row["ISNTAG"] = item.isnTag;
            row["ILCTAG"] = branchTag();
            row["PICOUNT"] = item.unspent;
            row["AVAILABLE"] = item.unspent;
        });
        m_world.post(item, "PI", m_count, "PII", 0, openingDay, item.unspent);
    }

    void remember(const Item& item, int partPosition)
    {
        const int position = static_cast<int>(m_world.items.size());
        const Trade trade = materials[static_cast<size_t>(item.material)].trade;
        m_world.items.push_back(item);
        m_world.itemsOfShelf[static_cast<size_t>(m_branch * tradeCount + trade)].push_back(
            position);
        m_world.itemsOfPart[static_cast<size_t>(partPosition)].push_back(position);
    }

    World& m_world;
    Random m_random;
    Recordset m_items;
    Recordset m_partNumbers;
    Recordset m_countLines;
    Shelving m_shelving;
    qint32 m_count = 0;
    int m_branch = 0;
};

}  // namespace

void addInventory(World& world)
{
    Random random(world.plan.seed, "parts");
    addBranches(world);
    // The first branch stocks every part, the others some of them.
    const int partCount = world.plan.items / 2;
    const int secondCount = world.plan.items * 3 / 10;
    const int counts[] = {partCount, secondCount, world.plan.items - partCount - secondCount};
    const std::vector<Part> parts = addCatalog(world, random, partCount);
    world.itemsOfShelf.resize(world.branches.size() * tradeCount);
    world.itemsOfPart.resize(parts.size());

    Stocker stocker(world);
    for (int branch = 0; branch < static_cast<int>(world.branches.size()); ++branch) {
        stocker.startBranch(branch);
        for (int i = 0; i < counts[branch]; ++i) {
            const int position = (i + branch * 7) % partCount;
            stocker.stock(position, parts[static_cast<size_t>(position)]);
        }
    }
}

}  // namespace demo
