// What the program remembers for a user, one row per job site. `rs` is an open handle on the table:
// VEXSETTINGS, or that of a sibling module, which has the same form.
#pragma once

#include "core/storage/workspace.h"

// The remembered value; a site without a row gets one. A failure is told in a box and gives null.
storage::Value zorGetUserSetting(storage::Recordset& rs, qint32 siteTag, const QString& field);
storage::Value zorGetPLGSetting(storage::Recordset& rs, qint32 siteTag, const QString& field);
storage::Value zorGetBRQSetting(storage::Recordset& rs, qint32 siteTag, const QString& field);

void zorSaveUserSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                        const storage::Value& value);
void zorSavePLGSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                       const storage::Value& value);
void zorSaveBRQSetting(storage::Recordset& rs, qint32 siteTag, const QString& field,
                       const storage::Value& value);
