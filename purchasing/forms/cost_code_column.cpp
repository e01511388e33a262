#include "purchasing/forms/cost_code_column.h"

#include "core/locators.h"
#include "core/messages.h"

namespace {

constexpr schema::FieldName slots[] = {"ITEM1", "ITEM2", "ITEM3", "ITEM4", "ITEM5", "ITEM6"};

}  // namespace

CostCodeColumn::CostCodeColumn(const Session& session, int CONO, const QString& JOBNO)
    : m_JOBNO(JOBNO.trimmed())
{
    OpenTable defaults = openTable(session, "ZORVEX.mdb", "JOB_NO_DEFAULTS");
    if (dnSeek(defaults.rows, "JOB_NO_DEFAULTS", {{"CONO", CONO}, {"JOBNO", JOBNO}}).isEmpty()) {
        showCritical("Cannot Find Defaults",
                     "Warning: Cannot Find Job Number Defaults for Job Number: " + m_JOBNO);
        return;
    }
    for (size_t i = 0; i < m_items.size(); ++i)
        m_items[i] = intOf(defaults.rows[slots[i]]);
}

QString CostCodeColumn::of(const storage::Recordset& rows) const
{
    constexpr schema::FieldName ofLine[] = {"COSTCODEA", "COSTCODEB", "COSTCODEC", "GLCODE",
                                            "MCODE"};
    QStringList parts;
    for (const int item : m_items) {
        QString part;
        if (item == 2)
            part = m_JOBNO;
        else if (item > 2 && item <= 7)
            part = trimmedTextOf(rows[ofLine[item - 3]]);
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join('-');
}
