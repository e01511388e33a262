// The dialogs of the desktop, as the program shows them.
#pragma once

#include "screens/system_dialogs.h"

class QtSystemDialogs : public SystemDialogs
{
public:
    bool choosePrinter(QPrinter& printer, int pageCount) override;
    QString chooseFileToWrite(const QString& caption, const QString& suggestion,
                              const QString& pattern) override;
    QString chooseFileToRead(const QString& caption, const QString& folder,
                             const QString& pattern) override;
    QSizeF defaultPaper() override;
};
