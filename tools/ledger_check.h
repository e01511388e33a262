// The stock figures of a job site against its ledger: an item's four quantities are what a replay
// of its rows gives.
#pragma once

#include <QStringList>

// A line for each item of the file ZORVEX.mdb whose quantities are others: branch code, part number
// and tag, the stored and the replayed figures, and the row at which the history parts from the
// stored ones: the one after the last at which the replay stood at them, or the first when it never
// did. An item whose rows cannot be replayed is named with the reason. Fails as the store does.
QStringList ledgerFindingsIn(const QString& path);
