// The records of a BIFF8 stream: a number, a length, and at most 8,224 bytes.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

// A stream of records, numbers in little endian order.
class BiffStream
{
public:
    // Begins a record of `length` bytes, which the caller puts.
    void record(quint16 number, quint16 length);
    BiffStream& put8(quint8 value);
    BiffStream& put16(quint16 value);
    BiffStream& put32(quint32 value);
    BiffStream& putDouble(double value);
    BiffStream& putZeros(int count);
    // A text with the flag of its form, and 8 or 16 bits of its length before that.
    void putShortText(const QString& text);

    qsizetype size() const { return m_bytes.size(); }
    // Writes over what was put at the place.
    void patch32(qsizetype place, quint32 value);
    const QByteArray& bytes() const { return m_bytes; }
    void append(const QByteArray& bytes) { m_bytes.append(bytes); }

private:
    template <class T>
    void putLittleEndian(T value);

    QByteArray m_bytes;
};

// The texts of a workbook, each kept once.
class SharedTexts
{
public:
    // The number of the text, of at most 32,767 characters.
    quint32 numberOf(const QString& text);
    // The shared string table: a record that is continued in further ones, in which a text may go
    // on but its head is never parted.
    void write(BiffStream& stream) const;
    // About how long `write` is.
    qsizetype size() const { return m_size; }

private:
    QHash<QString, quint32> m_numbers;
    QStringList m_texts;
    quint32 m_uses = 0;
    qsizetype m_size = 0;
};
