// The data that the benchmarks run on: made once in the build folder, the same each time.
#pragma once

#include <QString>
#include <initializer_list>

#include "core/schema/files.h"
#include "core/storage/workspace.h"

inline constexpr int benchLineCount = 500'000;

// A file ZORVEX.mdb with all of its 40 odd tables and `benchLineCount` line items, which have a
// further index BENCH3 on POTAG, POITEMNO and POLINENO. Tags run from 1.
const QString& benchLinesFile();

// A new file with those tables of the schema.
storage::Database benchFile(storage::Workspace& workspace, const QString& path,
                            std::initializer_list<const schema::Table*> tables);

// A new folder that goes with the process.
QString benchScratchFolder();
