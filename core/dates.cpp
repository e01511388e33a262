#include "core/dates.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <optional>

#include "core/system.h"

namespace {

struct DateParts
{
    QString month;
    QString day;
    QString year;  // four digits
};

bool isNumber(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        return character >= '0' && character <= '9';
    });
}

QStringList splitDate(const QString& text)
{
    static const QRegularExpression separators("[./-]");
    if (text.contains(separators))
        return text.split(separators);
    if (text.size() == 6 || text.size() == 8)
        return {text.left(2), text.mid(2, 2), text.mid(4)};
    return {};
}

bool isDayOfMonth(uint day, uint month)
{
    if (month == 0 || month > 12 || day == 0 || day > 31)
        return false;
    if (month == 2)
        return day < 30;
    const bool shortMonth = month == 4 || month == 6 || month == 9 || month == 11;
    return day < 31 || !shortMonth;
}

void mendPivot(int& pivot)
{
    pivot = std::abs(pivot);
    if (pivot == 0 || pivot > 99)
        pivot = defaultDatePivot;
}

QString withCentury(const QString& year, int pivot)
{
    if (year.size() >= 3)
        return year;
    return (year.toInt() > pivot ? "19" : "20") + year.rightJustified(2, '0');
}

std::optional<DateParts> readDate(const QString& text, int& pivot)
{
    mendPivot(pivot);
    const QStringList parts = splitDate(text.trimmed());
    if (parts.size() != 3)
        return std::nullopt;
    const QString month = parts[0].trimmed();
    const QString day = parts[1].trimmed();
    const QString year = parts[2].trimmed();
    if (!isNumber(month) || !isNumber(day) || !isNumber(year))
        return std::nullopt;
    // Every result has ten characters, every key eight.
    if (!isDayOfMonth(day.toUInt(), month.toUInt()) || year.size() == 3 || year.size() > 4)
        return std::nullopt;
    return DateParts{QString::number(month.toUInt()).rightJustified(2, '0'),
                     QString::number(day.toUInt()).rightJustified(2, '0'),
                     withCentury(year, pivot)};
}

}  // namespace

QString dnFixDate(const QString& text, DateForm form, int& pivot)
{
    const auto date = readDate(text, pivot);
    if (!date)
        return QString(10, ' ');
    switch (form) {
        case DateForm::Digits6:
            return date->month + date->day + date->year.right(2);
        case DateForm::Short8:
            return date->month + '/' + date->day + '/' + date->year.right(2);
        case DateForm::Long10:
            break;
    }
    return date->month + '/' + date->day + '/' + date->year;
}

QString dnFixDate(const QString& text, DateForm form)
{
    int pivot = defaultDatePivot;
    return dnFixDate(text, form, pivot);
}

QString dnDateKey(const QString& text, int& pivot)
{
    const auto date = readDate(text, pivot);
    return date ? date->year + date->month + date->day : QString(8, ' ');
}

QString dnDateKey(const QString& text)
{
    int pivot = defaultDatePivot;
    return dnDateKey(text, pivot);
}

namespace {

// Of a date in the long form; null when the calendar has no such day.
QDate dayOf(const QString& longForm)
{
    return QDate::fromString(longForm, "MM/dd/yyyy");
}

QString ordinal(int day)
{
    const bool isTeen = day >= 11 && day <= 13;
    static const char* const suffixes[] = {"th", "st", "nd", "rd"};
    return QString::number(day) + (isTeen || day % 10 > 3 ? "th" : suffixes[day % 10]);
}

}  // namespace

QString dnLongDate(const QString& date)
{
    static const char* const days[] = {"Monday, ", "Tuesday, ",  "Wednesday, ", "Thursday, ",
                                       "Friday, ", "Saturday, ", "Sunday, "};
    static const char* const months[] = {"January ",   "February ", "March ",    "April ",
                                         "May ",       "June ",     "July ",     "August ",
                                         "September ", "October ",  "November ", "December "};
    const QDate day = dayOf(dnFixDate(date));
    if (!day.isValid())
        return "Invalid Date: " + date;
    return days[day.dayOfWeek() - 1] + QString(months[day.month() - 1]) + ordinal(day.day()) +
           ", " + QString::number(day.year());
}

QString dnPEDateRange(const QString& peDate, const QString& date2, bool showsPeriodEnds)
{
    const auto fixedOr = [](const QString& text) {
        const QString fixed = dnFixDate(text);
        return fixed.trimmed().isEmpty() ? text : fixed;
    };
    const QString first = fixedOr(peDate);
    const QString last = fixedOr(date2);
    QString text = "From " + first + " to " + last;
    if (showsPeriodEnds && first != last)
        text += "  (PE " + first + " to PE " + last + ")";
    return text;
}

QString dnNowStamp()
{
    return System::current().now().toString("MM/dd/yyyy  hh:mm AP");
}
