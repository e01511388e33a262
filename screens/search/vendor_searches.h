// Look-ups of vendors and what belongs to them, in ZORVEX.mdb. `path` is the folder of the job
// site; each gives what dnSearch gives (search_window.h).
#pragma once

#include <QString>

QString zorSearchVendor(const QString& path);
QString zorSearchManufacturer(const QString& path);
QString zorSearchTerms(const QString& path);
QString zorSearchPayment(const QString& path);
