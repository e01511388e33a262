// The desktop system's own dialogs, answered: files are written into the tour's folder.
#pragma once

#include "screens/system_dialogs.h"

class TourDialogs : public SystemDialogs
{
public:
    explicit TourDialogs(const QString& folder) : m_folder(folder) {}

    bool choosePrinter(QPrinter&, int) override { return false; }
    QString chooseFileToWrite(const QString&, const QString& suggestion, const QString&) override
    {
        const QString name = suggestion.section('/', -1);
        return m_folder + '/' + (name.isEmpty() ? QString("document") : name);
    }
    QString chooseFileToRead(const QString&, const QString&, const QString&) override { return {}; }
    QSizeF defaultPaper() override { return {}; }

private:
    QString m_folder;
};
