#include "purchasing/document_lines.h"

#include <algorithm>

#include "core/keyed_access.h"
#include "core/line_amount.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/schema/purchasing_tables.h"
#include "core/tags.h"
#include "core/write_batch.h"
#include "core/zap.h"

namespace {

constexpr int highestLine = 9999;

OpenTable openLines(const Session& session)
{
    return openTable(session, "ZORVEX.mdb", "RQILIST");
}

std::vector<QString> linesOf(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag)
{
    std::vector<QString> found;
    forEachLine(rows, kind, docTag, [&] {
        found.push_back(rows.Bookmark());
        return true;
    });
    return found;
}

// Of stamps, too: the work table has all that a line has.
void copyWholeRow(const storage::Recordset& from, storage::Recordset& to)
{
    for (const schema::Field& field : schema::RQILIST_fields) {
        const QString name = QString::fromLatin1(field.name.data(), qsizetype(field.name.size()));
        to.fieldNamed(name) = from.fieldNamed(name).value();
    }
}

void number(storage::Recordset& rows, const DocumentKind& kind, int line)
{
    rows[kind.itemNo] = line;
    rows[kind.lineNo] = line;
}

bool seekOwner(OpenTable& owner, const char* index, qint32 tag, const QString& title,
               const QString& text)
{
    owner.rows.Index(index);
    if (owner.rows.Seek("=", tag))
        return true;
    showCritical(title, text + QString::number(tag));
    return false;
}

void writeRequisitionTotal(const Session& session, storage::Recordset& lines, qint32 REQTAG)
{
    OpenTable owner = openTable(session, "ZORVEX.mdb", "REQLIST");
    if (!seekOwner(owner, "REQTAG", REQTAG, "Invalid Requisition Tag",
                   "Cannot Find Owner Req. Tag Number: "))
        return;
    owner.rows.Edit();
    owner.rows["AMOUNT"] = sumOfLines(lines, requisitions, REQTAG);
    owner.rows.Update();
}

void writeOrderTotals(const Session& session, storage::Recordset& lines, qint32 REQTAG)
{
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    storage::Recordset& rows = orders.rows;
    forEachWithin(rows, "POREQ", {{"REQTAG", REQTAG}}, [&] {
        rows.Edit();
        rows["AMOUNT"] = sumOfLines(lines, purchaseOrders, intOf(rows["POTAG"]));
        rows.Update();
        return true;
    });
}

int largestRevision(storage::Recordset& lines, qint32 POTAG)
{
    int largest = 0;
    forEachLine(lines, purchaseOrders, POTAG, [&] {
        largest = std::max(largest, intOf(lines["REVNO"]));
        return true;
    });
    return largest;
}

}  // namespace

bool forEachLine(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                 const std::function<bool()>& take)
{
    return forEachWithin(rows, kind.lines, {{kind.tag, docTag}}, take);
}

void copyLine(const storage::Recordset& from, storage::Recordset& to)
{
    for (const schema::Field& field : schema::lineItemFields) {
        const QString name = QString::fromLatin1(field.name.data(), qsizetype(field.name.size()));
        to.fieldNamed(name) = from.fieldNamed(name).value();
    }
}

LineNumbers numbersForNewLine(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                              bool isText)
{
    LineNumbers numbers;
    forEachLine(rows, kind, docTag, [&] {
        ++numbers.line;
        if (numberOf(rows["QTY"]) != 0)
            ++numbers.item;
        return true;
    });
    if (isText)
        --numbers.item;
    return numbers;
}

int renumberLines(const Session& session, const DocumentKind& kind, qint32 docTag)
{
    OpenTable open = openLines(session);
    storage::Recordset& rows = open.rows;
    const std::vector<QString> lines = linesOf(rows, kind, docTag);
    const int count = static_cast<int>(lines.size());
    WriteBatch batch(open.workspace);
    const auto write = [&](int at, bool isLast, int value) {
        if (!goToFound(rows, lines[static_cast<size_t>(at)]))
            return;
        batch.begin();
        rows.Edit();
        rows[kind.lineNo] = value;
        if (isLast)
            rows[kind.itemNo] = value;
        rows.Update();
        batch.added();
    };
    // The low numbers are cleared first.
    const int highest = std::max(highestLine, 2 * count);
    for (int at = count - 1; at >= 0; --at)
        write(at, false, highest - (count - 1 - at));
    for (int at = 0; at < count; ++at)
        write(at, true, at + 1);
    batch.commit();
    return count;
}

