/**
 * @file
 * Identifiers of interfaces as values.
 */

#include <cstring>

#include <gtest/gtest.h>

#include "ORXGuid.h"

namespace
{
TEST(Guids, AreEqualByAllOfTheirBytes)
{
    const GUID guid{0x01020304, 0x0506, 0x0708, {1, 2, 3, 4, 5, 6, 7, 8}};
    EXPECT_EQ(sizeof(GUID), 16U);
    EXPECT_TRUE(guid == GUID(guid));
    for (std::size_t byte = 0; byte < sizeof(GUID); ++byte)
    {
        unsigned char bytes[sizeof(GUID)];
        std::memcpy(bytes, &guid, sizeof bytes);
        bytes[byte] ^= 0x80;
        GUID other;
        std::memcpy(&other, bytes, sizeof bytes);
        EXPECT_FALSE(guid == other) << byte;
    }
}
} // namespace
