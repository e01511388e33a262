// How a job site writes its job numbers. The size and type are settled once for the site, in the
// one row of SYSSETTINGS in ZORSYS.mdb, and read anew each time.
#pragma once

#include <QString>

#include "core/fit_column.h"

struct JobNoFormat
{
    QString type = "C";  // "C" characters, "N" number only
    int size = 8;        // 1 to 8; below 1 nothing can be done with job numbers

    bool operator==(const JobNoFormat&) const = default;
};

// The stored form of a job number: what is compared, sought and written.
inline QString storedJobNo(const QString& text, const JobNoFormat& format)
{
    return dnFitColumn(text, format.type, format.size);
}

// The setting of the site in that folder. What is not settled there is told and mended: 8, and "C".
// After a failure, which a box has told, the size is 0 and the type "C".
int zorGetJobNoSize(const QString& jobSitePath);
QString zorGetJobNoType(const QString& jobSitePath);

// Both, as a screen reads them at load. A size below 1 has been told: the screen closes at once.
JobNoFormat zorGetJobNoFormat(const QString& jobSitePath);

// Both without a box and without mending; what is not settled is 8 and "C". For places that read
// them again and again. Failures of the store are the caller's.
JobNoFormat settledJobNoFormat(const QString& jobSitePath);
