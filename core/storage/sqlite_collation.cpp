#include "core/storage/sqlite_collation.h"

#include <sqlite3.h>

#include <QChar>

#include "core/storage/storage_error.h"

namespace storage {
namespace {

// The code point at `at`, which is moved behind it. A byte that is no UTF-8 stands for itself, so
// that any bytes have one place in the order.
char32_t nextCodePoint(std::string_view text, size_t& at)
{
    const auto byteAt = [&text](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(at);
    const size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 1 || at + length > text.size())
        return byteAt(at++);
    char32_t point = lead & (0xFFU >> (length + 1));
    for (size_t i = 1; i < length; ++i)
        point = point << 6 | (byteAt(at + i) & 0x3FU);
    at += length;
    return point;
}

inline unsigned char upperAscii(unsigned char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<unsigned char>(c - 32) : c;
}

int compareFrom(std::string_view a, std::string_view b, size_t at)
{
    size_t i = at;
    size_t j = at;
    while (i < a.size() && j < b.size()) {
        const char32_t x = QChar::toUpper(nextCodePoint(a, i));
        const char32_t y = QChar::toUpper(nextCodePoint(b, j));
        if (x != y)
            return x < y ? -1 : 1;
    }
    return (i < a.size() ? 1 : 0) - (j < b.size() ? 1 : 0);
}

int collate(void* /*unused*/, int sizeA, const void* a, int sizeB, const void* b)
{
    return compareCaseBlind({static_cast<const char*>(a), static_cast<size_t>(sizeA)},
                            {static_cast<const char*>(b), static_cast<size_t>(sizeB)});
}

}  // namespace

int compareCaseBlind(std::string_view a, std::string_view b)
{
    const size_t common = std::min(a.size(), b.size());
    for (size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(a[i]);
        const auto y = static_cast<unsigned char>(b[i]);
        if ((x | y) >= 0x80)
            return compareFrom(a, b, i);
        if (upperAscii(x) != upperAscii(y))
            return upperAscii(x) < upperAscii(y) ? -1 : 1;
    }
    return (a.size() > b.size() ? 1 : 0) - (a.size() < b.size() ? 1 : 0);
}

void registerCaseBlindCollation(sqlite3* connection)
{
    const int code =
        sqlite3_create_collation(connection, caseBlindCollation, SQLITE_UTF8, nullptr, collate);
    if (code != SQLITE_OK)
        fail(ErrorNumber::Internal, QString::number(code));
}

}  // namespace storage
