#include "core/fit_column.h"

#include <gtest/gtest.h>

namespace {

TEST(FitColumn, PutsCodesAtTheRightOfTheirSize)
{
    EXPECT_EQ(dnFitColumn("12", "C", 8), "      12");
    EXPECT_EQ(dnFitColumn("12", "N", 8), "      12");
    EXPECT_EQ(dnFitColumn(" 12 ", "C", 4), dnFitColumn("12", "C", 4));
    EXPECT_EQ(dnFitColumn("12a", "C", 4), " 12A");
    EXPECT_EQ(dnFitColumn("12a", "", 4), " 12a");
    EXPECT_EQ(dnFitColumn("", "C", 3), "   ");
    EXPECT_EQ(dnFitColumn("12", "C", 0), "");
}

TEST(FitColumn, KeepsTheLeftEndOfWhatIsTooLong)
{
    EXPECT_EQ(dnFitColumn("abcdef", "C", 4), "ABCD");
    EXPECT_EQ(dnFitColumn("123456", "N", 4), "1234");
    EXPECT_EQ(dnFitColumn("ab cdef", "C", 3), "AB ");
}

TEST(FitColumn, TakesTheNumberThatATextBeginsWith)
{
    EXPECT_EQ(dnFitColumn("abc", "N", 8), QString(8, ' '));
    EXPECT_EQ(dnFitColumn("0", "N", 8), QString(8, ' '));
    EXPECT_EQ(dnFitColumn("007", "N", 4), "   7");
    EXPECT_EQ(dnFitColumn("12A", "N", 4), "  12");
    EXPECT_EQ(dnFitColumn("4.6", "N", 4), "   5");
    EXPECT_EQ(dnFitColumn("99999998", "N", 8), "99999998");
    EXPECT_EQ(dnFitColumn("99999999", "N", 8), "????????");
    EXPECT_EQ(dnFitColumn("123456789012", "N", 3), "???");
}

TEST(FitColumn, StandsAtTheLeftForDisplay)
{
    EXPECT_EQ(dnFitColumn("12a", "C", 6, true), "12A   ");
    EXPECT_EQ(dnFitColumn("abcdef", "C", 4, true), "ABCD");
}

// Stored forms are fitted again before each seek.
TEST(FitColumn, LeavesAStoredFormAsItIs)
{
    for (const char* code : {"12", "4711", "A-9", "x", "01-100"})
        for (const char* type : {"C", "N"}) {
            const QString stored = dnFitColumn(code, type, 8);
            EXPECT_EQ(dnFitColumn(stored, type, 8), stored) << code << type;
        }
}

}  // namespace
