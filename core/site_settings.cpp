#include "core/site_settings.h"

#include "core/locators.h"
#include "core/storage/file_paths.h"

storage::Value siteSetting(const QString& jobSitePath, schema::FieldName field)
{
    constexpr char file[] = "ZORSYS.mdb";
    if (!storage::pathExists(storage::joinPath(jobSitePath, file)))
        return {};
    const OpenTable settings = openTable(jobSitePath, file, "SYSSETTINGS");
    return settings.rows.RecordCount() > 0 ? settings.rows[field].value() : storage::Value();
}
