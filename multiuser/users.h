// Who the user is, and what the user may run. Users and their rights lie in ZORNET.mdb, found
// through NETPATH.mdb beside the program. Without NETPATH.mdb the program is a single-user system:
// user numbers are 0, and the protected menu entries are closed.
#pragma once

#include <QString>
#include <functional>

// The login name; "Guest" when the system gives none.
QString dnUserName();

// The full path of ZORNET.mdb. When that file is not there: " " when `quiet`, otherwise a box and
// "ERROR". Without NETPATH.mdb always a box and "ERROR". Fills in an empty NETPATH table.
QString dnNetPath(bool quiet);

// The number of `userName`, who is enrolled when unknown; 0 without a network database, after the
// box of dnNetPath where the file should be there. `path` is not used. Fails as the store does.
qint32 dnUserTag(const QString& path, const QString& userName);

// The number of `userName` as listed, 0 for none or without a network database; shows nothing and
// enrols nobody. Fails as the store does.
qint32 listedUserTag(const QString& userName);

enum class UserAdded { Added, Duplicate, EmptyName, NoNetwork };

// Lists `userName` in lower case with the remark when that was. NoNetwork after the box of
// dnNetPath. Fails as the store does.
UserAdded addUser(const QString& userName);

// May this user run the process with this right code? A user without a row of rights may. What is
// wrong in the lists (unknown user, unknown code) refuses, and is shown whatever `showRefusal`
// says. A failure of the store shows its own box and refuses.
bool dnOK2Access(const QString& code, const QString& userName, bool showRefusal);

// How a refusal is shown: a screen in the program, a note in tests.
using RefusalScreen = std::function<void(const QString& userName, const QString& process)>;
// Gives the one that was there.
RefusalScreen installRefusalScreen(RefusalScreen screen);
