#include "screens/report/workbook/number_form.h"

#include <QRegularExpression>
#include <cmath>

namespace {

constexpr double lastDay = 2958466;  // the first of the year 10000
constexpr int secondsOfDay = 86400;

}  // namespace

NumberForm builtInForm(int number)
{
    if ((number >= 18 && number <= 21) || (number >= 45 && number <= 47))
        return NumberForm::Time;
    if ((number >= 14 && number <= 22) || (number >= 27 && number <= 36) ||
        (number >= 50 && number <= 58))
        return NumberForm::Date;
    return NumberForm::Number;
}

NumberForm formOfMask(const QString& mask)
{
    // Quoted texts, escaped characters, fillers, and colours or locales in brackets.
    static const QRegularExpression noLetters(
        "\"[^\"]*\"|\\\\.|_.|\\*.|\\[(?!h+\\]|m+\\]|s+\\])[^\\]]*\\]",
        QRegularExpression::CaseInsensitiveOption);
    // A program writes no longer masks, and a hostile one would keep the pattern busy for minutes.
    constexpr int longestMask = 255;
    const QString first = mask.left(longestMask).remove(noLetters).section(';', 0, 0).toLower();
    if (first.contains("general"))
        return NumberForm::Number;
    const bool hasTime = first.contains('h') || first.contains('s');
    if (first.contains('y') || first.contains('d') || (first.contains('m') && !hasTime))
        return NumberForm::Date;
    return hasTime ? NumberForm::Time : NumberForm::Number;
}

storage::Value shownAs(NumberForm form, double number, bool since1904)
{
    if (form == NumberForm::Number || !(number >= 0 && number < lastDay))
        return number;
    qint64 day = static_cast<qint64>(std::floor(number));
    qint64 second = std::llround((number - std::floor(number)) * secondsOfDay);
    if (second == secondsOfDay) {
        ++day;
        second = 0;
    }
    const QTime time = QTime(0, 0).addSecs(static_cast<int>(second));
    if (form == NumberForm::Time && day == 0)
        return time.toString("HH:mm:ss");
    // Workbooks count a February 29th in 1900, which there was not.
    const QDate first = since1904 ? QDate(1904, 1, 1) : QDate(1899, 12, day < 60 ? 31 : 30);
    return QDateTime(first.addDays(day), time);
}
