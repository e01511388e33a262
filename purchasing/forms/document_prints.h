// The report viewers of requisitions and purchase orders. Each prints the documents that the user
// has marked, by their numbers, one after the other; without a mark the one of the tag.
#pragma once

#include "screens/report/report_spec.h"

// "Report Viewer - Requisitions": a requisition, a request for quotation, or a blank form.
ReportSpec frmVEXREQ04(qint32 REQTAG);
// "Report Viewer - Purchase Orders": the forms of a purchase order.
ReportSpec frmVEXPO04(qint32 POTAG);
