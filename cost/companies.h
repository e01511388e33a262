// The companies of a job site.
#pragma once

#include "screens/browse/browse_spec.h"
#include "screens/data/data_spec.h"

BrowseSpec frmZORCO01();
// One of them, with its logo.
DataSpec frmZORCO02();

// Native path of a logo, of which the record has the name below the program's media folder.
QString logoPath(const QString& LOGOFILENAME);
// The name that is kept of a file that was picked: what follows the media folder; empty for a file
// elsewhere.
QString logoName(const QString& pickedPath);
