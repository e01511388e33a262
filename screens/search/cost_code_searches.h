// Look-ups of a job's cost codes, in MAIN.mdb. A job has up to three groups of them, each under a
// name of the job's own, such as Phase; `path` is the folder of the job site.
#pragma once

#include "core/cost_code_groups.h"

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

// The same for an entry field: each gives the code picked in its stored form, `typed` when none was
// picked, and " " after the box. Failures of the store are the caller's.
QString zorCCASearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName, CostCodeOrder order);
QString zorCCBSearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName);
QString zorCCCSearch(const QString& path, const QString& typed, qint16 CONO, const QString& JOBNO,
                     const QString& groupName);

// Both for whatever group: the record, and the code for an entry field.
QString searchCostCodes(const CostCodeGroup& group, const QString& path, qint16 CONO,
                        const QString& JOBNO, const QString& groupName, CostCodeOrder order);
QString pickCostCode(const CostCodeGroup& group, const QString& path, const QString& typed,
                     qint16 CONO, const QString& JOBNO, const QString& groupName,
                     CostCodeOrder order);
