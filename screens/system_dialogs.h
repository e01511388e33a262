// The dialogs of the desktop system: printer and file. One current instance; the program installs
// one that opens them, tests install one that answers. Boxes have a seam of their own
// (core/messages.h).
#pragma once

#include <QSizeF>
#include <QString>

class QPrinter;

class SystemDialogs
{
public:
    virtual ~SystemDialogs() = default;

    // Lets the user choose printer, copies and pages; false after a cancel. `printer` brings what
    // is offered and takes the choice.
    virtual bool choosePrinter(QPrinter& printer, int pageCount) = 0;

    // A file to be written, existing ones confirmed; blank after a cancel. `pattern` is such as
    // "PDF Files (*.pdf)".
    virtual QString chooseFileToWrite(const QString& caption, const QString& suggestion,
                                      const QString& pattern) = 0;

    // A present file, looked for from `folder` (a native path) on; blank after a cancel.
    virtual QString chooseFileToRead(const QString& caption, const QString& folder,
                                     const QString& pattern) = 0;

    // The paper of the default printer in points, upright; empty without a printer.
    virtual QSizeF defaultPaper() = 0;

    // The current instance. Without one a dialog is a broken invariant.
    static SystemDialogs& current();
    static bool isInstalled();
    // Installs `dialogs`, which stays the caller's, and gives the one that was there.
    static SystemDialogs* install(SystemDialogs* dialogs);
};
