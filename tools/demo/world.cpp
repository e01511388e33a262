#include "tools/demo/world.h"

#include "core/storage/file_paths.h"

namespace demo {

Plan planFor(int scale, quint64 seed)
{
    const double root = std::sqrt(static_cast<double>(scale));
    const auto grown = [root](int count) { return static_cast<int>(std::lround(count * root)); };
    const Plan one;
    return {.lines = one.lines * scale,
            .items = grown(one.items),
            .vendors = grown(one.vendors),
            .jobs = grown(one.jobs),
            .seed = seed};
}

Calendar::Calendar() : m_first(QDate(2026, 10, 30).addDays(1 - days))
{
    constexpr int beyond = 95;
    for (int day = 0; day < days + beyond; ++day) {
        m_shown.push_back(date(day).toString("MM/dd/yyyy"));
        m_sortable.push_back(date(day).toString("yyyyMMdd"));
    }
}

int Calendar::workday(int day) const
{
    const int weekday = date(day).dayOfWeek();
    return weekday < 6 ? day : day + 8 - weekday;
}

void Tags::store(Recordset& row) const
{
    for (const storage::FieldDefinition& field : row.definition().fields) {
        const int number = schema::fieldNames.find(field.name.toLatin1().toStdString());
        row.fieldNamed(field.name) = m_given[static_cast<size_t>(number)] + 1;
    }
}

Loader::Loader() : m_workspace(storage::CreateWorkspace("wksDEMO"))
{
    m_workspace.BeginTrans();
}

void Loader::commit()
{
    m_workspace.CommitTrans();
    m_workspace.BeginTrans();
    m_uncommitted = 0;
}

void Loader::finish()
{
    m_workspace.CommitTrans();
}

World::World(const Plan& wanted, const QString& storedSitePath, qint32 siteTag)
    : plan(wanted), sitePath(storedSitePath), tags(siteTag)
{
    const auto opened = [this](const char* file) {
        return loader.open(storage::joinPath(sitePath, file));
    };
    main = opened("MAIN.mdb");
    zorvex = opened("ZORVEX.mdb");
    zordlu = opened("ZORDLU.mdb");
    m_ledger = zorvex.OpenRecordset("INVTRANS");
}

void World::post(const Item& item, const char* docType, qint32 docTag, const char* itemType,
                 qint32 itemTag, int day, double quantity)
{
    loader.add(m_ledger, [&](Recordset& row) {
        row["ILCTAG"] = branches[static_cast<size_t>(item.branch)];
        row["ICNTAG"] = item.icnTag;
        row["ISNTAG"] = item.isnTag;
        row["DOCTYPE"] = docType;
        row["DOCTAG"] = docTag;
        row["ITEMTYPE"] = itemType;
        row["ITEMTAG"] = itemTag;
        row["FDATE"] = calendar.shown(day);
        row["LDATE"] = calendar.sortable(day);
        row["QUANTITY"] = quantity;
    });
}

void stamp(Recordset& row, const World& world, Random& random, int day)
{
    static const char* const times[] = {"7:12 AM", "7:48 AM", "8:05 AM",  "8:31 AM",
                                        "9:14 AM", "9:50 AM", "10:22 AM", "11:03 AM",
                                        "1:09 PM", "1:44 PM", "2:20 PM",  "3:37 PM"};
    row["ADDNAME"] = random.pick(world.users);
    row["ADDDATE"] = world.calendar.shown(day);
    row["ADDTIME"] = random.pick(times);
    row["EDITNAME"] = " ";
    row["EDITDATE"] = " ";
    row["EDITTIME"] = " ";
}

QString personName(Random& random)
{
    return QString(random.pick(firstNames)) + ' ' + random.pick(lastNames);
}

Address address(Random& random)
{
    const City& city = random.pick(cities);
    const auto number = [&] {
        return QString("(%1) 555-%2")
            .arg(city.areaCode)
            .arg(random.between(100, 9999), 4, 10, QChar('0'));
    };
    Address made{
        QString("%1 %2").arg(random.between(100, 9800)).arg(random.pick(streets)),
        random.chance(30) ? QString("P.O. Box %1").arg(random.between(10, 4999)) : QString(),
        city,
        random.chance(40) ? QString::number(random.between(1001, 9998)) : QString(),
        number(),
        {}};
    if (random.chance(80))
        made.fax = number();
    return made;
}

void writeAddress(Recordset& row, const Address& address)
{
    row["ADDRESS1"] = address.line1;
    row["ADDRESS2"] = address.line2;
    row["CITY"] = address.city.name;
    row["State"] = address.city.state;
    row["ZIP"] = address.city.zip;
    row["PLUS4"] = address.plus4;
    row["FAX"] = address.fax;
}

}  // namespace demo
