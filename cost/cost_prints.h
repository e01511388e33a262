// The prints of companies and jobs.
#pragma once

#include "screens/report/report_spec.h"

// Heads of pages, such as "Company: 1 Demo Builders" and "Job Number: 1001 Mill".
QString companyLine(const Session& session, int CONO);
QString jobLine(const Session& session, int CONO, const QString& JOBNO);

ReportSpec frmZORCO03();

// Of a company's jobs; `JOBNO`, in its stored form, is the one under the highlight, blank for none.
ReportSpec frmZORJOB04(int CONO, const QString& JOBNO);
