// The vocabulary in which the master definitions of all tables are told. The definitions stand in
// the *_tables.h files beside this one, as constant data, once; new database files, the field name
// check of the compiler, the demo data and the schema page in docs/ are all made from them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace schema {

// The numbers are those that users' administrators know from definition listings.
enum class FieldType : std::uint8_t {
    Boolean = 1,  // 0 or -1
    Byte = 2,
    Integer = 3,   // 16 bits, signed
    Long = 4,      // 32 bits, signed
    Currency = 5,  // 64-bit count of ten-thousandths
    Single = 6,
    Double = 7,
    Date = 8,
    Text = 10,  // `size` characters at most, 1 to 255
    Binary = 11,
    Memo = 12,
    Guid = 15,
};

struct Field
{
    std::string_view name;
    FieldType type;
    std::uint16_t size;  // characters; 0 for every type but Text
    std::string_view meaning;
};

// An index over up to ten fields, in order, ascending, nulls first. Only `unique` ones refuse
// duplicates; a null in the key makes a row distinct.
struct Index
{
    std::string_view name;
    std::array<std::string_view, 10> keys;
    bool unique = false;

    constexpr std::size_t keyCount() const
    {
        std::size_t count = 0;
        while (count < keys.size() && !keys[count].empty())
            ++count;
        return count;
    }
};

struct Table
{
    std::string_view name;
    std::string_view meaning;
    std::span<const Field> fields;
    std::span<const Index> indexes;
};

// Where a database file lives.
enum class Place : std::uint8_t {
    Program,  // the current directory, beside the program
    JobSite,
    Network,
    User,
    Sibling,  // a file of another module of the suite, made only for tests and demos
};

struct File
{
    std::string_view name;  // with its extension
    Place place;
    std::string_view meaning;
    std::span<const Table* const> tables;
};

constexpr Field boolean(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Boolean, 0, meaning};
}
constexpr Field byte(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Byte, 0, meaning};
}
constexpr Field integer(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Integer, 0, meaning};
}
constexpr Field longInteger(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Long, 0, meaning};
}
constexpr Field currency(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Currency, 0, meaning};
}
constexpr Field single(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Single, 0, meaning};
}
constexpr Field doubleFloat(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Double, 0, meaning};
}
constexpr Field date(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Date, 0, meaning};
}
constexpr Field text(std::string_view name, std::uint16_t size, std::string_view meaning)
{
    return {name, FieldType::Text, size, meaning};
}
constexpr Field memo(std::string_view name, std::string_view meaning)
{
    return {name, FieldType::Memo, 0, meaning};
}

// Who made and who last changed a record, shown as "Record Update History".
inline constexpr std::array<Field, 6> auditFields = {
    text("ADDNAME", 50, "login name of the user who added the record"),
    text("ADDDATE", 10, "date of the addition, MM/DD/YYYY"),
    text("ADDTIME", 8, "time of the addition, such as 9:05 AM"),
    text("EDITNAME", 50, "login name of the user who last changed the record; blank until then"),
    text("EDITDATE", 10, "date of that change"),
    text("EDITTIME", 8, "time of that change"),
};

template <std::size_t N>
consteval std::array<Field, N + auditFields.size()> withAuditFields(const Field (&own)[N])
{
    std::array<Field, N + auditFields.size()> all{};
    for (std::size_t i = 0; i < N; ++i)
        all[i] = own[i];
    for (std::size_t i = 0; i < auditFields.size(); ++i)
        all[N + i] = auditFields[i];
    return all;
}

}  // namespace schema
