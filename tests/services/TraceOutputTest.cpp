/**
 * @file
 * Where the stand-alone host sends traces, and the channel of the sibling module.
 */

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ORXTrace.h"
#include "TemporaryFolder.h"
#include "VYRFeaTraceManager.h"
#include "VYRStandaloneServices.h"

namespace
{
using Texts = std::vector<std::string>;

class TraceOutput : public testing::Test
{
protected:
    ~TraceOutput() override { VYRStandalone::RedirectTraces({}); }

    Texts m_texts;
};

TEST_F(TraceOutput, Sink_MayPrintAndReplaceItself)
{
    auto* channel = new ORXTrace("TEST_REENTRY", "made by a test", ORXTraActive, "STDOUT", 1024);
    VYRStandalone::RedirectTraces([&](const std::string& iText) {
        VYRStandalone::RedirectTraces([this](const std::string& iLater) { m_texts.push_back("later " + iLater); });
        channel->TraPrint("from within");
        m_texts.push_back("first " + iText);
    });
    channel->TraPrint("text");
    EXPECT_EQ(m_texts, (Texts{"later from within", "first text"}));
}

TEST_F(TraceOutput, AnyOtherThanStandardOutput_IsAFileThatIsAppendedTo)
{
    const TemporaryFolder folder;
    auto* channel = new ORXTrace("TEST_FILE", "", ORXTraActive, folder.Path("trace.txt").c_str(), 1);
    channel->TraPrint("one\n");
    channel->TraPrint("two\n");
    EXPECT_EQ(folder.Read("trace.txt"), "one\ntwo\n");
}

TEST(DebugChannelOfTheSibling, StandsFromTheBeginningAndIsActiveWhenItsVariableIsSet)
{
    ASSERT_NE(VYRFeaTraceManager::_Debug, nullptr);
    EXPECT_STREQ(VYRFeaTraceManager::_Debug->Name(), "FEA_DEBUG");
    const char* const wanted = std::getenv("VYRFEATRACES_DEBUG");
    EXPECT_EQ(VYRFeaTraceManager::_Debug->IsActive(), wanted != nullptr && *wanted != '\0');
}
} // namespace
