#pragma once

#include "screens/browse/browse_spec.h"

// Vendors' terms of payment: the days until an invoice is due, and the discount.
BrowseSpec frmVEXTRMC01();
