#include "purchasing/line_clipboard.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/tag_list.h"
#include "core/tags.h"
#include "core/text.h"
#include "core/zap.h"
#include "purchasing/document_lines.h"

namespace {

constexpr char cutMark[] = "X";
constexpr char copyMark[] = "C";

OpenTable lineAt(const Session& session, qint32 RQITAG, bool& isThere)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "RQILIST");
    open.rows.Index("RQITAG");
    isThere = RQITAG != 0 && open.rows.Seek("=", RQITAG);
    return open;
}

// A mark goes with its line.
void unmark(const Session& session, const DocumentKind& kind, qint32 docTag, qint32 RQITAG)
{
    OpenTable marks = openTable(session, "ZORUSER.mdb", "TAGLIST");
    zorTagListUnset(marks.rows, kind.code, docTag, lineMarks, RQITAG);
}

// Once pasted it is a copy.
void forgetCut(const Session& session)
{
    OpenTable clip = openTable(session, "ZORUSER.mdb", "VEXRQICLIP");
    clip.rows.Edit();
    clip.rows["CUTCOPY"] = copyMark;
    clip.rows.Update();
}

}  // namespace

void copyToClipboard(const Session& session, qint32 RQITAG, bool isCut)
{
    bool isThere = false;
    const OpenTable line = lineAt(session, RQITAG, isThere);
    if (!isThere)
        return;
    OpenTable clip = emptiedTable(session.UserSettingsPath, "ZORUSER.mdb", "VEXRQICLIP");
    clip.rows.AddNew();
    copyLine(line.rows, clip.rows);
    clip.rows["CUTCOPY"] = isCut ? cutMark : copyMark;
    clip.rows.Update();
}

bool isClipboardEmpty(const Session& session)
{
    return openTable(session, "ZORUSER.mdb", "VEXRQICLIP").rows.RecordCount() == 0;
}

bool hasContent(const Session& session, qint32 RQITAG)
{
    bool isThere = false;
    const OpenTable line = lineAt(session, RQITAG, isThere);
    return isThere && (numberOf(line.rows["QTY"]) != 0 || dnNotBlank(textOf(line.rows["Desc"])));
}

qint32 pasteLine(const Session& session, const DocumentKind& kind, qint32 docTag, qint32 RQITAG)
{
    OpenTable clip = openTable(session, "ZORUSER.mdb", "VEXRQICLIP");
    if (clip.rows.RecordCount() == 0) {
        showCritical("Cannot Paste",
                     "The Line Item Detail Clipboard is Empty. (Nothing to Paste).");
        return 0;
    }
    const bool isCut = textOf(clip.rows["CUTCOPY"]) == cutMark;
    const qint32 cutTag = intOf(clip.rows["RQITAG"]);
    bool isThere = false;
    if (isCut && !(lineAt(session, cutTag, isThere), isThere)) {
        showCritical("Cannot Paste", "Cannot Find Cut Line Item.");
        return 0;
    }
    bool hasTarget = false;
    lineAt(session, RQITAG, hasTarget);
    const qint32 tag = hasTarget ? RQITAG : insertLine(session, kind, docTag, 0);
    if (tag == 0)
        return 0;
    const qint32 newTag = hasTarget ? dnGetNewTag(session.JobSitePath, "RQITAG", "ZORVEX.mdb",
                                                  "VEXTAGS", session.SiteTag)
                                    : tag;
    if (newTag == 0)
        return 0;
    {
        OpenTable line = lineAt(session, tag, isThere);
        const qint32 REQTAG = intOf(line.rows["REQTAG"]);
        const qint32 POTAG = intOf(line.rows["POTAG"]);
        const storage::Value numbers[] = {
            line.rows["REQLINENO"].value(), line.rows["REQITEMNO"].value(),
            line.rows["POLINENO"].value(), line.rows["POITEMNO"].value()};
        line.rows.Edit();
        copyLine(clip.rows, line.rows);
        line.rows["RQITAG"] = newTag;
        line.rows["REQTAG"] = REQTAG;
        line.rows["POTAG"] = POTAG;
        line.rows["REQLINENO"] = numbers[0];
        line.rows["REQITEMNO"] = numbers[1];
        line.rows["POLINENO"] = numbers[2];
        line.rows["POITEMNO"] = numbers[3];
        line.rows.Update();
    }
    unmark(session, kind, docTag, tag);
    if (isCut) {
        OpenTable cut = lineAt(session, cutTag, isThere);
        if (isThere && cutTag != RQITAG) {
            unmark(session, kind, intOf(cut.rows[kind.tag]), cutTag);
            cut.rows.Delete();
        }
        forgetCut(session);
    }
    renumberLines(session, kind, docTag);
    return newTag;
}
