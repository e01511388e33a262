#include "core/text.h"

QString dnPadRight(const QString& text, int width)
{
    return text.trimmed().leftJustified(width);
}

QString dnPadLeftZero(const QString& text, int width)
{
    return text.trimmed().rightJustified(width, '0');
}

QString dnRepeat(const QString& text, int count)
{
    return text.repeated(std::max(count, 0));
}

QString dnPhoneFormat(const QString& text)
{
    QString digits;
    for (const QChar c : text)
        if (c >= '0' && c <= '9')
            digits += c;
    if (digits.size() != 7 && digits.size() != 10)
        return digits;
    const QString area = digits.size() == 10 ? digits.left(3) : QString(3, ' ');
    const QString local = digits.right(7);
    return '(' + area + ") " + local.left(3) + '-' + local.mid(3);
}

QString dnProperCase(const QString& text, const QString& separator)
{
    QString result = text.trimmed();
    if (result.isEmpty())
        return result;
    result[0] = result[0].toUpper();
    if (separator.isEmpty())
        return result;
    for (qsizetype at = result.indexOf(separator); at >= 0;
         at = result.indexOf(separator, at + 1)) {
        const qsizetype next = at + separator.size();
        if (next >= result.size())
            break;
        const QString rest = result.mid(next) + "    ";
        const bool small = rest.startsWith("a ") || rest.startsWith("of ") ||
                           rest.startsWith("the ") || rest.startsWith("and ") ||
                           rest.startsWith("for ");
        if (!small)
            result[next] = result[next].toUpper();
    }
    return result;
}

QString dnStripChar(const QString& text, const QString& chars)
{
    QString result;
    for (const QChar c : text)
        if (!chars.contains(c))
            result += c;
    return result;
}

QString dnBadFileChar(const QString& text)
{
    static const QString bad = "\\/:*?<>|";
    for (const QChar c : text)
        if (bad.contains(c))
            return c;
    return " ";
}
