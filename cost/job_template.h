// The user's template of a job's settings, the one row of JOBDEFAULTS: what the buttons Set
// Defaults and Load Defaults write and read. Failures of the store are the caller's.
#pragma once

#include <span>

#include "screens/entry/entry.h"

// Writes the entry's texts of those fields.
void saveJobTemplate(const Entry& entry, std::span<const schema::FieldName> fields);

// Takes them into the entry, which is not written by that. False, and nothing taken, while no
// template was ever set.
bool loadJobTemplate(Entry& entry, std::span<const schema::FieldName> fields);
