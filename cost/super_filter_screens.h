// The super cost code filters of a job, their nodes, their prints, and the dialog in which a report
// asks for one.
#pragma once

#include "screens/browse/browse_spec.h"
#include "screens/browse/browse_window.h"
#include "screens/report/report_spec.h"

BrowseSpec frmZORUDS01();

// The nodes of a filter, three lists side by side; whoever opens them gives the filter's tag as
// OWNERTAG. Failures of the store are the caller's.
BrowseLevels frmZORUDS02(const Session& session, qint32 UDSTAG);

// Prints the filters of a job, and the outline of the one in hand; `UDSTAG` is 0 for none.
ReportSpec frmZORUDS03(int CONO, const QString& JOBNO, qint32 UDSTAG);

// Asks for one of the job's filters: its tag, 0 after a cancel. `JOBNO` is in its stored form.
qint32 frmZORSELUDS(const Session& session, int CONO, const QString& JOBNO);
// What its OK does: the tag of the filter with that code; 0 after the user was told why not.
qint32 takeSuperFilter(const Session& session, int CONO, const QString& JOBNO, const QString& code);
