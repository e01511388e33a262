// How a workbook shows a number: as a number, or as the date or time that it stands for.
#pragma once

#include "core/storage/value.h"

enum class NumberForm { Number, Date, Time };

// The form with one of the numbers that all workbooks know.
NumberForm builtInForm(int number);
// The form that a mask such as "dd/mm/yyyy" or "#,##0.00" describes.
NumberForm formOfMask(const QString& mask);

// Days since the end of 1899, or since the beginning of 1904, as the form tells; a number that is
// no date stays a number.
storage::Value shownAs(NumberForm form, double number, bool since1904);
