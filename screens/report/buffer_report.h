// The walk of a report that first gathers its lines in a table of its own, which puts them in
// order, and then prints them.
#pragma once

#include "core/locators.h"
#include "screens/report/list_report.h"

struct ReportBuffer
{
    QString file;  // the user's or the job site's (core/session.h)
    QString table;
    QString index;
    QString status;  // shown while it is filled
    // Fills the empty table; false when the run was stopped.
    std::function<bool(ReportRun&, OpenTable&)> fill;
    // Of the row on which the handle stands.
    std::function<ReportCells(const ReportRun&, const storage::Recordset&)> cells;
};

ReportWalk bufferWalk(ReportBuffer buffer);
