// A field's value as the program sees it: null, a whole number, a fraction, money, a date, text or
// bytes. Booleans are the whole numbers 0 and -1.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <concepts>
#include <variant>

namespace storage {

// Money as a count of ten-thousandths.
struct Currency
{
    qint64 tenThousandths = 0;

    double toDouble() const { return static_cast<double>(tenThousandths) / 10000.0; }
    auto operator<=>(const Currency&) const = default;
    friend Currency operator+(Currency a, Currency b)
    {
        return {a.tenThousandths + b.tenThousandths};
    }
    friend Currency operator-(Currency a, Currency b)
    {
        return {a.tenThousandths - b.tenThousandths};
    }
};

class Value
{
public:
    Value() = default;  // null
    Value(bool value) : m_data(qint64(value ? -1 : 0)) {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) Value(T value) : m_data(static_cast<qint64>(value)) {}
    Value(double value) : m_data(value) {}
    Value(Currency value) : m_data(value) {}
    Value(const QString& value) : m_data(value) {}
    Value(QString&& value) : m_data(std::move(value)) {}
    Value(const char* utf8) : m_data(QString::fromUtf8(utf8)) {}
    Value(const QByteArray& value) : m_data(value) {}
    // Kept as wall-clock time in whole seconds; the zone of `value` is dropped.
    Value(const QDateTime& value);
    Value(QDate value);

    bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }

    // Conversions never fail: null and what has no such form give 0, false, empty text, no date.
    // Text that begins with a number gives that number.
    bool toBool() const { return toDouble() != 0; }
    int toInt() const { return static_cast<int>(toLongLong()); }
    qint64 toLongLong() const;
    double toDouble() const;
    Currency toCurrency() const;  // rounded half to even at the fourth decimal
    QString toString() const;     // dates as MM/DD/YYYY, with the time when it is not midnight
    QDateTime toDateTime() const;
    QByteArray toBytes() const;

    template <class T>
    const T* as() const
    {
        return std::get_if<T>(&m_data);
    }

    // Equality of the values: numbers of any kind by amount, text in full and with its case. Null
    // equals null only.
    friend bool operator==(const Value& a, const Value& b);

private:
    std::variant<std::monostate, qint64, double, Currency, QDateTime, QString, QByteArray> m_data;
};

}  // namespace storage
