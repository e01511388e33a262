#include "core/line_amount.h"

#include <gtest/gtest.h>

namespace {

TEST(LineAmount, DividesThePriceByTheFactor)
{
    EXPECT_EQ(lineAmount(24, 1.80, "d"), 3.60);
    EXPECT_EQ(lineAmount(24, 1.80, "g"), 0.30);
    EXPECT_EQ(lineAmount(24, 1.80, "m"), 0.04);
    EXPECT_EQ(lineAmount(7, 50, "c"), 3.50);
    for (const char* each : {"", " ", "e", "E", "each"})
        EXPECT_EQ(lineAmount(3, 2.5, each), 7.5) << each;
    EXPECT_EQ(lineAmount(-4, 2.5, "e"), -10);
    EXPECT_EQ(lineAmount(3, 2.5, "x"), std::nullopt);
}

TEST(LineAmount, RoundsOnceAndOnTheAmount)
{
    // A dollar a gross is 0.0069 each: rounded first, a thousand would cost 10.
    EXPECT_EQ(lineAmount(1000, 1, "g"), 6.94);
}

TEST(RoundedToCents, TakesTheEvenCentOfAnExactHalf)
{
    EXPECT_EQ(roundedToCents(1.125), 1.12);
    EXPECT_EQ(roundedToCents(1.135), 1.14);
    EXPECT_EQ(roundedToCents(1.225), 1.22);  // its double is a little above
    EXPECT_EQ(roundedToCents(1.145), 1.14);  // a little below
    EXPECT_EQ(roundedToCents(1.155), 1.16);
    EXPECT_EQ(roundedToCents(-1.125), -1.12);
    EXPECT_EQ(roundedToCents(-1.135), -1.14);
    EXPECT_EQ(roundedToCents(1234567.885), 1234567.88);
    EXPECT_EQ(roundedToCents(0), 0);
}

TEST(RoundedToCents, TakesTheNearestCentOtherwise)
{
    EXPECT_EQ(roundedToCents(1.2251), 1.23);
    EXPECT_EQ(roundedToCents(1.2249), 1.22);
    EXPECT_EQ(roundedToCents(-0.006), -0.01);
    EXPECT_EQ(roundedToCents(24.6912), 24.69);
}

}  // namespace
