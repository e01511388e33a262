// The demo contractor while it is being made: the open files of its job site, the counters of tags,
// the calendar, and what later themes need to know of what earlier ones wrote.
#pragma once

#include <QDate>
#include <vector>

#include "core/storage/workspace.h"
#include "tools/demo/random.h"
#include "tools/demo/words.h"

namespace demo {

using storage::Recordset;

// How much is made.
struct Plan
{
    int lines = 5000;  // line items of requisitions and purchase orders
    int items = 2000;  // inventory items
    int vendors = 200;
    int jobs = 8;
    quint64 seed = 1;
};

// `scale` 1 is the plan above; lines grow with it, what they refer to with its root.
Plan planFor(int scale, quint64 seed);

// The two years of the contractor's business, by number of the day. They end at a fixed date, so
// that the data does not depend on the day it is made.
class Calendar
{
public:
    static constexpr int days = 730;
    static constexpr int lastDay = days - 1;

    Calendar();
    QDate date(int day) const { return m_first.addDays(day); }
    // MM/DD/YYYY and YYYYMMDD; up to a quarter beyond the last day.
    const QString& shown(int day) const { return m_shown[static_cast<size_t>(day)]; }
    const QString& sortable(int day) const { return m_sortable[static_cast<size_t>(day)]; }
    // That day, or the Monday after it.
    int workday(int day) const;

private:
    QDate m_first;
    std::vector<QString> m_shown;
    std::vector<QString> m_sortable;
};

// Tags as the program would have given them out, without a trip to the file for each.
class Tags
{
public:
    explicit Tags(qint32 siteTag) : m_given(schema::fieldNames.count, 0), m_siteTag(siteTag) {}

    qint32 plain(schema::FieldName counter) { return ++m_given[counter.number()]; }
    qint32 ofSite(schema::FieldName counter) { return m_siteTag * 1'000'000 + plain(counter); }
    qint32 next(schema::FieldName counter) const { return m_given[counter.number()] + 1; }
    // Writes the counters of a table into its row: each the next number to give.
    void store(Recordset& row) const;

private:
    std::vector<qint32> m_given;
    qint32 m_siteTag;
};

// Rows go in with a commit every few thousand: one each would take hours.
class Loader
{
public:
    Loader();
    storage::Database open(const QString& path) const { return m_workspace.OpenDatabase(path); }

    template <class Fill>
    void add(Recordset& rows, Fill fill)
    {
        rows.AddNew();
        fill(rows);
        rows.Update();
        if (++m_uncommitted >= rowsPerCommit)
            commit();
    }
    void commit();
    void finish();

private:
    static constexpr int rowsPerCommit = 5000;

    storage::Workspace m_workspace;
    int m_uncommitted = 0;
};

struct Group
{
    QString caption;  // blank: the job does not use it
    QString type;
    int size = 0;
    struct Code
    {
        QString stored;
        QString glCode;
    };
    std::vector<Code> codes;
};

struct Job
{
    int company;
    QString number;  // stored form
    Group groups[3];
    int branch;
    QString shipTo;
    std::vector<QString> invoiceCodes;
    bool reimbursable;
};

struct Vendor
{
    qint32 tag;
    Trade trade;
    QString contact;
    int terms;  // position in World::terms
};

struct Terms
{
    qint32 tag;
    QString code;
    QString name;
    int daysUntilDue;
    int daysOfDiscount;
    double discount;  // percent
};

struct Item
{
    qint32 isnTag;
    qint32 icnTag;  // 0: not in the catalog
    int branch;
    int material;  // position in `materials`
    QString partNo;
    QString description;
    double price;
    int unspent;  // of the opening count, so that no document takes what was not there
};

struct World
{
    World(const Plan& wanted, const QString& storedSitePath, qint32 siteTag);

    Plan plan;
    QString sitePath;
    Calendar calendar;
    Tags tags;
    Loader loader;
    storage::Database main;
    storage::Database zorvex;
    storage::Database zordlu;

    std::vector<QString> users;  // login names that stamp records
    std::vector<Job> jobs;
    std::vector<Vendor> vendors;
    std::vector<std::vector<int>> vendorsOfTrade;
    std::vector<Terms> terms;
    std::vector<qint32> branches;  // tags
    std::vector<Item> items;
    std::vector<std::vector<int>> itemsOfShelf;  // by branch x tradeCount + trade
    std::vector<std::vector<int>> itemsOfPart;   // the same part in the branches

    const std::vector<int>& shelf(int branch, Trade trade) const
    {
        return itemsOfShelf[static_cast<size_t>(branch * tradeCount + trade)];
    }
    const Job& jobOf(int position) const { return jobs[static_cast<size_t>(position)]; }
    const Vendor& vendorOf(int position) const { return vendors[static_cast<size_t>(position)]; }
    Item& item(int position) { return items[static_cast<size_t>(position)]; }

    // One row of the ledger.
    void post(const Item& item, const char* docType, qint32 docTag, const char* itemType,
              qint32 itemTag, int day, double quantity);

private:
    Recordset m_ledger;
};

// The stamps of a record that was never changed.
void stamp(Recordset& row, const World& world, Random& random, int day);

QString personName(Random& random);
struct Address
{
    QString line1;
    QString line2;
    const City& city;
    QString plus4;
    QString phone;
    QString fax;
};
Address address(Random& random);
void writeAddress(Recordset& row, const Address& address);

// The themes, in the order in which they build on each other.
void addCompaniesAndJobs(World& world);
void addSupportTables(World& world);
void addVendors(World& world);
void addInventory(World& world);
void addPurchasing(World& world);
void addStockDocuments(World& world);

}  // namespace demo
