// The soundness of an installation's files: are they there, are they whole, do they have the shape
// that the schema tells.
#pragma once

#include <QStringList>

#include "tools/installation.h"

// What is wrong with the file, a line each, without its name. A file that is damaged, foreign or
// missing is a finding like any other.
QStringList findingsIn(const SiteFile& file);

// The findings of all files of the folders, each led by the file's name.
QStringList findingsIn(const std::vector<SiteFolder>& folders);
