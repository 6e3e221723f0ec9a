/**
 * @file
 * The boolean of the knowledge interfaces.
 */

#include <type_traits>

#include <gtest/gtest.h>

#include "ORXCke.h"

namespace
{
TEST(CkeBoolean, ReadAsANumberIsNonzeroForTrue)
{
    EXPECT_NE(static_cast<int>(ORXCke::True), 0);
    EXPECT_EQ(static_cast<int>(ORXCke::False), 0);
    EXPECT_EQ(ORXCke::Boolean::Of(true), ORXCke::True);
    EXPECT_EQ(ORXCke::Boolean::Of(false), ORXCke::False);
}

TEST(CkeBoolean, IsCopiedAndAssigned)
{
    ORXCke::Boolean value = ORXCke::True;
    const ORXCke::Boolean copy = value;
    value = ORXCke::False;
    EXPECT_TRUE(copy);
    EXPECT_FALSE(value);
    EXPECT_FALSE((std::is_convertible_v<int, ORXCke::Boolean>)) << "a number must not choose this form of Valuate";
}
} // namespace
