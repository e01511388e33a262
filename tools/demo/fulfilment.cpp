#include <algorithm>

#include "core/line_amount.h"
#include "tools/demo/documents.h"

namespace demo {
namespace {

constexpr int daysOfMonth = 30;
constexpr int openMonths = 2;  // the last ones have not gone to accounting yet

}  // namespace

Fulfilment::Fulfilment(World& world)
    : m_world(world),
      m_random(world.plan.seed, "fulfilment"),
      m_received(world.zorvex.OpenRecordset("RECEIVED")),
      m_payments(world.zorvex.OpenRecordset("PAYMENTS")),
      m_status(world.zorvex.OpenRecordset("PROSTATUS")),
      m_comments(world.zorvex.OpenRecordset("PSCOMMENTS")),
      m_invoices(world.zorvex.OpenRecordset("APINVOICES")),
      m_invoiceLines(world.zorvex.OpenRecordset("APIITEMS"))
{
}

void Fulfilment::follow(Order& order)
{
    for (const Line* line : order.lines)
        if (line->item >= 0)
            m_world.post(m_world.item(line->item), "PO", order.tag, "RQI", line->tag,
                         order.header->day, line->quantity);
    if (order.voided)
        return;
    const std::vector<Delivery> deliveries = planDeliveries(order);
    double open = 0;
    for (const Line* line : order.lines)
        open += line->quantity;
    bool allPaid = true;
    for (const Delivery& delivery : deliveries) {
        if (delivery.day > Calendar::lastDay)
            continue;
        receive(order, delivery);
        for (const Part& part : delivery.parts)
            open -= part.quantity;
        allPaid = invoice(order, delivery) && allPaid;
    }
    order.complete = open == 0 && allPaid;
    if (m_random.chance(20))
        tellStatus(order, deliveries);
}

// One to three deliveries; most lines come whole in one of them, some in two, a few in part or
// never.
std::vector<Fulfilment::Delivery> Fulfilment::planDeliveries(const Order& order)
{
    std::vector<Delivery> deliveries(
        static_cast<size_t>(m_random.chance(70) ? 1 : m_random.between(2, 3)));
    int day = order.header->day + m_random.between(4, 35);
    for (size_t i = 0; i < deliveries.size(); ++i) {
        deliveries[i].day = m_world.calendar.workday(day);
        deliveries[i].number = static_cast<int>(i) + 1;
        day += m_random.between(5, 25);
    }
    for (const Line* line : order.lines) {
        if (line->quantity == 0 || m_random.chance(3))
            continue;
        const int first = m_random.below(static_cast<int>(deliveries.size()));
        const bool last = first + 1 == static_cast<int>(deliveries.size());
        const bool split = line->quantity >= 2 && m_random.chance(last ? 6 : 40);
        const double now = split ? std::floor(line->quantity / 2) : line->quantity;
        const double rest = line->quantity - now;
        deliveries[static_cast<size_t>(first)].parts.push_back({line, now, rest});
        if (split && !last)
            deliveries[static_cast<size_t>(first) + 1].parts.push_back({line, rest, 0});
    }
    std::erase_if(deliveries, [](const Delivery& delivery) { return delivery.parts.empty(); });
    return deliveries;
}

void Fulfilment::receive(const Order& order, const Delivery& delivery)
{
    static const char* const places[] = {"Laydown Yard", "Warehouse", "Tool Room", "At the Work"};
    const QString slip = QString("PS %1").arg(++m_slipNo);
    const QString place = m_random.pick(places);
    for (const Part& part : delivery.parts) {
        const qint32 tag = m_world.tags.ofSite("RECTAG");
        m_world.loader.add(m_received, [&](Recordset& row) {
            row["RECTAG"] = tag;
            row["RQITAG"] = part.line->tag;
            row["POTAG"] = order.tag;
            row["POITEMNO"] = order.header->reqTag != 0 ? part.line->poNumber : part.line->reqItem;
            row["QTYREC"] = part.quantity;
            row["QTYRTN"] = part.quantity > 4 && m_random.chance(2) ? 1 : 0;
            row["QTYBKO"] = part.backOrdered;
            row["DATEREC"] = m_world.calendar.shown(delivery.day);
            row["LDATEREC"] = m_world.calendar.sortable(delivery.day);
            row["REFTEXT"] = slip;
            row["Location"] = place;
        });
        if (part.line->item >= 0)
            m_world.post(m_world.item(part.line->item), "PO", order.tag, "REC", tag, delivery.day,
                         part.quantity);
    }
}

bool Fulfilment::invoice(const Order& order, const Delivery& delivery)
{
    const int invoiceDay = delivery.day + m_random.between(1, 12);
    const int checkDay = m_world.calendar.workday(invoiceDay + m_random.between(20, 45));
    if (invoiceDay > Calendar::lastDay || m_random.chance(3))
        return false;
    const bool paid = checkDay <= Calendar::lastDay;
    const QString invoiceNo =
        QString("%1%2").arg(QChar('A' + order.header->vendor % 26)).arg(++m_invoiceNo);
    const QString checkNo = paid ? QString::number(++m_checkNo) : QString();
    for (const Part& part : delivery.parts)
        pay(order, part, delivery, invoiceNo, invoiceDay, paid ? checkDay : -1, checkNo);
    if (m_world.jobOf(order.header->job).company == 2)
        registerInvoice(order, delivery, invoiceNo, invoiceDay);
    return paid;
}

void Fulfilment::pay(const Order& order, const Part& part, const Delivery& delivery,
                     const QString& invoiceNo, int invoiceDay, int checkDay, const QString& checkNo)
{
    const Job& job = m_world.jobOf(order.header->job);
    const Line& line = *part.line;
    const bool billed = checkDay >= 0 && job.reimbursable;
    m_world.loader.add(m_payments, [&](Recordset& row) {
        row["PAYTAG"] = m_world.tags.plain("PAYTAG");
        row["RQITAG"] = line.tag;
        row["POTAG"] = order.tag;
        row["POITEMNO"] = order.header->reqTag != 0 ? line.poNumber : line.reqItem;
        row["VENINV"] = invoiceNo;
        row["VENINVDATE"] = m_world.calendar.shown(invoiceDay);
        row["QTY"] = part.quantity;
        row["UNIT"] = line.unit;
        row["UNITPRICE"] = line.price;
        row["UNITFACT"] = line.factor;
        row["AMOUNT"] = lineAmount(part.quantity, line.price, line.factor).value();
        row["RELNO"] = delivery.number;
        row["CHECKNO"] = checkNo;
        row["CHECKDATE"] = checkDay >= 0 ? m_world.calendar.shown(checkDay) : QString();
        row["INVNO"] = billed ? QString("B%1-%2").arg(job.number.trimmed(),
                                                      m_world.calendar.sortable(checkDay).left(6))
                              : QString();
        row["INVCODE"] = billed ? m_random.pick(job.invoiceCodes) : QString();
    });
}

// The second company keeps the register of vendors' invoices.
void Fulfilment::registerInvoice(const Order& order, const Delivery& delivery,
                                 const QString& invoiceNo, int invoiceDay)
{
    const Job& job = m_world.jobOf(order.header->job);
    const Vendor& vendor = m_world.vendorOf(order.header->vendor);
    const Terms& terms = m_world.terms[static_cast<size_t>(vendor.terms)];
    const qint32 tag = m_world.tags.plain("APINVTAG");
    const auto later = [&](int days) {
        return days == 0 ? QString()
                         : m_world.calendar.date(invoiceDay + days).toString("MM/dd/yyyy");
    };
    double total = 0;
    int number = 0;
    for (const Part& part : delivery.parts) {
        const Line& line = *part.line;
        const double amount = lineAmount(part.quantity, line.price, line.factor).value();
        total += amount;
        m_world.loader.add(m_invoiceLines, [&](Recordset& row) {
            row["APINVITEMTAG"] = m_world.tags.plain("APINVITEMTAG");
            row["APINVTAG"] = tag;
            row["ITEMNO"] = ++number;
            row["QTY"] = part.quantity;
            row["UNIT"] = line.unit;
            row["SHORTDESC"] = line.description.section("\r\n", 0, 0).left(70);
            row["UNITPRICE"] = line.price;
            row["UNITFACT"] = line.factor;
            row["AMOUNT"] = amount;
            row["COSTCODEA"] = line.codes[0];
            row["COSTCODEB"] = line.codes[1];
            row["COSTCODEC"] = line.codes[2];
            row["MCODE"] = line.materialCode;
            row["GLCODE"] = line.glCode;
        });
    }
    total = roundedToCents(total);
    m_world.loader.add(m_invoices, [&](Recordset& row) {
        row["APINVTAG"] = tag;
        row["CONO"] = job.company;
        row["JOBNO"] = job.number;
        row["VENTAG"] = vendor.tag;
        row["INVOICENO"] = invoiceNo;
        row["VEXDLTAG"] = downloadBatchOf(job.company, invoiceDay);
        row["INVOICEAMT"] = total;
        row["INVOICEFDATE"] = m_world.calendar.shown(invoiceDay);
        row["SUB2DISCOUNT"] = total;
        row["TERMSCODETAG"] = terms.tag;
        row["INVVOICEDUEDATE"] = later(terms.daysUntilDue);
        row["DISCOUNTDATE"] = later(terms.daysOfDiscount);
        row["DISCOUNTAMT"] = roundedToCents(terms.discount / 100 * total);
        row["INVCOMMENT"] = "";
    });
}

void Fulfilment::tellStatus(const Order& order, const std::vector<Delivery>& deliveries)
{
    const QString carrier = m_random.pick(carriers);
    for (const Delivery& delivery : deliveries)
        for (const Part& part : delivery.parts)
            addStatusLine(order, part, delivery, carrier);
}

void Fulfilment::addStatusLine(const Order& order, const Part& part, const Delivery& delivery,
                               const QString& carrier)
{
    const Calendar& calendar = m_world.calendar;
    const qint32 tag = m_world.tags.plain("PSTAG");
    const bool arrived = delivery.day <= Calendar::lastDay;
    const int shipped = std::max(order.header->day, delivery.day - 3);
    m_world.loader.add(m_status, [&](Recordset& row) {
        row["PSTAG"] = tag;
        row["POTAG"] = order.tag;
        row["RQITAG"] = part.line->tag;
        row["POITEMNO"] = order.header->reqTag != 0 ? part.line->poNumber : part.line->reqItem;
        row["SHIPFDATE"] = calendar.shown(shipped);
        row["SHIPLDATE"] = calendar.sortable(shipped);
        row["ETAFDATE"] = calendar.shown(delivery.day);
        row["ETALDATE"] = calendar.sortable(delivery.day);
        row["DOAFDATE"] = arrived ? calendar.shown(delivery.day) : QString();
        row["DOALDATE"] = arrived ? calendar.sortable(delivery.day) : QString();
        row["CARRIER"] = carrier;
        row["TRACKINGNO"] =
            m_random.chance(50) ? QString("T%1").arg(m_random.between(1000000, 9999999)) : "";
        row["RECEIVEDBY"] = arrived ? personName(m_random) : QString();
        row["PROSTATUS"] = arrived ? "Closed" : shipped > Calendar::lastDay ? "Ordered" : "Ongoing";
    });
    for (int day = order.header->day + 2;
         day < std::min(delivery.day, Calendar::lastDay) && m_random.chance(30); day += 6)
        m_world.loader.add(m_comments, [&](Recordset& row) {
            const int hour = m_random.between(8, 11);
            const QString minutes = QString("%1").arg(m_random.below(60), 2, 10, QChar('0'));
            row["PSTAG"] = tag;
            row["PSCFDATE"] = calendar.shown(day);
            row["PSCLDATE"] = calendar.sortable(day);
            row["PSCFTIME"] = QString("%1:%2 AM").arg(hour, 2, 10, QChar('0')).arg(minutes);
            row["PSCLTIME"] = QString("%1:%2").arg(hour, 2, 10, QChar('0')).arg(minutes);
            row["PSCOMMENT"] = m_random.pick(statusComments);
            row["TAGGED"] = false;
            row["PSCARCHIVE"] = false;
        });
}

// A batch a month: the first company's orders go to one accounting package, the second's to the
// other, and both draw their numbers from one counter.
qint32 downloadBatchOf(int company, int day)
{
    const int month = day / daysOfMonth;
    return month > Calendar::lastDay / daysOfMonth - openMonths ? 0 : month * 2 + company;
}

void addDownloadBatches(World& world)
{
    Recordset first = world.zordlu.OpenRecordset("VEXDLTL");
    Recordset second = world.zordlu.OpenRecordset("VEXDLM2");
    for (int month = 0; downloadBatchOf(1, month * daysOfMonth) != 0; ++month)
        for (const int company : {1, 2})
            world.loader.add(company == 1 ? first : second, [&](Recordset& row) {
                const int day = (month + 1) * daysOfMonth;
                row["VEXDLTAG"] = world.tags.plain("VEXDLTAG");
                row["FDATE"] = world.calendar.shown(day);
                row["LDATE"] = world.calendar.sortable(day);
                row["DLSTATUS"] = "D/L File Created on " + world.calendar.shown(day) + " 4:30 PM";
                row["DLFNAME"] = (company == 1 ? "TL" : "M2") + world.calendar.sortable(day);
            });
}

}  // namespace demo
