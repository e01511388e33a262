// ZORVEX.mdb: where record tags and document numbers come from.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VEXTAGS_fields[] = {
    // These are prefixed with the site number.
    longInteger("REQTAG", "next tag of a requisition"),
    longInteger("POTAG", "next tag of a purchase order"),
    longInteger("RQITAG", "next tag of a line item"),
    longInteger("RECTAG", "next tag of a receipt"),
    longInteger("VENTAG", "next tag of a vendor"),
    longInteger("MFGTAG", "next tag of a manufacturer"),
    longInteger("PITAG", "next tag of a physical inventory"),
    // These are plain running numbers.
    longInteger("APINVTAG", "next tag of an A/P invoice"),
    longInteger("APINVITEMTAG", "next tag of an A/P invoice line"),
    longInteger("PAYTAG", "next tag of a payment"),
    longInteger("PSTAG", "next tag of a procurement status line"),
    longInteger("ISNTAG", "next tag of an inventory item"),
    longInteger("ICNTAG", "next tag of a catalog item"),
    longInteger("ILCTAG", "next tag of a branch"),
    longInteger("BINTAG", "next tag of a bin"),
    longInteger("SERIESTAG", "next tag of a series code"),
    longInteger("SUBCATTAG", "next tag of a subcategory"),
    longInteger("INVADJTAG", "next tag of an inventory adjustment"),
    longInteger("MIRTAG", "next tag of a material issue report"),
    longInteger("MIRITAG", "next tag of its line"),
    longInteger("MRRTAG", "next tag of a material return report"),
    longInteger("MRRITAG", "next tag of its line"),
    longInteger("MTRTAG", "next tag of a material transfer report"),
    longInteger("MTRITAG", "next tag of its line"),
    longInteger("OSRTAG", "next tag of an out-of-stock report"),
    longInteger("MCTAG", "next tag of a material code"),
    longInteger("TERMSCODETAG", "next tag of a terms code"),
    longInteger("JNDTAG", "next tag of job number defaults"),
    longInteger("PONTAG", "next tag of an addendum text"),
    longInteger("RSTTAG", "next tag of a spreadsheet template"),
    integer("ICNCOUNTER1", "last group of the next I/C number"),
    integer("ICNCOUNTER2", "middle group of the next I/C number"),
    integer("ICNCOUNTER3", "first group of the next I/C number"),
};
inline constexpr Table VEXTAGS = {
    "VEXTAGS", "Counters of this module's tags, one row", VEXTAGS_fields, {}};

inline constexpr Field VEXCOUNTERS_fields[] = {
    longInteger("REQNO", "requisition number to offer next"),
    longInteger("PONO", "purchase order number to offer next"),
};
inline constexpr Table VEXCOUNTERS = {
    "VEXCOUNTERS", "Document number counters, one row", VEXCOUNTERS_fields, {}};

}  // namespace schema
