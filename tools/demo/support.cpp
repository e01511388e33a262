// The code tables that documents choose from, vendors and manufacturers.

#include <QSet>

#include "tools/demo/world.h"

namespace demo {
namespace {

void addGlCodes(World& world)
{
    Recordset rows = world.zorvex.OpenRecordset("GLCODES");
    for (const int company : {1, 2})
        for (const TradeWords& trade : trades)
            world.loader.add(rows, [&](Recordset& row) {
                row["CONO"] = company;
                row["GLCODE"] = QString::number(trade.glCode);
                row["Desc"] = QString("Job Material - ") + trade.seriesName;
            });
}

void addMaterialCodes(World& world)
{
    Recordset rows = world.zorvex.OpenRecordset("MCLIST");
    for (const TradeWords& trade : trades)
        world.loader.add(rows, [&](Recordset& row) {
            row["MCTAG"] = world.tags.plain("MCTAG");
            row["MCODE"] = QString(QChar(trade.materialCode));
            row["MCNAME"] = trade.seriesName;
        });
}

void addTerms(World& world)
{
    world.terms = {{0, "01", "Net 30", 30, 0, 0},
                   {0, "02", "2% 10, Net 30", 30, 10, 2},
                   {0, "03", "1% 15, Net 45", 45, 15, 1},
                   {0, "04", "Due on Receipt", 0, 0, 0},
                   {0, "05", "Net 60", 60, 0, 0}};
    Recordset rows = world.zorvex.OpenRecordset("TERMSCODES");
    for (Terms& terms : world.terms) {
        terms.tag = world.tags.plain("TERMSCODETAG");
        world.loader.add(rows, [&](Recordset& row) {
            row["TERMSCODETAG"] = terms.tag;
            row["TERMSCODE"] = terms.code;
            row["TCNAME"] = terms.name;
            row["DAYSB4DUE"] = terms.daysUntilDue;
            row["DAYSDISALLOW"] = terms.daysOfDiscount;
            row["DISCOUNTRATE"] = terms.discount;
        });
    }
}

void addRequisitionTypes(World& world)
{
    static const char* const types[][2] = {
        {"M", "Material"}, {"S", "Service"}, {"R", "Rental"}, {"T", "Tools"}};
    Recordset rows = world.zorvex.OpenRecordset("REQTYPES");
    for (const auto& type : types)
        world.loader.add(rows, [&](Recordset& row) {
            row["REQTYPE"] = type[0];
            row["RTNAME"] = type[1];
        });
}

template <class Texts>
void addTexts(World& world, const char* table, schema::FieldName field, const Texts& texts)
{
    Recordset rows = world.zorvex.OpenRecordset(table);
    for (const QString& text : texts)
        world.loader.add(rows, [&](Recordset& row) { row[field] = text; });
}

void addDeliveryTexts(World& world, Random& random)
{
    QStringList places = {"Main Warehouse", "Fabrication Shop", "Will Call"};
    for (const Job& job : world.jobs)
        places.append(job.shipTo);
    addTexts(world, "SHIPTOITEMS", "SHIPTO", places);
    addTexts(world, "SHIPVIAITEMS", "SHIPVIA",
             QStringList{"Best Way", "Vendor's Truck", "Common Carrier", "Air Freight", "Will Call",
                         "Parcel Service"});
    QStringList people;
    while (people.size() < 12)
        people.append(personName(random));
    people.removeDuplicates();
    addTexts(world, "WHODIDITITEMS", "WHODIDIT", people);
}

void addDocumentTexts(World& world)
{
    Recordset addenda = world.zorvex.OpenRecordset("PONOTETEXT");
    world.loader.add(addenda, [&](Recordset& row) {
        row["PONTAG"] = world.tags.plain("PONTAG");
        row["PONTITLE"] = "Terms and Conditions";
        row["PONFDATE"] = world.calendar.shown(0);
        row["PONLDATE"] = world.calendar.sortable(0);
        row["PONTEXT"] =
            "1. Invoices must show our purchase order number.\r\n"
            "2. Material is subject to inspection at the job site.\r\n"
            "3. No substitution without written approval.";
        row["PONDEFAULT"] = true;
    });
    Recordset templates = world.zorvex.OpenRecordset("RSTLIST");
    world.loader.add(templates, [&](Recordset& row) {
        row["RSTTAG"] = world.tags.plain("RSTTAG");
        row["RSTCODE"] = "TAKEOFF";
        row["RSTNAME"] = "Estimator's take-off sheet";
        row["QTYCOL"] = 1;
        row["UNITCOL"] = 2;
        row["DESCCOL1"] = 3;
        row["UNITPRICECOL"] = 4;
        row["COSTCODEACOL"] = 5;
    });
}

// Names of firms differ, or nobody could tell them apart in a search window.
QString firmName(Random& random, Trade trade, QSet<QString>& taken)
{
    const auto& words = trades[static_cast<size_t>(trade)].firmWords;
    QString name = QString(random.pick(placeNames)) + ' ' + words[random.below(3)];
    for (int number = 2; taken.contains(name); ++number)
        name = QString("%1 %2 No. %3")
                   .arg(random.pick(placeNames), words[random.below(3)])
                   .arg(number);
    taken.insert(name);
    return name;
}

void addManufacturers(World& world)
{
    Random random(world.plan.seed, "manufacturers");
    QSet<QString> taken;
    Recordset rows = world.zorvex.OpenRecordset("MANUFACTURERS");
    for (int i = 0; i < std::max(4, world.plan.vendors / 5); ++i)
        world.loader.add(rows, [&](Recordset& row) {
            const Address works = address(random);
            row["MFGTAG"] = world.tags.ofSite("MFGTAG");
            row["MFGNO"] = QString("M%1").arg(i + 1, 4, 10, QChar('0'));
            row["MFGNAME"] = firmName(random, static_cast<Trade>(i % tradeCount), taken);
            writeAddress(row, works);
            row["PHONE"] = works.phone;
            row["CONTACT"] = personName(random);
            row["REMARKS"] = "";
        });
}

}  // namespace

void addSupportTables(World& world)
{
    Random random(world.plan.seed, "support");
    addGlCodes(world);
    addMaterialCodes(world);
    addTerms(world);
    addRequisitionTypes(world);
    addDeliveryTexts(world, random);
    addDocumentTexts(world);
}

void addVendors(World& world)
{
    addManufacturers(world);
    Random random(world.plan.seed, "vendors");
    QSet<QString> taken;
    world.vendorsOfTrade.resize(tradeCount);
    Recordset rows = world.zorvex.OpenRecordset("VENDORS");
    for (int i = 0; i < world.plan.vendors; ++i) {
        const Address office = address(random);
        const auto trade = static_cast<Trade>(i % tradeCount);
        const Vendor vendor{world.tags.ofSite("VENTAG"), trade, personName(random),
                            random.below(static_cast<int>(world.terms.size()))};
        world.loader.add(rows, [&](Recordset& row) {
            row["VENTAG"] = vendor.tag;
            row["VENNO"] = QString("V%1").arg(1000 + i * 7);
            row["Name"] = firmName(random, trade, taken);
            writeAddress(row, office);
            row["PHONE"] = office.phone;
            row["CONTACT"] = vendor.contact;
            row["EMAIL"] = vendor.contact.toLower().replace(' ', '.') + "@example.com";
            row["REMARKS"] = random.chance(10) ? "Minimum order $250." : "";
            row["TERMSCODETAG"] = world.terms[static_cast<size_t>(vendor.terms)].tag;
        });
        world.vendors.push_back(vendor);
        world.vendorsOfTrade[static_cast<size_t>(trade)].push_back(i);
    }
}

}  // namespace demo
