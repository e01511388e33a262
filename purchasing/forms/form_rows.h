// The rows of a printed form before they are drawn: the texts of their cells, and on which page
// each stands.
#pragma once

#include <span>
#include <vector>

#include "purchasing/forms/form.h"

// A line with the texts of its cells, one for each column of the form.
struct PrintedRow
{
    const FormRow* row;
    QStringList cells;
};

QStringList cellsOf(const Form& form, const FormRow& row);

// What is too long for a column that wraps goes on in the rows of the same description, and in
// further ones. `rows` must outlive the result.
std::vector<PrintedRow> printedRows(const Form& form, const std::vector<int>& widths,
                                    const std::vector<FormRow>& rows);

// The rows of each page, at most `perPage`; at least one page. Rows that belong together stay
// together unless they are many: a line with its description, the notice, the subtotals. Of those
// that are parted at least two rows stand on either side. No page but the first begins with a blank
// row.
std::vector<std::span<const PrintedRow>> pagesOf(const std::vector<PrintedRow>& rows,
                                                 size_t perPage);
