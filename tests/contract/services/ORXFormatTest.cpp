/**
 * @file
 * What may stand behind a format.
 */

#include <gtest/gtest.h>

#include "ORXFormat.h"

namespace
{
TEST(FormatArguments, AreHandedOnAndStringsAreTheirNarrowText)
{
    const ORXUnicodeString unicode("unicode");
    const ORXString narrow("narrow");
    const char* const text = "text";
    EXPECT_EQ(ORXFormat::Argument(unicode), unicode.CastToCharPtr());
    EXPECT_EQ(ORXFormat::Argument(narrow), narrow.CastToCharPtr());
    EXPECT_EQ(ORXFormat::Argument(text), text);
    EXPECT_EQ(ORXFormat::Argument(-7), -7);
    EXPECT_EQ(ORXFormat::Argument(5000000000L), 5000000000L);
    EXPECT_EQ(ORXFormat::Argument(1.5), 1.5);
}
} // namespace
