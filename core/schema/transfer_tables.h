// The tables of ZORPOTXFR.mdb, in which purchase orders, their lines and the vendors are packed for
// another computer: a part of the fields of the tables of the same names, as wide as there.
#pragma once

#include "core/schema/purchasing_tables.h"
#include "core/schema/schema.h"
#include "core/schema/vendor_tables.h"

namespace schema {

// The named fields of `source`, in the order of `names`. A name that `source` lacks does not
// compile.
template <std::size_t N>
consteval std::array<Field, N> fieldsOf(const Table& source, const std::string_view (&names)[N])
{
    std::array<Field, N> picked{};
    for (std::size_t i = 0; i < N; ++i) {
        bool found = false;
        for (const Field& field : source.fields) {
            if (field.name == names[i]) {
                picked[i] = field;
                found = true;
            }
        }
        if (!found)
            throw "the source table has no field of this name";
    }
    return picked;
}

inline constexpr auto ZORPOTXFR_POLIST_fields =
    fieldsOf(POLIST, {"REQTAG", "POTAG", "REQNO",  "VENTAG",   "CONO",     "JOBNO",    "POSUFFIX",
                      "PONO",   "FDATE", "LDATE",  "REQTYPE",  "SHIPTO",   "SHIPVIA",  "FOB",
                      "PROMBY", "TERMS", "INTEND", "Required", "WHODIDIT", "VCONTACT", "QLEVEL"});
inline constexpr Table ZORPOTXFR_POLIST = {
    "POLIST", "Purchase orders packed for another computer", ZORPOTXFR_POLIST_fields, {}};

inline constexpr auto ZORPOTXFR_RQILIST_fields =
    fieldsOf(RQILIST, {"RQITAG", "REQTAG", "POTAG", "ISNTAG", "QTY", "UNIT", "Desc", "COSTCODEA",
                       "COSTCODEB", "COSTCODEC", "REQITEMNO", "REQLINENO", "POITEMNO", "POLINENO"});
inline constexpr Table ZORPOTXFR_RQILIST = {
    "RQILIST", "Line items packed for another computer", ZORPOTXFR_RQILIST_fields, {}};

inline constexpr auto ZORPOTXFR_VENDORS_fields =
    fieldsOf(VENDORS, {"VENTAG", "Name", "VENNO", "ADDRESS1", "ADDRESS2", "CITY", "State", "ZIP",
                       "PLUS4", "PHONE", "FAX", "CONTACT", "REMARKS"});
inline constexpr Table ZORPOTXFR_VENDORS = {
    "VENDORS", "Vendors packed for another computer", ZORPOTXFR_VENDORS_fields, {}};

}  // namespace schema
