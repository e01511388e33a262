// The address lists of those who sell and those who make.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field VENDORS_fields[] = {
    longInteger("VENTAG", "the vendor's tag, with the site number"),
    text("VENNO", 10, "vendor number, upper case"),
    text("Name", 40, "vendor name"),
    text("ADDRESS1", 40, "address, first line"),
    text("ADDRESS2", 40, "address, second line"),
    text("CITY", 30, "city"),
    text("State", 2, "state, upper case"),
    text("ZIP", 10, "zip or postal code"),
    text("PLUS4", 4, "extension of the zip code"),
    text("PHONE", 20, "telephone, such as (555) 123-4567"),
    text("FAX", 20, "fax, in the same form"),
    text("CONTACT", 50, "contact person"),
    text("EMAIL", 100, "e-mail address"),
    text("REMARKS", 100, "remarks"),
    longInteger("TERMSCODETAG", "terms of payment; 0 for none"),
};
// VENTAG admits duplicates: a site damaged that way must stay usable until the tags check finds it.
inline constexpr Index VENDORS_indexes[] = {
    {"VENDORS", {"Name", "VENNO"}},
    {"VENTAG", {"VENTAG"}},
    {"VENNO", {"VENNO"}, true},
    {"VENNAME", {"Name"}},
};
inline constexpr Table VENDORS = {"VENDORS", "Vendors", VENDORS_fields, VENDORS_indexes};

inline constexpr Field MANUFACTURERS_fields[] = {
    longInteger("MFGTAG", "the manufacturer's tag, with the site number"),
    text("MFGNO", 7, "manufacturer number, upper case"),
    text("MFGNAME", 40, "manufacturer name"),
    text("ADDRESS1", 40, "address, first line"),
    text("ADDRESS2", 40, "address, second line"),
    text("CITY", 30, "city"),
    text("State", 2, "state, upper case"),
    text("ZIP", 10, "zip or postal code"),
    text("PLUS4", 4, "extension of the zip code"),
    text("PHONE", 20, "telephone, such as (555) 123-4567"),
    text("FAX", 20, "fax, in the same form"),
    text("CONTACT", 50, "contact person"),
    text("REMARKS", 100, "remarks"),
};
inline constexpr Index MANUFACTURERS_indexes[] = {
    {"MANUFACTURERS", {"MFGNAME", "MFGNO"}},
    {"MFGTAG", {"MFGTAG"}, true},
    {"MFGNO", {"MFGNO"}, true},
    {"MFGNAME", {"MFGNAME"}},
};
inline constexpr Table MANUFACTURERS = {"MANUFACTURERS", "Manufacturers", MANUFACTURERS_fields,
                                        MANUFACTURERS_indexes};

}  // namespace schema
