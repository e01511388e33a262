// Look-ups of a job's cost codes, in MAIN.mdb. A job has up to three groups of them, each under a
// name of the job's own, such as Phase; `path` is the folder of the job site.
#pragma once

#include <QString>

// Which of the two columns stands first and is searched.
enum class CostCodeOrder { ByCode, ByDescription };

// Each gives what dnSearch gives (search_window.h), and " " after a box when the job has no name
// for the group.
QString zorSearchCCA(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName, CostCodeOrder order);
QString zorSearchCCB(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName);
QString zorSearchCCC(const QString& path, qint16 CONO, const QString& JOBNO,
                     const QString& groupName);

// The group's name for many of its codes: Phase gives "Phases", ACTIVITY "Activities", Areas
// "Areas".
QString costCodeGroupPlural(const QString& groupName);
