// The data that the benchmarks run on: made once in the build folder, the same each time.
#pragma once

#include <QString>

inline constexpr int benchLineCount = 500'000;

// A file ZORVEX.mdb with all of its 40 odd tables and `benchLineCount` line items, which have a
// further index BENCH3 on POTAG, POITEMNO and POLINENO. Tags run from 1.
const QString& benchLinesFile();

// A new folder that goes with the process.
QString benchScratchFolder();
