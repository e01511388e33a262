#include "core/dates.h"

#include <gtest/gtest.h>

#include "tests/support/fixed_system.h"

namespace {

const QString noDate(10, ' ');

TEST(Dates, AreReadInEveryFreeForm)
{
    struct Case
    {
        const char* typed;
        QString date;
    };
    const Case cases[] = {
        {"3/7/26", "03/07/2026"},   {"03/07/2026", "03/07/2026"},
        {"1-2.26", "01/02/2026"},   {"010226", "01/02/2026"},
        {"010231", "01/02/1931"},   {"010230", "01/02/2030"},
        {"12312026", "12/31/2026"}, {" 3/7/26 ", "03/07/2026"},
        {"2/29/23", "02/29/2023"},  {"13/01/26", noDate},
        {"0/1/26", noDate},         {"1/0/26", noDate},
        {"2/30/24", noDate},        {"4/31/26", noDate},
        {"1/32/26", noDate},        {"1/2", noDate},
        {"x/2/26", noDate},         {"1/2/", noDate},
        {"12345", noDate},          {"", noDate},
        {"  /  /  ", noDate},       {"5/5/3", "05/05/2003"},
        {"003/7/26", "03/07/2026"}, {"+1/2/26", noDate},
        {"1/2/+26", noDate},        {"1/2/20266", noDate},
        {"1/2/026", noDate},        {"1/2/3/2026", noDate},
    };
    for (const Case& each : cases)
        EXPECT_EQ(dnFixDate(each.typed), each.date) << each.typed;
}

TEST(Dates, TakeTheFormAndThePivotAsked)
{
    int pivot = 0;
    EXPECT_EQ(dnFixDate("3/7/31", DateForm::Digits6, pivot), "030731");
    EXPECT_EQ(pivot, 30) << "the caller sees the mended pivot";
    pivot = -50;
    EXPECT_EQ(dnFixDate("3/7/50", DateForm::Long10, pivot), "03/07/2050");
    EXPECT_EQ(pivot, 50);
    pivot = 100;
    EXPECT_EQ(dnDateKey("3/7/31", pivot), "19310307");
    EXPECT_EQ(dnFixDate("3/7/2031", DateForm::Short8, pivot), "03/07/31");
    EXPECT_EQ(dnDateKey("3/7/26"), "20260307");
    EXPECT_EQ(dnDateKey("nothing"), QString(8, ' '));
}

TEST(Dates, AreWrittenOutForReports)
{
    EXPECT_EQ(dnLongDate("3/7/26"), "Saturday, March 7th, 2026");
    EXPECT_EQ(dnLongDate("03/01/2026"), "Sunday, March 1st, 2026");
    EXPECT_EQ(dnLongDate("12/22/2025"), "Monday, December 22nd, 2025");
    EXPECT_EQ(dnLongDate("10/23/2025"), "Thursday, October 23rd, 2025");
    for (const char* teen : {"6/11/26", "6/12/26", "6/13/26"})
        EXPECT_TRUE(dnLongDate(teen).contains("th, 2026")) << teen;
    EXPECT_EQ(dnLongDate("2/29/23"), "Invalid Date: 2/29/23") << "no such day in that year";
    EXPECT_EQ(dnLongDate("soon"), "Invalid Date: soon");

    EXPECT_EQ(dnPEDateRange("3/7/26", "3/7/26", true), "From 03/07/2026 to 03/07/2026");
    EXPECT_EQ(dnPEDateRange("3/7/26", "3/14/26", true),
              "From 03/07/2026 to 03/14/2026  (PE 03/07/2026 to PE 03/14/2026)");
    EXPECT_EQ(dnPEDateRange("3/7/26", "3/14/26", false), "From 03/07/2026 to 03/14/2026");
    const FixedSystem machine;
    EXPECT_EQ(dnNowStamp(), "03/07/2026  09:05 AM");
}

}  // namespace
