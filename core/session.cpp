#include "core/session.h"

#include "core/schema/files.h"

QString folderOf(const Session& session, const QString& file)
{
    for (const schema::File& known : schema::files) {
        const QLatin1String name(known.name.data(), static_cast<qsizetype>(known.name.size()));
        if (file.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        if (known.place == schema::Place::Program)
            return {};
        if (known.place == schema::Place::User)
            return session.UserSettingsPath;
    }
    return session.JobSitePath;
}
