#include "screens/report/workbook/biff_input.h"

#include <QtEndian>

BiffRecords::BiffRecords(const QByteArray& stream, qsizetype place)
    : m_stream(stream), m_place(place)
{
    if (place < 0 || place > stream.size())
        throw DamagedBiff();
}

bool BiffRecords::next(BiffRecord& record)
{
    constexpr qsizetype headLength = 4;
    if (m_stream.size() - m_place < headLength)
        return false;
    const char* head = m_stream.data() + m_place;
    const qsizetype length = qFromLittleEndian<quint16>(head + 2);
    m_place += headLength;
    if (m_stream.size() - m_place < length)
        throw DamagedBiff();
    record = {qFromLittleEndian<quint16>(head), m_stream.sliced(m_place, length)};
    m_place += length;
    return true;
}

bool BiffRecords::isNext(quint16 number) const
{
    return m_stream.size() - m_place >= 2 &&
           qFromLittleEndian<quint16>(m_stream.data() + m_place) == number;
}

template <class T>
T BiffData::fromLittleEndian(const char* bytes)
{
    return qFromLittleEndian<T>(bytes);
}
template quint8 BiffData::fromLittleEndian(const char*);
template quint16 BiffData::fromLittleEndian(const char*);
template quint32 BiffData::fromLittleEndian(const char*);
template double BiffData::fromLittleEndian(const char*);

bool BiffData::atEnd()
{
    while (m_part < m_parts.size() && m_place == m_parts[m_part].size()) {
        ++m_part;
        m_place = 0;
    }
    return m_part == m_parts.size();
}

char BiffData::takeByte()
{
    if (atEnd())
        throw DamagedBiff();
    return m_parts[m_part][m_place++];
}

void BiffData::skip(qint64 count)
{
    while (count > 0) {
        if (atEnd())
            throw DamagedBiff();
        const qsizetype step = std::min<qint64>(count, m_parts[m_part].size() - m_place);
        m_place += step;
        count -= step;
    }
}

QString BiffData::takeCharacters(int count, bool isWide)
{
    QString text;
    while (count > 0) {
        const size_t part = m_part;
        if (atEnd())
            throw DamagedBiff();
        // Where a text goes on in the next record it tells its form anew.
        if (m_part != part)
            isWide = take<quint8>() & 1;
        const qsizetype unit = isWide ? 2 : 1;
        const QByteArrayView rest = m_parts[m_part].sliced(m_place);
        const qsizetype here = std::min<qsizetype>(count, rest.size() / unit);
        if (here == 0)
            throw DamagedBiff();  // half a character
        for (qsizetype at = 0; at < here; ++at)
            text += isWide ? QChar(qFromLittleEndian<quint16>(rest.data() + 2 * at))
                           : QChar(static_cast<uchar>(rest[at]));
        m_place += here * unit;
        count -= static_cast<int>(here);
    }
    return text;
}

QString BiffData::takeText(bool shortLength)
{
    const int length = shortLength ? take<quint8>() : take<quint16>();
    const quint8 form = take<quint8>();
    const quint16 runs = form & 8 ? take<quint16>() : 0;
    const quint32 phonetics = form & 4 ? take<quint32>() : 0;
    QString text = takeCharacters(length, form & 1);
    skip(qint64(runs) * 4 + phonetics);
    return text;
}

QString BiffData::takeBytesAsText(bool shortLength)
{
    return takeCharacters(shortLength ? take<quint8>() : take<quint16>(), false);
}
