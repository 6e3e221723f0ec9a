#include "SamplePlaces.h"

#include <algorithm>
#include <deque>
#include <fstream>
#include <iterator>
#include <regex>

#include "FlowTest.h"
#include "ModelLines.h"
#include "VYRICfdChoice.h"
#include "VYRStandaloneCatalog.h"

namespace
{
constexpr const char* ChoiceType = "VYRCfdChoice";

std::string TypeOf(const ORXISpecObject_var& iObject)
{
    return iObject->GetType().CastToCharPtr();
}

/// Follows one configuration to what it applies.
class PlaceWalk
{
public:
    explicit PlaceWalk(const VYRCfdConfigurationMap& iConfigurations) : m_configurations(iConfigurations) {}

    void Start(const std::string& iConfiguration, const std::string& iType)
    {
        Reach(iConfiguration, iType, {iType, "", {}});
        for (; !m_open.empty(); m_open.pop_front())
            Follow(m_open.front());
    }

    std::vector<ConfiguredPlace> Places() && { return std::move(m_places); }

private:
    void Reach(const std::string& iConfiguration, const std::string& iType, const Place& iPlace)
    {
        if (m_seen.insert({iConfiguration, iType}).second)
            m_open.push_back(m_places.emplace_back(ConfiguredPlace{iConfiguration, iType, iPlace}));
    }

    void Follow(const ConfiguredPlace& iPlace)
    {
        const auto items = m_configurations.find(iPlace.configuration.c_str());
        ASSERT_NE(items, m_configurations.end()) << iPlace.configuration;
        PlacedObject object(iPlace.place);
        for (const JSON::JIStream& item : items->second)
            if (!item.ReadString("config").IsEmpty())
                FollowItem(item, iPlace.place, object);
    }

    void FollowItem(const JSON::JIStream& iItem, const Place& iPlace, const PlacedObject& iObject)
    {
        const std::string path(iItem.ReadString("path").View());
        const std::string configuration(iItem.ReadString("config").View());
        Place place{iPlace.rootType, iPlace.Below(path), iPlace.selections};
        ORXISpecObject_var target;
        const std::string condition(iItem.ReadString("condition").View());
        if (path == "Data" && condition.starts_with("value=="))
        {
            place.selections.push_back({iPlace.path, condition.substr(7)});
            PlacedObject selected(place);
            target = selected.Target();
            ASSERT_TRUE(!!target) << place.FullPath() << ": no data for " << condition;
            Reach(configuration, TypeOf(target), place);
            return;
        }
        // What hangs on references and in lists is not there: it is reached from its own type.
        target = At(iObject.Target(), path.c_str());
        if (!!target)
            Reach(configuration, TypeOf(target), place);
    }

    const VYRCfdConfigurationMap& m_configurations;
    std::set<std::pair<std::string, std::string>> m_seen;
    std::deque<ConfiguredPlace> m_open;
    std::vector<ConfiguredPlace> m_places;
};
} // namespace

PlacedObject::PlacedObject(Place iPlace) : m_place(std::move(iPlace))
{
    const ORXISpecObject_var root = m_model.Create(m_place.rootType.c_str(), m_place.RootName().c_str());
    for (const Selection& selection : m_place.selections)
        Select(selection.choice.empty() ? root : At(root, selection.choice.c_str()), selection.value);
}

ORXISpecObject_var PlacedObject::TargetIn(const VYRStandalone::Model& iModel) const
{
    return ObjectAt(iModel, m_place.FullPath());
}

void Select(const ORXISpecObject_var& iChoice, const std::string& iValue)
{
    const VYRICfdChoice_var choice = iChoice;
    ASSERT_TRUE(!!choice) << iValue;
    EXPECT_EQ(choice->SetChoice(iValue.c_str()), S_OK) << iValue;
    ORXUnicodeString selected;
    EXPECT_EQ(choice->GetChoice(selected), S_OK);
    EXPECT_EQ(selected, ORXUnicodeString(iValue.c_str()));
    EXPECT_EQ(Reported(), Records{}) << iValue;
}

std::vector<std::pair<std::string, std::vector<std::string>>> SampleTypes(const std::string& iCatalog)
{
    std::ifstream file(std::string(VYR_SAMPLES_DIR) + "/catalogs/" + iCatalog + ".catalog.json", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // The catalogs of the sample give these keys of a type in this order; a type that is missed is missed by its test.
    const std::regex type(R"re("name": "(\w+)",\s*"base": "\w+"(,\s*"configurations": \[([^\]]*)\])?)re");
    const std::regex name(R"(\w+)");
    std::vector<std::pair<std::string, std::vector<std::string>>> types;
    for (std::sregex_iterator at(text.begin(), text.end(), type), end; at != end; ++at)
    {
        const std::string names = (*at)[3];
        types.push_back({(*at)[1], {}});
        for (std::sregex_iterator word(names.begin(), names.end(), name); word != end; ++word)
            types.back().second.push_back(word->str());
    }
    return types;
}

std::vector<ConfiguredPlace> ConfiguredPlaces(const VYRCfdConfigurationMap& iConfigurations)
{
    PlaceWalk walk(iConfigurations);
    for (const char* catalog : SampleCatalogs)
        for (const auto& [type, configurations] : SampleTypes(catalog))
            for (const std::string& configuration : configurations)
                walk.Start(configuration, type);
    return std::move(walk).Places();
}

std::vector<Place> UnconfiguredChoices(const std::vector<ConfiguredPlace>& iPlaces)
{
    std::set<std::string> configured;
    for (const ConfiguredPlace& place : iPlaces)
        configured.insert(place.targetType);
    std::set<std::string> found;
    std::vector<Place> choices;
    for (const char* catalog : SampleCatalogs)
        for (const auto& [type, configurations] : SampleTypes(catalog))
        {
            const PlacedObject owner(Place{type, "", {}});
            for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(owner.Root()))
            {
                const ORXISpecObject_var part = At(owner.Root(), info.name.c_str());
                if (info.type != tk_component || !part || part->IsSubTypeOf(ChoiceType) == ORXFalse)
                    continue;
                if (!configured.contains(TypeOf(part)) && found.insert(TypeOf(part)).second)
                    choices.push_back({type, info.name, {}});
            }
        }
    return choices;
}
