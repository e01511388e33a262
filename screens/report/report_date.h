// Asks for the date of a report that prints as of a date.
#pragma once

#include "screens/small_dialog.h"

class frmdnReportDate : public SmallDialog
{
public:
    frmdnReportDate();

    // The date as 03/07/2026 when the dialog was accepted.
    QString date() const;

private:
    bool repair();
    void takeDate();

    QLineEdit* m_date;
};

// Runs the dialog; blank after a cancel.
QString askReportDate();
