#include "screens/qt_system_dialogs.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

bool QtSystemDialogs::choosePrinter(QPrinter& printer, int pageCount)
{
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pageCount);
    return dialog.exec() == QDialog::Accepted;
}

QString QtSystemDialogs::chooseFileToWrite(const QString& caption, const QString& suggestion,
                                           const QString& pattern)
{
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), caption,
                                        QDir::home().filePath(suggestion), pattern);
}

QString QtSystemDialogs::chooseFileToRead(const QString& caption, const QString& folder,
                                          const QString& pattern)
{
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), caption, folder, pattern);
}

QSizeF QtSystemDialogs::defaultPaper()
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    return printer.isNull() ? QSizeF() : printer.defaultPageSize().size(QPageSize::Point);
}
