// The small dialogs of the lists of documents and line items. Each is modal and gives what the user
// has chosen; nothing after a cancel.
#pragma once

#include <functional>
#include <optional>

#include "core/session.h"
#include "purchasing/document_kind.h"
#include "purchasing/order_creation.h"

class QWidget;

// One text, in capitals and trimmed.
struct TextQuestion
{
    const char* screen;
    const char* caption;
    QString label;
    const char* control;
    int length;
    QString notice = {};  // above the field
    QString initial = {};
    bool digitsOnly = false;
    // Opened by "?", "/" or a button beside the field; gives the text chosen, blank for none.
    std::function<QString()> search = {};
    // Asked at OK: false keeps the dialog (the user was told).
    std::function<bool(const QString& text)> accepts = {};
};
std::optional<QString> askText(const TextQuestion& question);

// Looks up the number of any purchase order; blank for none.
std::function<QString()> orderNumberSearch(const Session& session);

// frmVEXREQ05, the requisitions of a company and job: the tag of the one that is chosen, 0 for
// none.
qint32 searchRequisitions(const Session& session, int CONO, const QString& JOBNO);
// The same for a field that takes a requisition's number.
std::function<QString()> requisitionNumberSearch(const Session& session, int CONO,
                                                 const QString& JOBNO);

// frmVEXREQ07 and frmVEXPO06.
struct StatusChoice
{
    QString status;
    bool usesColors = false;
};
std::optional<StatusChoice> chooseStatus(const DocumentKind& kind, const StatusChoice& present);

// frmVEXREQ12, also for purchase orders.
struct DocumentFilter
{
    enum class Option { None = 1, Job = 2, Vendor = 3 };
    Option option = Option::None;
    int CONO = 0;
    QString JOBNO;  // stored form
    qint32 VENTAG = 0;
};
std::optional<DocumentFilter> chooseFilter(const Session& session, const DocumentKind& kind,
                                           const DocumentFilter& present);

// frmVEXREQ09: the number of the new order.
std::optional<QString> confirmOrderNumber(const OrderProposal& proposal);

// "Requisition and PO Number Counters", a screen of the main window.
QWidget* newFrmVEXCNTRS(const Session& session);
