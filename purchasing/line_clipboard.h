// The user's clipboard of one line item: it survives from one document to the next. Failures of the
// store are the caller's.
#pragma once

#include "core/session.h"
#include "purchasing/document_kind.h"

// Takes the line of the tag; a cut one goes when it is pasted.
void copyToClipboard(const Session& session, qint32 RQITAG, bool isCut);

bool isClipboardEmpty(const Session& session);

// True if the line of the tag has a quantity or a description, so that pasting over it is asked.
bool hasContent(const Session& session, qint32 RQITAG);

// Puts the clipboard's line in the place of the document's line of that tag, at the end for 0; it
// takes a new tag, which is given, and all are numbered anew. 0 after a box: the clipboard is empty
// or the line that was cut is gone.
qint32 pasteLine(const Session& session, const DocumentKind& kind, qint32 docTag, qint32 RQITAG);
