#include "screens/selectors/job_date_selector.h"

#include <QFormLayout>

tqCoJobDateRange::tqCoJobDateRange(const QString& name)
    : tqCoJobNumber(name), m_dates(new DateRangeFields(*rows(), this))
{
    connect(m_dates, &DateRangeFields::changed, this, &Selector::changed);
}

void tqCoJobDateRange::takeTyped()
{
    tqCoJobNumber::takeTyped();
    m_dates->check();
}
