/**
 * @file
 * The error service: whole records, in their order, per thread.
 */

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "HostUnderTest.h"
#include "VYRFeaErrorManager.h"

namespace
{
using HostUnderTest::ErrorStatus;
using HostUnderTest::TakeReports;
using Lines = std::vector<std::string>;

const std::string Failed = std::to_string(E_FAIL);

TEST(ErrorService, Reports_AreKeptWholeAndInOrder)
{
    VYRFeaErrorManager::CreateAssertionError("a.cpp", "A::F", 1, "spCont != NULL_var");
    VYRFeaErrorManager::CreateError("b.cpp", "B::G", 2, "Missing config file %s\n", ORXUnicodeString("x.json"));
    const HRESULT status = VYRFeaErrorManager::CreateErrorOnCall("c.cpp", "C::H", 3, "LoadConfigs()", E_NOTIMPL);
    EXPECT_EQ(status, E_NOTIMPL);
    EXPECT_EQ(TakeReports(), (Lines{"assertion \"spCont != NULL_var\" A::F a.cpp:1 " + Failed,
                                    "error \"Missing config file x.json\n\" B::G b.cpp:2 " + Failed,
                                    "call \"LoadConfigs()\" C::H c.cpp:3 " + std::to_string(E_NOTIMPL)}));
    EXPECT_EQ(TakeReports(), Lines{});
}

TEST(ErrorService, CreateErrorOnCall_AnswersTheStatusAsItWas)
{
    for (const HRESULT status : {E_FAIL, E_NOTIMPL, HRESULT{-1}, HRESULT{-7}})
        EXPECT_EQ(VYRFeaErrorManager::CreateErrorOnCall("c.cpp", "C::H", 3, "Call()", status), status);
    EXPECT_EQ(TakeReports().size(), 4U);
}

TEST(ErrorService, AssertionsAndCalls_AreNeverFormats)
{
    VYRFeaErrorManager::CreateAssertionError("a.cpp", "A::F", 1, "a % b == \"%s\"");
    VYRFeaErrorManager::CreateErrorOnCall("a.cpp", "A::F", 2, "Set(\"%s%n\")", E_FAIL);
    EXPECT_EQ(TakeReports(), (Lines{"assertion \"a % b == \"%s\"\" A::F a.cpp:1 " + Failed,
                                    "call \"Set(\"%s%n\")\" A::F a.cpp:2 " + Failed}));
}

TEST(ErrorService, MessageWithoutArguments_IsKeptWordForWord)
{
    for (const char* message : {"100%", "%s %d %n", "%%", "", "two\nlines\n"})
    {
        VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, message);
        EXPECT_EQ(TakeReports(), (Lines{"error \"" + std::string(message) + "\" A::F a.cpp:1 " + Failed}));
    }
    const ORXUnicodeString text("rate% of change");
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, text);
    EXPECT_EQ(TakeReports(), (Lines{"error \"rate% of change\" A::F a.cpp:1 " + Failed}));
}

TEST(ErrorService, Arguments_MayHoldPercentSigns)
{
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "%s: %d of %s at %s", "50%s", 7, ORXUnicodeString("%n"),
                                    ORXString("%d"));
    EXPECT_EQ(TakeReports(), (Lines{"error \"50%s: 7 of %n at %d\" A::F a.cpp:1 " + Failed}));
}

TEST(ErrorService, LongMessages_AreKeptWhole)
{
    const std::string longText(200000, 'x');
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "<%s>", longText.c_str());
    EXPECT_EQ(TakeReports(), (Lines{"error \"<" + longText + ">\" A::F a.cpp:1 " + Failed}));
}

TEST(ErrorService, Texts_AreCopied)
{
    {
        std::string file = "a.cpp";
        std::string function = "A::F";
        std::string text = "text";
        VYRFeaErrorManager::CreateAssertionError(file.c_str(), function.c_str(), 1, text.c_str());
        file = function = text = "gone";
    }
    EXPECT_EQ(TakeReports(), (Lines{"assertion \"text\" A::F a.cpp:1 " + Failed}));
}

TEST(ErrorService, Status_IsAByteThatOnlySettingChanges)
{
    VYRFeaErrorManager::SetErrorStatus(255);
    EXPECT_EQ(ErrorStatus(), 255);
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "message");
    VYRFeaErrorManager::CreateErrorOnCall("a.cpp", "A::F", 2, "Call()", E_FAIL);
    EXPECT_EQ(ErrorStatus(), 255);
    VYRFeaErrorManager::SetErrorStatus(0);
    EXPECT_EQ(ErrorStatus(), 0);
    EXPECT_EQ(TakeReports().size(), 2U) << "the status and the log are apart";
}

TEST(ErrorService, LogAndStatus_ArePerThread)
{
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "mine");
    VYRFeaErrorManager::SetErrorStatus(3);
    std::thread([] {
        EXPECT_EQ(ErrorStatus(), 0);
        EXPECT_EQ(TakeReports(), Lines{});
        VYRFeaErrorManager::CreateError("b.cpp", "B::G", 2, "theirs");
        EXPECT_EQ(TakeReports(), (Lines{"error \"theirs\" B::G b.cpp:2 " + Failed}));
    }).join();
    EXPECT_EQ(ErrorStatus(), 3);
    EXPECT_EQ(TakeReports(), (Lines{"error \"mine\" A::F a.cpp:1 " + Failed}));
    VYRFeaErrorManager::SetErrorStatus(0);
}
} // namespace
