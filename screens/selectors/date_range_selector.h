// The choice of a range of dates.
#pragma once

#include "screens/date_field.h"
#include "screens/selectors/selector.h"

class QFormLayout;
class QLabel;

// Two date fields and a line that tells what is wrong with them: the part of every control that
// asks for a range.
class DateRangeFields : public QObject
{
    Q_OBJECT

public:
    // Adds its rows to the layout, whose widget owns them.
    DateRangeFields(QFormLayout& rows, QObject* parent);

    QString BeginDate() const { return m_begin->date(); }
    QString EndDate() const { return m_end->date(); }
    void setBeginDate(const QString& date);
    void setEndDate(const QString& date);
    // Both are dates, and the first is not after the second.
    bool areValid() const;
    DateField* firstField() const { return m_begin; }
    // Tells what is wrong.
    void check();

Q_SIGNALS:
    // The text of a date is another one.
    void changed();

private:
    QString refusal() const;

    DateField* m_begin;
    DateField* m_end;
    QLabel* m_refusal;
};

class tqDateRange : public Selector
{
    Q_OBJECT
    Q_PROPERTY(bool IsValid READ IsValid)
    Q_PROPERTY(QString EndDate READ EndDate WRITE setEndDate)
    Q_PROPERTY(QString BeginDate READ BeginDate WRITE setBeginDate)

public:
    explicit tqDateRange(const QString& name = "tqDateRange1");

    // In the shown form; ten blanks for what is no date.
    QString BeginDate() const { return m_dates->BeginDate(); }
    QString EndDate() const { return m_dates->EndDate(); }
    void setBeginDate(const QString& date) { m_dates->setBeginDate(date); }
    void setEndDate(const QString& date) { m_dates->setEndDate(date); }
    bool IsValid() const { return m_dates->areValid(); }

protected:
    void takeTyped() override { m_dates->check(); }

private:
    DateRangeFields* m_dates;
};
