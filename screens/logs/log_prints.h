// The prints of the logs in the user's own database (multiuser/run_log.h): every line whole, in the
// order of entry.
#pragma once

#include "screens/report/report_spec.h"

// `word` names the log that the run wrote: "Print " + word + " Error Log".
ReportSpec frmZORERRLOG02(const QString& word);

ReportSpec frmZORPRINTACT();
