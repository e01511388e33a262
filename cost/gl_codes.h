// General ledger codes of a company.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmVEXGLC01();
