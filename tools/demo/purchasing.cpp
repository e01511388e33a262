// Requisitions and purchase orders with their lines.

#include <algorithm>
#include <deque>

#include "core/line_amount.h"
#include "tools/demo/documents.h"

namespace demo {
namespace {

constexpr int firstPurchase = 3;  // days after the opening count

class Purchasing
{
public:
    explicit Purchasing(World& world)
        : m_world(world),
          m_random(world.plan.seed, "purchasing"),
          m_requisitions(world.zorvex.OpenRecordset("REQLIST")),
          m_orders(world.zorvex.OpenRecordset("POLIST")),
          m_lines(world.zorvex.OpenRecordset("RQILIST")),
          m_fulfilment(world)
    {
    }

    void run()
    {
        const int wanted = m_world.plan.lines;
        for (int made = 0; made < wanted;) {
            const int span = Calendar::lastDay - firstPurchase;
            const int day = firstPurchase + static_cast<int>(qint64(made) * span / wanted);
            const int count = std::min(wanted - made, m_random.between(4, 15));
            if (m_random.chance(88))
                requisition(m_world.calendar.workday(std::min(day, Calendar::lastDay)), count);
            else
                directOrder(m_world.calendar.workday(std::min(day, Calendar::lastDay)), count);
            made += count;
        }
        Recordset counters = m_world.zorvex.OpenRecordset("VEXCOUNTERS");
        counters.MoveFirst();
        counters.Edit();
        counters["REQNO"] = m_reqNo + 1;
        counters.Update();
    }

private:
    const Job& jobOf(const Header& header) const { return m_world.jobOf(header.job); }
    const Vendor& vendorOf(const Header& header) const { return m_world.vendorOf(header.vendor); }

    Header makeHeader(int day);

    void requisition(int day, int count);
    void directOrder(int day, int count);
    std::vector<Order> makeOrders(const Header& header, std::vector<Line>& lines);
    Order& finished(Order& order);

    void writeHeader(Recordset& row, const Header& header);
    void writeRequisition(const Header& header, const std::vector<Line>& lines,
                          const std::vector<Order>& orders);
    void writeOrder(const Order& order, int suffix);
    void writeLine(const Header& header, const Line& line);
    QString requisitionStatus(const Header& header, const std::vector<Line>& lines,
                              const std::vector<Order>& orders);
    QString orderStatus(const Order& order);
    QString orderNumber(const Header& header, int suffix) const;

