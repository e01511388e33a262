// The target list: the codes of a job's cost code group that reports print.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmZORTLCC();
