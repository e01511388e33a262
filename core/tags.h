// Tags: the numbers that name records for life.
#pragma once

#include <QString>

// The next tag of a kind: `site` x 1,000,000 + the counter in `fieldName`, which is then one more;
// two processes never draw the same. `path` is the file's folder, blank for the current directory;
// `dbName` empty means MAIN.mdb, `tableName` empty SYSTAGS. A counter never used gives 1. On
// failure, which a box has told, 0 - and callers store that as it comes.
qint32 dnGetNewTag(const QString& path, const QString& fieldName, const QString& dbName,
                   const QString& tableName, qint32 site);
