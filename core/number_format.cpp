#include "core/number_format.h"

#include <cmath>

#include "core/text.h"

namespace {

// The amount's decimal digits, rounded half away from zero as it is written, not as it is held in
// binary: 2.675 gives 2.68. Fifteen digits are what a double holds for certain.
QString roundedDigits(double amount, int decimals)
{
    const int whole = amount < 1 ? 1 : static_cast<int>(std::log10(amount)) + 1;
    const QString exact = QString::number(amount, 'f', std::clamp(15 - whole, 0, 15));
    const qsizetype point = exact.indexOf('.');
    const QString fraction = point < 0 ? QString() : exact.mid(point + 1);
    QString digits = (point < 0 ? exact : exact.left(point)) +
                     fraction.left(decimals).leftJustified(decimals, '0');
    if (fraction.size() <= decimals || fraction[decimals] < '5')
        return digits;
    qsizetype at = digits.size();
    while (at > 0 && digits[at - 1] == '9')
        digits[--at] = '0';
    if (at == 0)
        return '1' + digits;
    digits[at - 1] = QChar(digits[at - 1].unicode() + 1);
    return digits;
}

QString withSeparators(QString whole)
{
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
        whole.insert(at, ',');
    return whole;
}

}  // namespace

QString dnFormat(double value, const QString& mask)
{
    if (dnIsBlank(mask))
        return QString::number(value, 'g', 15);
    if (!std::isfinite(value))
        return QString(mask.size(), '?');
    const qsizetype point = mask.indexOf('.');
    const QString wholeMask = point < 0 ? mask : mask.left(point);
    const QString fractionMask = point < 0 ? QString() : mask.mid(point + 1);
    const int decimals = static_cast<int>(fractionMask.count('0') + fractionMask.count('#'));

    const QString digits = roundedDigits(std::abs(value), decimals);
    QString whole = digits.left(digits.size() - decimals);
    QString fraction = digits.right(decimals);
    while (!whole.isEmpty() && whole[0] == '0')
        whole.remove(0, 1);
    whole = whole.rightJustified(wholeMask.count('0'), '0');
    for (qsizetype i = fraction.size() - 1; i >= 0 && fractionMask[i] == '#' && fraction[i] == '0';
         --i)
        fraction.chop(1);
    if (wholeMask.contains(','))
        whole = withSeparators(whole);
    const bool isZero = digits.count('0') == digits.size();
    return (value < 0 && !isZero ? "-" : "") + whole + (point < 0 ? "" : ".") + fraction;
}

QString dnFormatOrDash(double value, const QString& mask, bool dash)
{
    if (value == 0)
        return dash ? "-" : " ";
    return dnFormat(value, mask);
}
