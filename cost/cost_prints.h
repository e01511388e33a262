// The prints of companies and jobs.
#pragma once

#include "screens/report/report_spec.h"

ReportSpec frmZORCO03();

// Of a company's jobs; `JOBNO`, in its stored form, is the one under the highlight, blank for none.
ReportSpec frmZORJOB04(int CONO, const QString& JOBNO);
