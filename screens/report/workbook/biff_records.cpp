#include "screens/report/workbook/biff_records.h"

#include <QtEndian>

namespace {

constexpr qsizetype maxRecord = 8224;
constexpr quint16 sharedTextsRecord = 0x00fc;
constexpr quint16 continueRecord = 0x003c;
constexpr qsizetype textHead = 3;  // 16 bits of length, the flag of the form

// Texts without further characters take a byte for each.
bool isLatin1(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 256; });
}

QByteArray bytesOf(QStringView text, bool isWide)
{
    if (!isWide)
        return text.toLatin1();
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

// Fills records up to their limit, one continuing the other.
class ContinuedRecord
{
public:
    ContinuedRecord(BiffStream& stream, quint16 number) : m_stream(stream), m_number(number) {}
    ~ContinuedRecord() { flush(); }
    ContinuedRecord(const ContinuedRecord&) = delete;
    ContinuedRecord& operator=(const ContinuedRecord&) = delete;

    BiffStream& data() { return m_data; }
    qsizetype room() const { return maxRecord - m_data.size(); }

    void continueInNext()
    {
        flush();
        m_number = continueRecord;
        m_data = {};
    }

private:
    void flush()
    {
        m_stream.record(m_number, static_cast<quint16>(m_data.size()));
        m_stream.append(m_data.bytes());
    }

    BiffStream& m_stream;
    quint16 m_number;
    BiffStream m_data;
};

void putText(ContinuedRecord& record, const QString& text)
{
    const bool isWide = !isLatin1(text);
    const qsizetype unit = isWide ? 2 : 1;
    // The first character goes with the head, as readers expect a text to begin where it is told.
    if (record.room() < textHead + (text.isEmpty() ? 0 : unit))
        record.continueInNext();
    record.data().put16(static_cast<quint16>(text.size())).put8(isWide);
    const QByteArray bytes = bytesOf(text, isWide);
    qsizetype done = 0;
    while (done < bytes.size()) {
        if (record.room() < unit) {
            record.continueInNext();
            record.data().put8(isWide);  // each part tells its form
        }
        const qsizetype part = std::min(bytes.size() - done, record.room() / unit * unit);
        record.data().append(bytes.mid(done, part));
        done += part;
    }
}

}  // namespace

template <class T>
void BiffStream::putLittleEndian(T value)
{
    char bytes[sizeof(T)];
    qToLittleEndian(value, bytes);
    m_bytes.append(bytes, sizeof(T));
}

void BiffStream::record(quint16 number, quint16 length)
{
    put16(number).put16(length);
}

BiffStream& BiffStream::put8(quint8 value)
{
    m_bytes.append(static_cast<char>(value));
    return *this;
}

BiffStream& BiffStream::put16(quint16 value)
{
    putLittleEndian(value);
    return *this;
}

BiffStream& BiffStream::put32(quint32 value)
{
    putLittleEndian(value);
    return *this;
}

BiffStream& BiffStream::putDouble(double value)
{
    putLittleEndian(std::bit_cast<quint64>(value));
    return *this;
}

BiffStream& BiffStream::putZeros(int count)
{
    m_bytes.append(count, '\0');
    return *this;
}

void BiffStream::putShortText(const QString& text)
{
    put8(static_cast<quint8>(text.size())).put8(1);
    m_bytes.append(bytesOf(text, true));
}

void BiffStream::patch32(qsizetype place, quint32 value)
{
    qToLittleEndian(value, m_bytes.data() + place);
}

quint32 SharedTexts::numberOf(const QString& text)
{
    ++m_uses;
    const auto [found, isNew] = [&] {
        const qsizetype before = m_numbers.size();
        quint32& number = m_numbers[text];
        return std::pair<quint32&, bool>(number, m_numbers.size() > before);
    }();
    if (isNew) {
        found = static_cast<quint32>(m_texts.size());
        m_texts.append(text);
        m_size += textHead + 2 * text.size();
    }
    return found;
}

void SharedTexts::write(BiffStream& stream) const
{
    ContinuedRecord record(stream, sharedTextsRecord);
    record.data().put32(m_uses).put32(static_cast<quint32>(m_texts.size()));
    for (const QString& text : m_texts)
        putText(record, text);
}
