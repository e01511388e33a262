// What stands in the way of a company, a job or a job's defaults being changed or deleted. Job
// numbers are in their stored form. Failures of the store are the caller's.
#pragma once

#include <optional>

#include "cost/refusal.h"

bool companyExists(const QString& jobSitePath, int CONO);
bool jobExists(const QString& jobSitePath, int CONO, const QString& JOBNO);

bool companyHasJobs(const QString& jobSitePath, int CONO);
bool jobHasTimecards(const QString& jobSitePath, int CONO, const QString& JOBNO);
bool jobHasPositions(const QString& jobSitePath, int CONO, const QString& JOBNO);
bool jobHasRequisitions(const QString& jobSitePath, int CONO, const QString& JOBNO);
bool jobHasDefaults(const QString& jobSitePath, int CONO, const QString& JOBNO);

// A company keeps its number, and stays, while it has jobs.
std::optional<Refusal> refuseCompanyNumberChange(const QString& jobSitePath, int oldCONO,
                                                 int newCONO);
std::optional<Refusal> refuseCompanyDeletion(const QString& jobSitePath, int CONO);

// The text beside the field when a job with position codes is given another number; empty when it
// may be.
QString jobNumberChangeError(const QString& jobSitePath, int CONO, const QString& oldJOBNO,
                             const QString& newJOBNO);
// Timecards and position codes keep a job; documents and cost codes do not, and stay behind.
std::optional<Refusal> refuseJobDeletion(const QString& jobSitePath, int CONO,
                                         const QString& JOBNO);

// The checks of a job's defaults, each the text beside its field or empty, in the order in which
// they are made: company, job, and the pair as a whole.
QString jobDefaultsCompanyError(const QString& jobSitePath, int CONO);
QString jobDefaultsJobError(const QString& jobSitePath, int CONO, const QString& JOBNO);
QString jobDefaultsAddError(const QString& jobSitePath, int CONO, const QString& JOBNO);
// Empty when the pair stays what it was.
QString jobDefaultsPairError(const QString& jobSitePath, int oldCONO, const QString& oldJOBNO,
                             int newCONO, const QString& newJOBNO);
