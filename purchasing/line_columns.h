// What the list of line items shows: its columns, and the document above them.
#pragma once

#include "purchasing/line_list_state.h"

std::vector<BrowseColumn> lineColumns(const LineState& state);
QString ownerText(const BrowseSession& list, const LineListState& state);
