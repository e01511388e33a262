// What stands in the cost code column of printed documents: a job settles in its defaults up to six
// items, which are joined with "-".
#pragma once

#include <array>

#include "core/keyed_access.h"
#include "core/session.h"

class CostCodeColumn
{
public:
    // Of a pair of company and job. Defaults that are not there are told, once, and leave the
    // column empty. Fails as the store does.
    CostCodeColumn(const Session& session, int CONO, const QString& JOBNO);

    // The string of a line: `rows` stands on a record with COSTCODEA to COSTCODEC, GLCODE and
    // MCODE, of RQILIST or another table that has them.
    QString of(const storage::Recordset& rows) const;

private:
    QString m_JOBNO;
    std::array<int, 6> m_items = {};
};
