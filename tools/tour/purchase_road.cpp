#include "tools/tour/purchase_road.h"

void walkPurchaseRoad(Hands& hands, Road& road, const QString& pdf)
{
    road.begin("The road of one purchase", "From an empty job site to the order on paper.");
    hands.awaitMainWindow();
    road.picture("start", hands.picture(), "The main window");
    setUpCostStructure(hands, road);
    setUpPurchasing(hands, road);
    setUpStock(hands, road);
    raiseRequisition(hands, road);
    makeOrders(hands, road);
    lookAtLedger(hands, road);
    printOrder(hands, road, pdf);
    hands.keys({"Alt+F"});
    hands.leaveBy("X");
}
