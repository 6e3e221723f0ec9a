#include "TwinChoices.h"

#include <algorithm>

namespace Twin
{
namespace
{
constexpr const char* Uneven = "choices.size() == startups.size()";

bool Contains(const Texts& iTexts, const std::string& iText)
{
    return std::find(iTexts.begin(), iTexts.end(), iText) != iTexts.end();
}
} // namespace

Texts Choices::TextsOf(const Object& iObject, const std::string& iName)
{
    Texts texts;
    for (const Value& value : Find(&iObject, iName)->values)
        texts.push_back(value.text);
    return texts;
}

// ---- notifications --------------------------------------------------------------------------------------------------

bool Choices::Listens(const Object& iObject) const
{
    return HasDefaults(iObject) || IsKindOf(iObject, "VYRCfdDefaultManagement");
}

void Choices::Advise(Object& ioObject, const std::string& iName, bool iIsThere, bool iIsTrue)
{
    if (IsChoice(ioObject))
        AdviseChoice(ioObject, iName, iIsThere);
    else if (HasDefaults(ioObject))
    {
        DefaultsOf(ioObject);
        AdviseValues(ioObject, iName, iIsThere);
    }
    else
        AdviseFlags(ioObject, iName, iIsTrue);
}

void Choices::AdviseChoice(Object& ioChoice, const std::string& iName, bool iIsThere)
{
    if (iName == "value")
    {
        ioChoice.wasValueChange = true;
        DefaultsOf(ioChoice);
        if (iIsThere)
            SetIsSet(ioChoice, iName, true);
        else
            Unset(ioChoice, iName);
    }
    if (iName == "choices" || iName == "Startups" || iName == "value")
        UpdateChoice(ioChoice, "");
}

// ---- the update -----------------------------------------------------------------------------------------------------

HRESULT Choices::UpdateChoice(Object& ioChoice, const std::string& iDefault)
{
    if (ioChoice.isInConfiguration)
        return S_FALSE;
    Attribute& valueAttribute = *Find(&ioChoice, "value");
    const std::string value = valueAttribute.value.AsString();
    const Texts choices = TextsOf(ioChoice, "choices");
    const Texts startups = TextsOf(ioChoice, "Startups");
    if (!startups.empty() && choices.size() != startups.size())
        return Fail(Uneven);
    if (choices.empty())
        return Fail("choices.size() > 0");
    std::string defaultText = iDefault;
    if (defaultText.empty())
    {
        std::optional<Value> kept;
        if (GetDefault(ioChoice, "value", kept) < 0)
            return Fail("spDefMgmt->GetDefault(\"value\", spDefVal)");
        if (!kept.has_value())
            return Fail("spDefVal");
        defaultText = kept->AsString();
    }
    if (!valueAttribute.allowed.has_value())
    {
        valueAttribute.allowed.emplace();
        Touch(ioChoice);
    }
    const Texts allowed = *valueAttribute.allowed;

    bool isDataChanged = false;
    bool isValueFound = false;
    for (std::size_t i = 0; i < choices.size(); ++i)
        if (choices[i] == value)
        {
            isValueFound = true;
            UpdateData(ioChoice, startups.empty() ? "" : startups[i], isDataChanged);
        }
    if (allowed != choices)
        Allow(ioChoice, valueAttribute, choices);
    if (!Contains(choices, defaultText))
        SetCustomDefault(ioChoice, "value", choices[0]);
    else if (!iDefault.empty())
        SetCustomDefault(ioChoice, "value", defaultText);
    if (!isValueFound)
    {
        bool isSet = false;
        IsSet(ioChoice, "value", isSet);
        if (IsHooked(ioChoice))
        {
            Line("fix");
            if (Find(&ioChoice, "display")->value.AsString() == "keep")
                return S_OK;
        }
        if (isSet)
            Unset(ioChoice, "value");
    }
    ApplyRecords(ioChoice);
    const bool wasValueChange = std::exchange(ioChoice.wasValueChange, false);
    if (IsHooked(ioChoice))
        Line(std::string("complete ") + (wasValueChange ? "true" : "false") + (isDataChanged ? " true" : " false"));
    if (isDataChanged || wasValueChange)
        Line("dispatch " + PathOf(ioChoice));
    return S_OK;
}

void Choices::TakeData(Object& ioChoice)
{
    Attribute& data = *Find(&ioChoice, "Data");
    RemoveObject(ioChoice, data, data.object);
}

void Choices::UpdateData(Object& ioChoice, const std::string& iStartup, bool& ioDataChange)
{
    Attribute& data = *Find(&ioChoice, "Data");
    if (IsHooked(ioChoice))
        Line(iStartup.empty() ? "data" : "data " + iStartup);
    if (iStartup.empty())
    {
        if (data.object == nullptr)
            return;
        TakeData(ioChoice);
        ioDataChange = true;
        return;
    }
    if (data.object != nullptr && data.object->type == iStartup)
        return;
    ioDataChange = true;
    if (IsHooked(ioChoice))
        Line("name " + iStartup);
    std::string name = Find(&ioChoice, "dataName")->value.AsString();
    if (name.empty())
        name = iStartup + "Inst";
    Line("create " + iStartup + " " + name);
    Object* made = IsInModel(ioChoice) ? Create(iStartup, name) : nullptr;
    if (made != nullptr)
        SetObject(ioChoice, data, made, 0);
    else if (data.object != nullptr)
        TakeData(ioChoice);
}

void Choices::ApplyRecords(Object& ioChoice)
{
    Object* flags = Find(&ioChoice, "defaultManagement")->object;
    if (flags == nullptr)
    {
        Report("Null initialization c");
        return;
    }
    const std::vector<Object*> records = Find(flags, "configuration")->objects;
    for (Object* record : records)
    {
        std::string path;
        GetString(Get(At(record), "path"), path);
        if (path != "Data")
            continue;
        std::string condition;
        GetString(Get(At(record), "condition"), condition);
        const Place target = GetByPath(ApplyCondition(At(&ioChoice), condition), path);
        if (target.object == nullptr)
            continue;
        std::string configuration;
        GetString(Get(At(record), "config"), configuration);
        Apply(target.object, configuration);
    }
}

// ---- configuring ----------------------------------------------------------------------------------------------------

HRESULT Choices::Configure(Object& ioChoice, const Texts& iChoices, const Texts& iStartups, const std::string& iDefault,
                           const std::string& iDisplay)
{
    if (!iStartups.empty() && iStartups.size() != iChoices.size())
        return Fail("iStartups.size() == 0 || iStartups.size() == iChoices.size()");
    SetTexts(ioChoice, *Find(&ioChoice, "choices"), iChoices);
    SetTexts(ioChoice, *Find(&ioChoice, "Startups"), iStartups);
    if (!iDisplay.empty())
        SetString(Get(At(&ioChoice), "display"), iDisplay);
    return UpdateChoice(ioChoice, iDefault);
}

HRESULT Choices::SetChoice(Object& ioChoice, const std::string& iChoice)
{
    return SetString(Get(At(&ioChoice), "value"), iChoice);
}

HRESULT Choices::StartConfiguration(Object& ioChoice)
{
    return std::exchange(ioChoice.isInConfiguration, true) ? S_FALSE : S_OK;
}

HRESULT Choices::CompleteConfiguration(Object& ioChoice)
{
    ioChoice.isInConfiguration = false;
    return UpdateChoice(ioChoice, "");
}

// ---- the manager ----------------------------------------------------------------------------------------------------

HRESULT Choices::ConfigureManaged(Object& ioChoice, const Texts& iChoices, const std::string& iDefault,
                                  const std::string& iDisplay)
{
    if (iChoices.empty())
        return Fail("iChoices.size() > 0");
    const Texts declared = TextsOf(*ioChoice.startup, "choices");
    const Texts declaredStartups = TextsOf(*ioChoice.startup, "Startups");
    Texts startups;
    for (const std::string& choice : iChoices)
    {
        const auto found = std::find(declared.begin(), declared.end(), choice);
        if (found == declared.end())
            return Fail("Invalid choice " + choice);
        if (!declaredStartups.empty())
            startups.push_back(declaredStartups[static_cast<std::size_t>(found - declared.begin())]);
    }
    if (!Contains(iChoices, iDefault))
        return Fail("defaultFound");
    return Configure(ioChoice, iChoices, startups, iDefault, iDisplay);
}

HRESULT Choices::Reset(Object& ioChoice, bool iKeepValue)
{
    DefaultsOf(ioChoice);
    const Object& from = iKeepValue ? ioChoice : *ioChoice.startup;
    return Configure(ioChoice, TextsOf(*ioChoice.startup, "choices"), TextsOf(*ioChoice.startup, "Startups"),
                     Find(&from, "value")->value.AsString(), Find(ioChoice.startup, "display")->value.AsString());
}

HRESULT Choices::Prohibit(Object& ioChoice, const std::set<std::string>& iProhibited)
{
    const Texts choices = TextsOf(ioChoice, "choices");
    const Texts startups = TextsOf(ioChoice, "Startups");
    if (!startups.empty() && choices.size() != startups.size())
        return Fail("currentChoices.size() == currentStartups.size()");
    Texts newChoices;
    Texts newStartups;
    for (std::size_t i = 0; i < choices.size(); ++i)
    {
        if (iProhibited.contains(choices[i]))
            continue;
        newChoices.push_back(choices[i]);
        if (!startups.empty())
            newStartups.push_back(startups[i]);
    }
    if (newChoices == choices)
        return S_OK;
    StartConfiguration(ioChoice);
    SetTexts(ioChoice, *Find(&ioChoice, "choices"), newChoices);
    SetTexts(ioChoice, *Find(&ioChoice, "Startups"), newStartups);
    CompleteConfiguration(ioChoice);
    return S_OK;
}

HRESULT Choices::AddChoices(Object& ioChoice, const std::set<std::string>& iAdded)
{
    const Texts declared = TextsOf(*ioChoice.startup, "choices");
    const Texts declaredStartups = TextsOf(*ioChoice.startup, "Startups");
    const Texts choices = TextsOf(ioChoice, "choices");
    Texts newChoices;
    Texts newStartups;
    for (std::size_t i = 0; i < declared.size(); ++i)
    {
        if (!Contains(choices, declared[i]) && !iAdded.contains(declared[i]))
            continue;
        newChoices.push_back(declared[i]);
        if (!declaredStartups.empty())
            newStartups.push_back(declaredStartups[i]);
    }
    if (newChoices == choices)
        return S_OK;
    StartConfiguration(ioChoice);
    SetTexts(ioChoice, *Find(&ioChoice, "choices"), newChoices);
    // Kept as its callers know it: the startups end up among the choices.
    if (!declaredStartups.empty())
        SetTexts(ioChoice, *Find(&ioChoice, "choices"), newStartups);
    CompleteConfiguration(ioChoice);
    return S_OK;
}
} // namespace Twin
