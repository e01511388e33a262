#include "purchasing/document_marks.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/stamps.h"
#include "core/tag_list.h"
#include "core/tags.h"

namespace {

OpenTable openMarks(const Session& session)
{
    return openTable(session, "ZORUSER.mdb", "TAGLIST");
}

void setStatus(const Session& session, const DocumentKind& kind, qint32 tag, const QString& status)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", kind.table);
    open.rows.Index(kind.byTag);
    if (!open.rows.Seek("=", tag))
        return;
    open.rows.Edit();
    open.rows["Status"] = status;
    open.rows.Update();
}

void unmark(const Session& session, const DocumentKind& kind, qint32 tag)
{
    OpenTable marks = openMarks(session);
    zorTagListUnset(marks.rows, documentMarks, 0, kind.code, tag);
}

// The fields of a row, read before another row is added through the same handle.
std::vector<storage::Value> valuesOf(const storage::Recordset& rows,
                                     std::span<const schema::FieldName> fields)
{
    std::vector<storage::Value> values;
    for (const schema::FieldName field : fields)
        values.push_back(rows[field].value());
    return values;
}

void addRow(storage::Recordset& rows, std::span<const schema::FieldName> fields,
            const std::vector<storage::Value>& values, KeyFields own)
{
    rows.AddNew();
    for (size_t i = 0; i < fields.size(); ++i)
        rows[fields[i]] = values[i];
    for (const KeyField& key : own)
        rows[key.field] = key.key;
    rows.Update();
}

void cloneLines(const Session& session, qint32 POTAG, qint32 newPOTAG)
{
    constexpr schema::FieldName fields[] = {
        "REQTAG",    "REQITEMNO", "POITEMNO",  "ISNTAG",    "QTY",        "UNIT",      "DOCTYPE",
        "VINVNO",    "Desc",      "SHORTDESC", "UNITPRICE", "UNITFACT",   "AMOUNT",    "COSTCODEA",
        "COSTCODEB", "COSTCODEC", "MCODE",     "GLCODE",    "ADJUSTMENT", "REQLINENO", "POLINENO"};
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    storage::Recordset& rows = open.rows;
    std::vector<std::vector<storage::Value>> lines;
    forEachWithin(rows, "POTAGONLY", {{"POTAG", POTAG}}, [&] {
        lines.push_back(valuesOf(rows, fields));
        return true;
    });
    for (const std::vector<storage::Value>& line : lines) {
        const qint32 tag =
            dnGetNewTag(session.JobSitePath, "RQITAG", "ZORVEX.mdb", "VEXTAGS", session.SiteTag);
        addRow(rows, fields, line, {{"RQITAG", tag}, {"POTAG", newPOTAG}});
        zorStampAdd(rows, rows.LastModified(), session.UserName);
    }
}

}  // namespace

bool isMarked(const Session& session, const DocumentKind& kind, qint32 docTag)
{
    OpenTable marks = openMarks(session);
    return zorTagListCheck(marks.rows, documentMarks, 0, kind.code, docTag);
}

void toggleMark(const Session& session, const DocumentKind& kind, qint32 docTag,
                const QString& number)
{
    OpenTable marks = openMarks(session);
    if (zorTagListCheck(marks.rows, documentMarks, 0, kind.code, docTag))
        zorTagListUnset(marks.rows, documentMarks, 0, kind.code, docTag);
    else
        zorTagListSet(marks.rows, documentMarks, 0, kind.code, docTag, number);
}

void clearMarks(const Session& session, const DocumentKind& kind)
{
    OpenTable marks = openMarks(session);
    zorTagListClear(marks.rows, documentMarks, 0, kind.code);
}

std::vector<qint32> markedDocuments(const Session& session, const DocumentKind& kind)
{
    std::vector<qint32> tags;
    OpenTable marks = openMarks(session);
    forEachWithin(marks.rows, "TAGLISTDOCNO",
                  {{"DOCCODE", documentMarks}, {"ITEMCODE", QString(kind.code)}}, [&] {
                      tags.push_back(intOf(marks.rows["ITEMTAG"]));
                      return true;
                  });
    return tags;
}

void setOrderStatus(const Session& session, qint32 POTAG, const QString& status)
{
    const std::vector<qint32> marked = markedDocuments(session, purchaseOrders);
    if (marked.empty())
        return setStatus(session, purchaseOrders, POTAG, status);
    for (const qint32 tag : marked)
        setStatus(session, purchaseOrders, tag, status);
    clearMarks(session, purchaseOrders);
}

void setRequisitionStatus(const Session& session, qint32 REQTAG, const QString& status)
{
    setStatus(session, requisitions, REQTAG, status);
}

void postDownloadNumber(const Session& session, qint32 VEXDLTAG,
                        const std::function<bool()>& overwrites)
{
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    storage::Recordset& rows = orders.rows;
    rows.Index("POTAG");
    for (const qint32 tag : markedDocuments(session, purchaseOrders)) {
        if (rows.Seek("=", tag)) {
            const int present = intOf(rows["VEXDLTAG"]);
            const bool isAnother = VEXDLTAG != 0 && present != 0 && present != VEXDLTAG;
            if (!isAnother || overwrites()) {
                rows.Edit();
                rows["VEXDLTAG"] = VEXDLTAG;
                rows.Update();
            }
        }
        unmark(session, purchaseOrders, tag);
    }
}

int transferMarkedLines(const Session& session, qint32 fromREQTAG, qint32 toREQTAG)
{
    OpenTable marks = openMarks(session);
    OpenTable lines = openTable(session, "ZORVEX.mdb", "RQILIST");
    storage::Recordset& rows = lines.rows;
    rows.Index("RQITAG");
    int count = 0;
    for (const qint32 tag : zorTagListItems(marks.rows, requisitions.code, fromREQTAG, lineMarks)) {
        if (rows.Seek("=", tag)) {
            rows.Edit();
            rows["REQTAG"] = toREQTAG;
            rows.Update();
            ++count;
        }
        zorTagListUnset(marks.rows, requisitions.code, fromREQTAG, lineMarks, tag);
    }
    return count;
}

qint32 cloneOrder(const Session& session, qint32 POTAG, const QString& newPONO)
{
    constexpr schema::FieldName fields[] = {
        "REQTAG", "REQNO",    "CONO",     "JOBNO",    "VENTAG", "POSUFFIX", "FDATE",
        "LDATE",  "REQTYPE",  "SHIPTO",   "SHIPVIA",  "FOB",    "PROMBY",   "TERMS",
        "INTEND", "Required", "WHODIDIT", "VCONTACT", "QLEVEL", "AMOUNT"};
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    orders.rows.Index("POTAG");
    if (!orders.rows.Seek("=", POTAG))
        return 0;
    const std::vector<storage::Value> head = valuesOf(orders.rows, fields);
    const qint32 tag =
        dnGetNewTag(session.JobSitePath, "POTAG", "ZORVEX.mdb", "VEXTAGS", session.SiteTag);
    if (tag == 0)
        return 0;
    addRow(orders.rows, fields, head, {{"POTAG", tag}, {"PONO", newPONO.trimmed().toUpper()}});
    zorStampAdd(orders.rows, orders.rows.LastModified(), session.UserName);
    cloneLines(session, POTAG, tag);
    return tag;
}
