/**
 * @file
 * Trace channels and their controls.
 */

#include "TraceTest.h"

namespace
{
using Traces = TraceTest;

TEST_F(Traces, Channel_KeepsWhatItWasMadeOf)
{
    char name[] = "TEST_NAMES";
    char description[] = "a description";
    char file[] = "STDOUT";
    ORXTrace* const channel = new ORXTrace(name, description, ORXTraActive, file, 7);
    name[0] = description[0] = file[0] = '?';
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

TEST_F(Traces, TraPrint_KeepsBytesOfEveryPlane)
{
    ORXTrace* channel = MakeChannel("TEST_PLANES");
    std::string all;
    for (const char* character : {"a", "\xC3\xA4", "\xE6\xB0\xB4", "\xF0\x9F\x8C\x8A", "\xF4\x8F\xBF\xBD"})
        all += character;
    channel->TraPrint("%s", ORXUnicodeString(all.c_str()));
    channel->TraPrint(all.c_str());
    EXPECT_EQ(m_texts, (Texts{all, all}));
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

TEST_F(Traces, WithoutASink_StandardOutputIsWritten)
{
    ORXTrace* channel = MakeChannel("TEST_STDOUT");
    HostUnderTest::RedirectTraces({});
    testing::internal::CaptureStdout();
    channel->TraPrint("to %s\n", "standard output");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "to standard output\n");
    EXPECT_EQ(m_texts, Texts{});
}

} // namespace
