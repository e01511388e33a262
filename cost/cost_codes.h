// The cost codes of a job, one list for each of its groups A, B and C. One screen serves all three:
// the menu says which.
#pragma once

#include "core/cost_code_groups.h"
#include "screens/browse/browse_spec.h"
#include "screens/report/report_spec.h"
#include "screens/screen_context.h"

// How the site and the program want the list.
struct CostCodeColumns
{
    bool isLabour = false;   // the upload codes of labour in place of G/L and material code
    bool hasFurther = true;  // A/P code, line reference, reviewer, plant, location
};
BrowseSpec frmPLGCCG01(const CostCodeGroup& group, const CostCodeColumns& columns);
// The group's letter is the context's mode.
QWidget* newCostCodes(const ScreenContext& context);

// Its prints; `code`, in its stored form, is the one under the highlight, blank for none.
ReportSpec frmPLGCCG02(const CostCodeGroup& group, int CONO, const QString& JOBNO,
                       const QString& code);

// Asks for a code; blank after a cancel.
QString frmPLGCCG03();
// The code of that text, whatever its capitals, to the list's highlight; told when there is none.
void findCostCode(BrowseSession& list, const CostCodeGroup& group, const QString& text);
