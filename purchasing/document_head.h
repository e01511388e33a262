// The head of a requisition or of a purchase order: one screen serves both.
#pragma once

#include "core/job_numbers.h"
#include "purchasing/document_kind.h"
#include "screens/data/data_spec.h"

// Reads the requisition types and the site's settings; fails as the store does.
DataSpec frmVEXREQ02(const Session& session, const DocumentKind& kind, const JobNoFormat& format);
