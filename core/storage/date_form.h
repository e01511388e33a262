// Dates are stored as whole seconds of wall-clock time since 1900-01-01, which sorts and compares.
#pragma once

#include <QDateTime>

namespace storage {

inline const QDateTime& dateOrigin()
{
    static const QDateTime origin(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC);
    return origin;
}

inline QDateTime dateFromStored(qint64 seconds)
{
    return dateOrigin().addSecs(seconds);
}
inline qint64 storedFromDate(const QDateTime& moment)
{
    return dateOrigin().secsTo(moment);
}

}  // namespace storage
