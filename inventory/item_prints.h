// Inventory items on paper: the data sheet of one, and the lists of a branch's items in their sort
// orders.
#pragma once

#include "screens/report/report_spec.h"

ReportSpec frmVEXINV03(qint32 ISNTAG);
ReportSpec frmVEXINVCAT03(qint32 ICNTAG);

ReportSpec frmVEXINVP04();  // by series and subcategory
ReportSpec frmVEXINVP05();  // by part number, within a range
ReportSpec frmVEXINVP06();  // by bin
ReportSpec frmVEXINVP07();  // by preferred vendor
