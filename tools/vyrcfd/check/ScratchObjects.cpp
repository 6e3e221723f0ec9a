#include "ScratchObjects.h"

#include <set>
#include <utility>

#include "ORXISpecAttribute.h"
#include "ORXKeySetVYRCfdBase.h"
#include "SourceItem.h"
#include "VYRICfdChoice.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
namespace
{
std::vector<std::string> TextsAt(const VYRCfdObjectAccess& iObject, VYRCfdKeyFunction iKey)
{
    std::vector<std::string> texts;
    if (!IsChoice(iObject))
        return texts;
    std::vector<ORXUnicodeString> entries;
    iObject[iKey].GetStrings(entries);
    for (const ORXUnicodeString& entry : entries)
        texts.emplace_back(entry.View());
    return texts;
}
} // namespace

VYRCfdObjectAccess ScratchObjects::At(const ObjectPlace& iPlace)
{
    const auto [found, isNew] = m_roots.try_emplace(iPlace.type);
    Root& root = found->second;
    if (isNew)
        root.object = root.model.Create(UnicodeOf(iPlace.type), "Scratch");
    return VYRCfdObjectAccess(ORXBaseUnknown_var(root.object)).GetByPath(UnicodeOf(iPlace.path));
}

void ScratchObjects::Spoil(const std::string& iType)
{
    m_roots.erase(iType);
}

namespace
{
/// Attributes that were made real, by the type of the object. Without that an object does not have them.
std::set<std::pair<std::string, std::string>>& OptionalAttributes()
{
    static std::set<std::pair<std::string, std::string>> attributes;
    return attributes;
}
} // namespace

ORXISpecAttrKey_var KeyOf(const VYRCfdObjectAccess& iObject, const std::string& iName)
{
    const ORXISpecAttrAccess_var spAccess = iObject.Access();
    if (!spAccess)
        return {};
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(UnicodeOf(iName)));
    const ORXISpecObject_var spObject = spAccess;
    if (!spKey || !spObject || spAccess->HasAttribute(spKey.Pointer()) != ORXFalse)
        return spKey;
    const ORXISpecAttribute_var spAdded =
        ORXISpecAttribute_var::Adopt(spObject->AddAttribute(UnicodeOf(iName), spKey->GetType(), 0));
    OptionalAttributes().emplace(iObject.GetType().View(), iName);
    return spKey;
}

bool IsOptional(const VYRCfdObjectAccess& iObject, const std::string& iName)
{
    return !OptionalAttributes().empty() &&
           OptionalAttributes().count({std::string(iObject.GetType().View()), iName}) != 0;
}

std::vector<std::string> NamesOn(const VYRCfdObjectAccess& iObject)
{
    std::vector<std::string> names;
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(ORXISpecObject_var(iObject.Self())))
        names.push_back(info.name);
    for (const std::string& choice : ChoicesOf(iObject))
        names.push_back(choice);
    return names;
}

bool IsChoice(const VYRCfdObjectAccess& iObject)
{
    return iObject.IsSubTypeOf("VYRCfdChoice");
}

std::vector<std::string> ChoicesOf(const VYRCfdObjectAccess& iObject)
{
    return TextsAt(iObject, VYRCFDBASE(Choice, choices));
}

std::vector<std::string> StartupsOf(const VYRCfdObjectAccess& iObject)
{
    return TextsAt(iObject, VYRCFDBASE(Choice, Startups));
}

std::string FirstChoiceOf(const VYRCfdObjectAccess& iObject)
{
    const ORXISpecObject_var spObject = iObject.Self();
    if (!IsChoice(iObject) || !spObject)
        return {};
    const VYRCfdObjectAccess startup{ORXBaseUnknown_var(ORXISpecObject_var::Adopt(spObject->GetStartup()))};
    ORXUnicodeString value;
    startup["value"].GetString(value);
    return std::string(value.View());
}

void Select(const VYRCfdObjectAccess& iChoice, const std::string& iValue)
{
    const VYRICfdChoice_var spChoice = iChoice.Self();
    if (!spChoice)
        return;
    ORXUnicodeString present;
    spChoice->GetChoice(present);
    // A Choice that was never brought up to date has no data object yet.
    if (present == UnicodeOf(iValue))
        spChoice->Update();
    else
        spChoice->SetChoice(UnicodeOf(iValue));
}
} // namespace Tool
