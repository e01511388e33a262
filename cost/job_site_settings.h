// The switches of a job site, which all its users and the sibling modules share. Another screen
// reads them when it is next opened.
#pragma once

#include <QWidget>

#include "screens/data/data_spec.h"
#include "screens/screen_context.h"

DataSpec frmZORSYS(const Session& session);
// Without a row of settings the user is told and one is added. Null, told before, when there can be
// none.
QWidget* newJobSiteSettings(const ScreenContext& context);

// The steps of cmdJNRefresh: checks, questions, the new settings saved, then every job number
// rewritten, with progress and a way to stop.
void refreshJobNumbersFrom(DataSession& screen);
