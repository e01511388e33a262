#include "purchasing/line_list.h"

#include <QSet>

#include "core/locators.h"
#include "core/tag_list.h"
#include "core/text.h"
#include "core/window_registry.h"
#include "core/write_batch.h"
#include "multiuser/record_locks.h"
#include "purchasing/document_dialogs.h"
#include "purchasing/document_lines.h"
#include "purchasing/document_marks.h"
#include "purchasing/document_numbers.h"
#include "purchasing/line_clipboard.h"
#include "purchasing/line_screen.h"
#include "purchasing/order_creation.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"

namespace {

struct ListState
{
    LineOwner owner;
    std::shared_ptr<bool> carries = std::make_shared<bool>(false);
    QSet<qint32> marked = {};  // looked up once, not for each row
};
using State = std::shared_ptr<ListState>;
using Run = void (*)(BrowseSession&, ListState&);

const DocumentKind& kindOf(const ListState& state)
{
    return *state.owner.kind;
}

OpenTable openMarks(const BrowseSession& list)
{
    return openTable(list.session(), "ZORUSER.mdb", "TAGLIST");
}

// ---- what is shown
void readMarks(const BrowseSession& list, ListState& state)
{
    state.marked.clear();
    OpenTable marks = openMarks(list);
    for (const qint32 tag :
         zorTagListItems(marks.rows, kindOf(state).code, state.owner.docTag, lineMarks))
        state.marked.insert(tag);
}

BrowseColumn text(schema::FieldName field, int length, const QString& heading, int width)
{
    return {.field = field, .length = length, .heading = heading, .width = width};
}

BrowseColumn number(schema::FieldName field, int length, const QString& heading, int width,
                    const QString& format)
{
    return {.field = field,
            .length = length,
            .heading = heading,
            .width = width,
            .format = format,
            .alignment = Qt::AlignRight};
}

QString orderNumber(const BrowseSession& list, storage::Recordset& rows)
{
    const int tag = intOf(rows["POTAG"]);
    if (tag == 0)
        return {};
    storage::Recordset& orders = list.beside("POLIST");
    return orders.Seek("=", tag) ? trimmedTextOf(orders["PONO"]) : QString("??????????");
}

std::vector<BrowseColumn> columns(const State& state)
{
    const DocumentKind& kind = kindOf(*state);
    std::vector<BrowseColumn> all = {
        {.field = "RQITAG",
         .length = 1,
         .heading = "Tag",
         .width = 450,
         .alignment = Qt::AlignHCenter,
         .shows =
             [state](const BrowseSession&, storage::Recordset& rows) {
                 return state->marked.contains(intOf(rows["RQITAG"])) ? QString("T") : QString();
             },
         .isPrinted = false},
        number(kind.itemNo, 4, "Item", 600, "###0"),
        number("QTY", 11, "Quantity", 1050, "###,###,###.00"),
        text("UNIT", 5, "Unit", 600),
        text("SHORTDESC", 60, "Description", 3700),
        number("UNITPRICE", 13, "Unit Price", 1300, "###,###,###.000"),
        text("UNITFACT", 1, "U/F", 450),
        number("AMOUNT", 13, "Amount", 1400, "##,###,###.00")};
    for (const CostCodeGroup& group : costCodeGroups) {
        const CostCodeSettings& settings =
            state->owner.groups[static_cast<size_t>(group.letter - 'A')];
        all.push_back(
            text(group.code, 15, settings.isDefined() ? settings.name : QString("Not Used"), 1050));
    }
    all.push_back(text("MCODE", 1, "M/C", 450));
    all.push_back(text("GLCODE", 10, "G/L Code", 1000));
    if (!kind.isOrder())
        all.push_back({.field = "POTAG",
                       .length = 16,
                       .heading = "PO No.",
                       .width = 1500,
                       .shows = orderNumber});
    return all;
}

QString ownerText(const BrowseSession& list, const ListState& state)
{
    const DocumentKind& kind = kindOf(state);
    OpenTable documents = openTable(list.session(), "ZORVEX.mdb", kind.table);
    documents.rows.Index(kind.byTag);
    if (!documents.rows.Seek("=", state.owner.docTag))
        return {};
    const storage::Recordset& rows = documents.rows;
    const QString number =
        kind.isOrder() ? trimmedTextOf(rows["PONO"]) : shownRequisitionNumber(intOf(rows["REQNO"]));
    return QString(kind.noun) + ": " + number +
           "     Company: " + QString::number(state.owner.CONO) +
           "     Job Number: " + state.owner.JOBNO.trimmed() + "     " +
           trimmedTextOf(rows["INTEND"]);
}

// ---- marks
void refuseMark()
{
    showCritical("Cannot Tag Item", "Item is Already Posted to a Purchase Order ");
}

bool mayMark(const ListState& state, const storage::Recordset& rows)
{
    return kindOf(state).isOrder() || intOf(rows["POTAG"]) == 0;
}

void toggleLineMark(BrowseSession& list, ListState& state)
{
    const storage::Recordset& rows = list.list().rows();
    const qint32 tag = intOf(rows["RQITAG"]);
    const DocumentKind& kind = kindOf(state);
    OpenTable marks = openMarks(list);
    if (zorTagListCheck(marks.rows, kind.code, state.owner.docTag, lineMarks, tag))
        zorTagListUnset(marks.rows, kind.code, state.owner.docTag, lineMarks, tag);
    else if (mayMark(state, rows))
        zorTagListSet(marks.rows, kind.code, state.owner.docTag, lineMarks, tag);
    else
        return refuseMark();
    readMarks(list, state);
    list.list().repaint();
    list.list().nextRow();
}

void markAll(BrowseSession& list, ListState& state)
{
    const DocumentKind& kind = kindOf(state);
    OpenTable marks = openMarks(list);
    OpenTable lines = openTable(list.session(), "ZORVEX.mdb", "RQILIST");
    WriteBatch batch(marks.workspace);
    forEachLine(lines.rows, kind, state.owner.docTag, [&] {
        batch.begin();
        if (mayMark(state, lines.rows))
            zorTagListSet(marks.rows, kind.code, state.owner.docTag, lineMarks,
                          intOf(lines.rows["RQITAG"]));
        batch.added();
        return true;
    });
    batch.commit();
    readMarks(list, state);
    list.list().rebuild();
}

void clearLineMarks(BrowseSession& list, ListState& state)
{
    OpenTable marks = openMarks(list);
    WriteBatch batch(marks.workspace);
    batch.begin();
    zorTagListClear(marks.rows, kindOf(state).code, state.owner.docTag, lineMarks);
    batch.commit();
    state.marked.clear();
    list.list().rebuild();
}

bool hasMarks(const BrowseSession& list, const ListState& state)
{
    OpenTable marks = openMarks(list);
    return !zorTagListFind(marks.rows, kindOf(state).code, state.owner.docTag, lineMarks);
}

// ---- the order of lines
void insert(BrowseSession& list, ListState& state)
{
    const qint32 tag =
        insertLine(list.session(), kindOf(state), state.owner.docTag, list.currentTag());
    list.list().rebuild();
    list.showTag(tag);
}

void renumber(BrowseSession& list, ListState& state)
{
    const qint32 tag = list.currentTag();
    renumberLines(list.session(), kindOf(state), state.owner.docTag);
    list.list().rebuild();
    list.showTag(tag);
}

void cut(BrowseSession& list, ListState&)
{
    copyToClipboard(list.session(), list.currentTag(), true);
}

void copy(BrowseSession& list, ListState&)
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

void paste(BrowseSession& list, ListState& state)
{
    const qint32 at = list.currentTag();
    if (!isClipboardEmpty(list.session()) && hasContent(list.session(), at) && !agreesToPasteOver())
        return;
    const qint32 tag = pasteLine(list.session(), kindOf(state), state.owner.docTag, at);
    if (tag == 0)
        return;
    list.list().rebuild();
    list.showTag(tag);
}

// ---- a requisition's lines to orders and to other requisitions
void postToNewOrder(BrowseSession& list, ListState& state)
{
    const Session& session = list.session();
    const qint32 REQTAG = state.owner.docTag;
    if (!mayPostTagged(session, REQTAG, "Cannot Create PO"))
        return;
    OrderProposal proposal = proposeOrder(session, REQTAG);
    for (;;) {
        const auto number = confirmOrderNumber(proposal);
        if (!number)
            return;
        proposal.PONO = *number;
        if (!isOrderNumberTaken(session.JobSitePath, *number))
            break;
        showCritical("Cannot Create PO", "Duplicate PO Number Detected.\nThe PO Number: " +
                                             *number + "\nHas Already Been Used.");
    }
    const auto created =
        createOrder(session, {.REQTAG = REQTAG,
                              .POSUFFIX = proposal.POSUFFIX,
                              .PONO = proposal.PONO,
                              .usesCounter = proposal.source == NumberSource::Counter,
                              .done = {}});
    readMarks(list, state);
    list.list().rebuild();
    if (created)
        showInformation("PO Created", "PO Number: " + proposal.PONO + " with " +
                                          QString::number(created->items) +
                                          " Items Has Been Created.");
}

void postToExistingOrder(BrowseSession& list, ListState& state)
{
    const Session& session = list.session();
    if (!mayPostTagged(session, state.owner.docTag, "Cannot Add Items to an Existing PO"))
        return;
    std::optional<qint32> order;
    const auto number = askText({.screen = "frmVEXREQ13",
                                 .caption = "Add Items to an Existing P/O",
                                 .label = "&PO Number:",
                                 .control = "txtPONO",
                                 .length = 16,
                                 .accepts = [&](const QString& text) {
                                     order = orderOfNumber(session, text);
                                     return order.has_value();
                                 }});
    if (!number || !order)
        return;
    const int count = addTaggedToOrder(session, state.owner.docTag, *order);
    readMarks(list, state);
    list.list().rebuild();
    showInformation("Items Added to Existing PO", "PO Number: " + *number + " has had " +
                                                      QString::number(count) + " Items added.");
}

void transfer(BrowseSession& list, ListState& state)
{
    const Session& session = list.session();
    if (!hasMarks(list, state))
        return showCritical("Cannot Transfer Items", "Nothing to Do (There are No Tagged Items).");
    qint32 target = 0;
    const auto number = askText(
        {.screen = "frmVEXRQI03",
         .caption = "Transfer Tagged Items to a Requisition",
         .label = "Enter Target Requisition &Number:",
         .control = "txtREQNO",
         .length = 5,
         .digitsOnly = true,
         .accepts = [&](const QString& text) {
             OpenTable documents = openTable(session, "ZORVEX.mdb", "REQLIST");
             documents.rows.Index("REQNO");
             const bool isFound = documents.rows.Seek("=", text.toInt());
             target = isFound ? intOf(documents.rows["REQTAG"]) : 0;
             if (!isFound)
                 showCritical("Cannot Find Item", "Cannot Find Requisition Number: " + text);
             return isFound;
         }});
    if (!number)
        return;
    const int count = transferMarkedLines(session, state.owner.docTag, target);
    readMarks(list, state);
    list.list().rebuild();
    showInformation("Items Transfered",
                    "A total of " + QString::number(count) +
                        " Items have been\nTransfered to Requisition Number: " + *number + '.');
}

// ---- what is not built yet
void notReady(BrowseSession&, ListState&)
{
    dnNotReady();
}

std::function<void(BrowseSession&)> postsDetail(const State& state, const char* title)
{
    return [state, title](BrowseSession& list) {
        if (!hasMarks(list, *state))
            return showCritical(title, "Nothing to Do (There are No Tagged Items).");
        dnNotReady();
    };
}

// ---- commands
BrowseCommand carryCommand(const State& state)
{
    return {.name = "cmdCarry",
            .run = [state](BrowseSession&) { *state->carries = !*state->carries; },
            .key = Qt::Key_Y,
            .captionFor =
                [state](const BrowseSession&) {
                    return QString(*state->carries ? "Set Carr&y Off" : "Set Carr&y On");
                }};
}

std::vector<BrowseCommand> commands(const State& state)
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
    if (!kindOf(*state).isOrder()) {
        all.push_back(command("cmdPost2NewPO", "Post to &New PO", postToNewOrder, Qt::Key_N));
        all.push_back(
            command("cmdPost2ExistingPO", "Post to E&xisting PO", postToExistingOrder, Qt::Key_O));
        all.push_back(command("cmdTransfer", "Trans&fer", transfer, Qt::Key_F));
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
std::vector<BrowseCommand> commandsInView(const State& state)
{
    std::vector<BrowseCommand> kept;
    for (const BrowseCommand& command : commands(state))
        if (command.name == "cmdCopy")
            kept.push_back(command);
    return kept;
}

bool openLine(BrowseSession& list, const ListState& state, const QString& mode, qint32 tag,
              qint16 winTag)
{
    const DocumentKind& kind = kindOf(state);
    return openDataScreen(frmVEXRQI02(list.session(), state.owner, state.carries), list.session(),
                          {.mode = mode,
                           .index = "RQITAG",
                           .keys = {{"RQITAG", tag}},
                           .parent = {{kind.tag, state.owner.docTag}},
                           .winTag = winTag,
                           .tag = tag});
}

void closeList(const BrowseSession& list, const ListState& state, const LineItemsOf& of)
{
    const Session& session = list.session();
    const DocumentKind& kind = kindOf(state);
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
    const auto state = std::make_shared<ListState>();
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
        .columns = columns(state),
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
