/**
 * @file
 * Random identifiers.
 */

#include <algorithm>
#include <array>
#include <set>

#include <gtest/gtest.h>

#include "ORXUuid.h"

namespace
{
TEST(Uuid, EachObject_IsANewIdentifier)
{
    std::set<std::array<unsigned char, 16>> seen;
    std::array<unsigned char, 16> everyBit{};
    for (int i = 0; i < 1000; ++i)
    {
        const ORXUuid uuid;
        std::array<unsigned char, 16> bytes{};
        std::array<unsigned char, 16> again{};
        uuid.get(bytes.data());
        uuid.get(again.data());
        EXPECT_EQ(bytes, again);
        EXPECT_TRUE(seen.insert(bytes).second);
        std::transform(
            bytes.begin(), bytes.end(), everyBit.begin(), everyBit.begin(),
            [](unsigned char iLeft, unsigned char iRight) { return static_cast<unsigned char>(iLeft | iRight); });
    }
    // Of a thousand random identifiers every bit is set in some.
    for (const unsigned char byte : everyBit)
        EXPECT_EQ(byte, 0xFF);
}
} // namespace
