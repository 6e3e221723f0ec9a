/**
 * @file
 * The codes of attribute types, which models and modules hold as numbers.
 */

#include <gtest/gtest.h>

#include "ORXTypeCode.h"

namespace
{
TEST(TypeCodes, AreTheNumbersOfTheStandard)
{
    EXPECT_EQ(tk_double, 7);
    EXPECT_EQ(tk_boolean, 8);
    EXPECT_EQ(tk_enum, 17);
    EXPECT_EQ(tk_string, 18);
    EXPECT_EQ(tk_specobject, 23);
    EXPECT_EQ(tk_list, 25);
    EXPECT_EQ(tk_component, 26);
    EXPECT_EQ(tk_integer, 28);
}
} // namespace
