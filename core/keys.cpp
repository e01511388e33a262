#include "core/keys.h"

#include <QDate>

#include "core/dates.h"
#include "core/system.h"
#include "core/text.h"

namespace {

constexpr char shownForm[] = "MM/dd/yyyy";

struct MarkKey
{
    int code;
    const char* plain;
    const char* shifted;
};

constexpr MarkKey markKeys[] = {
    {186, ";", ":"},  {187, "=", "+"}, {188, ",", "<"},  {189, "-", "_"},
    {190, ".", ">"},  {191, "/", "?"}, {192, "`", "~"},  {219, "[", "{"},
    {220, "\\", "|"}, {221, "]", "}"}, {222, "'", "\""},
};

bool isSmallLetter(int key)
{
    return key >= 'a' && key <= 'z';
}

QString numberPadCharacter(int keyCode)
{
    static const QString characters = "0123456789*+ -./";
    const QString found = characters.mid(keyCode - 96, 1);
    return found == " " ? QString() : found;  // 108 is no key of the pad
}

QDate readShownDate(const QString& text)
{
    return QDate::fromString(dnFixDate(text), shownForm);
}

bool isEmptyDate(const QString& text)
{
    return dnIsBlank(dnStripChar(text, "/"));
}

}  // namespace

bool dnEnterToTab(int& key, bool upper, bool keepEnter)
{
    if (key == enterKey && !keepEnter) {
        key = 0;
        return true;
    }
    if (upper && isSmallLetter(key))
        key -= 'a' - 'A';
    return false;
}

QString withTypedCapitals(QString text)
{
    for (QChar& character : text) {
        int key = character.unicode();
        dnEnterToTab(key, true, true);
        character = QChar(key);
    }
    return text;
}

bool dnNumericKey(QChar key, NumberKeys allowed)
{
    if (key.category() == QChar::Other_Control || (key >= '0' && key <= '9'))
        return true;
    const bool hasSign =
        allowed == NumberKeys::SignedDigits || allowed == NumberKeys::SignedDecimal;
    const bool hasPoint = allowed == NumberKeys::Decimal || allowed == NumberKeys::SignedDecimal;
    return (key == '-' && hasSign) || (key == '.' && hasPoint);
}

QString withNumericKeysOnly(const QString& text, NumberKeys allowed)
{
    QString kept;
    for (const QChar character : text)
        if (dnNumericKey(character, allowed))
            kept += character;
    return kept;
}

QString dnKeyToChar(int keyCode, bool shift)
{
    if (keyCode >= 'A' && keyCode <= 'Z') {
        const QChar letter(keyCode);
        return shift ? letter : letter.toLower();
    }
    if (keyCode >= '0' && keyCode <= '9')
        return shift ? QChar(")!@#$%^&*("[keyCode - '0']) : QChar(keyCode);
    if (keyCode == ' ')
        return QChar(keyCode);
    if (keyCode >= 96 && keyCode <= 111)
        return numberPadCharacter(keyCode);
    for (const MarkKey& mark : markKeys)
        if (mark.code == keyCode)
            return shift ? mark.shifted : mark.plain;
    return {};
}

std::optional<QString> dnDateKeyEdit(QChar key, const QString& text)
{
    const QDate date = readShownDate(text);
    QDate result;
    if (key == '=' || (key == '+' && isEmptyDate(text)))
        result = System::current().now().date();
    else if ((key == '+' || key == '-') && date.isValid())
        result = date.addDays(key == '+' ? 1 : -1);
    if (!result.isValid())
        return std::nullopt;
    return result.toString(shownForm);
}
