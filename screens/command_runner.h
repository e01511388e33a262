// Where the commands of screens meet failures of the store: each is shown in a box with the store's
// number and text, and the program goes on.
#pragma once

#include <QAbstractButton>
#include <functional>

namespace storage {
class StorageError;
}

void showStorageError(const storage::StorageError& error);

// Runs a command; false after a failure, which was shown.
bool runCommand(const std::function<void()>& command);

// Runs the command at each press of the button.
void onPressed(QAbstractButton* button, std::function<void()> command);
