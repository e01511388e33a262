// Size and place of the main window, remembered in the user's settings folder. A convenience:
// what cannot be read or written is let go.
#pragma once

#include <QByteArray>
#include <QString>

// Empty when there is none.
QByteArray storedWindowPlace(const QString& userSettingsPath);
void storeWindowPlace(const QString& userSettingsPath, const QByteArray& geometry);
