// The lists of requisitions and of purchase orders.
#pragma once

#include "purchasing/document_dialogs.h"
#include "screens/browse/browse_spec.h"

BrowseSpec frmVEXREQ01();
BrowseSpec frmVEXPO01();
// The purchase orders of one requisition.
BrowseSpec ordersOfRequisition(qint32 REQTAG);
