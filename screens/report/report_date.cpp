#include "screens/report/report_date.h"

#include "core/messages.h"
#include "core/system.h"
#include "screens/field_keys.h"

frmdnReportDate::frmdnReportDate()
    : SmallDialog("frmdnReportDate", "Enter Report Date"), m_date(new DateField("txtFDATE"))
{
    m_date->setDate(System::current().now().toString("MM/dd/yyyy"));
    setFieldKeys(*m_date, {.keepEnter = true, .dateKeys = true});
    addField("Report &Date", m_date);
    addButton("cmdOK", "&OK", [this] { takeDate(); })->setDefault(true);
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
    m_date->setFocus();
}

QString frmdnReportDate::date() const
{
    return m_date->date();
}

void frmdnReportDate::takeDate()
{
    if (m_date->isValid()) {
        accept();
        return;
    }
    showCritical("Error Detected", "Invalid Date.");
    m_date->setFocus();
}

QString askReportDate()
{
    frmdnReportDate dialog;
    return dialog.exec() == QDialog::Accepted ? dialog.date() : QString();
}
