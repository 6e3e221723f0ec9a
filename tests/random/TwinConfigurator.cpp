#include "TwinConfigurator.h"

#include <algorithm>

namespace Twin
{
namespace
{
/// Blanks go, wherever they stand; an empty text is one empty entry.
Texts Split(const std::string& iText)
{
    Texts texts(1);
    for (const char letter : iText)
    {
        if (letter == ',')
            texts.emplace_back();
        else if (letter != ' ')
            texts.back() += letter;
    }
    return texts;
}
} // namespace

HRESULT Configurator::Apply(Object* ioObject, const std::string& iConfiguration)
{
    const auto& configurations = RandomConfigurations();
    const auto found = std::find_if(configurations.begin(), configurations.end(),
                                    [&](const auto& iOne) { return iOne.name == iConfiguration; });
    if (found == configurations.end())
        return Fail("GetConfigurationObject(iConfigName, configObjectJSON)");
    if (found->items.empty())
        return S_FALSE;
    if (ioObject == nullptr)
        return Fail("ispObject != NULL_var");
    if (!HasDefaults(*ioObject))
        return Fail("spDefMgmt != NULL_var");
    DefaultsOf(*ioObject);
    if (!IsInModel(*ioObject))
        return Fail("spCont");
    Records records;
    for (const RandomItem& item : found->items)
    {
        const HRESULT status = ApplyItem(*ioObject, item, records);
        if (status < 0)
            return status;
    }
    Place list = Get(At(ioObject), "defaultManagement");
    if (list.error.empty())
        list = Get(list, "configuration");
    if (SetList(list, records) < 0)
        return Fail("specAccess[\"defaultManagement\"][VYRCFDBASE(DefaultManagement, "
                    "configuration)].SetList(configItemsList)");
    return S_OK;
}

HRESULT Configurator::ApplyItem(Object& ioObject, const RandomItem& iItem, Records& ioRecords)
{
    const std::string path = iItem.Text("path");
    if (iItem.Has("choices"))
        return ApplyChoiceItem(ioObject, iItem, ioRecords);
    if (!iItem.Text("value").empty())
    {
        if (iItem.isList && SetStrings(Get(At(&ioObject), path), Split(iItem.Text("value"))) < 0)
            return Fail("specAccess[path].SetStrings(valuesList)");
        return S_OK;
    }
    if (!iItem.Text("default").empty())
        return ApplyDefault(ioObject, iItem, ioRecords);
    if (iItem.Text("config").empty())
        return S_OK;
    if (!iItem.Text("condition").empty())
        ApplyConditional(ioObject, iItem, ioRecords);
    else
        Apply(GetByPath(At(&ioObject), path).object, iItem.Text("config"));
    return S_OK;
}

Object* Configurator::MakeRecord()
{
    Line("create VYRCfdConfigItem ConfigItem");
    return Create("VYRCfdConfigItem", "ConfigItem");
}

void Configurator::WriteRecord(Object& ioRecord, const std::vector<std::pair<const char*, std::string>>& iTexts)
{
    for (const auto& [name, text] : iTexts)
        Store(ioRecord, *Find(&ioRecord, name), Of(text), 0);
}

HRESULT Configurator::ApplyChoiceItem(Object& ioObject, const RandomItem& iItem, Records& ioRecords)
{
    const std::string path = iItem.Text("path");
    const std::string defaultText = iItem.Text("default");
    const Texts choices = Split(iItem.Text("choices"));
    const Texts startups = iItem.Has("Startups") ? Split(iItem.Text("Startups")) : Texts();
    if (startups.empty() && IsManaged(ioObject))
    {
        if (ConfigureManaged(ioObject, choices, defaultText, iItem.Text("display")) < 0)
            return Fail("spChoiceMgr->ConfigureChoiceMgr(choicesList, defaultValue, display)");
    }
    else if (!IsChoice(ioObject))
        return Fail("spChoice");
    else if (Configure(ioObject, choices, startups, defaultText, iItem.Text("display")) < 0)
        return Fail("spChoice->Configure(choicesList, startupsList, defaultValue, display)");
    if (defaultText.empty())
        return S_OK;
    Object* record = MakeRecord();
    WriteRecord(*record,
                {{"type", "string"}, {"path", path.empty() ? "value" : path + "/value"}, {"default", defaultText}});
    ioRecords.push_back(record);
    return S_OK;
}

HRESULT Configurator::ApplyDefault(Object& ioObject, const RandomItem& iItem, Records& ioRecords)
{
    const std::string path = iItem.Text("path");
    const std::string autoKey = iItem.Text("defaultAutoKey");
    Object* record = MakeRecord();
    if (!autoKey.empty() && SetIsAuto(ioObject, path, true) < 0)
        return Fail("spDefMgmt->SetIsAuto(path, ORXTrue)");
    if (SetCustomDefault(ioObject, path, iItem.Text("default")) < 0)
        return Fail("spDefMgmt->SetCustomDefault(path, defaultValue)");
    WriteRecord(*record, {{"type", iItem.Text("type")}, {"path", path}, {"default", iItem.Text("default")}});
    if (!autoKey.empty())
        WriteRecord(*record, {{"defaultAutoKey", autoKey}});
    ioRecords.push_back(record);
    return S_OK;
}

void Configurator::ApplyConditional(Object& ioObject, const RandomItem& iItem, Records& ioRecords)
{
    Object* record = MakeRecord();
    const Object* target = GetByPath(ApplyCondition(At(&ioObject), iItem.Text("condition")), iItem.Text("path")).object;
    WriteRecord(
        *record,
        {{"path", iItem.Text("path")}, {"condition", iItem.Text("condition")}, {"config", iItem.Text("config")}});
    ioRecords.push_back(record);
    if (target != nullptr)
        Apply(const_cast<Object*>(target), iItem.Text("config"));
}
} // namespace Twin
