#include "core/fit_column.h"

#include <cmath>

#include "core/storage/value.h"

namespace {

constexpr double overflow = 99'999'999;

QString wholeNumber(const QString& text, int size)
{
    const double whole = std::round(storage::Value(text).toDouble());
    if (whole >= overflow)
        return QString(size, '?');
    return whole == 0 ? QString() : QString::number(whole, 'f', 0);
}

}  // namespace

QString dnFitColumn(const QString& value, const QString& type, int size, bool leftJustify)
{
    if (size <= 0)
        return {};
    QString text = value.trimmed();
    if (type == "N")
        text = wholeNumber(text, size);
    if (type == "C")
        text = text.toUpper();
    text.truncate(size);
    return leftJustify ? text.leftJustified(size) : text.rightJustified(size);
}
