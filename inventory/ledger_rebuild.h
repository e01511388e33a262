// Making a branch's ledger anew from its documents: counts, orders with their receipts, transfers,
// returns, repair orders and adjustments. Then all items, of every branch, are replayed.
//
// The documents are read first, then what differs from them is taken out of the ledger and put in:
// the end is as if all had been deleted and written anew, at a fraction of the cost where most of
// it is right.
//
// Rows and replays are those of the everyday postings, but for two: material issue reports are
// forgotten, so that what is on hand rises by what was issued, and an item that has rows of them
// left, of another branch, keeps its quantities and is told; an item without any rows keeps its
// quantities.
#pragma once

#include <QString>
#include <functional>

// `proceed` is called after each document, line, row and item; false stops the run where it stands,
// with whole rows written. What is told meanwhile (an item that is missing, rows of unknown kinds)
// comes as boxes: OK goes on, Cancel stops. Nobody else may post to the branch. False when stopped.
// Failures of the store are the caller's; what was written stays, and a new run begins from the
// start.
bool rebuildLedger(const QString& jobSitePath, qint32 ilcTag, const std::function<bool()>& proceed);
