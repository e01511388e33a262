#include "purchasing/header_changes.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/stamps.h"
#include "core/write_batch.h"
#include "purchasing/document_lines.h"
#include "purchasing/document_numbers.h"

namespace {

QString changedWords(const RequisitionHead& before, const RequisitionHead& after)
{
    if (before.CONO != after.CONO && before.JOBNO != after.JOBNO)
        return "Company Number and the Job Number";
    if (before.CONO != after.CONO)
        return "Company Number";
    if (before.JOBNO != after.JOBNO)
        return "Job Number";
    return before.REQTYPE != after.REQTYPE ? "Requisition Type" : "Requisition Number";
}

// Which they are is found out first: a write may move a row along the index.
std::vector<QString> bookmarksOf(storage::Recordset& rows, const char* index, KeyFields keys)
{
    std::vector<QString> found;
    forEachWithin(rows, index, keys, [&] {
        found.push_back(rows.Bookmark());
        return true;
    });
    return found;
}

void deleteRows(const Session& session, const char* table, const char* index, KeyFields keys)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", table);
    WriteBatch batch(open.workspace);
    forEachWithin(open.rows, index, keys, [&] {
        batch.begin();
        open.rows.Delete();
        batch.added();
        return true;
    });
    batch.commit();
}

// Those of a requisition go back to it.
void releaseLines(const Session& session, qint32 POTAG)
{
    OpenTable lines = openTable(session, "ZORVEX.mdb", "RQILIST");
    storage::Recordset& rows = lines.rows;
    WriteBatch batch(lines.workspace);
    for (const QString& line : bookmarksOf(rows, purchaseOrders.items, {{"POTAG", POTAG}})) {
        if (!goToFound(rows, line))
            continue;
        batch.begin();
        if (intOf(rows["REQTAG"]) == 0) {
            rows.Delete();
        } else {
            rows.Edit();
            for (const schema::FieldName field :
                 {schema::FieldName("POTAG"), {"POITEMNO"}, {"POLINENO"}})
                rows[field] = 0;
            rows.Update();
        }
        batch.added();
    }
    batch.commit();
}

void clearCostCodes(const Session& session, qint32 REQTAG)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    WriteBatch batch(open.workspace);
    for (const QString& line : bookmarksOf(open.rows, requisitions.lines, {{"REQTAG", REQTAG}})) {
        if (!goToFound(open.rows, line))
            continue;
        batch.begin();
        open.rows.Edit();
        for (const schema::FieldName code :
             {schema::FieldName("COSTCODEA"), {"COSTCODEB"}, {"COSTCODEC"}})
            open.rows[code] = "";
        open.rows.Update();
        batch.added();
    }
    batch.commit();
}

QString numbersOf(const std::vector<RelatedOrder>& orders)
{
    QStringList numbers;
    for (const RelatedOrder& order : orders)
        numbers.append(order.PONO.trimmed());
    return numbers.join('\n');
}

}  // namespace

std::vector<RelatedOrder> relatedOrders(const Session& session, qint32 REQTAG)
{
    std::vector<RelatedOrder> orders;
    OpenTable open = openTable(session, "ZORVEX.mdb", "POLIST");
    const storage::Recordset& rows = open.rows;
    forEachWithin(open.rows, "POREQ", {{"REQTAG", REQTAG}}, [&] {
        orders.push_back({.POTAG = intOf(rows["POTAG"]),
                          .POSUFFIX = intOf(rows["POSUFFIX"]),
                          .PONO = trimmedTextOf(rows["PONO"]),
                          .newPONO = trimmedTextOf(rows["PONO"])});
        return true;
    });
    return orders;
}

bool hasLines(const Session& session, const DocumentKind& kind, qint32 docTag)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    return !forEachLine(open.rows, kind, docTag, [] { return false; });
}

