/**
 * @file
 * Configuration files. The input is one, in an installation of its own.
 *
 * It is loaded exactly when it is strict JSON and an object. Each of its configurations can be applied to an object,
 * twice, and leaves a model that can be saved and loaded.
 */

#include <set>

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "ScratchFolder.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneServices.h"

namespace
{
using VYRStandalone::Model;

constexpr char FileName[] = "fuzz.json";

class Configurator : public VYRCfdConfigurator
{
public:
    explicit Configurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
};

/**
 * How many applications one application can become at most. Configurations that apply each other twice in a row become
 * some millions of them within a few lines; that such a run takes its time is no finding. So there is a limit to what
 * is applied for one input.
 */
class Expansion
{
public:
    static constexpr int Most = 1200;
    static constexpr int Deepest = 512;

    explicit Expansion(const VYRCfdConfigurationMap& iMap) : m_map(iMap) {}

    /// Whether the configuration is within the limit, together with those that were before.
    bool Takes(const ORXUnicodeString& iName)
    {
        const int before = m_count;
        m_isStopped = false;
        Count(iName, 1);
        if (m_count <= Most)
            return true;
        m_count = before;
        return false;
    }

private:
    void Count(const ORXUnicodeString& iName, int iDepth)
    {
        const auto found = m_map.find(iName);
        // From the deepest one on a run applies nothing more.
        m_isStopped = m_isStopped || iDepth > Deepest;
        if (found == m_map.end() || m_isStopped)
            return;
        for (const JSON::JIStream& item : found->second)
        {
            if (++m_count > Most)
                return;
            // An item without it applies nothing, though a configuration may have no name.
            if (const ORXUnicodeString config = item.ReadString("config"); !config.IsEmpty())
                Count(config, iDepth + 1);
        }
    }

    const VYRCfdConfigurationMap& m_map;
    int m_count = 0;
    bool m_isStopped = false;
};

const ScratchFolder& Installation()
{
    static const ScratchFolder folder;
    return folder;
}

bool IsObjectOfStrictJson(const std::string& iFile, std::string_view iText)
{
    try
    {
        VYRStandalone::CheckJson(iFile);
        const std::size_t first = iText.find_first_not_of(" \t\r\n");
        return first != std::string_view::npos && iText[first] == '{';
    }
    catch (const VYRStandalone::DocumentError&)
    {
        return false;
    }
}

void Apply(Configurator& ioConfigurator, const ORXUnicodeString& iName)
{
    Model model = Model::Parse(FuzzTypes::SampleModel(), "sample");
    const ORXISpecObject_var object = model.Objects().front();
    try
    {
        const long first = ioConfigurator.ApplyConfiguration(object, iName);
        FuzzTypes::DemandRoundTrip(model);
        const long second = ioConfigurator.ApplyConfiguration(object, iName);
        Demand((first == S_FALSE) == (second == S_FALSE), "a configuration has items or not");
    }
    catch (const VYRStandalone::NullPointerError&)
    {
        // The host's reaction to an empty entry in a list that a path goes through.
    }
    FuzzTypes::DemandRoundTrip(model);
}
} // namespace

void RunInput(std::string_view iInput)
{
    FuzzTypes::Declare();
    const std::string file = Installation().Write(std::string("reffiles/VYRCfdApp/") + FileName, iInput);
    VYRStandalone::SetOfficialVariable("ORXInstallPath", Installation().Path());

    Configurator configurator({FileName});
    VYRCfdConfigurationMap map;
    const bool isLoaded = configurator.GetConfigurationMap(map) >= 0;
    Demand(isLoaded == IsObjectOfStrictJson(file, iInput), "strict JSON is loaded, and nothing else");
    // The order in the map has no meaning, and a finding must be found again.
    std::set<std::string> names;
    for (const auto& [name, items] : map)
        names.emplace(name.View());
    Expansion expansion(map);
    for (const std::string& name : names)
        if (const ORXUnicodeString text(name.data(), name.size()); expansion.Takes(text))
            Apply(configurator, text);
}
