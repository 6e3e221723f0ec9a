/**
 * @file
 * Narrow strings.
 */

#include <gtest/gtest.h>

#include "ORXString.h"

namespace
{
TEST(NarrowString, AppendsAndAnswersItsText)
{
    const ORXString text = ORXString("CFD_") + "DEBUG";
    EXPECT_STREQ(text.CastToCharPtr(), "CFD_DEBUG");
    EXPECT_STREQ(text, "CFD_DEBUG");
    EXPECT_STREQ(ORXString().CastToCharPtr(), "");
    EXPECT_STREQ(ORXString(nullptr).CastToCharPtr(), "");
}

TEST(NarrowString, Append_LeavesTheHeadAsItWas)
{
    const ORXString head("CFD_");
    const ORXString tail = head + "";
    EXPECT_STREQ((head + "A" + "B").CastToCharPtr(), "CFD_AB");
    EXPECT_STREQ(tail.CastToCharPtr(), "CFD_");
    EXPECT_STREQ(head.CastToCharPtr(), "CFD_");
}
} // namespace
