/**
 * @file
 * Every choice of every Choice of the sample, selected in turn. What the model then holds is compared with data/, which
 * was read and found right. renew.sh shows what has changed.
 *
 * Each Choice has a file. It begins with what stays the same throughout. Then come sections, the first as the
 * configuration has left the Choice, and one a choice: what the Choice and everything below it then hold. Nothing else
 * of the model changes.
 */

#include <algorithm>

#include "FlowTest.h"
#include "ModelLines.h"
#include "SampleGoldens.h"
#include "SamplePlaces.h"
#include "SampleTest.h"
#include "VYRICfdChoice.h"

namespace
{
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
        if (IsBelow(line, iPath))
            split.below.push_back(line.substr(iPath.size()));
        else
            split.elsewhere.push_back(line);
    return split;
}

bool Holds(const Lines& iLines, const std::string& iLine)
{
    return std::find(iLines.begin(), iLines.end(), iLine) != iLines.end();
}

std::vector<ORXUnicodeString> ChoicesOf(const ORXISpecObject_var& iChoice)
{
    std::vector<ORXUnicodeString> choices;
    EXPECT_EQ(VYRICfdChoice_var(iChoice)->GetListOfChoices(choices), S_OK);
    EXPECT_FALSE(choices.empty());
    return choices;
}

struct Section
{
    std::string title;
    Lines lines;
};

std::string TextOf(const std::string& iTitle, const std::vector<Section>& iSections)
{
    Lines same;
    for (const std::string& line : iSections.front().lines)
        if (std::all_of(iSections.begin(), iSections.end(),
                        [&](const Section& iSection) { return Holds(iSection.lines, line); }))
            same.push_back(line);
    std::string text = iTitle + '\n';
    for (const std::string& line : same)
        text += line + '\n';
    for (const Section& section : iSections)
    {
        text += "\n== " + section.title + '\n';
        for (const std::string& line : section.lines)
            if (!Holds(same, line))
                text += line + '\n';
    }
    return text;
}

class ChoiceGoldens : public SampleInstallationTest
{
protected:
    void SetUp() override
    {
        SampleInstallationTest::SetUp();
        ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->GetConfigurationMap(m_configurations), S_OK);
        m_places = ConfiguredPlaces(m_configurations);
    }

    bool IsForChoices(const std::string& iConfiguration) const
    {
        const auto& items = m_configurations.at(iConfiguration.c_str());
        return std::any_of(items.begin(), items.end(),
                           [](const JSON::JIStream& iItem) { return iItem.Exist("choices"); });
    }

    /// What the golden file is to hold.
    static std::string SelectAll(const Place& iPlace, const std::string& iConfiguration)
    {
        SCOPED_TRACE(iPlace.FullPath());
        PlacedObject object(iPlace);
        if (!iConfiguration.empty())
            Configure(object.Target(), iConfiguration);
        const SplitLines applied = Split(object.Model(), iPlace.FullPath());
        std::vector<Section> sections{{iConfiguration.empty() ? "(fresh)" : "(applied)", applied.below}};
        for (const ORXUnicodeString& choice : ChoicesOf(object.Target()))
        {
            Select(object.Target(), choice.CastToCharPtr());
            const SplitLines selected = Split(object.Model(), iPlace.FullPath());
            EXPECT_EQ(selected.elsewhere, applied.elsewhere) << choice.CastToCharPtr();
            sections.push_back({choice.CastToCharPtr(), selected.below});
            Reopened(object.Model());
        }
        return TextOf(iPlace.FullPath() + (iConfiguration.empty() ? "" : " by " + iConfiguration), sections);
    }

    VYRCfdConfigurationMap m_configurations;
    std::vector<ConfiguredPlace> m_places;
};

TEST_F(ChoiceGoldens, ConfiguredChoices_StandAsTheyWereRead)
{
    SampleGoldens goldens("choice-");
    for (const ConfiguredPlace& place : m_places)
        if (IsForChoices(place.configuration))
            goldens.Text(place.configuration + "-" + place.targetType) = SelectAll(place.place, place.configuration);
    goldens.Compare();
}

TEST_F(ChoiceGoldens, ChoicesWithoutConfiguration_StandAsTheyWereRead)
{
    SampleGoldens goldens("declared-");
    for (const Place& place : UnconfiguredChoices(m_places))
        goldens.Text(place.rootType + "-" + place.path) = SelectAll(place, "");
    goldens.Compare();
}

class ModelChoices : public SampleTest
{
};

INSTANTIATE_TEST_SUITE_P(Sample, ModelChoices, testing::ValuesIn(SampleCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_P(ModelChoices, EveryChoiceSelected_ChangesNothingElsewhere)
{
    const std::vector<std::string> paths = PathsOf(LoadAndApply(), "VYRCfdChoice");
    EXPECT_GE(paths.size(), 20U);
    for (const std::string& path : paths)
    {
        SCOPED_TRACE(path);
        const VYRStandalone::Model model = LoadAndApply();
        const ORXISpecObject_var choice = ObjectAt(model, path);
        const Lines elsewhere = Split(model, path).elsewhere;
        for (const ORXUnicodeString& one : ChoicesOf(choice))
        {
            Select(choice, one.CastToCharPtr());
            EXPECT_EQ(Split(model, path).elsewhere, elsewhere) << one.CastToCharPtr();
        }
        Reopened(model);
    }
}
} // namespace
