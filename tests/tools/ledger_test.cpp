#include "tools/demo/ledger.h"

#include <gtest/gtest.h>

namespace {

using demo::Quantities;

struct Row
{
    const char* docType;
    const char* itemType;
    float quantity;
};

Quantities replayed(std::initializer_list<Row> rows)
{
    Quantities quantities;
    for (const Row& row : rows)
        EXPECT_TRUE(quantities.apply(row.docType, row.itemType, row.quantity)) << row.docType;
    return quantities;
}

TEST(LedgerReplay, MovesQuantitiesByTheKindOfRow)
{
    EXPECT_EQ(replayed({{"PO", "RQI", 10}}), (Quantities{0, 10, 0, 0}));
    EXPECT_EQ(replayed({{"PO", "RQI", 10}, {"PO", "REC", 4}}), (Quantities{4, 6, 0, 0}));
    EXPECT_EQ(replayed({{"IA", "IAI", -3}}), (Quantities{-3, 0, 0, -3}));
    EXPECT_EQ(replayed({{"MT", "MTD", 2}}), (Quantities{-2, 0, 0, 0}));
    EXPECT_EQ(replayed({{"MT", "MTC", 2}}), (Quantities{2, 0, 0, 0}));
    EXPECT_EQ(replayed({{"MR", "MRI", 2}}), (Quantities{-2, 0, 0, 0}));
    EXPECT_EQ(replayed({{"MI", "MII", 2}}), (Quantities{-2, 0, 0, 0}));
    EXPECT_EQ(replayed({{"RO", "ROI", 2}}), (Quantities{-2, 0, 2, 0}));
}

// An order from before the count no longer counts, its receipt still does.
TEST(LedgerReplay, StartsAnewAtACount)
{
    EXPECT_EQ(replayed({{"PO", "RQI", 5}, {"PO", "RQI", 5}, {"IA", "IAI", 1}, {"PI", "PII", 100}}),
              (Quantities{100, 0, 0, 0}));
    EXPECT_EQ(replayed({{"PO", "RQI", 5}, {"PI", "PII", 100}, {"PO", "REC", 5}}),
              (Quantities{105, -5, 0, 0}));
}

TEST(LedgerReplay, RefusesKindsThatThereAreNot)
{
    Quantities quantities;
    EXPECT_FALSE(quantities.apply("XX", "RQI", 1));
    EXPECT_FALSE(quantities.apply("PO", "XXX", 1));
    EXPECT_FALSE(quantities.apply("MT", "XXX", 1));
    EXPECT_EQ(quantities, Quantities());
}

}  // namespace
