// What holds for the company-wide catalog of parts: its numbers, the copies between it and a
// branch, and the list of part numbers that both share. `jobSitePath` is the folder of the job
// site. Failures of the store are the caller's.
#pragma once

#include <functional>

#include "core/session.h"

// The next I/C number, three groups of three digits of which the last counts fastest. Only `commit`
// draws it: two processes never draw the same. When all are used, a box tells it and the number is
// eleven blanks.
QString zorVEXGetNewICNumber(const QString& path, bool commit);

// Why a catalog item cannot be deleted: a branch has it still. Blank: nothing.
QString catalogUseText(const QString& jobSitePath, qint32 ICNTAG);

// ---- copies of tagged items
// One line for each item, told as it is done.
using CopyRemark = std::function<void(const QString& PARTNO, const QString& remark)>;

struct ItemCopies
{
    QString jobSitePath;
    QString userName;
    qint32 ILCTAG = 0;  // the branch that they come from or go to
    qint32 VENTAG = 0;  // preferred vendor of the copies in the catalog; 0: that of the item
    CopyRemark tell;
    std::function<bool()> proceed;  // asked before each item; false stops
};
// Each item is whole when its tag goes. How many were copied; the rest was there already.
int copyToCatalog(const ItemCopies& copies);
int copyToBranch(const ItemCopies& copies);

// ---- the list of part numbers
struct NumberRefresh
{
    int updated = 0;
    bool isComplete = false;
};
// Gives each number of an item the item's branch. `log` gets a line for each number that was
// wrong, and for each that has no item, which those of the catalog have not.
NumberRefresh refreshPartNumbers(const QString& jobSitePath,
                                 const std::function<void(const QString&)>& log,
                                 const std::function<bool()>& proceed);
