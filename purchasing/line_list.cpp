#include "purchasing/line_list.h"

#include "core/locators.h"
#include "core/messages.h"
#include "core/window_registry.h"
#include "multiuser/record_locks.h"
#include "purchasing/document_lines.h"
#include "purchasing/line_clipboard.h"
#include "purchasing/line_columns.h"
#include "purchasing/line_transfers.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"

namespace {

using Run = void (*)(BrowseSession&, LineListState&);

// ---- the order of lines
void insert(BrowseSession& list, LineListState& state)
{
    const qint32 tag =
        insertLine(list.session(), state.kind(), state.owner.docTag, list.currentTag());
    list.list().rebuild();
    list.showTag(tag);
}

void renumber(BrowseSession& list, LineListState& state)
{
    const qint32 tag = list.currentTag();
    renumberLines(list.session(), state.kind(), state.owner.docTag);
    list.list().rebuild();
    list.showTag(tag);
}

void cut(BrowseSession& list, LineListState&)
{
    copyToClipboard(list.session(), list.currentTag(), true);
}

void copy(BrowseSession& list, LineListState&)
{
    copyToClipboard(list.session(), list.currentTag(), false);
}

bool agreesToPasteOver()
{
    return Messages::current().show({.kind = MessageKind::Question,
                                     .title = "Confirm Paste",
                                     .text = "OK to Paste Over Existing Line Item?",
                                     .buttons = Buttons::YesNo,
                                     .enterTakes = Answer::No}) == Answer::Yes;
}

void paste(BrowseSession& list, LineListState& state)
{
    const qint32 at = list.currentTag();
    if (!isClipboardEmpty(list.session()) && hasContent(list.session(), at) && !agreesToPasteOver())
        return;
    const qint32 tag = pasteLine(list.session(), state.kind(), state.owner.docTag, at);
    if (tag == 0)
        return;
    list.list().rebuild();
    list.showTag(tag);
}

// ---- what is not built yet
void notReady(BrowseSession&, LineListState&)
{
    dnNotReady();
}

std::function<void(BrowseSession&)> postsDetail(const LineState& state, const char* title)
{
    return [state, title](BrowseSession& list) {
        if (!hasMarks(list, *state))
            return showCritical(title, "Nothing to Do (There are No Tagged Items).");
        dnNotReady();
    };
}

// ---- commands
BrowseCommand carryCommand(const LineState& state)
{
    return {.name = "cmdCarry",
            .run = [state](BrowseSession&) { *state->carries = !*state->carries; },
            .key = Qt::Key_Y,
            .captionFor =
                [state](const BrowseSession&) {
                    return QString(*state->carries ? "Set Carr&y Off" : "Set Carr&y On");
                }};
}

std::vector<BrowseCommand> commands(const LineState& state)
{
    const auto command = [&state](const char* name, const char* caption, Run run,
                                  QKeyCombination key, bool needsRecord = false) {
        return BrowseCommand{.name = name,
                             .caption = caption,
                             .run = [state, run](BrowseSession& list) { run(list, *state); },
                             .key = key,
                             .needsRecord = needsRecord};
    };
    std::vector<BrowseCommand> all = {
        command("cmdInsert", "&Insert", insert, Qt::Key_I),
        command("cmdCut", "C&ut", cut, Qt::CTRL | Qt::Key_X, true),
        command("cmdCopy", "&Copy", copy, Qt::Key_C, true),
        command("cmdPaste", "Pa&ste", paste, Qt::CTRL | Qt::Key_V),
        command("cmdReAssign", "&Refresh Item Numbers", renumber, Qt::Key_R),
        carryCommand(state),
        command("cmdTAG", "&Tag", toggleLineMark, Qt::Key_T, true),
        command("cmdTagAll", "Tag A&ll", markAll, Qt::SHIFT | Qt::Key_T),
        command("cmdClearTags", "Clear Ta&gs", clearLineMarks, Qt::Key_G)};
    if (!state->kind().isOrder()) {
        all.push_back(command("cmdPost2NewPO", "Post to &New PO", postToNewOrder, Qt::Key_N));
        all.push_back(
            command("cmdPost2ExistingPO", "Post to E&xisting PO", postToExistingOrder, Qt::Key_O));
        all.push_back(command("cmdTransfer", "Trans&fer", transferLines, Qt::Key_F));
        return all;
    }
    all.push_back({.name = "cmdPostPay",
                   .caption = "Post &Payment",
                   .run = postsDetail(state, "Cannot Post Payment Info.")});
    all.push_back({.name = "cmdPostRec",
                   .caption = "Post Rec&eiving",
                   .run = postsDetail(state, "Cannot Post Receiving Information")});
    all.push_back({.name = "cmdPostPROSTATUS",
                   .caption = "Post Pr&oc. Status",
                   .run = postsDetail(state, "Cannot Post Procurement Status Information")});
    all.push_back(command("cmdPayments", "Pay&ments", notReady, Qt::Key_M, true));
    all.push_back(command("cmdReceiving", "Recei&ving", notReady, Qt::Key_W, true));
    all.push_back(command("cmdProcurementStatus", "Procurement Status", notReady, Qt::Key_K, true));
    return all;
}

// What may be done where nothing may be changed.
std::vector<BrowseCommand> commandsInView(const LineState& state)
{
    std::vector<BrowseCommand> kept;
    for (const BrowseCommand& command : commands(state))
        if (command.name == "cmdCopy")
            kept.push_back(command);
    return kept;
}

bool openLine(BrowseSession& list, const LineListState& state, const QString& mode, qint32 tag,
              qint16 winTag)
{
    const DocumentKind& kind = state.kind();
    return openDataScreen(frmVEXRQI02(list.session(), state.owner, state.carries), list.session(),
                          {.mode = mode,
                           .index = "RQITAG",
                           .keys = {{"RQITAG", tag}},
                           .parent = {{kind.tag, state.owner.docTag}},
                           .winTag = winTag,
                           .tag = tag});
}

void closeList(const BrowseSession& list, const LineListState& state, const LineItemsOf& of)
{
    const Session& session = list.session();
    const DocumentKind& kind = state.kind();
    if (!of.isReadOnly) {
        writeTotals(session, kind, of.docTag);
        dnRecordUnlock(of.docTag, kind.lock);
    }
    if (of.winTag != 0)
        dnUnloadWindow(session.UserSettingsPath, of.winTag, of.docTag);
}

}  // namespace

