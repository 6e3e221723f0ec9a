/**
 * @file
 * Status values.
 */

#include <type_traits>

#include <gtest/gtest.h>

#include "ORXStatus.h"

namespace
{
TEST(Statuses, AreNegativeForFailureOnly)
{
    EXPECT_EQ(S_OK, 0);
    EXPECT_EQ(S_FALSE, 1);
    for (const HRESULT failure : {E_FAIL, E_NOTIMPL, E_NOINTERFACE})
        EXPECT_LT(failure, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(E_FAIL), 0x80004005U);
    EXPECT_EQ(static_cast<std::uint32_t>(E_NOTIMPL), 0x80004001U);
    EXPECT_EQ(static_cast<std::uint32_t>(E_NOINTERFACE), 0x80004002U);
    EXPECT_EQ(sizeof(HRESULT), 4U);
    EXPECT_TRUE(std::is_signed_v<HRESULT>);
}

TEST(Statuses, BooleanIsAByte)
{
    EXPECT_EQ(sizeof(ORXBoolean), 1U);
    EXPECT_EQ(ORXFalse, 0);
    EXPECT_NE(ORXTrue, 0);
}
} // namespace
