// The stored form of job numbers and cost codes, so that the same text is always the same bytes.
// Nothing is compared, sought or written before it has passed here. The columns of prints
// know a routine of the same name, which is another: it aligns a number within a column's width and
// a text at its left on demand, and what it gives is shown, never a key.
#pragma once

#include <QString>

// `value` right-justified in `size` characters; one that is longer keeps its left end. Size 0 gives
// the empty text. `type` "C" upper-cases; "N" takes the number that the text begins with: 0 and
// what is no number give blanks, 99999999 and above as many "?" as the size, anything else its
// whole number. `leftJustify` gives the same at the left, for display only: keys never have it.
QString dnFitColumn(const QString& value, const QString& type, int size, bool leftJustify = false);
