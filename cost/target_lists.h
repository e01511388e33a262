// Target lists: the codes of a job's cost code group that reports print, rows of ZORTLCC. `JOBNO`
// is in its stored form; failures of the store are the caller's.
#pragma once

#include "core/cost_code_groups.h"

// Empties the list of the job and group and makes a row of each of the group's codes, all printed.
// Gives how many there are now.
int fillTargetList(const QString& jobSitePath, int CONO, const QString& JOBNO,
                   const CostCodeGroup& group);

// The commands on tagged rows.
enum class TargetMark { Print, Archived };

// Writes PRINTME or ARCHIVED of all tagged rows of the job, of whatever group. Gives how many were
// tagged.
int markTaggedTargets(const QString& jobSitePath, int CONO, const QString& JOBNO, TargetMark mark,
                      bool on);

// Clears the tag of all rows of the job.
int clearTargetTags(const QString& jobSitePath, int CONO, const QString& JOBNO);
