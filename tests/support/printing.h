// Texts in the messages of failed tests.
#pragma once

#include <QString>
#include <ostream>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << qUtf8Printable(text) << '"';
}
QT_END_NAMESPACE