    World& m_world;
    Random m_random;
    Recordset m_requisitions;
    Recordset m_orders;
    Recordset m_lines;
    Fulfilment m_fulfilment;
    int m_reqNo = 0;
    int m_directNo = 0;
};

double sumOf(const std::vector<const Line*>& lines)
{
    double sum = 0;
    for (const Line* line : lines)
        sum += line->amount;
    return roundedToCents(sum);
}

Header Purchasing::makeHeader(int day)
{
    Header header;
    // The first jobs are the busy ones.
    const int jobs = static_cast<int>(m_world.jobs.size());
    header.job = std::min(m_random.below(jobs), m_random.below(jobs));
    header.vendor = m_random.below(static_cast<int>(m_world.vendors.size()));
    header.day = day;
    header.type = m_random.chance(84) ? "M" : m_random.chance(60) ? "S" : "R";
    header.promised =
        m_random.chance(60) ? m_world.calendar.shown(day + m_random.between(7, 40)) : QString();
    header.required =
        m_random.chance(75) ? m_world.calendar.shown(day + m_random.between(10, 60)) : QString();
    header.requisitioner = personName(m_random);
    header.shipVia = m_random.chance(70) ? "Best Way" : m_random.pick(carriers);
    header.intendedUse = m_random.pick(intendedUses);
    if (m_world.jobs[static_cast<size_t>(header.job)].reimbursable && m_random.chance(60))
        header.clientNo = QString("CR-%1").arg(m_random.between(100, 99999));
    return header;
}

QString Purchasing::orderNumber(const Header& header, int suffix) const
{
    return jobOf(header).number.trimmed() + header.type +
           QString("%1%2").arg(header.reqNo, 5, 10, QChar('0')).arg(suffix, 2, 10, QChar('0'));
}

void Purchasing::requisition(int day, int count)
{
    Header header = makeHeader(day);
    header.reqTag = m_world.tags.ofSite("REQTAG");
    header.reqNo = ++m_reqNo;
    std::vector<Line> lines = LineMaker(m_world, m_random).make(header, count);
    std::vector<Order> orders = makeOrders(header, lines);
    for (Order& order : orders)
        m_fulfilment.follow(order);
    writeRequisition(header, lines, orders);
    for (size_t i = 0; i < orders.size(); ++i)
        writeOrder(orders[i], static_cast<int>(i) + 1);
    for (const Line& line : lines)
        writeLine(header, line);
}

// None while the requisition is young; mostly one, sometimes two, a few lines left over.
std::vector<Order> Purchasing::makeOrders(const Header& header, std::vector<Line>& lines)
{
    std::vector<Order> orders;
    const int age = Calendar::lastDay - header.day;
    if (age < m_random.between(2, 21) || m_random.chance(3))
        return orders;
    orders.resize(lines.size() > 4 && m_random.chance(18) ? 2 : 1);
    for (size_t i = 0; i < orders.size(); ++i) {
        orders[i].tag = m_world.tags.ofSite("POTAG");
        orders[i].number = orderNumber(header, static_cast<int>(i) + 1);
        orders[i].header = &header;
        orders[i].voided = header.type != "M" && m_random.chance(6);
    }
    const bool leaveSome = m_random.chance(15);
    for (size_t i = 0; i < lines.size(); ++i) {
        if (leaveSome && i > 0 && m_random.chance(25))
            continue;
        Order& order = orders[i * orders.size() / lines.size()];
        order.lines.push_back(&lines[i]);
        lines[i].poTag = order.tag;
        lines[i].poNumber = static_cast<int>(order.lines.size());
    }
    if (orders.size() == 2 && orders[1].lines.empty())
        orders.pop_back();
    for (const Order& order : orders)
        if (m_random.chance(6))
            order.lines.back()->revision = m_random.between(1, 3);
    return orders;
}

// Typed in without a requisition; its number is the user's own.
void Purchasing::directOrder(int day, int count)
{
    const Header header = makeHeader(day);
    std::vector<Line> lines = LineMaker(m_world, m_random).make(header, count);
    Order order;
    order.tag = m_world.tags.ofSite("POTAG");
    order.number = QString("D-%1").arg(++m_directNo, 5, 10, QChar('0'));
    order.header = &header;
    for (Line& line : lines) {
        line.poTag = order.tag;
        line.poNumber = line.reqNumber;
        order.lines.push_back(&line);
    }
    m_fulfilment.follow(order);
    writeOrder(order, 0);
    for (const Line& line : lines)
        writeLine(header, line);
}

QString Purchasing::requisitionStatus(const Header& header, const std::vector<Line>& lines,
                                      const std::vector<Order>& orders)
{
    if (orders.empty())
        return Calendar::lastDay - header.day > 25 ? "Voided"
               : m_random.chance(40)               ? "Open"
               : m_random.chance(50)               ? "Submitted"
                                                   : "RFQ Sent";
    const bool leftOver =
        std::any_of(lines.begin(), lines.end(), [](const Line& line) { return line.poTag == 0; });
    return leftOver ? "Open" : "Closed";
}

QString Purchasing::orderStatus(const Order& order)
{
    if (order.voided)
        return "Voided";
    if (order.complete)
        return "Closed";
    if (Calendar::lastDay - order.header->day < 5)
        return "Open";
    return m_random.chance(92) ? "Issued" : m_random.chance(60) ? "Urgent" : "Critical";
}

void Purchasing::writeHeader(Recordset& row, const Header& header)
{
    const Job& job = jobOf(header);
    row["REQTAG"] = header.reqTag;
    row["REQNO"] = header.reqNo;
    row["REQTYPE"] = header.type;
    row["CONO"] = job.company;
    row["JOBNO"] = job.number;
    row["VENTAG"] = vendorOf(header).tag;
    row["FDATE"] = m_world.calendar.shown(header.day);
    row["LDATE"] = m_world.calendar.sortable(header.day);
    row["FOB"] = "Job Site";
    row["TERMS"] = m_world.terms[static_cast<size_t>(vendorOf(header).terms)].name;
    row["PROMBY"] = header.promised;
    row["Required"] = header.required;
    row["WHODIDIT"] = header.requisitioner;
    row["VCONTACT"] = vendorOf(header).contact;
    row["QLEVEL"] = "";
    row["SHIPTO"] = job.shipTo;
    row["SHIPVIA"] = header.shipVia;
    row["INTEND"] = header.intendedUse;
    row["CMRNO"] = header.clientNo;
    row["APPROVER"] = "";
    row["REIMB"] = job.reimbursable ? "Y" : "N";
    row["BRQWOTAG"] = 0;
    row["BRQROTAG"] = 0;
    stamp(row, m_world, m_random, header.day);
}

void Purchasing::writeRequisition(const Header& header, const std::vector<Line>& lines,
                                  const std::vector<Order>& orders)
{
    std::vector<const Line*> all;
    for (const Line& line : lines)
        all.push_back(&line);
    m_world.loader.add(m_requisitions, [&](Recordset& row) {
        writeHeader(row, header);
        row["PONO"] = orderNumber(header, 1);
        row["AMOUNT"] = sumOf(all);
        row["Status"] = requisitionStatus(header, lines, orders);
        row["OVERRIDEPOAF"] = false;
    });
}

void Purchasing::writeOrder(const Order& order, int suffix)
{
    const Header& header = *order.header;
    const std::vector<const Line*> lines(order.lines.begin(), order.lines.end());
    int revision = 0;
    for (const Line* line : lines)
        revision = std::max(revision, line->revision);
    m_world.loader.add(m_orders, [&](Recordset& row) {
        writeHeader(row, header);
        row["POTAG"] = order.tag;
        row["POSUFFIX"] = suffix;
        row["PONO"] = order.number;
        row["AMOUNT"] = sumOf(lines);
        row["Status"] = orderStatus(order);
        row["REVNO"] = revision;
        row["VEXDLTAG"] = order.voided ? 0 : downloadBatchOf(jobOf(header).company, header.day);
        row["PONTAG"] = 0;
        row["OVERRIDEPOAF"] = header.reqTag == 0;
    });
}

void Purchasing::writeLine(const Header& header, const Line& line)
{
    const Item* item = line.item < 0 ? nullptr : &m_world.item(line.item);
    const bool requisitioned = header.reqTag != 0;
    m_world.loader.add(m_lines, [&](Recordset& row) {
        row["RQITAG"] = line.tag;
        row["REQTAG"] = header.reqTag;
        row["POTAG"] = line.poTag;
        row["REQITEMNO"] = requisitioned ? line.reqItem : 0;
        row["REQLINENO"] = requisitioned ? line.reqNumber : 0;
        // Lines that come from a requisition are numbered as tagged, texts with them.
        row["POITEMNO"] = requisitioned ? line.poNumber : line.reqItem;
        row["POLINENO"] = line.poNumber;
        row["ILCTAG"] = item ? m_world.branches[static_cast<size_t>(item->branch)] : 0;
        row["IBCTAG"] = 0;
        row["ISNTAG"] = item ? item->isnTag : 0;
        row["QTY"] = line.quantity;
        row["UNIT"] = line.unit;
        row["VINVNO"] = "";
        row["Desc"] = line.description;
        row["SHORTDESC"] = line.description.section("\r\n", 0, 0);
        row["UNITPRICE"] = line.price;
        row["UNITFACT"] = line.factor;
        row["AMOUNT"] = line.amount;
        row["COSTCODEA"] = line.codes[0];
        row["COSTCODEB"] = line.codes[1];
        row["COSTCODEC"] = line.codes[2];
        row["MCODE"] = line.materialCode;
        row["GLCODE"] = line.glCode;
        row["DRAWINGNO"] = line.drawing;
        row["SALE"] = "";
        row["ASSET"] = "";
        row["WHOLESALE"] = 0;
        row["MARKUP"] = 0;
        row["RETAIL"] = 0;
        row["REVNO"] = line.revision;
        stamp(row, m_world, m_random, header.day);
    });
}

}  // namespace

void addPurchasing(World& world)
{
    addDownloadBatches(world);
    Purchasing(world).run();
}

}  // namespace demo
