// Dates as texts. A shown date is month, day and year, such as 03/07/2026; beside it stands a sort
// key of eight digits, year first. "01/01/1900" is the program's null date, "  /  /  " the empty
// entry mask.
#pragma once

#include <QString>

// The century of a year of one or two digits: above the pivot 19xx, otherwise 20xx.
inline constexpr int defaultDatePivot = 30;

enum class DateForm {
    Digits6 = 6,  // 030726
    Short8 = 8,   // 03/07/26
    Long10 = 10,  // 03/07/2026, used nearly everywhere
};

// `text` in a free form: month, day and year parted by '.', '/' or '-' in any mix, or six or eight
// digits. Ten blanks when it is no date. February 29 passes in any year: only the lengths of months
// are checked. `pivot` outside 1 to 99 becomes 30, negative ones positive, and the caller sees it.
QString dnFixDate(const QString& text, DateForm form, int& pivot);
QString dnFixDate(const QString& text, DateForm form = DateForm::Long10);

// Year, month and day without separators; eight blanks when it is no date.
QString dnDateKey(const QString& text, int& pivot);
QString dnDateKey(const QString& text);

// Such as "Saturday, March 7th, 2026"; "Invalid Date: " and the text when it is no date.
QString dnLongDate(const QString& date);

// The label of a report's period: "From 03/07/2026 to 03/14/2026". Where `showsPeriodEnds` is set
// and the two differ, followed by "  (PE 03/07/2026 to PE 03/14/2026)". What is no date stays as it
// is.
QString dnPEDateRange(const QString& peDate, const QString& date2, bool showsPeriodEnds);

// The present moment as date, two blanks and time: "03/07/2026  09:05 AM".
QString dnNowStamp();
