// The lists of job sites: all that there are, and those that a user wants in reports over several.
#pragma once

#include "screens/browse/browse_spec.h"

BrowseSpec frmDBPBrowse();
BrowseSpec frmZORJS01();
