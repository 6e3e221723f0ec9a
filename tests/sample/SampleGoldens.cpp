#include "SampleGoldens.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace
{
constexpr const char* RenewedFolder = "VYR_RENEWED_GOLDENS";
constexpr const char* SlopeEnding = "_dxSlope.txt";
constexpr const char* ResidualEnding = "_residual.txt";

std::map<std::string, std::string> FilesOfThisSetting(const std::string& iPrefix)
{
    std::map<std::string, std::string> read;
    for (const auto& entry : std::filesystem::directory_iterator(VYR_TEST_DATA_DIR))
    {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(iPrefix) || name.ends_with(IsSlopeSetting() ? ResidualEnding : SlopeEnding))
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        read[name] = {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    return read;
}
} // namespace

bool IsSlopeSetting()
{
    return std::getenv("VYRCfd_USE_DxSLOPE_CONVG_CRIT") != nullptr;
}

std::string& SampleGoldens::Text(std::string iName)
{
    std::replace(iName.begin(), iName.end(), '/', '.');
    return m_texts[m_prefix + iName + ".txt"];
}

std::string& SampleGoldens::TextOfSetting(const std::string& iName)
{
    return m_texts[m_prefix + iName + (IsSlopeSetting() ? SlopeEnding : ResidualEnding)];
}

void SampleGoldens::Compare() const
{
    ASSERT_FALSE(m_texts.empty());
    if (const char* folder = std::getenv(RenewedFolder); folder != nullptr)
    {
        for (const auto& [name, text] : m_texts)
            std::ofstream(std::string(folder) + "/" + name, std::ios::binary) << text;
        GTEST_SKIP() << "renewed, not compared";
    }
    const std::map<std::string, std::string> files = FilesOfThisSetting(m_prefix);
    for (const auto& [name, text] : files)
        EXPECT_TRUE(m_texts.contains(name)) << name << ": nothing is compared with this file any more";
    for (const auto& [name, text] : m_texts)
        EXPECT_EQ(text, files.contains(name) ? files.at(name) : "") << name;
}
