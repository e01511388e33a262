// The short codes on requisitions and purchase orders: material codes, requisition types, shipper
// codes.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmVEXMC01();
BrowseSpec frmVEXRT01();
// Lives in the table of the material codes, each in rows of its own.
BrowseSpec frmCCBQSHIP01();
