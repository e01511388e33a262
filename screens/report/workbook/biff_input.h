// Reads the records of a BIFF stream. Every read is held against the bytes that are there: a stream
// that ends in the middle of something is told by DamagedBiff.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

struct DamagedBiff
{
};

struct BiffRecord
{
    quint16 number = 0;
    QByteArrayView data;
};

class BiffRecords
{
public:
    // The stream stays the caller's.
    explicit BiffRecords(const QByteArray& stream, qsizetype place = 0);

    // False at the end of the stream.
    bool next(BiffRecord& record);
    // True if the next record has the number.
    bool isNext(quint16 number) const;

private:
    QByteArrayView m_stream;
    qsizetype m_place;
};

// The data of a record and of those that continue it.
class BiffData
{
public:
    explicit BiffData(QByteArrayView data) : m_parts{data} {}
    void addPart(QByteArrayView data) { m_parts.push_back(data); }

    template <class T>
    T take()
    {
        char bytes[sizeof(T)];
        for (char& byte : bytes)
            byte = takeByte();
        return fromLittleEndian<T>(bytes);
    }
    void skip(qint64 count);
    bool atEnd();

    // Texts with a length of 8 or 16 bits before them, as BIFF8 keeps them: in one or two bytes a
    // character, with formatting and phonetics behind, which are passed over.
    QString takeText(bool shortLength = false);
    // The same of BIFF5: a byte for each character.
    QString takeBytesAsText(bool shortLength = false);

private:
    template <class T>
    static T fromLittleEndian(const char* bytes);
    char takeByte();
    QString takeCharacters(int count, bool isWide);

    std::vector<QByteArrayView> m_parts;
    size_t m_part = 0;
    qsizetype m_place = 0;
};
