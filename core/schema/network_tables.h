// ZORNET.mdb: users, their rights and the records they hold. One file serves all job sites.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field USERLIST_fields[] = {
    longInteger("USERTAG", "the user's number, never used again"),
    text("UserName", 50, "login name"),
    text("REMARKS", 100, "free remark"),
    boolean("ADMIN", "network administrator"),
};
inline constexpr Index USERLIST_indexes[] = {
    {"USERNAME", {"UserName"}},
};
inline constexpr Table USERLIST = {"USERLIST", "Known users, one row each", USERLIST_fields,
                                   USERLIST_indexes};

inline constexpr Field NETTAGS_fields[] = {
    longInteger("USERTAG", "the next user number"),
};
inline constexpr Table NETTAGS = {
    "NETTAGS", "Counter of user numbers, one row", NETTAGS_fields, {}};

inline constexpr Field USERACCESSITEMS_fields[] = {
    longInteger("UAITAG", "the process's number"),
    text("MODULEID", 3, "module of the process"),
    text("UAICODE", 10, "right code that the program tests, such as REQ01"),
    text("Desc", 100, "description, shown when access is denied"),
    text("FORMNAME", 50, "screen of the process"),
};
inline constexpr Index USERACCESSITEMS_indexes[] = {
    {"UAICODE", {"UAICODE"}},
};
inline constexpr Table USERACCESSITEMS = {"USERACCESSITEMS", "Protected processes, one row each",
                                          USERACCESSITEMS_fields, USERACCESSITEMS_indexes};

inline constexpr Field USERRIGHTS_fields[] = {
    longInteger("USERTAG", "user"),
    longInteger("UAITAG", "protected process"),
    boolean("ALLOWED", "the user may run the process"),
};
inline constexpr Index USERRIGHTS_indexes[] = {
    {"USERRIGHTS", {"USERTAG", "UAITAG"}},
};
inline constexpr Table USERRIGHTS = {"USERRIGHTS", "Decisions on users' rights; no row allows",
                                     USERRIGHTS_fields, USERRIGHTS_indexes};

inline constexpr Field MODULES_fields[] = {
    text("MODULEID", 3, "code of the module"),
    text("MODULENAME", 50, "its name"),
};
inline constexpr Table MODULES = {
    "MODULES", "Modules of the suite that have protected processes", MODULES_fields, {}};

inline constexpr Field RECORDLOCKS_fields[] = {
    longInteger("TAGNO", "tag of the locked record"),
    text("TABLENAME", 20, "kind of record, such as PURCHASE ORDERS; not always a table's name"),
    text("RLUSERNAME", 50, "login name of the holder"),
    text("RLTIMESTAMP", 30, "date and time when the lock was taken"),
    longInteger("USERTAG", "user number of the holder"),
    longInteger("Session", "run of the program that took the lock"),
};
// Unique, so that of two users who lock one record at one moment only one succeeds.
inline constexpr Index RECORDLOCKS_indexes[] = {
    {"RECORDLOCKS", {"TABLENAME", "TAGNO"}, true},
};
inline constexpr Table RECORDLOCKS = {"RECORDLOCKS", "Records that users have open for editing",
                                      RECORDLOCKS_fields, RECORDLOCKS_indexes};

}  // namespace schema
