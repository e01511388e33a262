// Looks whether the settings of a job site can be read, and reads those that the session holds.
#pragma once

#include "core/session.h"

// The name of the file or folder found at `path`, or empty text. A bad path or a drive that is not
// there counts as not found.
QString dnFileDir(const QString& path);

// Cuts one trailing separator off the job site's path and reads the EcoSys settings. What is
// missing is added to StartupErrors or, with `reportAtOnce`, shown where a file of the job site
// itself is not there. Fails as the store does.
void checkJobSite(Session& session, bool reportAtOnce);

// The box for a user who has just chosen a job site of which `file` is not under `path`.
void zorCannotFindDatabase(const QString& path, const QString& file, const QString& siteName);
