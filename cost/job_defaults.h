// What the documents of a job start from, and what is printed in their cost code column.
#pragma once

#include "core/job_numbers.h"
#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"

BrowseSpec frmVEXJND01();
// Reads the requisition types that there are to choose from; fails as the store does.
DataSpec frmVEXJND02(const Session& session, const JobNoFormat& format);
