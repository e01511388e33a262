// Look-ups of inventory items, their codes and the documents that move them, in ZORVEX.mdb. `path`
// is the folder of the job site; each gives what dnSearch gives (search_window.h).
#pragma once

#include <QString>

QString zorSearchBranch(const QString& path);
QString zorSearchBin(const QString& path, qint32 ILCTAG);
QString zorSearchSeries(const QString& path, qint32 ILCTAG);
QString zorSearchSubcategory(const QString& path, qint32 SERIESTAG, const QString& seriesCode);
QString zorSearchMTR(const QString& path);
QString zorSearchMRR(const QString& path);
QString zorSearchMIR(const QString& path);
// By description, part number or UPC code; the items of a branch.
QString zorVEXINVSearch(const QString& path, qint32 ILCTAG);
QString zorVEXINVCATSearch(const QString& path);
