/**
 * @file
 * Every configuration of the sample, applied to an object of each type that it comes to. What it makes of the model is
 * compared with data/, which was read and found right. renew.sh shows what has changed.
 *
 * Each configuration file has a file there, with a section for each configuration and type:
 *
 *     == idealAir on FluidModel.1/equationOfState/Data, IdealGas
 *        with equationOfState = IDEAL_GAS
 *     .gasConstant = 287.05 J kg-1 K-1 <- 287.058 J kg-1 K-1
 *     + record: type=real path=gasConstant default=287.05
 *
 * It tells the difference to the fresh object; lines that are not about the object itself have their whole path. What
 * fresh objects are is compared with the file of their catalog.
 */

#include <algorithm>
#include <map>
#include <numeric>

#include "FlowTest.h"
#include "ModelLines.h"
#include "SampleGoldens.h"
#include "SamplePlaces.h"
#include "SampleTest.h"
#include "VYRStandaloneCatalog.h"

namespace
{
const char* const OtherFiles[] = {"conditionsConfig_Flow",     "conditionsConfig_Energy", "conditionsConfig_Turbulence",
                                  "conditionsConfig_Species",  "conditionsConfig_Phase",  "solverConfig_Flow",
                                  "solverConfig_Energy",       "solverConfig_Turbulence", "solverConfig_MultiSpecies",
                                  "measurementsConfig",        "solverConfig_Radiation",  "conditionsConfig_Radiation",
                                  "conditionsConfig_ECooling", "solverConfig_MultiPhase", "meshFYEConfig"};

std::string MainFile()
{
    return IsSlopeSetting() ? "SolverConfigurations_dxSlope" : "SolverConfigurations";
}

/// The names that a configuration file defines, in their order.
std::vector<std::string> NamesIn(const std::string& iFile)
{
    JSON::JIStream file;
    EXPECT_TRUE(file.ParseFile((VYR_SAMPLES_DIR "/reffiles/VYRCfdApp/" + iFile + ".json").c_str(), true)) << iFile;
    std::vector<std::string> names;
    for (const JSON::JIStream& configuration : file.ReadObjects("configurations"))
        names.emplace_back(configuration.ReadString("name").View());
    return names;
}

/// The lines about an object and what is below it, without its path.
Lines LinesBelow(const VYRStandalone::Model& iModel, const std::string& iPath)
{
    Lines lines;
    for (const std::string& line : LinesOf(iModel))
        if (IsBelow(line, iPath))
            lines.push_back(line.substr(iPath.size()));
    return lines;
}

/// What a fresh object of a type is. Of its components only what their own types do not say.
Lines Fresh(const std::string& iType)
{
    const PlacedObject object(Place{iType, "", {}});
    Lines lines;
    for (const std::string& line : LinesBelow(object.Model(), object.Where().RootName()))
        if (!line.starts_with('/'))
            lines.push_back(line);
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(object.Root()))
    {
        const ORXISpecObject_var part = At(object.Root(), info.name.c_str());
        if (info.type != tk_component || !part || info.name == "defaultManagement")
            continue;
        const PlacedObject alone(Place{part->GetType().CastToCharPtr(), "", {}});
        const Lines known = LinesBelow(alone.Model(), alone.Where().RootName());
        for (const std::string& line : LinesBelow(object.Model(), object.Where().RootName() + "/" + info.name))
            if (!line.starts_with(" = ") && line.find(" -> ") == std::string::npos &&
                std::find(known.begin(), known.end(), line) == known.end())
                lines.push_back("/" + info.name + line);
    }
    return lines;
}

std::string JoinedLines(const Lines& iLines)
{
    return std::accumulate(iLines.begin(), iLines.end(), std::string(),
                           [](std::string iText, const std::string& iLine) { return iText + iLine + '\n'; });
}

