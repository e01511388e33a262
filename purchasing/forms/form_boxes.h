// The boxes of a printed form's head and foot.
#pragma once

#include "purchasing/forms/form.h"

struct PageCount
{
    int page = 0;
    int of = 0;  // 0: not known, and not printed
};

// Draws the row with its top left corner there; gives the y below it. The widths add up to the
// whole, whatever their parts round to.
int drawBoxRow(PageDocument& pages, const FormBoxRow& row, const FormDocument& document,
               const PageBox& place, PageCount count = {});
