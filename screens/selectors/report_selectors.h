// The selectors as fields of reports: ready-made, remembered for the user, and checked. They set
// the selection at each key and check what was typed at Begin, wherever the keyboard is.
#pragma once

#include "screens/report/report_run.h"

// tqCoNumber: sets "CONO" (0 for none).
ReportField companyField(const char* name = "tqCoNumber1");
// A branch of the inventory: sets "ILCTAG" (0 for none).
ReportField branchField(const char* name = "BranchSelector1");
// tqCoJobNumber: sets "CONO" and "JOBNO", the latter in its stored form, blanks included.
ReportField jobField(const char* name = "tqCoJobNumber1");
// tqCoJobDateRange: these, the dates "BDATE" and "EDATE" as shown (ten blanks for what is none),
// "PERIOD", the label "From 03/01/2026 to 03/07/2026", and the ticks "IsValidPair" and
// "IsValidDates".
ReportField jobDateField(const char* name = "tqCoJobDateRange1");

// Each also ticks "IsValid" while all that it chooses is valid. This is a report's `check`, or the
// first of its checks, for them: nothing when it is ticked. A run without a window has no controls:
// whoever begins it ticks "IsValid" himself.
std::optional<ReportRefusal> checkReportSelectors(const ReportRun& run);
