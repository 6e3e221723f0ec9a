/**
 * @file
 * How the bytes of an identifier become its text. This program provides the source of identifiers itself, in the
 * place of the host's, so that the bytes are known.
 */

#include <algorithm>
#include <iterator>

#include <gtest/gtest.h>

#include "ORXUuid.h"
#include "VYRCfdUtilityMethods.h"

namespace
{
unsigned char givenBytes[16] = {};
}

ORXUuid::ORXUuid()
{
    std::copy(std::begin(givenBytes), std::end(givenBytes), m_bytes);
}

void ORXUuid::get(unsigned char* oBytes) const noexcept
{
    std::copy(std::begin(m_bytes), std::end(m_bytes), oBytes);
}

namespace
{
struct Case
{
    unsigned char bytes[16];
    const char* text;
};

constexpr Case Cases[] = {
    // The last two words stand swapped.
    {{0x10, 0x11, 0x12, 0x13, 0x24, 0x25, 0x26, 0x27, 0x38, 0x39, 0x3a, 0x3b, 0x4c, 0x4d, 0x4e, 0x4f},
     "10111213_24252627_4c4d4e4f_38393a3b"},
    {{0xff, 0xfe, 0xfd, 0xfc, 0xfb, 0xfa, 0xf9, 0xf8, 0xf7, 0xf6, 0xf5, 0xf4, 0xf3, 0xf2, 0xf1, 0xf0},
     "fffefdfc_fbfaf9f8_f3f2f1f0_f7f6f5f4"},
    // Nothing is padded.
    {{}, "0_0_0_0"},
    {{0, 0, 0, 1, 0, 0, 0, 0x20, 0, 0, 3, 0, 0, 4, 0, 0}, "1_20_40000_300"},
    {{0x0a, 0, 0, 0, 0, 0xb0, 0, 0, 0, 0, 0, 0, 0x0c, 0, 0, 0x0d}, "a000000_b00000_c00000d_0"},
};

TEST(Identifiers, ArePrintedByWordsInTheirOrder)
{
    for (const Case& row : Cases)
    {
        std::copy(std::begin(row.bytes), std::end(row.bytes), givenBytes);
        EXPECT_STREQ(VYRCfdUtilityMethods::GenerateUUID().CastToCharPtr(), row.text);
    }
}
} // namespace
