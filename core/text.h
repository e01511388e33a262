// Small work on texts that all screens share.
#pragma once

#include <QString>

// True if nothing but blanks is in it.
inline bool dnIsBlank(const QString& text)
{
    return text.trimmed().isEmpty();
}
inline bool dnNotBlank(const QString& text)
{
    return !dnIsBlank(text);
}

// The trimmed text with blanks behind, or zeros in front, up to the width; a longer one as it is.
QString dnPadRight(const QString& text, int width);
QString dnPadLeftZero(const QString& text, int width);
QString dnRepeat(const QString& text, int count);

// The digits of a phone number as "(123) 456-7890"; seven digits leave the area code blank. Other
// counts stay digits.
QString dnPhoneFormat(const QString& text);

// Trimmed, the first letter and those after each separator in capitals, except before the words
// a, of, the, and, for.
QString dnProperCase(const QString& text, const QString& separator = " ");

QString dnStripChar(const QString& text, const QString& chars);

// The first character that no file name may have, or " ".
QString dnBadFileChar(const QString& text);
