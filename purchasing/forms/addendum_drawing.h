// Draws the text that is printed behind a purchase order.
#pragma once

#include "screens/report/report_run.h"

// A text on pages of its own under a heading, the document's name in small letters beside it. False
// when the run is to stop.
bool drawAddendum(ReportRun& run, const QString& heading, const QString& documentName,
                  const QString& text);
