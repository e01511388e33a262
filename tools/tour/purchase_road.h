// The road of one purchase, from an empty job site to the printed order, as a user goes it by the
// keyboard: the cost structure, the vendor, the stock, the requisition, two orders, the ledger, the
// paper.
#pragma once

#include "tools/tour/hands.h"
#include "tools/tour/road.h"

// `pdf` is the file into which the program saves pages. Ends with the program left. What keeps the
// road from being gone to its end is thrown.
void walkPurchaseRoad(Hands& hands, Road& road, const QString& pdf);

// Its parts, in their order; each begins and ends with no screen open.
void setUpCostStructure(Hands& hands, Road& road);
void setUpPurchasing(Hands& hands, Road& road);
void setUpStock(Hands& hands, Road& road);
void raiseRequisition(Hands& hands, Road& road);
void makeOrders(Hands& hands, Road& road);
void lookAtLedger(Hands& hands, Road& road);
void printOrder(Hands& hands, Road& road, const QString& pdf);

// The file of the company's logo, in the folder where the program looks for it.
inline constexpr char logoFile[] = "ALDER.png";
