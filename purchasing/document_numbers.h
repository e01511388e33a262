// The numbers of requisitions and purchase orders. `jobSitePath` is the folder of the job site;
// what is wrong with the counters is told in boxes, failures of the store are the caller's.
//
// Counters offer, they reserve nothing: two users may be offered the same number, and the index of
// order numbers is the last guard.
#pragma once

#include "core/storage/recordset.h"
#include "purchasing/document_kind.h"

// Who says what number an order bears.
enum class NumberSource {
    AutoFormat,  // job, requisition type, requisition number and suffix
    Counter,
    Typed
};
// `isOverridden`: the user types this one in spite of the format.
NumberSource orderNumberSource(const QString& jobSitePath, bool isOverridden = false);

// Such as 4711M0000101, with nothing between the parts; blank without a requisition number.
QString autoFormattedNumber(const QString& JOBNO, const QString& REQTYPE, qint32 REQNO,
                            int POSUFFIX);

// A requisition's number as it is shown: five digits.
QString shownRequisitionNumber(qint32 REQNO);
// Of the document on which the handle stands.
QString shownNumberOf(const DocumentKind& kind, const storage::Recordset& rows);

// What the counters offer; 0 and blank after a box where their table is empty. An order's has five
// digits, and a counter that was never used offers 1. After 99999 no requisition number is offered,
// 0 without a box: the user types the one from which to go on.
qint32 nextRequisitionNumber(const QString& jobSitePath);
QString nextOrderNumber(const QString& jobSitePath);

// The number after the one that was used becomes the next; a text that is no number leaves the
// counter as it is. False where the table is empty.
bool saveRequisitionCounter(const QString& jobSitePath, qint32 used);
bool saveOrderCounter(const QString& jobSitePath, const QString& used);

// The largest suffix among the requisition's orders and 1.
int nextOrderSuffix(const QString& jobSitePath, qint32 REQTAG);

// True if another order than that of the tag has the number.
bool isOrderNumberTaken(const QString& jobSitePath, const QString& PONO, qint32 POTAG = 0);
