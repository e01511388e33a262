// Connections of this process, one a file. Opening a file of 40 tables costs milliseconds, so a
// connection that nobody holds lingers for a second, idle and without any lock, and is taken up
// again if the path still names that very file. An administrator can replace files meanwhile.
#pragma once

#include "core/storage/engine.h"

namespace storage {

// `path` is native and absolute. Fails as opening the file fails.
std::shared_ptr<Engine> acquireEngine(const QString& path);

// Makes a new file. Fails with DatabaseExists, PathNotValid, ReadOnly, DiskFull.
std::shared_ptr<Engine> createEngine(const QString& path);

// Closes every connection that nobody holds. Needed before a process forks or replaces files.
void closeIdleEngines();

}  // namespace storage
