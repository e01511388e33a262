#include "screens/user_layout.h"

#include <QFileInfo>
#include <QSettings>

#include "core/storage/file_paths.h"
#include "core/text.h"

// Blank where the folder is not there: a settings file alone would make it look like a user's.
UserLayout::UserLayout(const QString& userSettingsPath)
{
    const QString folder = storage::nativePath(userSettingsPath);
    if (dnNotBlank(userSettingsPath) && QFileInfo(folder).isDir())
        m_file = folder + "/vexley.ini";
}

QVariant UserLayout::value(const QString& key) const
{
    return m_file.isEmpty() ? QVariant() : QSettings(m_file, QSettings::IniFormat).value(key);
}

void UserLayout::setValue(const QString& key, const QVariant& value) const
{
    if (!m_file.isEmpty())
        QSettings(m_file, QSettings::IniFormat).setValue(key, value);
}
