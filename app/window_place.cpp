#include "app/window_place.h"

#include <QFileInfo>
#include <QSettings>

#include "core/storage/file_paths.h"
#include "core/text.h"

namespace {

constexpr char geometryKey[] = "frmVEXMAIN/geometry";

// Blank where the folder is not there: a settings file alone would make it look like a user's.
QString placeFile(const QString& userSettingsPath)
{
    const QString folder = storage::nativePath(userSettingsPath);
    return dnNotBlank(userSettingsPath) && QFileInfo(folder).isDir() ? folder + "/vexley.ini"
                                                                     : QString();
}

}  // namespace

QByteArray storedWindowPlace(const QString& userSettingsPath)
{
    const QString file = placeFile(userSettingsPath);
    return file.isEmpty() ? QByteArray()
                          : QSettings(file, QSettings::IniFormat).value(geometryKey).toByteArray();
}

void storeWindowPlace(const QString& userSettingsPath, const QByteArray& geometry)
{
    const QString file = placeFile(userSettingsPath);
    if (!file.isEmpty())
        QSettings(file, QSettings::IniFormat).setValue(geometryKey, geometry);
}
