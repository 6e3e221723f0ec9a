#ifndef ToolTest_H
#define ToolTest_H

/**
 * @file
 * Fixture of the tool's tests.
 */

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "ToolRun.h"

/// A folder with a copy of the sample installation in "samples", which tests may break, and room for files of their
/// own. The tool runs in it, so that messages hold short paths.
class ToolTest : public testing::Test
{
protected:
    ToolTest();

    /// Runs on the copy.
    ToolRun Run(std::vector<std::string> iArguments) const;
    ToolRun Run(std::vector<std::string> iArguments, ToolSettings iSettings) const;

    /// All files below the folder with their bytes; links by where they lead.
    std::map<std::string, std::string> Files() const;

    std::string Read(const std::string& iName) const { return m_folder.Read(iName); }
    void Write(const std::string& iName, const std::string& iText) const { m_folder.Write(iName, iText); }

    /// A small catalog and its models from the area's data, in the folder.
    void AddSmallModel() const;

    static constexpr char External[] = "samples/models/externalFlow.model.json";
    static constexpr char Configurations[] = "samples/reffiles/VYRCfdApp/";

    TemporaryFolder m_folder;
};

/// A text of the area's data.
std::string ReadData(const std::string& iName);

/// Exit status and standard error, which are compared together.
std::string Outcome(const ToolRun& iRun);
std::string Outcome(int iStatus, const std::string& iErrors);

#endif
