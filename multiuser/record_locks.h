// Logical locks: a row of a shared table says who has which record open for editing, so that two
// users do not work on one document for minutes. They are advisory, and never expire.
//
// `tableName` is the kind of record, such as "VENDORS" or "PURCHASE ORDERS". Without a network
// database no lock is ever taken, and edits go on. Failures of the store are the caller's; that
// another session takes or gives up the same lock in the same moment is none.
#pragma once

#include <QString>
#include <functional>

// False: the caller now has the lock, or there is no network, and may go on. True: somebody has it,
// perhaps the same user in another session; the user was told who, and the caller must not go on.
// A user may take away a lock of his own login there; it is true then too, and the next try gets
// the lock.
bool dnRecordLock(qint32 tagNo, const QString& tableName, qint32 userTag, const QString& userName,
                  qint32 session);

// Gives the lock up, whoever has it. Always true.
bool dnRecordUnlock(qint32 tagNo, const QString& tableName);

struct HeldLock
{
    QString tableName;
    QString userName;
    QString takenAt;
};

// How a held lock is shown: a screen in the program, a note in tests. Gives true to take the lock
// away, which may be offered only where `mayRemove`.
using LockedScreen = std::function<bool(const HeldLock& lock, bool mayRemove)>;
// Gives the one that was there.
LockedScreen installLockedScreen(LockedScreen screen);
