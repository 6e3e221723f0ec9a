/**
 * @file
 * Trace channels, their controls, and the indented scopes of functions.
 */

#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ORXTrace.h"
#include "TemporaryFolder.h"
#include "VYRFeaIndentedTraceManager.h"
#include "VYRFeaTraceManager.h"
#include "VYRStandaloneServices.h"

namespace
{
/// Every text that is printed, as it was handed over.
class Traces : public testing::Test
{
protected:
    void SetUp() override
    {
        VYRStandalone::RedirectTraces([this](const std::string& iText) { m_texts.push_back(iText); });
    }
    void TearDown() override { VYRStandalone::RedirectTraces({}); }

    std::vector<std::string> m_texts;
};

using Texts = std::vector<std::string>;

/// Channels live until the process ends, and the host keeps them.
ORXTrace* MakeChannel(const char* iName, ORXTraMode iMode = ORXTraActive, int iLevel = 1024)
{
    return new ORXTrace(iName, "made by a test", iMode, "STDOUT", iLevel);
}

TEST_F(Traces, Channel_KeepsWhatItWasMadeOf)
{
    ORXTrace* channel = nullptr;
    {
        const std::string name = "TEST_NAMES";
        const std::string description = "a description";
        channel = new ORXTrace(name.c_str(), description.c_str(), ORXTraActive, "STDOUT", 7);
    }
    EXPECT_STREQ(channel->Name(), "TEST_NAMES");
    EXPECT_STREQ(channel->Description(), "a description");
    EXPECT_STREQ(channel->File(), "STDOUT");
    EXPECT_TRUE(channel->IsActive());
}

TEST_F(Traces, TraPrint_FormatsAndPrintsAtOnce)
{
    ORXTrace* channel = MakeChannel("TEST_PRINT");
    channel->TraPrint("%s has %d of %s\n", ORXUnicodeString("it"), 3, "these");
    EXPECT_EQ(m_texts, (Texts{"it has 3 of these\n"}));
    channel->TraPrint(140, "ERROR: %s\n", ORXString("narrow"));
    channel->TraPrint("%.2f", 1.5);
    EXPECT_EQ(m_texts, (Texts{"it has 3 of these\n", "ERROR: narrow\n", "1.50"}));
}

TEST_F(Traces, TraPrint_OfALevelAboveTheMaximum_PrintsAllTheSame)
{
    MakeChannel("TEST_LEVELS", ORXTraActive, 2)->TraPrint(140, "printed");
    EXPECT_EQ(m_texts, (Texts{"printed"}));
}

TEST_F(Traces, TraPrint_WithoutArguments_PrintsWordForWord)
{
    ORXTrace* channel = MakeChannel("TEST_WORDS");
    channel->TraPrint("100 %s %d %n %%");
    channel->TraPrint(110, "50 %s");
    EXPECT_EQ(m_texts, (Texts{"100 %s %d %n %%", "50 %s"}));
}

TEST_F(Traces, TraPrint_OfALongText_PrintsAllOfIt)
{
    const std::string longText(100000, 'x');
    MakeChannel("TEST_LONG")->TraPrint("<%s>", longText.c_str());
    EXPECT_EQ(m_texts, (Texts{"<" + longText + ">"}));
}

TEST_F(Traces, SilentChannel_PrintsNothing)
{
    ORXTrace* channel = MakeChannel("TEST_SILENT", ORXTraSilent);
    EXPECT_FALSE(channel->IsActive());
    channel->TraPrint("nothing");
    channel->TraPrint(110, "nothing %d", 1);
    EXPECT_EQ(m_texts, Texts{});
}

TEST_F(Traces, Control_AnswersTheLevelOfItsChannel)
{
    MakeChannel("TEST_CONTROL", ORXTraSilent, 125);
    EXPECT_EQ(ORXTraControle("TEST_CONTROL").TraGetLevelMax(), 125);
    MakeChannel("TEST_CONTROL", ORXTraActive, 2);
    EXPECT_EQ(ORXTraControle("TEST_CONTROL").TraGetLevelMax(), 2) << "of several the last counts";
    EXPECT_EQ(ORXTraControle("TEST_NO_SUCH_CHANNEL").TraGetLevelMax(), 0);
    EXPECT_EQ(ORXTraControle(nullptr).TraGetLevelMax(), 0);
}

TEST_F(Traces, Sink_MayPrintAndReplaceItself)
{
    ORXTrace* channel = MakeChannel("TEST_REENTRY");
    VYRStandalone::RedirectTraces([&](const std::string& iText) {
        VYRStandalone::RedirectTraces([this](const std::string& iLater) { m_texts.push_back("later " + iLater); });
        channel->TraPrint("from within");
        m_texts.push_back("first " + iText);
    });
    channel->TraPrint("text");
    EXPECT_EQ(m_texts, (Texts{"later from within", "first text"}));
}

TEST_F(Traces, WithoutASink_StandardOutputIsWritten)
{
    ORXTrace* channel = MakeChannel("TEST_STDOUT");
    VYRStandalone::RedirectTraces({});
    testing::internal::CaptureStdout();
    channel->TraPrint("to %s\n", "standard output");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "to standard output\n");
    EXPECT_EQ(m_texts, Texts{});
}

TEST_F(Traces, AnyOtherOutput_IsAFileThatIsAppendedTo)
{
    const TemporaryFolder folder;
    VYRStandalone::RedirectTraces({});
    auto* channel = new ORXTrace("TEST_FILE", "", ORXTraActive, folder.Path("trace.txt").c_str(), 1);
    channel->TraPrint("one\n");
    channel->TraPrint("two\n");
    EXPECT_EQ(folder.Read("trace.txt"), "one\ntwo\n");
}

TEST_F(Traces, Scopes_AreIndentedByTheirDepth)
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

TEST_F(Traces, Scopes_OnNoChannelOrASilentOne_PrintNothingAndDoNotIndent)
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

TEST_F(Traces, Indentation_IsPerThread)
{
    ORXTrace* channel = MakeChannel("TEST_THREADS");
    const VYRFeaIndentedTraceManager outer("A::F", "file.cpp", 1, channel, 10);
    std::thread([&] { const VYRFeaIndentedTraceManager other("B::G", "file.cpp", 1, channel, 10); }).join();
    EXPECT_EQ(m_texts, (Texts{"> A::F [10]\n", "> B::G [10]\n", "< B::G\n"}));
}

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

TEST_F(Traces, PrintDebugIndent_PrintsTheIndentationOnTheDebugChannel)
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

TEST_F(Traces, PrintDebugIndent_OnNoChannelOrASilentOne_PrintsNothing)
{
    for (ORXTrace* channel : {static_cast<ORXTrace*>(nullptr), MakeChannel("TEST_NO_DEBUG", ORXTraSilent)})
    {
        const DebugChannel replaced(channel);
        VYRFeaIndentedTraceManager::PrintDebugIndent(2);
    }
    EXPECT_EQ(m_texts, Texts{});
}

TEST_F(Traces, DebugChannelOfTheSibling_StandsFromTheBeginning)
{
    ASSERT_NE(VYRFeaTraceManager::_Debug, nullptr);
    EXPECT_STREQ(VYRFeaTraceManager::_Debug->Name(), "FEA_DEBUG");
    const char* const wanted = std::getenv("VYRFEATRACES_DEBUG");
    EXPECT_EQ(VYRFeaTraceManager::_Debug->IsActive(), wanted != nullptr && *wanted != '\0');
}
} // namespace
