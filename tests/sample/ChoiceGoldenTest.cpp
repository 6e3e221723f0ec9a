/**
 * @file
 * Every choice of every Choice of the sample, selected in turn. What the model then holds is compared with data/, which
 * was read and found right. renew.sh shows what has changed.
 *
 * Each Choice has a file. It begins with what stays the same throughout. Then come sections, the first as the
 * application has left the model, and one a choice: what the Choice and everything below it then hold, and at the end,
 * if anything else of the model is not as the application has left it, how.
 */

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "FlowTest.h"
#include "ModelLines.h"
#include "SampleTest.h"
#include "VYRICfdChoice.h"

namespace
{
constexpr const char* RenewedFolder = "VYR_RENEWED_GOLDENS";

/// The lines of a model about one object and what is below it, without its path, and all others.
struct SplitLines
{
    Lines below;
    Lines elsewhere;
};

SplitLines Split(const VYRStandalone::Model& iModel, const std::string& iPath)
{
    SplitLines split;
    for (const std::string& line : LinesOf(iModel))
    {
        const bool isBelow =
            line.starts_with(iPath) && std::string("./ ").find(line[iPath.size()]) != std::string::npos;
        if (isBelow)
            split.below.push_back(line.substr(iPath.size()));
        else
            split.elsewhere.push_back(line);
    }
    return split;
}

bool Holds(const Lines& iLines, const std::string& iLine)
{
    return std::find(iLines.begin(), iLines.end(), iLine) != iLines.end();
}

void AppendWithout(const Lines& iLines, const Lines& iKnown, const char* iPrefix, std::string& oText)
{
    for (const std::string& line : iLines)
        if (!Holds(iKnown, line))
            oText += iPrefix + line + '\n';
}

/// One Choice of a fresh model, to which the configuration has been applied.
class OneChoice
{
public:
    OneChoice(VYRStandalone::Model iModel, std::string iPath) : m_model(std::move(iModel)), m_path(std::move(iPath))
    {
        const std::size_t slash = m_path.find('/');
        m_object = At(m_model.Find(m_path.substr(0, slash).c_str()), m_path.substr(slash + 1).c_str());
    }

    /// What the golden file is to hold.
    std::string SelectAll()
    {
        std::vector<ORXUnicodeString> choices;
        EXPECT_EQ(Choice()->GetListOfChoices(choices), S_OK);
        EXPECT_FALSE(choices.empty());
        std::vector<Section> sections{Look("(applied)")};
        for (const ORXUnicodeString& choice : choices)
        {
            Select(choice);
            sections.push_back(Look(choice.CastToCharPtr()));
        }
        return Text(sections);
    }

private:
    struct Section
    {
        std::string title;
        SplitLines lines;
    };

    VYRICfdChoice_var Choice() const { return m_object; }

    Section Look(const std::string& iTitle) const { return {iTitle, Split(m_model, m_path)}; }

    void Select(const ORXUnicodeString& iChoice)
    {
        EXPECT_EQ(Choice()->SetChoice(iChoice), S_OK);
        ORXUnicodeString selected;
        EXPECT_EQ(Choice()->GetChoice(selected), S_OK);
        EXPECT_EQ(selected, iChoice);
        EXPECT_EQ(Reported(), Records{}) << iChoice.CastToCharPtr();
    }

    std::string Text(const std::vector<Section>& iSections) const
    {
        const SplitLines& applied = iSections.front().lines;
        Lines same;
        for (const std::string& line : applied.below)
            if (std::all_of(iSections.begin(), iSections.end(),
                            [&](const Section& iSection) { return Holds(iSection.lines.below, line); }))
                same.push_back(line);
        std::string text = m_path + '\n';
        AppendWithout(same, {}, "", text);
        for (const Section& section : iSections)
        {
            text += "\n== " + section.title + '\n';
            AppendWithout(section.lines.below, same, "", text);
            AppendWithout(applied.elsewhere, section.lines.elsewhere, "elsewhere - ", text);
            AppendWithout(section.lines.elsewhere, applied.elsewhere, "elsewhere + ", text);
        }
        return text;
    }

    VYRStandalone::Model m_model;
    std::string m_path;
    ORXISpecObject_var m_object;
};

/// Golden files of a model by their names.
using Goldens = std::map<std::string, std::string>;

std::string FileName(const std::string& iModel, std::string iPath)
{
    std::replace(iPath.begin(), iPath.end(), '/', '.');
    return iModel + "-" + iPath + ".txt";
}

Goldens ReadGoldens(const std::string& iModel)
{
    Goldens read;
    for (const auto& entry : std::filesystem::directory_iterator(VYR_TEST_DATA_DIR))
    {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(iModel + "-"))
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        read[name] = {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    return read;
}

class ChoiceGoldens : public SampleTest
{
};

INSTANTIATE_TEST_SUITE_P(Sample, ChoiceGoldens, testing::ValuesIn(SampleCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_P(ChoiceGoldens, StandAsTheyWereRead)
{
    Goldens selected;
    for (const std::string& path : PathsOf(LoadAndApply(), "VYRCfdChoice"))
        selected[FileName(GetParam().name, path)] = OneChoice(LoadAndApply(), path).SelectAll();
    EXPECT_GE(selected.size(), 5U);

    if (const char* folder = std::getenv(RenewedFolder); folder != nullptr)
    {
        for (const auto& [name, text] : selected)
            std::ofstream(std::string(folder) + "/" + name, std::ios::binary) << text;
        GTEST_SKIP() << "renewed, not compared";
    }
    const Goldens goldens = ReadGoldens(GetParam().name);
    for (const auto& [name, text] : goldens)
        EXPECT_TRUE(selected.contains(name)) << name << ": no such Choice any more";
    for (const auto& [name, text] : selected)
        EXPECT_EQ(text, goldens.contains(name) ? goldens.at(name) : "") << name;
}
} // namespace
