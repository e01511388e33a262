#include "core/storage/definitions.h"

#include <cmath>
#include <limits>

#include "core/storage/storage_error.h"

namespace storage {
namespace {

template <class Items>
int positionByName(const Items& items, const QString& name)
{
    for (size_t i = 0; i < items.size(); ++i)
        if (items[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

// A text that is a number as a whole, or fails. Words for infinity and the like are none.
double numberFromText(const FieldDefinition& field, const QString& text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number))
        fail(ErrorNumber::Conversion, field.name);
    return number;
}

double numberOf(const FieldDefinition& field, const Value& value)
{
    if (const auto* text = value.as<QString>())
        return numberFromText(field, *text);
    if (value.as<QDateTime>() || value.as<QByteArray>())
        fail(ErrorNumber::Conversion, field.name);
    const double number = value.toDouble();
    if (!std::isfinite(number))
        fail(ErrorNumber::NumericOverflow, field.name);
    return number;
}

template <class T>
Value wholeNumber(const FieldDefinition& field, const Value& value)
{
    if (const auto* whole = value.as<qint64>()) {
        if (!std::in_range<T>(*whole))
            fail(ErrorNumber::NumericOverflow, field.name);
        return value;
    }
    const double rounded = std::nearbyint(numberOf(field, value));
    if (rounded < static_cast<double>(std::numeric_limits<T>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<T>::max()))
        fail(ErrorNumber::NumericOverflow, field.name);
    return static_cast<qint64>(rounded);
}

Value money(const FieldDefinition& field, const Value& value)
{
    if (value.as<Currency>())
        return value;
    if (const auto* whole = value.as<qint64>()) {
        qint64 exact = 0;
        if (qMulOverflow(*whole, qint64(10'000), &exact))
            fail(ErrorNumber::NumericOverflow, field.name);
        return Currency{exact};
    }
    const double tenThousandths = std::nearbyint(numberOf(field, value) * 10000.0);
    if (std::abs(tenThousandths) >= 9.2e18)
        fail(ErrorNumber::NumericOverflow, field.name);
    return Currency{static_cast<qint64>(tenThousandths)};
}

Value singleFloat(const FieldDefinition& field, const Value& value)
{
    const double number = numberOf(field, value);
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
        fail(ErrorNumber::NumericOverflow, field.name);
    return static_cast<double>(static_cast<float>(number));
}

Value moment(const FieldDefinition& field, const Value& value)
{
    if (value.as<QDateTime>()) {
        if (!value.toDateTime().isValid())
            fail(ErrorNumber::Conversion, field.name);
        return value;
    }
    if (const auto* text = value.as<QString>()) {
        const QDate day = QDate::fromString(text->trimmed(), "MM/dd/yyyy");
        if (day.isValid())
            return day;
    }
    fail(ErrorNumber::Conversion, field.name);
}

// A NUL would end the text for half of the engine's functions; it has no business in a field.
QString plainText(const FieldDefinition& field, const Value& value)
{
    if (value.as<QByteArray>())
        fail(ErrorNumber::Conversion, field.name);
    QString text = value.toString();
    if (text.contains(QChar(0)) || !text.isValidUtf16())
        fail(ErrorNumber::Conversion, field.name);
    return text;
}

Value bytes(const FieldDefinition& field, const Value& value)
{
    if (!value.as<QByteArray>() || (field.type == FieldType::Guid && value.toBytes().size() != 16))
        fail(ErrorNumber::Conversion, field.name);
    return value;
}

}  // namespace

int TableDefinition::fieldPosition(const QString& fieldName) const
{
    return positionByName(fields, fieldName);
}

int TableDefinition::indexPosition(const QString& indexName) const
{
    return positionByName(indexes, indexName);
}

int TableDefinition::fieldPosition(schema::FieldName fieldName) const
{
    return m_positionByNumber.empty() ? -1 : m_positionByNumber[fieldName.number()];
}

void TableDefinition::numberFields()
{
    m_positionByNumber.assign(schema::fieldNames.count, -1);
    for (size_t i = 0; i < fields.size(); ++i) {
        const int number = schema::fieldNames.find(fields[i].name.toLatin1().toStdString());
        if (number >= 0)
            m_positionByNumber[static_cast<size_t>(number)] = static_cast<qint16>(i);
    }
}

TableDefinition definitionOf(const schema::Table& table)
{
    const auto text = [](std::string_view view) {
        return QString::fromLatin1(view.data(), static_cast<qsizetype>(view.size()));
    };
    TableDefinition definition;
    definition.name = text(table.name);
    for (const schema::Field& field : table.fields)
        definition.fields.push_back(
            {.name = text(field.name),
             .type = field.type,
             .size = sizeOfType(field.type, field.size),
             .defaultValue = {},
             .ordinalPosition = static_cast<int>(definition.fields.size())});
    for (const schema::Index& index : table.indexes) {
        QStringList keys;
        for (size_t i = 0; i < index.keyCount(); ++i)
            keys.append(text(index.keys[i]));
        definition.indexes.push_back({text(index.name), keys, index.unique});
    }
    return definition;
}

int sizeOfType(FieldType type, int textSize)
{
    switch (type) {
        case FieldType::Boolean:
        case FieldType::Byte:
            return 1;
        case FieldType::Integer:
            return 2;
        case FieldType::Long:
        case FieldType::Single:
            return 4;
        case FieldType::Currency:
        case FieldType::Double:
        case FieldType::Date:
            return 8;
        case FieldType::Guid:
            return 16;
        case FieldType::Text:
        case FieldType::Binary:
            return textSize;
        case FieldType::Memo:
            return 0;
    }
    return 0;
}

Value asKey(const FieldDefinition& field, const Value& value)
{
    if (value.isNull())
        return value;
    switch (field.type) {
        case FieldType::Boolean:
            return Value(numberOf(field, value) != 0);
        case FieldType::Byte:
            return wholeNumber<quint8>(field, value);
        case FieldType::Integer:
            return wholeNumber<qint16>(field, value);
        case FieldType::Long:
            return wholeNumber<qint32>(field, value);
        case FieldType::Currency:
            return money(field, value);
        case FieldType::Single:
            return singleFloat(field, value);
        case FieldType::Double:
            return numberOf(field, value);
        case FieldType::Date:
            return moment(field, value);
        case FieldType::Text:
        case FieldType::Memo:
            return plainText(field, value);
        case FieldType::Binary:
        case FieldType::Guid:
            return bytes(field, value);
    }
    return {};
}

Value fitted(const FieldDefinition& field, const Value& value)
{
    if (value.isNull()) {
        if (field.type == FieldType::Boolean)
            return false;
        if (field.required)
            fail(ErrorNumber::Required, field.name);
        return value;
    }
    Value result = asKey(field, value);
    if (const auto* text = result.as<QString>()) {
        if (text->isEmpty() && !field.allowZeroLength)
            fail(ErrorNumber::ZeroLength, field.name);
        if (field.type == FieldType::Text && text->size() > field.size)
            fail(ErrorNumber::TooLong, field.name);
    }
    if (field.type == FieldType::Binary && field.size > 0 && result.toBytes().size() > field.size)
        fail(ErrorNumber::TooLong, field.name);
    return result;
}

}  // namespace storage
