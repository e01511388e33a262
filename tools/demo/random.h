// A generator of its own, so that one seed gives the same data with every library and machine.
#pragma once

#include <QtGlobal>
#include <cmath>
#include <span>
#include <string_view>

namespace demo {

// SplitMix64. Each theme draws from a stream of its own, so that a change in one leaves the data of
// the others as they were.
class Random
{
public:
    Random(quint64 seed, std::string_view stream) : m_state(seed)
    {
        for (const char c : stream)
            m_state = (m_state ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
        next();
    }

    quint64 next()
    {
        m_state += 0x9E3779B97F4A7C15ULL;
        quint64 z = m_state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    // 0 to count - 1.
    int below(int count)
    {
        return static_cast<int>(((next() >> 32) * static_cast<quint64>(count)) >> 32);
    }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }

    // Money in cents between the two.
    double price(double least, double most)
    {
        return between(static_cast<int>(std::lround(least * 100)),
                       static_cast<int>(std::lround(most * 100))) /
               100.0;
    }

    template <class Items>
    const auto& pick(const Items& items)
    {
        return items[static_cast<size_t>(below(static_cast<int>(std::size(items))))];
    }

private:
    quint64 m_state;
};

}  // namespace demo
