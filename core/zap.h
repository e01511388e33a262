// Emptying of work tables.
#pragma once

#include "core/locators.h"

// Empties the table of `rs`, a table of `dbName` (empty: MAIN.mdb) in the folder `path`. Where the
// file NOZAP.txt lies in that folder the rows are deleted one by one; otherwise the table is made
// anew, and its indexes lose their unique attribute. A table that held rows leaves `rs` closed; the
// caller opens it again. False after a failure, which a box has told.
bool dnZap(const QString& path, const QString& dbName, storage::Recordset& rs);

// Empties a work table in the same two ways and gives it open, empty, for a report or a screen to
// fill; a blank folder is the current directory. Fails as the store does: StorageError, and the
// rows may be there still.
OpenTable emptiedTable(const QString& folder, const QString& file, const QString& table);
