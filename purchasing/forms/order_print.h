// One purchase order on paper, within a report's run.
#pragma once

#include "purchasing/forms/form.h"
#include "screens/report/report_run.h"

// Draws the order in the form, with the addendum behind where the settings and the form ask for
// one. Receipts and client invoices are those that are marked in the user's tables. An order that
// is not there is told. False when the run is to stop; fails as the store does.
bool printOrder(ReportRun& run, OrderForm form, const FormSettings& settings, qint32 POTAG);
