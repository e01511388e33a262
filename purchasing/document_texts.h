// Lists of texts from which the fields of requisitions and purchase orders are filled.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmVEXSHIPTO01();
BrowseSpec frmVEXSHIPVIA01();
BrowseSpec frmVEXWHODIDIT01();
