#include "screens/command_runner.h"

#include "core/messages.h"
#include "core/storage/storage_error.h"

void showStorageError(const storage::StorageError& error)
{
    showCritical("Error", QString("Error Number: %1\nError Description: %2")
                              .arg(error.number())
                              .arg(error.description()));
}

bool runCommand(const std::function<void()>& command)
{
    try {
        command();
        return true;
    } catch (const storage::StorageError& error) {
        showStorageError(error);
        return false;
    }
}

void onPressed(QAbstractButton* button, std::function<void()> command)
{
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [run = std::move(command)] { runCommand(run); });
}
