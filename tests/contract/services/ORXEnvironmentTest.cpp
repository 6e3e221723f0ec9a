/**
 * @file
 * Environment, variables of the installation, and the look-up of files.
 */

#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "HostUnderTest.h"
#include "ORXEnvironment.h"
#include "TemporaryFolder.h"

namespace
{
constexpr const char* Variable = "VYRCFD_TEST_VARIABLE";

class Environment : public testing::Test
{
protected:
    void TearDown() override
    {
        unsetenv(Variable);
        HostUnderTest::UnsetOfficialVariable(Variable);
    }
};

TEST_F(Environment, GetEnv_AsksEachTime)
{
    EXPECT_EQ(ORXGetEnv(Variable), nullptr);
    setenv(Variable, "one", 1);
    EXPECT_STREQ(ORXGetEnv(Variable), "one");
    setenv(Variable, "", 1);
    EXPECT_STREQ(ORXGetEnv(Variable), "") << "an empty variable exists";
    unsetenv(Variable);
    EXPECT_EQ(ORXGetEnv(Variable), nullptr);
    EXPECT_EQ(ORXGetEnv(nullptr), nullptr);
}

TEST_F(Environment, OfficialVariable_IsWhatWasSetThenTheEnvironment)
{
    EXPECT_EQ(ORXGetOfficialVariable(Variable), nullptr);
    EXPECT_EQ(ORXGetOfficialVariable(nullptr), nullptr);
    setenv(Variable, "environment", 1);
    EXPECT_STREQ(ORXGetOfficialVariable(Variable), "environment");
    HostUnderTest::SetOfficialVariable(Variable, "set");
    EXPECT_STREQ(ORXGetOfficialVariable(Variable), "set");
    EXPECT_STREQ(ORXGetEnv(Variable), "environment");
    HostUnderTest::SetOfficialVariable(Variable, "");
    EXPECT_STREQ(ORXGetOfficialVariable(Variable), "");
    HostUnderTest::UnsetOfficialVariable(Variable);
    EXPECT_STREQ(ORXGetOfficialVariable(Variable), "environment");
}

TEST_F(Environment, OfficialVariable_StaysValidWhileOthersAreSet)
{
    HostUnderTest::SetOfficialVariable(Variable, "kept");
    const char* const value = ORXGetOfficialVariable(Variable);
    for (int i = 0; i < 1000; ++i)
        HostUnderTest::SetOfficialVariable("VYRCFD_TEST_OTHER_" + std::to_string(i), "other");
    EXPECT_STREQ(value, "kept");
    for (int i = 0; i < 1000; ++i)
        HostUnderTest::UnsetOfficialVariable("VYRCFD_TEST_OTHER_" + std::to_string(i));
}

class FindPath : public testing::Test
{
protected:
    FindPath()
    {
        m_folder.Write("first/only1.json", "");
        m_folder.Write("first/both.json", "");
        m_folder.Write("second/both.json", "");
        m_folder.Write("second/deep/only2.json", "");
        std::filesystem::create_directories(m_folder.Path("first/isfolder.json"));
        m_folder.Write("second/isfolder.json", "");
        std::filesystem::create_symlink(m_folder.Path("second/both.json"), m_folder.Path("first/link.json"));
        std::filesystem::create_symlink(m_folder.Path("nowhere"), m_folder.Path("first/broken.json"));
    }

    std::string List() const { return m_folder.Path("first") + ":" + m_folder.Path("second"); }

    /// The path that was found, below the test's folder; "-" for none.
    std::string Found(const char* iRelative, const std::string& iList) const
    {
        const char* const path = ORXFindPath(iRelative, iList.c_str());
        return path != nullptr ? std::string(path).substr(m_folder.Path().size() + 1) : "-";
    }

    TemporaryFolder m_folder;
};

TEST_F(FindPath, GivesTheFirstRegularFile)
{
    EXPECT_EQ(Found("only1.json", List()), "first/only1.json");
    EXPECT_EQ(Found("both.json", List()), "first/both.json");
    EXPECT_EQ(Found("deep/only2.json", List()), "second/deep/only2.json");
    EXPECT_EQ(Found("isfolder.json", List()), "second/isfolder.json");
    EXPECT_EQ(Found("link.json", List()), "first/link.json");
    EXPECT_EQ(Found("broken.json", List()), "-");
    EXPECT_EQ(Found("missing.json", List()), "-");
    EXPECT_EQ(Found("deep", List()), "-");
    EXPECT_EQ(Found("", List()), "-");
}

TEST_F(FindPath, TakesOddLists)
{
    EXPECT_EQ(Found("both.json", m_folder.Path("second") + "/"), "second/both.json");
    EXPECT_EQ(Found("both.json", "::" + m_folder.Path("second") + "::"), "second/both.json");
    EXPECT_EQ(Found("both.json", m_folder.Path("missing") + ":" + m_folder.Path("second")), "second/both.json");
    EXPECT_EQ(Found("both.json", ""), "-");
    EXPECT_EQ(Found("both.json", ":"), "-");
    EXPECT_EQ(ORXFindPath(nullptr, List().c_str()), nullptr);
    EXPECT_EQ(ORXFindPath("both.json", nullptr), nullptr);
}

TEST_F(FindPath, AnEmptyEntryIsNotTheWorkingFolder)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.Path("first"));
    const std::string found = Found("only1.json", ":" + m_folder.Path("second"));
    std::filesystem::current_path(before);
    EXPECT_EQ(found, "-");
}

TEST_F(FindPath, ResultBelongsToTheThread)
{
    const char* const mine = ORXFindPath("only1.json", List().c_str());
    const std::string before = mine;
    std::thread([this] { EXPECT_EQ(Found("both.json", List()), "first/both.json"); }).join();
    EXPECT_EQ(before, mine);
}
} // namespace
