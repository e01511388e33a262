// What a change of a requisition's head does to its purchase orders and line items, and the
// deletion of documents. There is no transaction: the order of steps decides what a stop leaves.
// Failures of the store are the caller's.
#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "core/session.h"
#include "purchasing/document_kind.h"

// What numbers and cost codes of a requisition hang on.
struct RequisitionHead
{
    int CONO = 0;
    QString JOBNO;  // stored form
    QString REQTYPE;
    qint32 REQNO = 0;

    bool operator==(const RequisitionHead&) const = default;
    bool isOfSameJob(const RequisitionHead& other) const
    {
        return CONO == other.CONO && JOBNO == other.JOBNO;
    }
};

struct RelatedOrder
{
    qint32 POTAG = 0;
    int POSUFFIX = 0;
    QString PONO;     // as it is
    QString newPONO;  // as it will be
};
std::vector<RelatedOrder> relatedOrders(const Session& session, qint32 REQTAG);
bool hasLines(const Session& session, const DocumentKind& kind, qint32 docTag);

struct HeadChange
{
    qint32 REQTAG = 0;
    RequisitionHead before;
    RequisitionHead after;
    QString newPONO;  // of the requisition itself; blank where it does not change
    std::vector<RelatedOrder> orders;
    bool losesCostCodes = false;
};
// What has to be asked before the head is saved; nothing where nothing hangs on it.
std::optional<HeadChange> headChange(const Session& session, qint32 REQTAG,
                                     const RequisitionHead& before, const RequisitionHead& after,
                                     const QString& newPONO);
// The question, titled "PO Number Changed".
QString headChangeText(const HeadChange& change);
// An order's new number that another order has; blank for none.
QString takenNumber(const Session& session, const HeadChange& change);
// After the head was saved.
void applyHeadChange(const Session& session, const HeadChange& change);

// ---- deletions
// The first question's text. What hangs on the document is asked twice.
QString deletionText(const Session& session, const DocumentKind& kind, qint32 docTag,
                     const QString& number);
// With its orders and line items, whatever hangs on those; its row is the caller's to delete.
void deleteOfRequisition(const Session& session, qint32 REQTAG);
// With payments and receipts; line items of a requisition go back to it. The ledger is left to the
// refresh. Its row is the caller's to delete.
void deleteOfOrder(const Session& session, qint32 POTAG);
