// Requisitions, purchase orders and their lines between the themes that write them.
#pragma once

#include "tools/demo/world.h"

namespace demo {

// What a requisition and the orders made of it have in common.
struct Header
{
    int job = 0;
    int vendor = 0;
    int day = 0;
    qint32 reqTag = 0;
    int reqNo = 0;
    QString type;
    QString promised;
    QString required;
    QString requisitioner;
    QString shipVia;
    QString intendedUse;
    QString clientNo;
};

struct Line
{
    qint32 tag = 0;
    qint32 poTag = 0;
    int reqNumber = 0;  // position and item number: text lines have the item above
    int reqItem = 0;
    int poNumber = 0;
    int revision = 0;
    int item = -1;  // position in World::items
    double quantity = 0;
    QString unit;
    double price = 0;
    QString factor;
    double amount = 0;
    QString description;
    QString drawing;
    QString codes[3];
    QString glCode;
    QString materialCode;
};

// Makes lines of what a vendor sells, for a job; `random` is the caller's and goes on.
class LineMaker
{
public:
    LineMaker(World& world, Random& random) : m_world(world), m_random(random) {}
    std::vector<Line> make(const Header& header, int count);

private:
    Line makeLine(const Header& header);
    void chooseMaterial(Line& line, const Header& header);
    void chooseService(Line& line);
    void chooseCodes(Line& line, const Header& header);

    World& m_world;
    Random& m_random;
};

struct Order
{
    qint32 tag = 0;
    QString number;
    const Header* header = nullptr;
    std::vector<Line*> lines;
    bool voided = false;
    // What came of it.
    bool complete = false;  // all received, invoiced and paid
};

// Deliveries, vendors' invoices, payments and procurement status of orders.
class Fulfilment
{
public:
    explicit Fulfilment(World& world);
    // Writes what has happened to the order until the last day, and sets `complete`.
    void follow(Order& order);

private:
    struct Part  // of a line in a delivery
    {
        const Line* line;
        double quantity;
        double backOrdered;
    };
    struct Delivery
    {
        int day;
        int number;
        std::vector<Part> parts;
    };

    std::vector<Delivery> planDeliveries(const Order& order);
    void receive(const Order& order, const Delivery& delivery);
    // True when the invoice is paid.
    bool invoice(const Order& order, const Delivery& delivery);
    void pay(const Order& order, const Part& part, const Delivery& delivery,
             const QString& invoiceNo, int invoiceDay, int checkDay, const QString& checkNo);
    void registerInvoice(const Order& order, const Delivery& delivery, const QString& invoiceNo,
                         int invoiceDay);
    void tellStatus(const Order& order, const std::vector<Delivery>& deliveries);
    void addStatusLine(const Order& order, const Part& part, const Delivery& delivery,
                       const QString& carrier);

    World& m_world;
    Random m_random;
    Recordset m_received;
    Recordset m_payments;
    Recordset m_status;
    Recordset m_comments;
    Recordset m_invoices;
    Recordset m_invoiceLines;
    int m_slipNo = 20000;
    int m_checkNo = 50000;
    int m_invoiceNo = 7000;
};

// The download batch in which an order of that day went out to accounting, 0 for none yet.
qint32 downloadBatchOf(int company, int day);
void addDownloadBatches(World& world);

}  // namespace demo
