// The values of a report's fields that are remembered for the user, in VEXSETTINGS of his
// ZORUSER.mdb.
#pragma once

class ReportRun;

// Into the selection, and from it. A failure is told in a box; the report goes on without.
void recallFields(ReportRun& run);
void rememberFields(ReportRun& run);
