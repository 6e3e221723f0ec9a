/**
 * @file
 * The error service: whole records, in their order, per thread.
 */

#include <ostream>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "VYRFeaErrorManager.h"
#include "VYRStandaloneErrors.h"

namespace VYRStandalone
{
static bool operator==(const Report& iLeft, const Report& iRight)
{
    const auto all = [](const Report& iReport) {
        return std::tie(iReport.kind, iReport.text, iReport.function, iReport.file, iReport.line, iReport.status);
    };
    return all(iLeft) == all(iRight);
}

static void PrintTo(const Report& iReport, std::ostream* ioStream)
{
    *ioStream << static_cast<int>(iReport.kind) << " \"" << iReport.text << "\" in " << iReport.function << " at "
              << iReport.file << ":" << iReport.line << " status " << iReport.status;
}
} // namespace VYRStandalone

namespace
{
using VYRStandalone::Report;
using Reports = std::vector<Report>;

TEST(ErrorService, Reports_AreKeptWholeAndInOrder)
{
    VYRFeaErrorManager::CreateAssertionError("a.cpp", "A::F", 1, "spCont != NULL_var");
    VYRFeaErrorManager::CreateError("b.cpp", "B::G", 2, "Missing config file %s\n", ORXUnicodeString("x.json"));
    const HRESULT status = VYRFeaErrorManager::CreateErrorOnCall("c.cpp", "C::H", 3, "LoadConfigs()", E_NOTIMPL);
    EXPECT_EQ(status, E_NOTIMPL);

    const Reports wanted = {
        {Report::Kind::Assertion, "spCont != NULL_var", "A::F", "a.cpp", 1, E_FAIL},
        {Report::Kind::Error, "Missing config file x.json\n", "B::G", "b.cpp", 2, E_FAIL},
        {Report::Kind::FailedCall, "LoadConfigs()", "C::H", "c.cpp", 3, E_NOTIMPL},
    };
    EXPECT_EQ(VYRStandalone::Reports(), wanted);
    EXPECT_EQ(VYRStandalone::TakeReports(), wanted);
    EXPECT_EQ(VYRStandalone::Reports(), Reports{});
    EXPECT_EQ(VYRStandalone::TakeReports(), Reports{});
}

TEST(ErrorService, AssertionsAndCalls_AreNeverFormats)
{
    VYRFeaErrorManager::CreateAssertionError("a.cpp", "A::F", 1, "a % b == \"%s\"");
    VYRFeaErrorManager::CreateErrorOnCall("a.cpp", "A::F", 2, "Set(\"%s%n\")", E_FAIL);
    EXPECT_EQ(VYRStandalone::TakeReports(),
              (Reports{{Report::Kind::Assertion, "a % b == \"%s\"", "A::F", "a.cpp", 1, E_FAIL},
                       {Report::Kind::FailedCall, "Set(\"%s%n\")", "A::F", "a.cpp", 2, E_FAIL}}));
}

TEST(ErrorService, MessageWithoutArguments_IsKeptWordForWord)
{
    for (const char* message : {"100%", "%s %d %n", "%%", "", "two\nlines\n"})
    {
        VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, message);
        EXPECT_EQ(VYRStandalone::TakeReports(), (Reports{{Report::Kind::Error, message, "A::F", "a.cpp", 1, E_FAIL}}));
    }
    const ORXUnicodeString text("rate% of change");
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, text);
    EXPECT_EQ(VYRStandalone::TakeReports(),
              (Reports{{Report::Kind::Error, "rate% of change", "A::F", "a.cpp", 1, E_FAIL}}));
}

TEST(ErrorService, Arguments_MayHoldPercentSigns)
{
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "%s: %d of %s at %s", "50%s", 7, ORXUnicodeString("%n"),
                                    ORXString("%d"));
    EXPECT_EQ(VYRStandalone::TakeReports(),
              (Reports{{Report::Kind::Error, "50%s: 7 of %n at %d", "A::F", "a.cpp", 1, E_FAIL}}));
}

TEST(ErrorService, LongMessages_AreKeptWhole)
{
    const std::string longText(200000, 'x');
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "<%s>", longText.c_str());
    EXPECT_EQ(VYRStandalone::TakeReports(),
              (Reports{{Report::Kind::Error, "<" + longText + ">", "A::F", "a.cpp", 1, E_FAIL}}));
}

TEST(ErrorService, Status_IsAByteThatOnlySettingChanges)
{
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    VYRStandalone::SetErrorStatus(255);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 255);
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "message");
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 255);
    VYRFeaErrorManager::SetErrorStatus(0);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    EXPECT_EQ(VYRStandalone::Reports().size(), 1U) << "the status and the log are apart";
}

TEST(ErrorService, LogAndStatus_ArePerThread)
{
    VYRFeaErrorManager::CreateError("a.cpp", "A::F", 1, "mine");
    VYRFeaErrorManager::SetErrorStatus(3);
    std::thread([] {
        EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
        EXPECT_EQ(VYRStandalone::Reports(), Reports{});
        VYRFeaErrorManager::CreateError("b.cpp", "B::G", 2, "theirs");
        EXPECT_EQ(VYRStandalone::TakeReports(), (Reports{{Report::Kind::Error, "theirs", "B::G", "b.cpp", 2, E_FAIL}}));
    }).join();
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 3);
    EXPECT_EQ(VYRStandalone::TakeReports(), (Reports{{Report::Kind::Error, "mine", "A::F", "a.cpp", 1, E_FAIL}}));
}
} // namespace
