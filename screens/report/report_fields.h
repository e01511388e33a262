// The controls of a report's own fields.
#pragma once

#include <functional>

#include "screens/report/report_spec.h"

class QFormLayout;

// Adds a row for the field. The control brings the selection's value and keeps it up to date;
// `changed` is called when the user has changed it. What it gives, if anything, is to be called
// once all fields are there and after each change: it asks for the choices anew.
std::function<void()> addReportField(QFormLayout* rows, const ReportField& field,
                                     ReportSelection& selection, const Session& session,
                                     const std::function<void()>& changed);

// The box that asks for a workbook, and the file that it will be.
void addWorkbookFields(QFormLayout* rows, ReportRun& run);
