#include "purchasing/document_list.h"

#include "core/locators.h"
#include "multiuser/users.h"
#include "purchasing/document_columns.h"
#include "purchasing/document_head.h"
#include "purchasing/document_marks.h"
#include "purchasing/document_numbers.h"
#include "purchasing/forms/document_prints.h"
#include "purchasing/line_list.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/order_searches.h"
#include "screens/search/vendor_searches.h"

using Option = DocumentFilter::Option;

namespace {

constexpr char detailMode[] = "L";        // line items, under the record lock
constexpr char detailInViewMode[] = "M";  // line items, to be looked at only
constexpr char closedRight[] = "REQ03";

// ---- rights
bool isOpenOrAllowed(BrowseSession& list, bool isShown)
{
    return kindOf(list).isOrder() || statusOf(list.list().rows()) == "Open" ||
           dnOK2Access(closedRight, list.session().UserName, isShown);
}

// The menu has asked it already; it may have been taken away since.
bool mayUse(const BrowseSession& list)
{
    return kindOf(list).isOrder() || dnOK2Access("REQ01", list.session().UserName, true);
}

bool mayOpen(BrowseSession& list, const QString& mode)
{
    return (mode != "E" && mode != "D") || (mayUse(list) && isOpenOrAllowed(list, true));
}

// ---- screens
bool openDocument(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    const DocumentKind& kind = kindOf(list);
    if (mode == detailMode || mode == detailInViewMode) {
        openLineItems(list.session(), kind,
                      {.docTag = tag, .winTag = winTag, .isReadOnly = mode == detailInViewMode});
        return true;
    }
    const JobNoFormat format = zorGetJobNoFormat(list.session().JobSitePath);
    return openDataScreen(frmVEXREQ02(list.session(), kind, format), list.session(),
                          {.mode = mode,
                           .index = kind.byTag,
                           .keys = {{kind.tag, tag}},
                           .winTag = winTag,
                           .tag = tag});
}

void openDetailItems(BrowseSession& list)
{
    const DocumentKind& kind = kindOf(list);
    if (!list.list().goToCurrent()) {
        if (kind.isOrder())
            showCritical("Cannot Continue",
                         "Must be at a Purchase Order in the List to Browse Detail.");
        return;
    }
    if (!mayUse(list) || (kind.isOrder() && !dnOK2Access("PO02", list.session().UserName, true)))
        return;
    list.openDetail(isOpenOrAllowed(list, false) ? detailMode : detailInViewMode);
}

void openOrders(BrowseSession& list)
{
    openBrowseScreen(ordersOfRequisition(list.currentTag()), list.session());
}

// The marked documents, or the one under the highlight.
void openPrint(BrowseSession& list)
{
    const qint32 tag = list.currentTag();
    openScreen(new ReportWindow(kindOf(list).isOrder() ? frmVEXPO04(tag) : frmVEXREQ04(tag),
                                list.session()));
}

// ---- commands
void changeStatus(BrowseSession& list, ListState& state)
{
    const DocumentKind& kind = kindOf(list);
    if (!list.list().goToCurrent())
        return kind.isOrder() ? showCritical("Error Displaying Form",
                                             "Must be on a Purchase Order to Change Status. ")
                              : showCritical("Error", "Must be at a Requisition to Change Status.");
    if (!mayUse(list) || !isOpenOrAllowed(list, true))
        return;
    const qint32 tag = list.currentTag();
    const auto choice = chooseStatus(kind, {statusOf(list.list().rows()), state.usesColors});
    if (!choice)
        return;
    kind.isOrder() ? setOrderStatus(list.session(), tag, choice->status)
                   : setRequisitionStatus(list.session(), tag, choice->status);
    state.usesColors = choice->usesColors;
    readMarks(list, state);
    UserSettings(list.session()).save("USESTATUSCOLORS", choice->usesColors);
    list.list().rebuild();
}

void toggleDocumentMark(BrowseSession& list, ListState& state)
{
    const DocumentKind& kind = kindOf(list);
    if (!list.list().goToCurrent())
        return;
    const storage::Recordset& rows = list.list().rows();
    const QString number = shownNumberOf(kind, rows);
    toggleMark(list.session(), kind, intOf(rows[kind.tag]), number);
    readMarks(list, state);
    list.list().repaint();
}

void clearDocumentMarks(BrowseSession& list, ListState& state)
{
    clearMarks(list.session(), kindOf(list));
    state.marked.clear();
    list.list().rebuild();
}

void filter(BrowseSession& list, ListState& state)
{
    if (state.REQTAG != 0)
        return;
    const qint32 tag = list.currentTag();
    const auto chosen = chooseFilter(list.session(), kindOf(list), state.filter);
    if (!chosen)
        return;
    state.filter = *chosen;
    applyFilter(list, state);
    list.showTag(tag);
}

// Among the requisitions of the job of the one under the highlight, else of the user's last one.
std::function<QString()> searchInJob(BrowseSession& list)
{
    if (list.list().goToCurrent()) {
        const storage::Recordset& rows = list.list().rows();
        return requisitionNumberSearch(list.session(), intOf(rows["CONO"]), textOf(rows["JOBNO"]));
    }
    UserSettings settings(list.session());
    return requisitionNumberSearch(list.session(), settings["CONOPAIR"].toInt(),
                                   settings["JOBNOPAIR"].toString());
}

void find(BrowseSession& list, ListState& state)
{
    const DocumentKind& kind = kindOf(list);
    qint32 tag = 0;
    const auto isThere = [&](const QString& text) {
        OpenTable documents = openTable(list.session(), "ZORVEX.mdb", kind.table);
        documents.rows.Index(kind.byNumber);
        const bool isFound = kind.isOrder() ? documents.rows.Seek("=", text)
                                            : documents.rows.Seek("=", text.toInt());
        if (isFound)
            tag = intOf(documents.rows[kind.tag]);
        else
            showCritical("Cannot Find Item",
                         (kind.isOrder() ? QString("Cannot Find PO Number: ")
                                         : QString("Cannot Find Requisition Number: ")) +
                             text);
        return isFound;
    };
    if (askText({.screen = kind.isOrder() ? "frmVEXPO02" : "frmVEXREQ03",
                 .caption = kind.isOrder() ? "Find a PO Number" : "Find a Requisition #",
                 .label = kind.isOrder() ? "&PO Number:" : "&Requisition Number:",
                 .control = kind.isOrder() ? "txtPONO" : "txtREQNO",
                 .length = kind.isOrder() ? 16 : 5,
                 .search = kind.isOrder() ? orderNumberSearch(list.session()) : searchInJob(list),
                 .accepts = isThere}))
        showDocument(list, state, tag);
}

// The document of a bookmark that a search window gave.
void showFound(BrowseSession& list, ListState& state, const QString& bookmark)
{
    OpenTable documents = openTable(list.session(), "ZORVEX.mdb", kindOf(list).table);
    if (goToFound(documents.rows, bookmark))
        showDocument(list, state, intOf(documents.rows[kindOf(list).tag]));
}

void searchByVendor(BrowseSession& list, ListState& state)
{
    const QString& site = list.session().JobSitePath;
    OpenTable vendors = openTable(list.session(), "ZORVEX.mdb", "VENDORS");
    if (!goToFound(vendors.rows, zorSearchVendor(site)))
        return;
    const qint32 tag = intOf(vendors.rows["VENTAG"]);
    const QString number = trimmedTextOf(vendors.rows["VENNO"]);
    const QString name = trimmedTextOf(vendors.rows["Name"]);
    showFound(list, state,
              kindOf(list).isOrder() ? zorSearchPOByVendor(site, tag, number, name)
                                     : zorSearchRequisition(site, tag, number, name));
}

void searchByInvoice(BrowseSession& list, ListState& state)
{
    OpenTable payments = openTable(list.session(), "ZORVEX.mdb", "PAYMENTS");
    if (!goToFound(payments.rows, zorSearchPayment(list.session().JobSitePath)))
        return;
    const auto refuse = [](const char* what, qint32 tag) {
        showCritical("Cannot Find Item", what + QString::number(tag) +
                                             " Associated with Selected Vendor Invoice Number.");
    };
    const qint32 RQITAG = intOf(payments.rows["RQITAG"]);
    OpenTable lines = openTable(list.session(), "ZORVEX.mdb", "RQILIST");
    lines.rows.Index("RQITAG");
    if (!lines.rows.Seek("=", RQITAG))
        return refuse("Cannot Find RQI Tag: ", RQITAG);
    const qint32 POTAG = intOf(lines.rows["POTAG"]);
    OpenTable orders = openTable(list.session(), "ZORVEX.mdb", "POLIST");
    orders.rows.Index("POTAG");
    if (!orders.rows.Seek("=", POTAG))
        return refuse("Cannot Find PO Tag: ", POTAG);
    showDocument(list, state, POTAG);
}

void clone(BrowseSession& list, ListState& state)
{
    if (!list.list().goToCurrent())
        return;
    const qint32 tag = list.currentTag();
    const storage::Recordset& rows = list.list().rows();
    const QString site = list.session().JobSitePath;
    const auto number =
        askText({.screen = "frmVEXPO07",
                 .caption = "Clone a Purchase Order",
                 .label = "&New PO Number:",
                 .control = "txtNEWPONO",
                 .length = 16,
                 .notice = "Company: " + QString::number(intOf(rows["CONO"])) +
                           "    Job Number: " + trimmedTextOf(rows["JOBNO"]) +
                           "    PO Number: " + trimmedTextOf(rows["PONO"]),
                 .accepts = [&site](const QString& text) {
                     if (text.isEmpty()) {
                         showCritical("Cannot Clone", "PO Number is Blank.");
                         return false;
                     }
                     if (!isOrderNumberTaken(site, text))
                         return true;
                     showCritical("Duplicate PO Number",
                                  "Duplicate PO Number Detected.\nThe PO Number you have entered\n"
                                  "already exists in another record.\n"
                                  "Cannot Proceed with PO Clone procedure.");
                     return false;
                 }});
    if (number)
        showDocument(list, state, cloneOrder(list.session(), tag, *number));
}

void postDownload(BrowseSession& list, ListState& state)
{
    if (markedDocuments(list.session(), purchaseOrders).empty())
        return showCritical("Cannot Post", "Nothing to Do (There are No Tagged Items).");
    const auto number = askText(
        {.screen = "frmVEXPO10",
         .caption = "Post D/L # to Tagged Purchase Orders",
         .label = "&D/L Number:",
         .control = "txtVEXDLTAG",
         .length = 9,
         .notice = "Note: Leave D/L Number Text Box  Blank to Clear              D/L #'s from "
                   "Tagged Purchase Orders.",
         .digitsOnly = true});
    if (!number)
        return;
    postDownloadNumber(list.session(), number->toInt(), [] {
        return askYesNo("OK to Overwrite?",
                        "This Purchase Order has Already Been Assigned\n"
                        "a Download Number. Ok to Change Existing Download Number?");
    });
    readMarks(list, state);
    list.list().rebuild();
}

void notReady(BrowseSession&)
{
    dnNotReady();
}

BrowseCommand detailCommand()
{
    return {
        .name = "cmdDetail", .caption = "Browse De&tail", .run = openDetailItems, .key = Qt::Key_T};
}

std::vector<BrowseCommand> commandsOf(const DocumentKind& kind, const State& state)
{
    const auto with = [&state](void (*run)(BrowseSession&, ListState&)) {
        return [state, run](BrowseSession& list) { run(list, *state); };
    };
    std::vector<BrowseCommand> all = {detailCommand()};
    if (!kind.isOrder())
        all.push_back({.name = "cmdPOBrowse",
                       .caption = "PO &Browse",
                       .run = openOrders,
                       .key = Qt::Key_B,
                       .needsRecord = true});
    all.push_back(
        {.name = "cmdStatus", .caption = "Stat&us", .run = with(changeStatus), .key = Qt::Key_U});
    if (kind.isOrder())
        all.push_back({.name = "cmdClone",
                       .caption = "Clo&ne",
                       .run = with(clone),
                       .key = Qt::Key_N,
                       .needsRecord = true});
    all.push_back({.name = "cmdTAGEM",
                   .caption = "Ta&g",
                   .run = with(toggleDocumentMark),
                   .key = Qt::Key_G,
                   .needsRecord = true});
    all.push_back({.name = "cmdClearTags",
                   .caption = "&Clear Tags",
                   .run = with(clearDocumentMarks),
                   .key = Qt::Key_C});
    if (kind.isOrder())
        all.push_back({.name = "cmdPostDLNO",
                       .caption = "Post D/&L #",
                       .run = with(postDownload),
                       .key = Qt::Key_L});
    all.push_back(
        {.name = "cmdFilter", .caption = "&Filter", .run = with(filter), .key = Qt::Key_F});
    all.push_back({.name = "cmdFind", .caption = "F&ind", .run = with(find), .key = Qt::Key_I});
    if (!kind.isOrder()) {
        all.push_back({.name = "cmdSearch",
                       .caption = "&Search by Vendor Name/Req Date",
                       .run = with(searchByVendor),
                       .key = Qt::Key_S});
        all.push_back({.name = "cmdSearchbyKeyword",
                       .caption = "Search by &Keyword",
                       .run = notReady,
                       .key = Qt::Key_K});
        all.push_back({.name = "cmdSSFill",
                       .caption = "SpreadSheet Fi&ll",
                       .run =
                           [](BrowseSession& list) {
                               if (mayUse(list) && isOpenOrAllowed(list, true))
                                   dnNotReady();
                           },
                       .key = Qt::Key_L,
                       .needsRecord = true});
        return all;
    }
    all.push_back({.name = "cmdPONOSearch",
                   .caption = "Search P&O Number",
                   .run =
                       [state](BrowseSession& list) {
                           showFound(list, *state, zorSearchPO(list.session().JobSitePath));
                       },
                   .key = Qt::Key_O});
    all.push_back({.name = "cmdSearchbyVendor",
                   .caption = "&Search by Vendor",
                   .run = with(searchByVendor),
                   .key = Qt::Key_S});
    all.push_back({.name = "cmdSearchbyCMRNO",
                   .caption = "Search by Cust. Re&q. #",
                   .run =
                       [state](BrowseSession& list) {
                           showFound(list, *state, zorSearchPOByCMRNO(list.session().JobSitePath));
                       },
                   .key = Qt::Key_Q});
    all.push_back({.name = "cmdSearchPay",
                   .caption = "Search by In&voice",
                   .run = with(searchByInvoice),
                   .key = Qt::Key_R});
    all.push_back({.name = "cmdSearchbyKeyword",
                   .caption = "Search by &Keyword",
                   .run = notReady,
                   .key = Qt::Key_K});
    return all;
}

BrowseSpec documentList(const DocumentKind& kind, qint32 REQTAG)
{
    const auto state = std::make_shared<ListState>();
    state->REQTAG = REQTAG;
    return {
        .name = kind.isOrder() ? "frmVEXPO01" : "frmVEXREQ01",
        .caption = kind.isOrder() ? "Purchase Orders" : "Material Requisitions",
        .table = kind.table,
        .index = kind.byNumber,
        .columns = kind.isOrder() ? orderColumns(state) : requisitionColumns(state),
        .besides = {{"ZORVEX.mdb", "VENDORS", "VENTAG"}},
        .editRight = kind.isOrder() ? "PO01" : "REQ02",
        .detail = {.tagField = kind.tagName(),
                   .tagIndex = kind.byTag,
                   .mayOpen = mayOpen,
                   .open = openDocument,
                   .lock = kind.lock,
                   .lockedModes = QString("ED") + detailMode,
                   .hasView = true},
        .print = {.run = openPrint},
        .commands = commandsOf(kind, state),
        .status = [state](const BrowseSession&) { return filterText(*state); },
        .tone =
            [state](const BrowseSession&, storage::Recordset& rows) {
                return state->usesColors ? toneOf(statusOf(rows)) : RowTone::Plain;
            },
        .opened = [state](BrowseSession& list) { openList(list, *state); },
        .closing = [state](BrowseSession& list) { closeList(list, *state); },
        .fillsDesktop = true,
        .inFront =
            [state](BrowseSession& list) {
                readMarks(list, *state);
                if (state->filter.option != Option::None && list.list().isEmpty())
                    applyFilter(list, *state);
            },
        .readsAnewInFront = true,
    };
}

}  // namespace

BrowseSpec frmVEXREQ01()
{
    return documentList(requisitions, 0);
}

BrowseSpec frmVEXPO01()
{
    return documentList(purchaseOrders, 0);
}

BrowseSpec ordersOfRequisition(qint32 REQTAG)
{
    return documentList(purchaseOrders, REQTAG);
}
