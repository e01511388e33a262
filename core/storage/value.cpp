#include "core/storage/value.h"

#include <cmath>

namespace storage {
namespace {

// The leading number of a text, as keypunched: blanks in front and anything behind are let go.
double leadingNumber(const QString& text)
{
    const QByteArray bytes = text.trimmed().toLatin1();
    qsizetype end = 0;
    bool digits = false;
    bool point = false;
    if (end < bytes.size() && (bytes[end] == '-' || bytes[end] == '+'))
        ++end;
    for (; end < bytes.size(); ++end) {
        if (bytes[end] == '.' && !point)
            point = true;
        else if (bytes[end] >= '0' && bytes[end] <= '9')
            digits = true;
        else
            break;
    }
    return digits ? bytes.left(end).toDouble() : 0;
}

qint64 saturated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double limit = 9223372036854774784.0;  // the last double below 2^63
    return static_cast<qint64>(std::clamp(value, -limit, limit));
}

bool isNumber(const Value& value)
{
    return value.as<qint64>() || value.as<double>() || value.as<Currency>();
}

}  // namespace

Value::Value(const QDateTime& value)
{
    const QTime time = value.time();
    m_data = QDateTime(value.date(), QTime(time.hour(), time.minute(), time.second()), Qt::UTC);
}

Value::Value(QDate value) : m_data(QDateTime(value, QTime(0, 0), Qt::UTC)) {}

qint64 Value::toLongLong() const
{
    if (const auto* whole = as<qint64>())
        return *whole;
    return saturated(std::nearbyint(toDouble()));
}

double Value::toDouble() const
{
    if (const auto* whole = as<qint64>())
        return static_cast<double>(*whole);
    if (const auto* fraction = as<double>())
        return *fraction;
    if (const auto* money = as<Currency>())
        return money->toDouble();
    if (const auto* text = as<QString>())
        return leadingNumber(*text);
    return 0;
}

Currency Value::toCurrency() const
{
    if (const auto* money = as<Currency>())
        return *money;
    if (const auto* whole = as<qint64>())
        return {saturated(static_cast<double>(*whole) * 10000.0)};
    return {saturated(std::nearbyint(toDouble() * 10000.0))};
}

QString Value::toString() const
{
    if (const auto* text = as<QString>())
        return *text;
    if (const auto* whole = as<qint64>())
        return QString::number(*whole);
    if (const auto* moment = as<QDateTime>())
        return moment->time() == QTime(0, 0) ? moment->toString("MM/dd/yyyy")
                                             : moment->toString("MM/dd/yyyy h:mm:ss AP");
    if (const auto* bytes = as<QByteArray>())
        return QString::fromLatin1(bytes->toHex());
    if (isNull())
        return {};
    return QString::number(toDouble(), 'g', 15);
}

QDateTime Value::toDateTime() const
{
    const auto* moment = as<QDateTime>();
    return moment ? *moment : QDateTime();
}

QByteArray Value::toBytes() const
{
    const auto* bytes = as<QByteArray>();
    return bytes ? *bytes : QByteArray();
}

bool operator==(const Value& a, const Value& b)
{
    if (a.m_data.index() == b.m_data.index())
        return a.m_data == b.m_data;
    return isNumber(a) && isNumber(b) && a.toDouble() == b.toDouble();
}

}  // namespace storage
