// Purchase orders from the tagged line items of a requisition, and more of them for an order that
// stands already. There is no transaction: the order of steps decides what a stop leaves, and a
// utility finds it. What is wrong is told in boxes; failures of the store are the caller's.
#pragma once

#include <functional>
#include <optional>

#include "core/session.h"
#include "purchasing/document_numbers.h"

// Told before either: nothing is tagged, or the requisition's date is none.
bool mayPostTagged(const Session& session, qint32 REQTAG, const QString& refusalTitle);

struct OrderProposal
{
    QString JOBNO;
    qint32 REQNO = 0;
    QString REQTYPE;
    int POSUFFIX = 1;
    NumberSource source = NumberSource::Typed;
    QString PONO;  // blank where it is typed, and where there is no counter (the user was told)
};
OrderProposal proposeOrder(const Session& session, qint32 REQTAG);

struct OrderCreation
{
    qint32 REQTAG = 0;
    int POSUFFIX = 1;
    QString PONO;
    bool usesCounter = false;
    // Called after each step, for whoever watches or stops it: "POTAG", "RQITAG" for each line
    // written, "INVTRANS" for each posted, "POLIST", "VEXCOUNTERS", "TAGLIST".
    std::function<void(const char* step)> done;
};
struct CreatedOrder
{
    qint32 POTAG = 0;
    int items = 0;
};
// Nothing where the requisition is gone or no tag could be drawn.
std::optional<CreatedOrder> createOrder(const Session& session, const OrderCreation& creation);

// The order of a number, in capitals; nothing after a box, whose title is given.
std::optional<qint32> orderOfNumber(const Session& session, const QString& PONO);
// The tagged line items become the order's last ones; how many.
int addTaggedToOrder(const Session& session, qint32 REQTAG, qint32 POTAG);
