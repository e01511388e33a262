// The issue summary: what repair orders took of a branch's items in a period and before it.
#pragma once

#include "screens/report/report_spec.h"

ReportSpec frmVEXINVISR();
