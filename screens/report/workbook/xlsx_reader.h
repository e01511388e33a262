// The cells of a workbook in the new form.
#pragma once

#include "screens/report/workbook/workbook_reader.h"

std::vector<WorkbookSheet> readXlsx(const QString& file, const WorkbookLimits& limits);
