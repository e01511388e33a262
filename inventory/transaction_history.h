// The transactions of a branch's items in a period, on paper and in a workbook.
#pragma once

#include "screens/report/report_spec.h"

ReportSpec frmVEXINVP08();
