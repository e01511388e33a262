// The amount of a document line, the same for requisitions, purchase orders, payments and invoices.
#pragma once

#include <QString>
#include <optional>

// Unit price / the factor's divisor x quantity, rounded once, to cents. The factor counts by its
// first character in either case: blank or `e` 1, `d` 12, `g` 144, `c` 100, `m` 1000. Any other is
// no factor, and there is no amount.
std::optional<double> lineAmount(double quantity, double unitPrice, const QString& unitFactor);

// Rounded to two decimals, an exact half cent to the even cent. What decimal fractions lose in
// binary does not hide a half: 1.225 is one, though its nearest double is not.
double roundedToCents(double amount);
