#include "purchasing/line_list_state.h"

#include "core/locators.h"
#include "core/messages.h"
#include "core/tag_list.h"
#include "core/write_batch.h"
#include "purchasing/document_lines.h"

namespace {

OpenTable openMarks(const BrowseSession& list)
{
    return openTable(list.session(), "ZORUSER.mdb", "TAGLIST");
}

void refuseMark()
{
    showCritical("Cannot Tag Item", "Item is Already Posted to a Purchase Order ");
}

bool mayMark(const LineListState& state, const storage::Recordset& rows)
{
    return state.kind().isOrder() || intOf(rows["POTAG"]) == 0;
}

}  // namespace

void readMarks(const BrowseSession& list, LineListState& state)
{
    state.marked.clear();
    OpenTable marks = openMarks(list);
    for (const qint32 tag :
         zorTagListItems(marks.rows, state.kind().code, state.owner.docTag, lineMarks))
        state.marked.insert(tag);
}

bool hasMarks(const BrowseSession& list, const LineListState& state)
{
    OpenTable marks = openMarks(list);
    return !zorTagListFind(marks.rows, state.kind().code, state.owner.docTag, lineMarks);
}

void toggleLineMark(BrowseSession& list, LineListState& state)
{
    const storage::Recordset& rows = list.list().rows();
    const qint32 tag = intOf(rows["RQITAG"]);
    const DocumentKind& kind = state.kind();
    OpenTable marks = openMarks(list);
    if (zorTagListCheck(marks.rows, kind.code, state.owner.docTag, lineMarks, tag))
        zorTagListUnset(marks.rows, kind.code, state.owner.docTag, lineMarks, tag);
    else if (mayMark(state, rows))
        zorTagListSet(marks.rows, kind.code, state.owner.docTag, lineMarks, tag,
                      state.owner.number);
    else
        return refuseMark();
    readMarks(list, state);
    list.list().repaint();
    list.list().nextRow();
}

void markAll(BrowseSession& list, LineListState& state)
{
    const DocumentKind& kind = state.kind();
    OpenTable marks = openMarks(list);
    OpenTable lines = openTable(list.session(), "ZORVEX.mdb", "RQILIST");
    WriteBatch batch(marks.workspace);
    forEachLine(lines.rows, kind, state.owner.docTag, [&] {
        batch.begin();
        if (mayMark(state, lines.rows))
            zorTagListSet(marks.rows, kind.code, state.owner.docTag, lineMarks,
                          intOf(lines.rows["RQITAG"]), state.owner.number);
        batch.added();
        return true;
    });
    batch.commit();
    readMarks(list, state);
    list.list().rebuild();
}

void clearLineMarks(BrowseSession& list, LineListState& state)
{
    OpenTable marks = openMarks(list);
    WriteBatch batch(marks.workspace);
    batch.begin();
    zorTagListClear(marks.rows, state.kind().code, state.owner.docTag, lineMarks);
    batch.commit();
    state.marked.clear();
    list.list().rebuild();
}
