// Numbers as the screens and prints show them, by masks such as "###,###,###.00": '#' is a digit
// where there is one, '0' a digit always, ',' between digits asks for thousands separators.
#pragma once

#include <QString>

// `value` by `mask`, rounded half away from zero at the mask's last decimal. Digits that the mask
// has no place for stand all the same. Without a '0' before the point there is none there below 1:
// .50, and "###" of zero is empty. A blank mask gives the number in its shortest form.
QString dnFormat(double value, const QString& mask);

// The same; zero gives "-" where `dash` is set, else " ".
QString dnFormatOrDash(double value, const QString& mask, bool dash);
