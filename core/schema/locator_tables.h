// The small files beside the program that tell it where everything else is.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VEXPATH_fields[] = {
    text("Path", 255, "folder of the job site in use on this machine"),
};
inline constexpr Table VEXPATH = {"VEXPATH", "The job site in use, one row", VEXPATH_fields, {}};

inline constexpr Field DBPATHS_fields[] = {
    text("PATHNAME", 255, "name of the job site, upper case"),
    text("PathText", 255, "its folder, upper case, without a trailing separator"),
    longInteger("DBTAG", "site number, prefix of the site's tags"),
};
inline constexpr Index DBPATHS_indexes[] = {
    {"DBPATHS", {"PATHNAME"}},
};
inline constexpr Table DBPATHS = {"DBPATHS", "One row per job site", DBPATHS_fields,
                                  DBPATHS_indexes};

inline constexpr Field DBTAGS_fields[] = {
    longInteger("DBTAG", "the next free site number"),
};
inline constexpr Table DBTAGS = {"DBTAGS", "Counter of site numbers, one row", DBTAGS_fields, {}};

inline constexpr Field USERPATH_fields[] = {
    longInteger("USERTAG", "the user's number"),
    text("Path", 255, "folder of the user's ZORUSER.mdb"),
};
inline constexpr Index USERPATH_indexes[] = {
    {"USERTAG", {"USERTAG"}},
};
inline constexpr Table USERPATH = {"USERPATH", "Folders of the users' settings, one row per user",
                                   USERPATH_fields, USERPATH_indexes};

inline constexpr Field NETPATH_fields[] = {
    text("Path", 255, "folder of ZORNET.mdb"),
};
inline constexpr Table NETPATH = {
    "NETPATH", "Folder of the network database, one row", NETPATH_fields, {}};

}  // namespace schema
