/**
 * @file
 * Services that are told to fail.
 */

#include <string>

#include <gtest/gtest.h>

#include "JIStream.h"
#include "ORXEnvironment.h"
#include "TemporaryFolder.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneServices.h"

namespace
{
/// The next call of an operation about a subject gives nothing.
void PlantOne(const char* iOperation, const char* iSubject)
{
    VYRStandalone::Fault fault;
    fault.operation = iOperation;
    fault.subject = iSubject;
    VYRStandalone::PlantFault(fault);
}

TEST(ServiceFaults, OfficialVariable_IsMissingOnce)
{
    constexpr const char* variable = "VYRCFD_TEST_VARIABLE";
    VYRStandalone::SetOfficialVariable(variable, "set");
    PlantOne("GetOfficialVariable", variable);
    EXPECT_EQ(ORXGetOfficialVariable(variable), nullptr);
    EXPECT_STREQ(ORXGetOfficialVariable(variable), "set");
    VYRStandalone::ResetOfficialVariable(variable);
}

TEST(ServiceFaults, FindPath_FindsNothingOnce)
{
    const TemporaryFolder folder;
    const std::string other = folder.Write("other.json", "");
    const std::string file = folder.Write("deep/planted.json", "");
    PlantOne("FindPath", "planted.json");
    EXPECT_STREQ(ORXFindPath("other.json", folder.Path().c_str()), other.c_str());
    EXPECT_EQ(ORXFindPath("deep/planted.json", folder.Path().c_str()), nullptr);
    EXPECT_STREQ(ORXFindPath("deep/planted.json", folder.Path().c_str()), file.c_str());
}

TEST(ServiceFaults, ParseFile_FailsOnce)
{
    const TemporaryFolder folder;
    const std::string file = folder.Write("some/planted.json", "{}");
    PlantOne("ParseFile", "planted.json");
    JSON::JIStream stream;
    EXPECT_FALSE(stream.ParseFile(file.c_str(), true));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_TRUE(stream.ParseFile(file.c_str(), true));
}
} // namespace
