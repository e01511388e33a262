// The list of part numbers that an item has borne. `jobSitePath` is the folder of the job site;
// questions go through the message seam, failures of the store are the caller's.
#pragma once

#include <QStringList>

#include "inventory/item_kind.h"

// After an item was saved: enters its present part number into the list and asks what becomes of a
// former one. `oldPARTNO` is blank for a new item.
void keepPartNumber(const QString& jobSitePath, const ItemKey& item, const QString& oldPARTNO,
                    const QString& PARTNO);

// Asks whether the number shall stand in the list with today's date, and enters it so. False where
// the user would not.
bool supersedeNow(const QString& jobSitePath, const ItemKey& item, const QString& PARTNO);

// Adds what the one's list has to the other's. How many.
int copyPartNumbers(const QString& jobSitePath, const ItemKey& from, const ItemKey& to);

// The first rows of the list, by date, each as number and date.
struct BornNumber
{
    QString PARTNO;
    QString FDATE;
};
std::vector<BornNumber> bornNumbers(const QString& jobSitePath, const ItemKey& item, int most);
