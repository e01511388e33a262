// Deleting one line item with all that hangs on it: payments, receipts, issues, ledger and mark.
// There is no transaction: the order of steps decides what a stop leaves. Failures of the store are
// the caller's.
#pragma once

#include "core/session.h"
#include "purchasing/document_kind.h"

// False after a box: an entry of the ledger could not be reversed, and the line stays.
bool deleteLine(const Session& session, const DocumentKind& kind, qint32 RQITAG);
