// The screen of one line item.
#pragma once

#include <memory>

#include "core/cost_code_groups.h"
#include "purchasing/document_kind.h"
#include "screens/data/data_spec.h"

// The document whose line items are entered.
struct LineOwner
{
    const DocumentKind* kind = &requisitions;
    qint32 docTag = 0;
    QString number;     // as it is shown
    qint32 REQTAG = 0;  // of an order: the requisition that it was made from, 0 for none
    int CONO = 0;
    QString JOBNO;  // stored form
    QString FDATE;
    QString LDATE;
    JobCostCodeSettings groups = {};
};
// Nothing where the document is gone.
std::optional<LineOwner> lineOwnerOf(const Session& session, const DocumentKind& kind,
                                     qint32 docTag);

// `carries` tells, as long as the list lives, whether a new line starts from the last one saved.
DataSpec frmVEXRQI02(const Session& session, const LineOwner& owner,
                     const std::shared_ptr<bool>& carries);
