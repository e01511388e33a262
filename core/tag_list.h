// TAGLIST: the rows of document lists that a user has marked for a bulk command. `rs` is an open
// handle on it.
#pragma once

#include "core/storage/workspace.h"

// True if this row is marked. Item 0 never is.
bool zorTagListCheck(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                     const QString& itemCode, qint32 itemTag);

// True if NO row of the document is marked. Otherwise `bookmark` is the first marked one's.
bool zorTagListFind(storage::Recordset& rs, const QString& docCode, qint32 docTag,
                    const QString& itemCode, QString* bookmark = nullptr);
