// The data of a believable contractor, for trying the program out and for measuring it.
#pragma once

#include "tools/demo/world.h"

namespace demo {

// The names by which the contractor's people log in; they stamp the records.
extern const std::array<const char*, 4> demoUsers;

// Fills an empty job site; the current directory is the installation's folder. Equal plans give
// equal data. Item quantities agree with a replay of the ledger, counters stand at the next free
// number.
void fillJobSite(const Plan& plan, const QString& storedSitePath, qint32 siteTag);

}  // namespace demo
