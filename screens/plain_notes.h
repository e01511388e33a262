// Small dialogs that only tell something and close.
#pragma once

#include <memory>

#include "core/stamps.h"
#include "multiuser/record_locks.h"
#include "screens/small_dialog.h"

using NoteScreen = std::unique_ptr<SmallDialog>;

// What this program is. `title` is the window's.
NoteScreen frmAboutView(const QString& title, const QString& moduleName, const QString& version);

// The user may not run the process.
NoteScreen frmDNNETNoAccess(const QString& userName, const QString& process);

// Who has the record. Its result is `removesLock` when the user takes the lock away, which is
// offered where `mayRemove`.
NoteScreen frmDNNETRLocked(const HeldLock& lock, bool mayRemove);
inline constexpr int removesLock = 2;

// Who made a record and who last changed it.
NoteScreen frmZORUpdateHistory(const UpdateHistory& history);

// Shows the history of the record at `bookmark`, modally. A failure of the store is the caller's.
void zorShowUpdateHistory(storage::Recordset& rs, const QString& bookmark);
