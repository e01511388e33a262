// The columns of the lists of documents, and how a status looks.
#pragma once

#include "purchasing/document_list_state.h"

std::vector<BrowseColumn> requisitionColumns(const State& state);
std::vector<BrowseColumn> orderColumns(const State& state);

// A blank status is "Open".
QString statusOf(const storage::Recordset& rows);
RowTone toneOf(const QString& status);