std::string Title(const ConfiguredPlace& iPlace)
{
    std::string title =
        "== " + iPlace.configuration + " on " + iPlace.place.FullPath() + ", " + iPlace.targetType + '\n';
    for (const Selection& selection : iPlace.place.selections)
        title += "   with " + (selection.choice.empty() ? "value" : selection.choice) + " = " + selection.value + '\n';
    return title;
}

class ConfigurationGoldens : public SampleInstallationTest
{
protected:
    void SetUp() override
    {
        SampleInstallationTest::SetUp();
        ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->GetConfigurationMap(m_configurations), S_OK);
        m_places = ConfiguredPlaces(m_configurations);
    }

    /// What the configuration makes of a fresh object, however often it is applied, and after closing and opening.
    std::string Applied(const ConfiguredPlace& iPlace) const
    {
        SCOPED_TRACE(Title(iPlace));
        PlacedObject object(iPlace.place);
        const Lines before = LinesOf(object.Model());
        Configure(object.Target(), iPlace.configuration);
        const Lines once = LinesOf(object.Model());
        Configure(object.Target(), iPlace.configuration);
        EXPECT_EQ(DifferencesOf(once, LinesOf(object.Model()), ""), Lines{}) << "applied again";

        const VYRStandalone::Model opened = Reopened(object.Model());
        const ORXISpecObject_var target = object.TargetIn(opened);
        CompareDefaults(iPlace, object.Target(), target);
        Configure(target, iPlace.configuration);
        EXPECT_EQ(DifferencesOf(once, LinesOf(opened), ""), Lines{}) << "applied to the opened model";
        return Title(iPlace) + JoinedLines(DifferencesOf(before, once, iPlace.place.FullPath()));
    }

    /// Custom defaults live in memory; those of a configuration come back from its records, without a difference.
    void CompareDefaults(const ConfiguredPlace& iPlace, const ORXISpecObject_var& iBefore,
                         const ORXISpecObject_var& iAfter) const
    {
        for (const JSON::JIStream& item : m_configurations.at(iPlace.configuration.c_str()))
        {
            const std::string path(item.ReadString("path").View());
            if (item.ReadString("default").IsEmpty())
                continue;
            const char* name = item.Exist("choices") ? "value" : path.c_str();
            EXPECT_EQ(DefaultOf(iAfter, name), DefaultOf(iBefore, name)) << name;
        }
    }

    VYRCfdConfigurationMap m_configurations;
    std::vector<ConfiguredPlace> m_places;
};

TEST_F(ConfigurationGoldens, StandAsTheyWereRead)
{
    std::map<std::string, std::string> sections;
    for (const ConfiguredPlace& place : m_places)
        sections[place.configuration] += (sections[place.configuration].empty() ? "" : "\n") + Applied(place);

    SampleGoldens goldens("configurations-");
    std::size_t compared = 0;
    const auto add = [&](const std::string& iFile, std::string& ioText) {
        for (const std::string& name : NamesIn(iFile))
        {
            EXPECT_FALSE(sections[name].empty()) << name << " is reached from no type of the catalogs";
            ioText += (ioText.empty() ? "" : "\n") + sections[name];
            ++compared;
        }
    };
    add(MainFile(), goldens.TextOfSetting("SolverConfigurations"));
    for (const char* file : OtherFiles)
        add(file, goldens.Text(file));
    EXPECT_EQ(compared, m_configurations.size());
    EXPECT_GE(compared, 120U);
    goldens.Compare();
}

TEST_F(ConfigurationGoldens, FreshObjects_AreAsTheirCatalogsSay)
{
    SampleGoldens goldens("catalog-");
    for (const char* catalog : SampleCatalogs)
    {
        std::string& text = goldens.Text(catalog);
        for (const auto& [type, configurations] : SampleTypes(catalog))
            text += (text.empty() ? "" : "\n") + JoinedLines(Fresh(type));
    }
    goldens.Compare();
}
} // namespace
