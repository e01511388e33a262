// What commands do to marked documents and line items, and the clone of an order. What is wrong is
// told in boxes; failures of the store are the caller's.
#pragma once

#include <functional>

#include "core/session.h"
#include "purchasing/document_kind.h"

// ---- marks of documents
bool isMarked(const Session& session, const DocumentKind& kind, qint32 docTag);
// Marks the document with its number, or takes the mark away.
void toggleMark(const Session& session, const DocumentKind& kind, qint32 docTag,
                const QString& number);
void clearMarks(const Session& session, const DocumentKind& kind);
// The marked documents, by their numbers.
std::vector<qint32> markedDocuments(const Session& session, const DocumentKind& kind);

// Writes the status to the marked orders and takes their marks away; to the one of the tag where
// none is marked.
void setOrderStatus(const Session& session, qint32 POTAG, const QString& status);
void setRequisitionStatus(const Session& session, qint32 REQTAG, const QString& status);

// Writes the download number, 0 to clear it, to the marked orders; `overwrites` is asked where an
// order has another number.
void postDownloadNumber(const Session& session, qint32 VEXDLTAG,
                        const std::function<bool()>& overwrites);

// ---- marks of line items
// Moves the marked lines of a requisition to another; how many. The target is renumbered by its
// user.
int transferMarkedLines(const Session& session, qint32 fromREQTAG, qint32 toREQTAG);

// The clone of an order under a new number: the head without status, approval and download number,
// and the line items; nothing is posted. Gives its tag, 0 where the order is gone.
qint32 cloneOrder(const Session& session, qint32 POTAG, const QString& newPONO);
