// The small screens that copy tagged items between a branch and the catalog, and the one that
// refreshes the list of part numbers. Each goes into the main window.
#pragma once

#include "core/session.h"

class SmallDialog;

// "Add Tagged Items to Inventory Catalog": those of the branch.
SmallDialog* frmVEXINV09(const Session& session, qint32 ILCTAG);
// "Add Tagged Inventory Catalog Items to a Branch Inventory": the user chooses the branch.
SmallDialog* frmVEXINVCAT09(const Session& session);
SmallDialog* frmVEXREFRESHPN(const Session& session);
