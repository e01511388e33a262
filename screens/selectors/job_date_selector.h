// The choice of a job and of a range of dates, with which most reports begin.
#pragma once

#include "screens/selectors/date_range_selector.h"
#include "screens/selectors/job_selector.h"

class tqCoJobDateRange : public tqCoJobNumber
{
    Q_OBJECT
    Q_PROPERTY(bool IsValidPair READ IsValidPair)
    Q_PROPERTY(bool IsValidDates READ IsValidDates)
    Q_PROPERTY(QString EndDate READ EndDate WRITE setEndDate)
    Q_PROPERTY(QString BeginDate READ BeginDate WRITE setBeginDate)

public:
    explicit tqCoJobDateRange(const QString& name = "tqCoJobDateRange1");

    bool IsValidPair() const { return tqCoJobNumber::IsValid(); }
    bool IsValidDates() const { return m_dates->areValid(); }
    bool IsValid() const = delete;  // of which of the two?
    // In the shown form; ten blanks for what is no date.
    QString BeginDate() const { return m_dates->BeginDate(); }
    QString EndDate() const { return m_dates->EndDate(); }
    void setBeginDate(const QString& date) { m_dates->setBeginDate(date); }
    void setEndDate(const QString& date) { m_dates->setEndDate(date); }

protected:
    void takeTyped() override;

private:
    DateRangeFields* m_dates;
};
