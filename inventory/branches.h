// The branches that keep an inventory, and each branch's bins and series codes.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmVEXILC01();
BrowseSpec frmVEXINVBIN01();
BrowseSpec frmVEXINVSC01();
// The subcategories of a series, whose tag is given as SERIESTAG.
BrowseSpec frmVEXINVS01(const Session& session, qint32 SERIESTAG);
