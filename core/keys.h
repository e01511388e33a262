// What a key does in an entry field, apart from the field. Keys are told by their character; where
// a key code is meant it is that of the keyboards the system grew up with.
#pragma once

#include <QString>
#include <optional>

inline constexpr int enterKey = 13;

// What a key press in an entry field becomes. A swallowed one is 0.
//
// Enter moves to the next field, unless `keepEnter`: true is returned, the key is swallowed, and
// the caller sends a Tab. With `upper` a letter from a to z becomes a capital.
bool dnEnterToTab(int& key, bool upper, bool keepEnter = false);

// The same for a text that comes at once, such as one that is pasted.
QString withTypedCapitals(QString text);

// What may be typed into a field of a number.
enum class NumberKeys { Digits, SignedDigits, Decimal, SignedDecimal };

// True if the character may stand in such a number, or is a control character such as Backspace.
bool dnNumericKey(QChar key, NumberKeys allowed);
QString withNumericKeysOnly(const QString& text, NumberKeys allowed);

// The character of a key code, in the case of the Shift state; empty when it has none.
QString dnKeyToChar(int keyCode, bool shift);

// What a date field holds after '=' (today), '+' (the next day, in an empty field today) or '-'
// (the day before), as the ten characters of a shown date. Nothing when the key is an ordinary one:
// any other, or '-' in a text that is no date yet.
std::optional<QString> dnDateKeyEdit(QChar key, const QString& text);
