// The switches of a job site, one row of SYSSETTINGS in ZORSYS.mdb. A screen reads those that it
// needs when it is loaded, so that a change counts from the next time it is opened.
#pragma once

#include "core/schema/field_name.h"
#include "core/storage/value.h"

// Null where the file, the row or the value is not there. Other failures of the store are thrown.
storage::Value siteSetting(const QString& jobSitePath, schema::FieldName field);

// A switch; off where it is not there.
inline bool siteSwitch(const QString& jobSitePath, schema::FieldName field)
{
    return siteSetting(jobSitePath, field).toInt() != 0;
}
