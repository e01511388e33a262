// The line items of one requisition or purchase order.
#pragma once

#include "core/session.h"
#include "purchasing/document_kind.h"
#include "screens/browse/browse_spec.h"

struct LineItemsOf
{
    qint32 docTag = 0;
    qint16 winTag = 0;  // of the list that opened it; 0 for none
    bool isReadOnly = false;
};

// Whoever opens it has taken the document's record lock unless it is read-only; the screen writes
// the totals and gives the lock up when it closes.
BrowseSpec frmVEXRQI01(const Session& session, const DocumentKind& kind, const LineItemsOf& of);
void openLineItems(const Session& session, const DocumentKind& kind, const LineItemsOf& of);
