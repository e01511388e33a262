// Draws the pages of a form: the head and the foot on each, the lines between them.
#pragma once

#include "purchasing/forms/form.h"
#include "screens/report/report_run.h"

// Draws the lines of a document on as many pages as they need, at least one. It begins on the page
// in hand where that is empty. `totals` are the further cells of the form's totals. False when the
// run is to stop.
bool drawForm(ReportRun& run, const Form& form, const FormDocument& document,
              const std::vector<FormRow>& rows, const QStringList& totals = {});
