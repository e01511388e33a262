// Small questions about texts.
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