BrowseSpec frmVEXRQI01(const Session& session, const DocumentKind& kind, const LineItemsOf& of)
{
    const auto state = std::make_shared<LineListState>();
    state->owner.kind = &kind;
    state->owner.docTag = of.docTag;
    if (const auto owner = lineOwnerOf(session, kind, of.docTag))
        state->owner = *owner;
    return {
        .name = "frmVEXRQI01",
        .caption = QString(kind.noun) + " Line Items",
        .table = "RQILIST",
        .index = kind.lines,
        .parent = {.kind = BrowseParent::Kind::Given, .keys = {kind.tag}},
        .columns = lineColumns(state),
        .besides = {{"ZORVEX.mdb", "POLIST", "POTAG"}},
        .mayAdd = !of.isReadOnly,
        .mayEdit = !of.isReadOnly,
        .mayDelete = !of.isReadOnly,
        .detail = {.tagField = "RQITAG",
                   .tagIndex = "RQITAG",
                   .open = [state](
                               BrowseSession& list, const QString& mode, qint32 tag,
                               qint16 winTag) { return openLine(list, *state, mode, tag, winTag); },
                   .hasView = true},
        .commands = of.isReadOnly ? commandsInView(state) : commands(state),
        .status = [state](const BrowseSession& list) { return ownerText(list, *state); },
        .tone =
            [state](const BrowseSession&, storage::Recordset& rows) {
                return state->marked.contains(intOf(rows["RQITAG"])) ? RowTone::Good
                                                                     : RowTone::Plain;
            },
        .opened = [state](BrowseSession& list) { readMarks(list, *state); },
        .closing = [state, of](BrowseSession& list) { closeList(list, *state, of); },
        .fillsDesktop = true,
    };
}

void openLineItems(const Session& session, const DocumentKind& kind, const LineItemsOf& of)
{
    openBrowseScreen(frmVEXRQI01(session, kind, of), session, {{kind.tag, of.docTag}});
}
