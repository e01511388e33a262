// Sums of a report's columns. Money adds up exactly; other numbers as fractions.
#pragma once

#include "screens/report/report_sink.h"

// Adds the totalled columns of a line to the sums, which are null until something was added.
void addTo(ReportCells& sums, const ReportCells& line, const ReportPlan& plan);
