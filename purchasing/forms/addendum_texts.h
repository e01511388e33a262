// Addendum texts, which are printed behind purchase orders: their list, the screen of one, and its
// print.
#pragma once

#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"
#include "screens/report/report_spec.h"

BrowseSpec frmVEXPON01();
DataSpec frmVEXPON02();
ReportSpec frmVEXPON03(qint32 PONTAG);
