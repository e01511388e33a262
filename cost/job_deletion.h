// Deleting a job with everything that hangs on it, table after table, children before parents. The
// ledger of the inventory is not touched: what was moved was moved.
//
// There is no undo. A stop or a failure leaves what was deleted deleted, whole rows only, and a new
// run finds the rest, because each table is searched from the job down. A parent goes after its
// last child, so nothing is left that a new run could not find.
#pragma once

#include <QString>
#include <functional>

struct JobDeletionListener
{
    // After each step, for each of its tables: the name in the report, and how many rows went.
    std::function<void(const QString& reportName, int count)> deleted;
    // In place of steps whose database is missing.
    std::function<void(const QString& remark)> remark;
    // Every thousand rows, with the table at work; false stops the run.
    std::function<bool(const QString& reportName, int count)> proceed;
};

// `JOBNO` is in its stored form. False when stopped. Failures of the store are the caller's.
bool deleteJob(const QString& jobSitePath, int CONO, const QString& JOBNO,
               const JobDeletionListener& listener);

// How the report writes a count: "No Items Found", "1 Record Deleted.", "12 Records Deleted."
QString deletionCountText(int count);
