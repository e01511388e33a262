// Look-ups of companies, jobs and what is kept by company and job. `path` is the folder of the file
// that is searched: the job site's, where nothing else is said. Each gives what dnSearch gives
// (search_window.h).
#pragma once

#include <QString>

QString zorSearchCompany(const QString& path);
QString zorSearchJob(const QString& path, qint16 CONO);
QString zorSearchUDS(const QString& path, qint16 CONO, const QString& JOBNO);
QString zorSearchXref(const QString& path, qint16 CONO, const QString& JOBNO);
QString zorSearchGLCode(const QString& path, qint16 CONO);
QString zorSearchInvoiceCode(const QString& path, qint16 CONO, const QString& JOBNO);

// Job sites, from the locator beside the program.
QString zorSearchJobSite();
// `path`: the folder of the EcoSys data.
QString zorSearchProject(const QString& path);
// `path`: the folder of the equipment module's data.
QString zorSearchWorkOrder(const QString& path);
