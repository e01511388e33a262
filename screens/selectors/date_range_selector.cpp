#include "screens/selectors/date_range_selector.h"

#include <QFormLayout>
#include <QLabel>

#include "screens/selectors/error_box.h"

DateRangeFields::DateRangeFields(QFormLayout& rows, QObject* parent)
    : QObject(parent),
      m_begin(new DateField("txtBDATE")),
      m_end(new DateField("txtEDATE")),
      m_refusal(new QLabel)
{
    rows.addRow("&Beginning Date:", m_begin);
    rows.addRow("En&ding Date:", m_end);
    m_refusal->setObjectName("lblDateError");
    m_refusal->setTextFormat(Qt::PlainText);
    rows.addRow(QString(), m_refusal);
    for (DateField* field : {m_begin, m_end}) {
        connect(field, &DateField::dateChanged, this, &DateRangeFields::check);
        connect(field, &QLineEdit::textChanged, this, &DateRangeFields::changed);
    }
}

void DateRangeFields::setBeginDate(const QString& date)
{
    m_begin->setDate(date);
    check();
}

void DateRangeFields::setEndDate(const QString& date)
{
    m_end->setDate(date);
    check();
}

bool DateRangeFields::areValid() const
{
    return m_begin->isValid() && m_end->isValid() && m_begin->dateKey() <= m_end->dateKey();
}

QString DateRangeFields::refusal() const
{
    if (!m_begin->text().isEmpty() && !m_begin->isValid())
        return "Beginning Date is Invalid.";
    if (!m_end->text().isEmpty() && !m_end->isValid())
        return "Ending Date is Invalid.";
    if (m_begin->isValid() && m_end->isValid() && !areValid())
        return "Beginning Date is After Ending Date.";
    return {};
}

void DateRangeFields::check()
{
    m_refusal->setText(refusal());
    markError(*m_refusal, !refusal().isEmpty());
}

tqDateRange::tqDateRange(const QString& name)
    : Selector(name), m_dates(new DateRangeFields(*rows(), this))
{
    setFocusProxy(m_dates->firstField());
    connect(m_dates, &DateRangeFields::changed, this, &Selector::changed);
}
