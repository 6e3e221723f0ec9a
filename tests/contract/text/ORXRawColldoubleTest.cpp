/**
 * @file
 * Collections of reals.
 */

#include <limits>

#include <gtest/gtest.h>

#include "ORXRawColldouble.h"

namespace
{
TEST(CollectionOfReals, Positions_CountFromOne)
{
    ORXRawColldouble reals(0);
    EXPECT_EQ(reals.Size(), 0);
    reals.Append(1.5);
    reals.Append(2.5);
    reals[1] = -1.5;
    EXPECT_EQ(reals.Size(), 2);
    EXPECT_EQ(reals[1], -1.5);
    EXPECT_EQ(reals[2], 2.5);
}

TEST(CollectionOfReals, MadeWithASize_HoldsZeros)
{
    const ORXRawColldouble reals(3);
    ASSERT_EQ(reals.Size(), 3);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(reals[i], 0.0);
}

TEST(CollectionOfReals, AppendsBehindWhatItWasMadeWith)
{
    ORXRawColldouble reals(2);
    reals.Append(std::numeric_limits<double>::max());
    reals.Append(-0.0);
    ASSERT_EQ(reals.Size(), 4);
    EXPECT_EQ(reals[2], 0.0);
    EXPECT_EQ(reals[3], std::numeric_limits<double>::max());
    const ORXRawColldouble copy = reals;
    reals[3] = 1.0;
    EXPECT_EQ(copy[3], std::numeric_limits<double>::max());
}
} // namespace
