#include "screens/report/report_date.h"

#include "core/dates.h"
#include "core/messages.h"
#include "core/system.h"
#include "core/text.h"
#include "screens/field_keys.h"

frmdnReportDate::frmdnReportDate()
    : SmallDialog("frmdnReportDate", "Enter Report Date"),
      m_date(new QLineEdit(System::current().now().toString("MM/dd/yyyy")))
{
    m_date->setObjectName("txtFDATE");
    setFieldKeys(*m_date, {.keepEnter = true, .dateKeys = true});
    QObject::connect(m_date, &QLineEdit::editingFinished, this, [this] { repair(); });
    addField("Report &Date", m_date);
    addButton("cmdOK", "&OK", [this] { takeDate(); })->setDefault(true);
    escTakes(addClosingButton("cmdCancel", "&Cancel"));
    m_date->setFocus();
}

QString frmdnReportDate::date() const
{
    return m_date->text();
}

// A text that is no date stays, to be mended.
bool frmdnReportDate::repair()
{
    const QString fixed = dnFixDate(m_date->text());
    if (dnIsBlank(fixed))
        return false;
    if (fixed != m_date->text())
        m_date->setText(fixed);
    return true;
}

void frmdnReportDate::takeDate()
{
    if (repair()) {
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