std::optional<HeadChange> headChange(const Session& session, qint32 REQTAG,
                                     const RequisitionHead& before, const RequisitionHead& after,
                                     const QString& newPONO)
{
    if (before == after)
        return {};
    HeadChange change{
        .REQTAG = REQTAG,
        .before = before,
        .after = after,
        .newPONO = newPONO,
        .orders = relatedOrders(session, REQTAG),
        .losesCostCodes = !before.isOfSameJob(after) && hasLines(session, requisitions, REQTAG)};
    if (orderNumberSource(session.JobSitePath) == NumberSource::AutoFormat)
        for (RelatedOrder& order : change.orders)
            order.newPONO =
                autoFormattedNumber(after.JOBNO, after.REQTYPE, after.REQNO, order.POSUFFIX);
    if (change.orders.empty() && !change.losesCostCodes)
        return {};
    return change;
}

QString headChangeText(const HeadChange& change)
{
    QString text = "You have changed the " + changedWords(change.before, change.after) + ".\n";
    if (!change.newPONO.trimmed().isEmpty())
        text += "The new PO Number is: " + change.newPONO.trimmed() + '\n';
    if (!change.orders.empty()) {
        text += "\nThe following related PO Numbers will be updated:\n";
        for (const RelatedOrder& order : change.orders)
            text += order.PONO + '\n';
    }
    if (change.losesCostCodes)
        text +=
            "\nBecause of the above change all Cost Codes in the\n"
            "Requisition Detail will be cleared. They will need\n"
            "to be reassigned for the new Company/Job Pair\n";
    text += "\nSave Changes to Requisition";
    if (!change.orders.empty())
        text += " and Update Related Purchase Orders";
    return text + '?';
}

QString takenNumber(const Session& session, const HeadChange& change)
{
    for (const RelatedOrder& order : change.orders)
        if (order.newPONO != order.PONO &&
            isOrderNumberTaken(session.JobSitePath, order.newPONO, order.POTAG))
            return order.newPONO;
    return {};
}

void applyHeadChange(const Session& session, const HeadChange& change)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "POLIST");
    storage::Recordset& rows = open.rows;
    rows.Index("POTAG");
    for (const RelatedOrder& order : change.orders) {
        if (!rows.Seek("=", order.POTAG))
            continue;
        rows.Edit();
        rows["REQNO"] = change.after.REQNO;
        rows["PONO"] = order.newPONO;
        rows["REQTYPE"] = change.after.REQTYPE;
        rows["POSUFFIX"] = order.POSUFFIX;
        rows.Update();
    }
    if (change.losesCostCodes)
        clearCostCodes(session, change.REQTAG);
}

QString deletionText(const Session& session, const DocumentKind& kind, qint32 docTag,
                     const QString& number)
{
    if (kind.isOrder()) {
        OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
        orders.rows.Index("POTAG");
        if (orders.rows.Seek("=", docTag) && intOf(orders.rows["REQTAG"]) != 0)
            return "Delete this Purchase Order?\n"
                   "Note: Line Items are Linked to a Requisition.\n"
                   "Delete the Requisition in Order to Delete the Line Items.";
        return "Delete This Purchase Order and All Related Detail?";
    }
    QString text = "Delete This Requisition " + number;
    const std::vector<RelatedOrder> orders = relatedOrders(session, docTag);
    if (!orders.empty())
        text += "\nAnd All of these Related Purchase Orders:\n" + numbersOf(orders);
    return text + (hasLines(session, kind, docTag) ? "\nAnd Related Detail Items?" : "?");
}

void deleteOfRequisition(const Session& session, qint32 REQTAG)
{
    deleteRows(session, "POLIST", "POREQ", {{"REQTAG", REQTAG}});
    deleteRows(session, "RQILIST", requisitions.lines, {{"REQTAG", REQTAG}});
}

void deleteOfOrder(const Session& session, qint32 POTAG)
{
    releaseLines(session, POTAG);
    deleteRows(session, "PAYMENTS", "PAYPO", {{"POTAG", POTAG}});
    deleteRows(session, "RECEIVED", "RECPO", {{"POTAG", POTAG}});
}
