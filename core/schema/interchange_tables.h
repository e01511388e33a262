// Download batches for the accounting packages, and what an upload changed. The tables packed for
// another computer are in transfer_tables.h, those of outside systems in sibling_tables.h.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VEXDLTAG_fields[] = {
    longInteger("VEXDLTAG", "the next free batch number, for every accounting package"),
};
inline constexpr Table VEXDLTAG = {
    "VEXDLTAG", "Counter of download batches, one row", VEXDLTAG_fields, {}};

// The batches of every accounting package have one shape. Which purchase orders belong to a batch
// stands in POLIST.
inline constexpr Field downloadBatch_fields[] = {
    longInteger("VEXDLTAG", "number of the batch, shown as D/L #"),
    text("FDATE", 10, "date of the batch, MM/DD/YYYY"),
    text("LDATE", 8, "the same date, YYYYMMDD"),
    text("DLSTATUS", 50, "pending, incomplete, or when the file was created"),
    text("DLFNAME", 100, "name of the file, without folder and extension"),
};
inline constexpr Index downloadBatch_indexes[] = {
    {"VEXDLTAG", {"VEXDLTAG"}, true},
};
inline constexpr Table VEXDLTL = {"VEXDLTL", "Timberline download batches", downloadBatch_fields,
                                  downloadBatch_indexes};
inline constexpr Table VEXDLM2 = {"VEXDLM2", "MAS 200 download batches", downloadBatch_fields,
                                  downloadBatch_indexes};

inline constexpr Field VEXPOLUPLOAD_fields[] = {
    longInteger("ROWNUMBER", "row of the sheet, from 1"),
    text("PONO", 16, "purchase order number"),
    integer("POITEMNO", "item number in the order"),
    text("SHORTDESC", 255, "first line of the description"),
    text("SALE", 1, "new sale mark, Y or N"),
    text("MCODE", 1, "new material code"),
};
inline constexpr Index VEXPOLUPLOAD_indexes[] = {
    {"VEXPOLUPLOAD", {"ROWNUMBER"}},
};
inline constexpr Table VEXPOLUPLOAD = {"VEXPOLUPLOAD", "Lines changed by an upload of the PO log",
                                       VEXPOLUPLOAD_fields, VEXPOLUPLOAD_indexes};

}  // namespace schema
