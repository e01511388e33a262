#include "purchasing/order_creation.h"

#include <algorithm>
#include <vector>

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/line_amount.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/stamps.h"
#include "core/tag_list.h"
#include "core/tags.h"
#include "core/text.h"
#include "core/write_batch.h"
#include "inventory/ledger_posting.h"
#include "purchasing/document_kind.h"

namespace {

std::vector<qint32> taggedLines(const Session& session, qint32 REQTAG)
{
    OpenTable marks = openTable(session, "ZORUSER.mdb", "TAGLIST");
    return zorTagListItems(marks.rows, requisitions.code, REQTAG, lineMarks);
}

void clearTags(const Session& session, qint32 REQTAG)
{
    OpenTable marks = openTable(session, "ZORUSER.mdb", "TAGLIST");
    WriteBatch batch(marks.workspace);
    batch.begin();
    zorTagListClear(marks.rows, requisitions.code, REQTAG, lineMarks);
    batch.commit();
}

OpenTable requisitionAt(const Session& session, qint32 REQTAG, bool& isThere)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "REQLIST");
    open.rows.Index("REQTAG");
    isThere = open.rows.Seek("=", REQTAG);
    return open;
}

struct Posting
{
    qint32 POTAG;
    int items;  // the numbers begin after these
    int lines;
    QString FDATE;
    QString LDATE;
    std::function<void(const char*)> done = [](const char*) {};
};

struct Posted
{
    int count = 0;
    double amount = 0;
};

// Writes the tagged lines to the order, one after the other, each with its entry in the ledger.
Posted postLines(const Session& session, const std::vector<qint32>& tags, const Posting& posting)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    storage::Recordset& rows = open.rows;
    rows.Index("RQITAG");
    Posted posted;
    for (const qint32 tag : tags) {
        // One that another user has ordered meanwhile stays with that order.
        if (!rows.Seek("=", tag) || intOf(rows["POTAG"]) != 0)
            continue;
        ++posted.count;
        rows.Edit();
        rows["POTAG"] = posting.POTAG;
        rows["POITEMNO"] = posting.items + posted.count;
        rows["POLINENO"] = posting.lines + posted.count;
        rows.Update();
        posting.done("RQITAG");
        if (!rows.Seek("=", tag))
            continue;
        posted.amount += numberOf(rows["AMOUNT"]);
        if (const qint32 item = intOf(rows["ISNTAG"]); item != 0) {
            zorInvTransUpdate(session.JobSitePath, intOf(rows["ILCTAG"]), "PO", posting.POTAG,
                              "RQI", tag, item, 0, posting.FDATE, posting.LDATE,
                              numberOf(rows["QTY"]));
            posting.done("INVTRANS");
        }
    }
    posted.amount = roundedToCents(posted.amount);
    return posted;
}

void writeOrder(const Session& session, const storage::Recordset& requisition,
                const OrderCreation& creation, qint32 POTAG, double amount)
{
    constexpr schema::FieldName same[] = {
        "REQTAG", "REQNO",   "CMRNO",    "VENTAG",   "CONO",     "JOBNO",    "FDATE",
        "LDATE",  "REQTYPE", "SHIPTO",   "SHIPVIA",  "FOB",      "PROMBY",   "TERMS",
        "INTEND", "REIMB",   "Required", "WHODIDIT", "APPROVER", "VCONTACT", "QLEVEL"};
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    orders.rows.AddNew();
    for (const schema::FieldName field : same)
        orders.rows[field] = requisition[field].value();
    orders.rows["POTAG"] = POTAG;
    orders.rows["PONO"] = creation.PONO;
    orders.rows["AMOUNT"] = amount;
    orders.rows["POSUFFIX"] = creation.POSUFFIX;
    orders.rows.Update();
    zorStampAdd(orders.rows, orders.rows.LastModified(), session.UserName);
}

void saveCounter(const Session& session, const QString& PONO)
{
    if (!saveOrderCounter(session.JobSitePath, PONO))
        showCritical("Empty Table",
                     "PO Number Counter Table is Empty.\nCounter has Not Been Setup.\n"
                     "PO Number Counter Cannot be Updated Properly.");
}

}  // namespace

