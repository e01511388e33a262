// The registry of open list screens in the user's own database. A detail screen does not know its
// parent; it leaves its result in the parent's numbered row, which the parent reads when it comes
// to the front. A parent may be closed first: then nobody reads it, and nothing happens.
//
// `userPath` is the folder of the user's database, `dbFile` its name, blank for ZORUSER.mdb. Each
// routine opens it, does its work and closes it. Failures are told in a box and give 0.
#pragma once

#include <QString>

// What a parent is told to show, beside a tag.
inline constexpr qint32 hotTagNone = 0;       // the list's first page
inline constexpr qint32 hotTagKeepPage = -1;  // what it shows now

// A number for a list screen, with its row. Numbers run from 1 to 3000 and begin again.
qint16 dnSetWINTAG(const QString& userPath, const QString& dbFile = {});

// The parent's word of what is in hand, before it opens a detail screen.
void dnSetHOTTAG(const QString& userPath, qint16 winTag, qint32 hotTag, const QString& dbFile = {});
qint32 dnGetHOTTAG(const QString& userPath, qint16 winTag, const QString& dbFile = {});
// 1: the parent must refresh; 0: nothing to do.
qint16 dnGetWINACTION(const QString& userPath, qint16 winTag, const QString& dbFile = {});

// A detail screen's last act: the parent must refresh, and show that tag. No box when the parent
// is gone.
qint16 dnUnloadWindow(const QString& userPath, qint16 winTag, qint32 hotTag,
                      const QString& dbFile = {});

// Removes the row, when the list screen closes.
qint16 dnDELWINTAG(const QString& userPath, qint16 winTag, const QString& dbFile = {});
