/**
 * @file
 * The fatal reaction to an unexpected null pointer.
 */

#include <gtest/gtest.h>

#include "HostUnderTest.h"
#include "ORXOmxInternals.h"

namespace
{
TEST(NullPointers, Assertion_DoesNotReturn)
{
    EXPECT_TRUE(HostUnderTest::EndsByNullPointer([] { ORXOmx::Internals::NullPointerAssertion(); }));
    EXPECT_FALSE(HostUnderTest::EndsByNullPointer([] {}));
}
} // namespace
