// Vendors, who sell, and manufacturers, who make: two address lists of one pattern, each with a
// list, a screen of one record and a print screen. Edits and deletions take a record lock; nothing
// asks whether documents or items still refer to the one that is deleted, they show "?" then.
#pragma once

#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"
#include "screens/report/report_spec.h"

BrowseSpec frmVEXVEN01();
BrowseSpec frmVEXMFG01();

DataSpec frmVEXVEN02(const Session& session);
DataSpec frmVEXMFG02(const Session& session);

// `tag` is that of the one in hand; 0 for none.
ReportSpec frmVEXVEN03(qint32 tag);
ReportSpec frmVEXMFG03(qint32 tag);
