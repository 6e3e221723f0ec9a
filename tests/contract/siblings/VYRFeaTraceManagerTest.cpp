/**
 * @file
 * The debug channel of the sibling module, and the indentation that is printed on it.
 */

#include "VYRFeaTraceManager.h"
#include "TraceTest.h"
#include "VYRFeaIndentedTraceManager.h"

namespace
{
using DebugTraces = TraceTest;

/// Puts another channel in the place of the sibling's for the length of a test.
class DebugChannel
{
public:
    explicit DebugChannel(ORXTrace* iChannel) : m_before(VYRFeaTraceManager::_Debug)
    {
        VYRFeaTraceManager::_Debug = iChannel;
    }
    ~DebugChannel() { VYRFeaTraceManager::_Debug = m_before; }
    DebugChannel(const DebugChannel&) = delete;
    DebugChannel& operator=(const DebugChannel&) = delete;

private:
    ORXTrace* m_before;
};

TEST_F(DebugTraces, PrintDebugIndent_PrintsTheIndentationOnTheDebugChannel)
{
    ORXTrace* channel = MakeChannel("TEST_DEBUG");
    const DebugChannel replaced(channel);
    VYRFeaIndentedTraceManager::PrintDebugIndent(0);
    VYRFeaIndentedTraceManager::PrintDebugIndent(2);
    {
        const VYRFeaIndentedTraceManager scope("A::F", "file.cpp", 1, channel, 10);
        VYRFeaIndentedTraceManager::PrintDebugIndent(2);
    }
    EXPECT_EQ(m_texts, (Texts{"", "    ", "> A::F [10]\n", "      ", "< A::F\n"}));
}

TEST_F(DebugTraces, PrintDebugIndent_OnNoChannelOrASilentOne_PrintsNothing)
{
    for (ORXTrace* channel : {static_cast<ORXTrace*>(nullptr), MakeChannel("TEST_NO_DEBUG", ORXTraSilent)})
    {
        const DebugChannel replaced(channel);
        VYRFeaIndentedTraceManager::PrintDebugIndent(2);
    }
    EXPECT_EQ(m_texts, Texts{});
}
} // namespace
