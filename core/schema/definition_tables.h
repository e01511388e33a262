// ZORDEF.mdb: the master definition that the database definition update works from.
#pragma once

#include "core/schema/network_tables.h"
#include "core/schema/schema.h"

namespace schema {

inline constexpr Field ZORDEF_DATABASES_fields[] = {
    text("DBNAME", 50, "file name without extension"),
    text("PATHCODE", 10, "which folder: DBPATHS, ZORUSER, DEFAULT or the name of a locator file"),
    text("Modules", 26, "letters of the modules that need the file; A for all"),
    boolean("Optional", "a missing file is no fault"),
    boolean("ONLYONCE", "shared file, handled for the first job site only"),
    text("DBDESC", 100, "description"),
    text("FILLLOC", 255, "folder of the reference copy"),
    text("ALTDBNAME", 50, "file name of the reference copy when it differs"),
};
inline constexpr Table ZORDEF_DATABASES = {
    "DATABASES", "Kinds of database files, one row each", ZORDEF_DATABASES_fields, {}};

inline constexpr Field NEWDEF_fields[] = {
    text("DBNAME", 50, "file name without extension"),
    text("TNAME", 64, "table"),
    text("FNAME", 64, "field"),
    integer("FSIZE", "size of the field"),
    integer("FTYPE", "the engine's number of its type"),
    integer("OPOS", "ordinal position"),
};
inline constexpr Index NEWDEF_indexes[] = {
    {"NEWDEF", {"DBNAME", "TNAME", "FNAME"}},
};
inline constexpr Table NEWDEF = {"NEWDEF", "What the tables must be, one row per field",
                                 NEWDEF_fields, NEWDEF_indexes};

inline constexpr Field NEWINDEXES_fields[] = {
    text("DBNAME", 50, "file name without extension"),
    text("TNAME", 64, "table"),
    text("IName", 64, "index"),
    text("KEYSTRING", 255, "its field names joined, for comparing"),
    text("IKEY01", 64, "first field of the key"),
    text("IKEY02", 64, "second field"),
    text("IKEY03", 64, "third field"),
    text("IKEY04", 64, "fourth field"),
    text("IKEY05", 64, "fifth field"),
    text("IKEY06", 64, "sixth field"),
    text("IKEY07", 64, "seventh field"),
    text("IKEY08", 64, "eighth field"),
    text("IKEY09", 64, "ninth field"),
    text("IKEY10", 64, "tenth field"),
};
inline constexpr Index NEWINDEXES_indexes[] = {
    {"NEWINDEXES", {"DBNAME", "TNAME", "IName"}},
};
inline constexpr Table NEWINDEXES = {"NEWINDEXES", "What the indexes must be, one row per index",
                                     NEWINDEXES_fields, NEWINDEXES_indexes};

// The database at hand is described as the master is, but for the file name that leads each row.
inline constexpr auto OLDDEF_fields = std::span(NEWDEF_fields).subspan(1);
inline constexpr Index OLDDEF_indexes[] = {
    {"OLDDEF", {"TNAME", "FNAME"}},
};
inline constexpr Table OLDDEF = {"OLDDEF", "What the tables of the database at hand are",
                                 OLDDEF_fields, OLDDEF_indexes};

inline constexpr auto OLDINDEXES_fields = std::span(NEWINDEXES_fields).subspan(1);
inline constexpr Index OLDINDEXES_indexes[] = {
    {"OLDINDEXES", {"KEYSTRING", "IName", "TNAME"}},
};
inline constexpr Table OLDINDEXES = {"OLDINDEXES", "What the indexes of the database at hand are",
                                     OLDINDEXES_fields, OLDINDEXES_indexes};

inline constexpr Field ZORDEF_ACTIVITYLOG_fields[] = {
    text("PATHNAME", 255, "job site or folder"),
    text("DBNAME", 50, "database"),
    text("TABLENAME", 64, "table"),
    text("INDEXNAME", 64, "index"),
    text("FIELDNAME", 64, "field"),
    text("Action", 255, "what was done, or the error"),
    text("FDATE", 10, "date"),
    text("PTIME", 8, "time"),
};
inline constexpr Table ZORDEF_ACTIVITYLOG = {
    "ACTIVITYLOG", "Log of the last update, in order of entry", ZORDEF_ACTIVITYLOG_fields, {}};

inline constexpr Index ZORDEF_USERACCESSITEMS_indexes[] = {
    {"USERACCESSITEMS", {"MODULEID", "UAICODE"}},
};
inline constexpr Table ZORDEF_USERACCESSITEMS = {
    "USERACCESSITEMS", "Master list of protected processes", USERACCESSITEMS_fields,
    ZORDEF_USERACCESSITEMS_indexes};

}  // namespace schema
