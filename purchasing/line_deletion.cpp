#include "purchasing/line_deletion.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/tag_list.h"
#include "inventory/ledger_posting.h"

namespace {

struct LineKeys
{
    qint32 RQITAG;
    qint32 REQTAG;
    qint32 POTAG;
    qint32 ILCTAG;
    qint32 ISNTAG;
};

void deleteOfLine(const Session& session, const char* table, const char* index, qint32 RQITAG)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", table);
    deleteWithin(open.rows, index, {{"RQITAG", RQITAG}});
}

// Each receipt goes when the ledger has lost it.
bool deleteReceipts(const Session& session, const LineKeys& line)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RECEIVED");
    return forEachWithin(open.rows, "RECRQI", {{"RQITAG", line.RQITAG}}, [&] {
        if (!zorInvTransDelete(session.JobSitePath, line.ILCTAG, "PO", line.POTAG, "REC",
                               intOf(open.rows["RECTAG"]), line.ISNTAG)) {
            showCritical("Cannot Delete",
                         "Cannot Cannot Delete Inventory Transaction. \n"
                         "Cannot Delete Related Receiving Line Item.");
            return false;
        }
        open.rows.Delete();
        return true;
    });
}

void deleteMark(const Session& session, const DocumentKind& kind, const LineKeys& line)
{
    OpenTable marks = openTable(session, "ZORUSER.mdb", "TAGLIST");
    zorTagListUnset(marks.rows, kind.code, kind.isOrder() ? line.POTAG : line.REQTAG, lineMarks,
                    line.RQITAG);
}

}  // namespace

bool deleteLine(const Session& session, const DocumentKind& kind, qint32 RQITAG)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    storage::Recordset& rows = open.rows;
    rows.Index("RQITAG");
    if (!rows.Seek("=", RQITAG))
        return true;
    const LineKeys line{RQITAG, intOf(rows["REQTAG"]), intOf(rows["POTAG"]), intOf(rows["ILCTAG"]),
                        intOf(rows["ISNTAG"])};
    deleteOfLine(session, "PAYMENTS", "PAYRQI", RQITAG);
    if (!deleteReceipts(session, line))
        return false;
    deleteOfLine(session, "ISSUED", "ISSUEDRQI", RQITAG);
    if (!zorInvTransDelete(session.JobSitePath, line.ILCTAG, "PO", line.POTAG, "RQI", RQITAG,
                           line.ISNTAG)) {
        showCritical("Cannot Delete",
                     "Cannot Delete Inventory Transaction. Cannot Delete Line Item.");
        return false;
    }
    deleteMark(session, kind, line);
    if (rows.Seek("=", RQITAG))
        rows.Delete();
    return true;
}
