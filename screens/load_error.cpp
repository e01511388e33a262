#include "screens/load_error.h"

#include "core/messages.h"
#include "core/storage/storage_error.h"

namespace {

QPushButton* exitButtonOf(const QWidget* screen)
{
    for (const char* name : {"cmdExit", "CmdExit", "cmdCancel", "cmdClose", "cmdOK"})
        if (auto* button = screen->findChild<QPushButton*>(name))
            return button;
    return nullptr;
}

}  // namespace

void dnLoadError(QWidget* screen, int number, const QString& description)
{
    showCritical("Error Displaying Form", "Error Loading Form: " + screen->objectName() +
                                              "\n\nError Number: " + QString::number(number) +
                                              "\n\nError Description: " + description);
    QPushButton* exit = exitButtonOf(screen);
    for (QWidget* control : screen->findChildren<QWidget*>())
        if (control != exit && !control->isAncestorOf(exit))
            control->hide();
    if (exit) {
        exit->setEnabled(true);
        exit->show();
        exit->setFocus();
    }
}

bool loadScreen(QWidget* screen, const std::function<void()>& load)
{
    try {
        load();
        return true;
    } catch (const storage::StorageError& error) {
        dnLoadError(screen, error.number(), error.description());
        return false;
    }
}
