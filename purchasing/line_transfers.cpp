#include "purchasing/line_transfers.h"

#include "core/locators.h"
#include "core/messages.h"
#include "purchasing/document_dialogs.h"
#include "purchasing/document_marks.h"
#include "purchasing/order_creation.h"

void postToNewOrder(BrowseSession& list, LineListState& state)
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

void postToExistingOrder(BrowseSession& list, LineListState& state)
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
                                 .search = orderNumberSearch(session),
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

void transferLines(BrowseSession& list, LineListState& state)
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
         .search = requisitionNumberSearch(session, state.owner.CONO, state.owner.JOBNO),
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
