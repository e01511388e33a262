#include "core/line_amount.h"

#include <cmath>
#include <limits>

namespace {

// 0 for no factor.
int divisorOf(const QString& unitFactor)
{
    if (unitFactor.isEmpty())
        return 1;
    switch (unitFactor[0].toLower().unicode()) {
        case ' ':
        case 'e':
            return 1;
        case 'd':
            return 12;
        case 'g':
            return 144;
        case 'c':
            return 100;
        case 'm':
            return 1000;
        default:
            return 0;
    }
}

}  // namespace

double roundedToCents(double amount)
{
    const double cents = amount * 100;
    const double below = std::floor(cents);
    // A price, a division and a product are each off by half a unit in the last place at most.
    const double noise = std::abs(cents) * 4 * std::numeric_limits<double>::epsilon();
    const bool half = std::abs(cents - below - 0.5) <= noise;
    if (half)
        return (std::fmod(below, 2) == 0 ? below : below + 1) / 100;
    return std::nearbyint(cents) / 100;
}

std::optional<double> lineAmount(double quantity, double unitPrice, const QString& unitFactor)
{
    const int divisor = divisorOf(unitFactor);
    if (divisor == 0)
        return std::nullopt;
    return roundedToCents(unitPrice / divisor * quantity);
}
