#include "core/user_settings.h"

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/storage/storage_error.h"

namespace {

// Goes to the site's row, which is made when there is none.
void goToSite(storage::Recordset& rs, const QString& index, qint32 siteTag)
{
    if (siteTag == 0)
        showCritical("Warning", "Warning: Job Site Tag is Zero.");
    rs.Index(index);
    if (rs.Seek("=", siteTag))
        return;
    rs.AddNew();
    rs["DBTAG"] = siteTag;
    rs["CONO"] = 0;
    rs["CONOPAIR"] = 0;
    rs["JOBNOPAIR"] = " ";
    rs.Update();
    rs.Bookmark(rs.LastModified());
}

storage::Value getSetting(storage::Recordset& rs, const QString& index, qint32 siteTag,
                          const QString& field, const QString& refusal)
{
    try {
        goToSite(rs, index, siteTag);
        return dnNullCheck(rs.fieldNamed(field));
    } catch (const storage::StorageError&) {
        showCritical("Error", refusal);
        return {};
    }
}

void saveSetting(storage::Recordset& rs, const QString& index, qint32 siteTag, const QString& field,
                 const storage::Value& value)
{
    try {
        goToSite(rs, index, siteTag);
        rs.Edit();
        rs.fieldNamed(field) = value;
        rs.Update();
    } catch (const storage::StorageError&) {
        showCritical("Error", "Could not Save User Settings.");
    }
}

const QString notRetrieved = "Could not Retreive User Settings.";

}  // namespace

storage::Value zorGetUserSetting(storage::Recordset& rs, qint32 siteTag, const QString& field)
{
    return getSetting(rs, "VEXSETTINGS", siteTag, field, notRetrieved);
}

storage::Value zorGetPLGSetting(storage::Recordset& rs, qint32 siteTag, const QString& field)
{
    return getSetting(rs, "PLGSETTINGS", siteTag, field, notRetrieved);
}

storage::Value zorGetBRQSetting(storage::Recordset& rs, qint32 siteTag, const QString& field)
{
    return getSetting(rs, "BRQSETTINGS", siteTag, field,
                      "Could not Retreive User Setting: " + field);
}

void zorSaveUserSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                        const storage::Value& value)
{
    saveSetting(rs, "VEXSETTINGS", siteTag, field, value);
}

void zorSavePLGSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                       const storage::Value& value)
{
    saveSetting(rs, "PLGSETTINGS", siteTag, field, value);
}

void zorSaveBRQSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                       const storage::Value& value)
{
    saveSetting(rs, "BRQSETTINGS", siteTag, field, value);
}
