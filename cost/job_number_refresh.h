// Rewriting every job number of a job site in the form that its settings tell. Until it has run to
// its end, numbers in the old form are found by no screen.
#pragma once

#include <functional>
#include <optional>

#include "core/job_numbers.h"
#include "cost/refusal.h"

// What the settings refuse: a type that is not C or N, a size that is not 1 to 8.
std::optional<Refusal> refuseJobNoFormat(const JobNoFormat& format);

// The question before a smaller size is saved: its title and text.
Refusal dataMayBeLost(int newSize);

// Writes both settings, into a new row where the table has none. Failures of the store are the
// caller's.
void saveJobNoFormat(const QString& jobSitePath, const JobNoFormat& format);

struct RefreshProgress
{
    QString database;  // file name
    QString table;
    qint64 rows = 0;  // of this table, looked at until now; 0 when it begins
};

struct RefreshResult
{
    bool isComplete = false;  // false: stopped
    qint64 rewritten = 0;
};

// Rewrites the JOBNO of each row, where it is not blank, in all tables that have one, of those of
// the suite's files that the site has. Tables are found by the files' own catalogue. What is in its
// form already is left alone, so that a second run writes nothing.
//
// `proceed` is called at the beginning of each table and every two thousand rows; false stops the
// run between two rows. A failure of the store is the caller's. In both cases what was rewritten
// stays, and a new run does the rest.
RefreshResult refreshJobNumbers(const QString& jobSitePath, const JobNoFormat& format,
                                const std::function<bool(const RefreshProgress&)>& proceed);