bool mayPostTagged(const Session& session, qint32 REQTAG, const QString& refusalTitle)
{
    if (taggedLines(session, REQTAG).empty()) {
        showCritical(refusalTitle, "Nothing to Do (There are No Tagged Items).");
        return false;
    }
    bool isThere = false;
    const OpenTable requisition = requisitionAt(session, REQTAG, isThere);
    if (isThere && dnNotBlank(dnFixDate(textOf(requisition.rows["FDATE"]))))
        return true;
    showCritical(refusalTitle,
                 "Cannot Update Any Inventory Items Because Requisition Date is Invalid.\n"
                 "Requisition Date is used as the Transaction Date for Inventory Item.");
    return false;
}

OrderProposal proposeOrder(const Session& session, qint32 REQTAG)
{
    bool isThere = false;
    const OpenTable requisition = requisitionAt(session, REQTAG, isThere);
    const QString& site = session.JobSitePath;
    OrderProposal proposal;
    proposal.POSUFFIX = nextOrderSuffix(site, REQTAG);
    proposal.source = orderNumberSource(site);
    if (isThere) {
        proposal.JOBNO = trimmedTextOf(requisition.rows["JOBNO"]);
        proposal.REQNO = intOf(requisition.rows["REQNO"]);
        proposal.REQTYPE = trimmedTextOf(requisition.rows["REQTYPE"]);
    }
    if (proposal.source == NumberSource::AutoFormat)
        proposal.PONO = autoFormattedNumber(proposal.JOBNO, proposal.REQTYPE, proposal.REQNO,
                                            proposal.POSUFFIX);
    else if (proposal.source == NumberSource::Counter)
        proposal.PONO = nextOrderNumber(site);
    return proposal;
}

std::optional<CreatedOrder> createOrder(const Session& session, const OrderCreation& creation)
{
    const auto done = [&creation](const char* step) {
        if (creation.done)
            creation.done(step);
    };
    const QString& site = session.JobSitePath;
    bool isThere = false;
    const OpenTable requisition = requisitionAt(session, creation.REQTAG, isThere);
    if (!isThere)
        return {};
    const qint32 POTAG = dnGetNewTag(site, "POTAG", "ZORVEX.mdb", "VEXTAGS", session.SiteTag);
    if (POTAG == 0)
        return {};
    done("POTAG");
    const Posted posted = postLines(session, taggedLines(session, creation.REQTAG),
                                    {.POTAG = POTAG,
                                     .items = 0,
                                     .lines = 0,
                                     .FDATE = textOf(requisition.rows["FDATE"]),
                                     .LDATE = textOf(requisition.rows["LDATE"]),
                                     .done = done});
    writeOrder(session, requisition.rows, creation, POTAG, posted.amount);
    done("POLIST");
    if (creation.usesCounter) {
        saveCounter(session, creation.PONO);
        done("VEXCOUNTERS");
    }
    clearTags(session, creation.REQTAG);
    done("TAGLIST");
    return CreatedOrder{POTAG, posted.count};
}

std::optional<qint32> orderOfNumber(const Session& session, const QString& PONO)
{
    const QString number = PONO.trimmed().toUpper();
    if (number.isEmpty()) {
        showCritical("Cannot Find Item", "PO Number is Blank.");
        return {};
    }
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    orders.rows.Index("PONO");
    if (orders.rows.Seek("=", number))
        return intOf(orders.rows["POTAG"]);
    showCritical("Cannot Find Item", "Cannot Find PO Number: " + number);
    return {};
}

int addTaggedToOrder(const Session& session, qint32 REQTAG, qint32 POTAG)
{
    bool isThere = false;
    const OpenTable requisition = requisitionAt(session, REQTAG, isThere);
    if (!isThere)
        return 0;
    Posting posting{.POTAG = POTAG,
                    .items = 0,
                    .lines = 0,
                    .FDATE = textOf(requisition.rows["FDATE"]),
                    .LDATE = textOf(requisition.rows["LDATE"])};
    {
        OpenTable lines = openTable(session, "ZORVEX.mdb", "RQILIST");
        forEachWithin(lines.rows, purchaseOrders.lines, {{"POTAG", POTAG}}, [&] {
            posting.items = std::max(posting.items, intOf(lines.rows["POITEMNO"]));
            posting.lines = std::max(posting.lines, intOf(lines.rows["POLINENO"]));
            return true;
        });
    }
    const Posted posted = postLines(session, taggedLines(session, REQTAG), posting);
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    orders.rows.Index("POTAG");
    if (orders.rows.Seek("=", POTAG)) {
        const double amount = roundedToCents(numberOf(orders.rows["AMOUNT"]) + posted.amount);
        orders.rows.Edit();
        orders.rows["AMOUNT"] = amount;
        orders.rows.Update();
    }
    clearTags(session, REQTAG);
    return posted.count;
}
