// Who made a record and who last changed it: six text fields that many tables carry.
#pragma once

#include "core/storage/workspace.h"

// Both go to the record at `bookmark` and write its stamps with the present moment. A failure of
// the store is the caller's.
void zorStampAdd(storage::Recordset& rs, const QString& bookmark, const QString& userName);
void zorStampEdit(storage::Recordset& rs, const QString& bookmark, const QString& userName);

struct UpdateHistory
{
    struct Stamp
    {
        QString userName;  // a blank one reads "<Empty>" in all three
        QString date;
        QString time;
    };
    Stamp created;
    Stamp lastUpdated;
};

// Goes to the record and reads its stamps, for the window "Update Information".
UpdateHistory updateHistoryOf(storage::Recordset& rs, const QString& bookmark);
