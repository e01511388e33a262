// The cells of a workbook in the old form, a compound file.
#pragma once

#include "screens/report/workbook/workbook_reader.h"

std::vector<WorkbookSheet> readXls(const QString& file, const WorkbookLimits& limits);
