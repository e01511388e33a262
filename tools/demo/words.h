// The words that the demo contractor's data is made of. People, firms and places are invented.
#pragma once

#include <array>

namespace demo {

enum Trade { Pipe, Valves, Electrical, Steel, Concrete, Lumber, Fasteners, Safety, Welding, Paint };
inline constexpr int tradeCount = 10;

struct TradeWords
{
    const char* seriesCode;
    const char* seriesName;
    const char* prefix;        // of part numbers
    const char* firmWords[3];  // in names of vendors
    char materialCode;
    int glCode;
};
extern const std::array<TradeWords, tradeCount> trades;

struct Material
{
    Trade trade;
    const char* subcategory;  // four characters
    const char* name;
    const char* unit;
    double lowPrice;  // of one factor's worth
    double highPrice;
    char factor;  // unit factor that its price is quoted for
    int usualQuantity;
};
extern const std::array<Material, 50> materials;

extern const std::array<const char*, 16> sizes;
extern const std::array<const char*, 8> grades;
extern const std::array<const char*, 12> services;
extern const std::array<const char*, 8> notes;  // text lines of documents

extern const std::array<const char*, 24> firstNames;
extern const std::array<const char*, 24> lastNames;
extern const std::array<const char*, 28> placeNames;
extern const std::array<const char*, 16> streets;
struct City
{
    const char* name;
    const char* state;
    const char* zip;
    const char* areaCode;
};
extern const std::array<City, 16> cities;

extern const std::array<const char*, 16> jobNames;
extern const std::array<const char*, 24> phases;
extern const std::array<const char*, 12> areas;
extern const std::array<const char*, 16> packages;
extern const std::array<const char*, 12> intendedUses;
extern const std::array<const char*, 6> carriers;
extern const std::array<const char*, 8> statusComments;

}  // namespace demo
