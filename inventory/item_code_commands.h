// The commands by which the screen of an item adds and renames the series and the subcategory that
// are typed in it.
#pragma once

#include "screens/data/data_spec.h"

std::vector<DataCommand> itemCodeCommands();
