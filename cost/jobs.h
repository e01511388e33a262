// The jobs of a company, and what belongs to one of them.
#pragma once

#include <QWidget>

#include "core/job_numbers.h"
#include "screens/browse/browse_spec.h"
#include "screens/screen_context.h"

BrowseSpec frmZORJOB01(const JobNoFormat& format);
// Null, told before, when the site's job numbers have no size.
QWidget* newJobNumbers(const ScreenContext& context);
