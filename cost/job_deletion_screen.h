// Deleting jobs with all that hangs on them: the list of those to be deleted, and the run with the
// report of what went.
#pragma once

#include "core/job_numbers.h"
#include "screens/browse/browse_spec.h"
#include "screens/report/report_spec.h"
#include "screens/screen_context.h"

BrowseSpec frmZORDELJOBNO(const JobNoFormat& format);
QWidget* newJobDeletion(const ScreenContext& context);

// All jobs of the company that is typed into the entry on the list; the entry is left.
void autoFillJobDeletion(BrowseSession& list);

// The run over the list, once its words are typed. A job that is deleted leaves the list.
ReportSpec jobDeletionRun();
