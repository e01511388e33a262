// Asks for the date of a report that prints as of a date.
#pragma once

#include "screens/date_field.h"
#include "screens/small_dialog.h"

class frmdnReportDate : public SmallDialog
{
public:
    frmdnReportDate();

    // The date as 03/07/2026 when the dialog was accepted.
    QString date() const;

private:
    void takeDate();

    DateField* m_date;
};

// Runs the dialog; blank after a cancel.
QString askReportDate();
