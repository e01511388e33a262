// Look-ups of requisitions, purchase orders and the lists that they are written with, in
// ZORVEX.mdb. `path` is the folder of the job site; each gives what dnSearch gives
// (search_window.h).
#pragma once

#include <QString>

QString zorSearchPOItem(const QString& path, qint32 POTAG);
QString zorSearchRequisition(const QString& path, qint32 VENTAG, const QString& vendorNumber,
                             const QString& vendorName);
QString zorSearchPOByVendor(const QString& path, qint32 VENTAG, const QString& vendorNumber,
                            const QString& vendorName);
QString zorSearchPOByJob(const QString& path, qint16 CONO, const QString& JOBNO);
QString zorSearchPO(const QString& path);
QString zorSearchPOByCMRNO(const QString& path);
QString zorSearchMaterialCode(const QString& path);
QString zorSearchTemplate(const QString& path);
QString zorSearchAddendum(const QString& path);
QString zorSearchShipTo(const QString& path);
QString zorSearchShipVia(const QString& path);
QString zorSearchWhoDidIt(const QString& path);
