// What is settled for one job: its cost code groups, and how time and equipment are entered. Both
// screens edit a record of JOBLIST; `job` is its number and name, for their captions.
#pragma once

#include "screens/data/data_spec.h"

DataSpec frmZORJOB02(const QString& job);
DataSpec frmZORJOB03(const QString& job);
