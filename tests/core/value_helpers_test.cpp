#include <gtest/gtest.h>

#include "core/number_format.h"
#include "core/text.h"

namespace {

TEST(NumberFormat, FollowsTheMasks)
{
    struct Case
    {
        double value;
        const char* mask;
        const char* shown;
    };
    const Case cases[] = {
        {1234567.891, "###,###,###.00", "1,234,567.89"},
        {0.5, "###,###,###.00", ".50"},
        {0, "###,###,###.00", ".00"},
        {-0.004, "###,###.00", ".00"},
        {-1234.5, "###,###.00", "-1,234.50"},
        {999.995, "###,###.00", "1,000.00"},
        {2.675, "###.00", "2.68"},
        {1.005, "###.00", "1.01"},
        {12, "######.0", "12.0"},
        {0.5, "########.0000", ".5000"},
        {0, "###", ""},
        {7, "##", "7"},
        {123, "##", "123"},
        {5, "000", "005"},
        {0.1, "##.000000000", ".100000000"},
        {1e12, "###,###.0", "1,000,000,000,000.0"},
        {3.25, "##.##", "3.25"},
        {3.5, "##.##", "3.5"},
        {3, "##.##", "3."},
        {100, "###,###", "100"},
        {1000, "###,###", "1,000"},
        {4.5, "", "4.5"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(dnFormat(each.value, each.mask), each.shown) << each.value << ' ' << each.mask;
    EXPECT_EQ(dnFormatOrDash(0, "###.00", true), "-");
    EXPECT_EQ(dnFormatOrDash(0, "###.00", false), " ");
    EXPECT_EQ(dnFormatOrDash(0.001, "###.00", true), ".00");
}

TEST(Text, IsPaddedStrippedAndSpelled)
{
    EXPECT_EQ(dnPadRight(" AB ", 5), "AB   ");
    EXPECT_EQ(dnPadRight("ABCDEF", 5), "ABCDEF");
    EXPECT_EQ(dnPadLeftZero("42", 5), "00042");
    EXPECT_EQ(dnRepeat("?", 3), "???");
    EXPECT_EQ(dnPhoneFormat("123-456 7890"), "(123) 456-7890");
    EXPECT_EQ(dnPhoneFormat("4567890"), "(   ) 456-7890");
    EXPECT_EQ(dnPhoneFormat("1-800-456-7890"), "18004567890");
    EXPECT_EQ(dnProperCase("bill of lading"), "Bill of Lading");
    EXPECT_EQ(dnProperCase("  the house for a king "), "The House for a King");
    EXPECT_EQ(dnProperCase("offal and offers"), "Offal and Offers") << "only whole small words";
    EXPECT_EQ(dnProperCase("north-west", "-"), "North-West");
    EXPECT_EQ(dnStripChar("1,234,567", ","), "1234567");
    EXPECT_EQ(dnBadFileChar("A/B"), "/");
    EXPECT_EQ(dnBadFileChar("plain name"), " ");
}

}  // namespace
