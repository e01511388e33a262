#pragma once

#include "screens/browse/browse_spec.h"

// Codes of a job under which its client is billed.
BrowseSpec frmVEXIC01();
