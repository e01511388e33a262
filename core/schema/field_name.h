// The name of a field, checked when the program is compiled: a literal that no table of the schema
// has does not compile. Names are case-blind, as in the files.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/schema/files.h"

namespace schema {

constexpr char upperAscii(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

constexpr bool sameName(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (upperAscii(a[i]) != upperAscii(b[i]))
            return false;
    return true;
}

// Every field name of the schema once, with a hash table over them, both made by the compiler.
struct FieldNames
{
    static constexpr std::size_t capacity = 3000;
    static constexpr std::size_t slotCount = 8192;

    std::array<std::string_view, capacity> names{};
    std::array<std::uint16_t, slotCount> slots{};  // index into `names` plus 1; 0 is free
    std::uint16_t count = 0;

    static constexpr std::size_t hash(std::string_view name)
    {
        std::uint32_t h = 2166136261U;
        for (char c : name)
            h = (h ^ static_cast<unsigned char>(upperAscii(c))) * 16777619U;
        return h % slotCount;
    }

    // The name's number, or -1.
    constexpr int find(std::string_view name) const
    {
        for (std::size_t slot = hash(name); slots[slot] != 0; slot = (slot + 1) % slotCount)
            if (sameName(names[slots[slot] - 1U], name))
                return slots[slot] - 1;
        return -1;
    }

    constexpr void add(std::string_view name)
    {
        std::size_t slot = hash(name);
        for (; slots[slot] != 0; slot = (slot + 1) % slotCount)
            if (sameName(names[slots[slot] - 1U], name))
                return;
        names[count] = name;
        slots[slot] = ++count;
    }
};

consteval FieldNames collectFieldNames()
{
    FieldNames all;
    for (const File& file : files)
        for (const Table* table : file.tables)
            for (const Field& field : table->fields)
                all.add(field.name);
    return all;
}

inline constexpr FieldNames fieldNames = collectFieldNames();

class FieldName
{
public:
    // No field.
    constexpr FieldName() = default;
    // Not a field of any table: does not compile.
    consteval FieldName(const char* literal) : m_number(numberOf(literal)) {}

    constexpr std::uint16_t number() const { return m_number; }
    constexpr bool isNone() const { return m_number == none; }
    constexpr std::string_view text() const
    {
        return isNone() ? std::string_view() : fieldNames.names[m_number];
    }
    constexpr bool operator==(const FieldName&) const = default;

private:
    static consteval std::uint16_t numberOf(std::string_view name)
    {
        const int number = fieldNames.find(name);
        if (number < 0)
            throw "no table of the schema has a field of this name";
        return static_cast<std::uint16_t>(number);
    }

    static constexpr std::uint16_t none = 0xFFFF;

    std::uint16_t m_number = none;
};

}  // namespace schema
