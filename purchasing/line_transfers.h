// Commands that take a requisition's marked lines to orders and to other requisitions.
#pragma once

#include "purchasing/line_list_state.h"

void postToNewOrder(BrowseSession& list, LineListState& state);       // by frmVEXREQ09
void postToExistingOrder(BrowseSession& list, LineListState& state);  // by frmVEXREQ13
void transferLines(BrowseSession& list, LineListState& state);        // by frmVEXRQI03
