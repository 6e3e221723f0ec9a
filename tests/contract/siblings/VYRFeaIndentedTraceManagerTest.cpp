/**
 * @file
 * Trace scopes of functions.
 */

#include <thread>

#include "TraceTest.h"
#include "VYRFeaIndentedTraceManager.h"

namespace
{
using IndentedTraces = TraceTest;

TEST_F(IndentedTraces, Scopes_AreIndentedByTheirDepth)
{
    ORXTrace* channel = MakeChannel("TEST_SCOPES");
    {
        const VYRFeaIndentedTraceManager outer("A::F", "file.cpp", 1, channel, 10);
        {
            const VYRFeaIndentedTraceManager inner("B::G", "file.cpp", 2, channel, 150);
        }
        const VYRFeaIndentedTraceManager second("C::H", "file.cpp", 3, channel, 20);
    }
    EXPECT_EQ(m_texts,
              (Texts{"> A::F [10]\n", "  > B::G [150]\n", "  < B::G\n", "  > C::H [20]\n", "  < C::H\n", "< A::F\n"}));
}

TEST_F(IndentedTraces, Scopes_OnNoChannelOrASilentOne_PrintNothingAndDoNotIndent)
{
    ORXTrace* null = nullptr;
    ORXTrace* silent = MakeChannel("TEST_SILENT_SCOPE", ORXTraSilent);
    ORXTrace* channel = MakeChannel("TEST_SCOPE_INSIDE");
    {
        const VYRFeaIndentedTraceManager onNull("A::F", "file.cpp", 1, null, 10);
        const VYRFeaIndentedTraceManager onSilent("B::G", "file.cpp", 1, silent, 10);
        const VYRFeaIndentedTraceManager scope("C::H", "file.cpp", 1, channel, 10);
    }
    EXPECT_EQ(m_texts, (Texts{"> C::H [10]\n", "< C::H\n"}));
}

TEST_F(IndentedTraces, Indentation_IsPerThread)
{
    ORXTrace* channel = MakeChannel("TEST_THREADS");
    const VYRFeaIndentedTraceManager outer("A::F", "file.cpp", 1, channel, 10);
    std::thread([&] { const VYRFeaIndentedTraceManager other("B::G", "file.cpp", 1, channel, 10); }).join();
    EXPECT_EQ(m_texts, (Texts{"> A::F [10]\n", "> B::G [10]\n", "< B::G\n"}));
}

TEST_F(IndentedTraces, Scopes_KeepTheirTextsUntilTheyEnd)
{
    ORXTrace* channel = MakeChannel("TEST_SCOPE_TEXTS");
    const std::string function = "A::VeryLongNameOfAFunctionThatIsNotHeldInside";
    {
        const VYRFeaIndentedTraceManager scope(function.c_str(), "file.cpp", 1, channel, 0);
    }
    EXPECT_EQ(m_texts, (Texts{"> " + function + " [0]\n", "< " + function + "\n"}));
}
} // namespace
