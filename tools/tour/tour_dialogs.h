// The desktop system's own dialogs, answered: what is saved goes into one file.
#pragma once

#include "screens/system_dialogs.h"

class TourDialogs : public SystemDialogs
{
public:
    explicit TourDialogs(const QString& file) : m_file(file) {}

    bool choosePrinter(QPrinter&, int) override { return false; }
    QString chooseFileToWrite(const QString&, const QString&, const QString&) override
    {
        return m_file;
    }
    QString chooseFileToRead(const QString&, const QString&, const QString&) override { return {}; }
    QSizeF defaultPaper() override { return {}; }

private:
    QString m_file;
};