qint32 insertLine(const Session& session, const DocumentKind& kind, qint32 docTag,
                  qint32 beforeRQITAG)
{
    const qint32 tag =
        dnGetNewTag(session.JobSitePath, "RQITAG", "ZORVEX.mdb", "VEXTAGS", session.SiteTag);
    if (tag == 0)
        return 0;
    OpenTable work = emptiedTable(session.UserSettingsPath, "ZORUSER.mdb", "VEXRQITEMP");
    {
        OpenTable open = openLines(session);
        const storage::Recordset& rows = open.rows;
        WriteBatch batch(work.workspace);
        int line = 0;
        const DocumentKind& other = kind.isOrder() ? requisitions : purchaseOrders;
        const auto add = [&](const std::function<void()>& fill) {
            batch.begin();
            work.rows.AddNew();
            fill();
            number(work.rows, kind, ++line);
            work.rows.Update();
            batch.added();
        };
        const auto addBlank = [&] {
            add([&] {
                work.rows["RQITAG"] = tag;
                work.rows[kind.tag] = docTag;
                for (const schema::FieldName field : {other.tag, other.itemNo, other.lineNo})
                    work.rows[field] = 0;
            });
        };
        bool isAdded = false;
        forEachLine(open.rows, kind, docTag, [&] {
            if (beforeRQITAG != 0 && intOf(rows["RQITAG"]) == beforeRQITAG && !isAdded) {
                addBlank();
                isAdded = true;
            }
            add([&] { copyWholeRow(rows, work.rows); });
            return true;
        });
        if (!isAdded)
            addBlank();
        batch.commit();
    }
    replaceLines(session, kind, docTag);
    return tag;
}

void replaceLines(const Session& session, const DocumentKind& kind, qint32 docTag)
{
    OpenTable work = openTable(session, "ZORUSER.mdb", "VEXRQITEMP");
    OpenTable open = openLines(session);
    // One transaction: between the deletion and the last line the document would be a torso.
    open.workspace.BeginTrans();
    deleteWithin(open.rows, kind.lines, {{kind.tag, docTag}});
    storage::Recordset& rows = work.rows;
    for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more; more = rows.MoveNext()) {
        open.rows.AddNew();
        copyWholeRow(rows, open.rows);
        open.rows.Update();
    }
    open.workspace.CommitTrans();
}

double sumOfLines(storage::Recordset& rows, const DocumentKind& kind, qint32 docTag,
                  qint32 withoutRQITAG)
{
    double sum = 0;
    forEachWithin(rows, kind.isOrder() ? kind.items : kind.lines, {{kind.tag, docTag}}, [&] {
        if (withoutRQITAG == 0 || intOf(rows["RQITAG"]) != withoutRQITAG)
            sum += numberOf(rows["AMOUNT"]);
        return true;
    });
    return roundedToCents(sum);
}

void writeTotals(const Session& session, const DocumentKind& kind, qint32 docTag)
{
    OpenTable lines = openLines(session);
    if (!kind.isOrder()) {
        writeRequisitionTotal(session, lines.rows, docTag);
        writeOrderTotals(session, lines.rows, docTag);
        return;
    }
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    if (!seekOwner(orders, "POTAG", docTag, "Invalid PO Tag", "Cannot Find Owner PO Tag Number: "))
        return;
    if (const qint32 REQTAG = intOf(orders.rows["REQTAG"]); REQTAG != 0)
        writeRequisitionTotal(session, lines.rows, REQTAG);
    if (!orders.rows.Seek("=", docTag))
        return;
    const double sum = sumOfLines(lines.rows, kind, docTag);
    const int revision = largestRevision(lines.rows, docTag);
    orders.rows.Edit();
    orders.rows["AMOUNT"] = sum;
    orders.rows["REVNO"] = revision;
    orders.rows.Update();
}
