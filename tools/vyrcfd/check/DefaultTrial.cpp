#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "AttributeKind.h"
#include "AttributeReader.h"
#include "ItemTrial.h"
#include "MeantLists.h"
#include "MeantUnit.h"
#include "ORXISpecAttrKey.h"
#include "ORXKeySetVYRCfdBase.h"
#include "ORXSimBCInitializeServices.h"
#include "ORXTypeCode.h"
#include "ScratchObjects.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"
#include "WholeNumber.h"
#include "Wording.h"

namespace Tool
{
namespace
{
VYRStandalone::AttributeInfo InfoOf(const VYRCfdObjectAccess& iObject, const std::string& iName)
{
    for (VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(ORXISpecObject_var(iObject.Self())))
        if (info.name == iName)
            return info;
    return {};
}

/// "an integer", "a real in Pa".
std::string KindOf(const VYRStandalone::AttributeInfo& iInfo)
{
    switch (iInfo.type)
    {
    case tk_double:
        return iInfo.unit.empty() ? "a real" : "a real in " + iInfo.unit;
    case tk_integer:
        return "an integer";
    case tk_boolean:
        return "a boolean";
    case tk_enum:
        return "an enumeration";
    case tk_string:
        return "a text";
    case tk_list:
        return "a list";
    default:
        return "an object";
    }
}

/// What stands under "type" for an attribute; empty for such as have no default.
std::string TypeWordOf(int iType)
{
    std::string name = NameOfKind(iType);
    return Holds(TypeWords(), name) ? name : std::string();
}

bool FitsTypeWord(std::string_view iWord, const std::string& iText)
{
    bool truth = false;
    if (iWord == "real")
        return IsWhole<double>(iText);
    if (iWord == "integer")
        return IsWhole<int>(iText);
    if (iWord == "boolean")
        return VYRCfdUtilityMethods::ConvertToBoolean(UnicodeOf(iText), truth,
                                                      VYRCfdUtilityMethods::VYRCfdEmptyIsInvalid) >= 0;
    return true;
}

/// That a word is none at all is told already, but not which the attribute's own is.
void CompleteTypeWord(const SourceItem& iItem, std::string iRight, TrialFindings& oFindings)
{
    Finding finding = FindingAt(iItem, "type", FindingKind::UnknownType, Severity::Warning,
                                Quoted(iItem.Text("type")) + " is no type of an attribute with a default");
    finding.suggestion = std::move(iRight);
    oFindings.push_back({finding});
    oFindings.back().replaced = std::move(finding);
}

void CheckTypeWord(const SourceItem& iItem, const Trial& iTrial, const std::string& iName, TrialFindings& oFindings)
{
    const std::string_view word = iItem.Text("type");
    if (word.empty())
        return;
    const VYRStandalone::AttributeInfo info = InfoOf(iTrial.object, iName);
    std::string right = TypeWordOf(info.type);
    if (right.empty() || right == word)
        return;
    if (!Holds(TypeWords(), word))
        return CompleteTypeWord(iItem, std::move(right), oFindings);
    Finding finding = FindingAt(iItem, "type", FindingKind::WrongType, Severity::Warning,
                                Quoted(iName) + " is " + KindOf(info) + " " + iTrial.Where() + ", and no " +
                                    std::string(word) + ": nothing but the record of the default keeps the word");
    finding.suggestion = std::move(right);
    oFindings.push_back({std::move(finding)});
}

/// The record that a default leaves with the model, alone in the list of them.
VYRCfdObjectAccess RecordOn(const VYRCfdObjectAccess& iObject)
{
    const VYRCfdObjectAccess records = iObject["defaultManagement"][VYRCFDBASE(DefaultManagement, configuration)];
    std::vector<VYRCfdObjectAccess> entries;
    records.List(entries);
    if (!entries.empty())
        return entries.front();
    const ORXISpecObject_var spObject = iObject.Self();
    ORXIContainer_var spContainer = spObject->GetContainer();
    ORXISpecObject_var spRecord;
    ORXSimBCInitializeServices::CreateBasicComponent("VYRCfdConfigItem", "ConfigItem", spContainer, spRecord);
    const VYRCfdObjectAccess record{ORXBaseUnknown_var(spRecord)};
    records.SetList({record});
    return record;
}

/// Without the noise that a unit's factor leaves in the last digits of a number.
std::string WithoutNoise(const Value& iNumber)
{
    constexpr int Digits = 15;
    constexpr double Noise = 1e-14;
    double number = 0.0;
    if (VYRCfdUtilityMethods::ConvertToDouble(UnicodeOf(iNumber.Shown()), number) < 0)
        return iNumber.Shown();
    char text[40];
    std::snprintf(text, sizeof(text), "%.*e", Digits - 1, number);
    double rounded = 0.0;
    std::from_chars(text, text + std::strlen(text), rounded);
    return Value::Of(std::abs(rounded - number) <= Noise * std::abs(number) ? rounded : number).Shown();
}

/// The text if it is a default of the attribute, without its unit as a number of the standard's; empty if it is none.
std::string Taken(const VYRIMpaDefaultManagementProtected_var& iManagement, const ORXUnicodeString& iName,
                  const std::string& iText)
{
    ORXUnicodeString text = UnicodeOf(iText);
    ORXICkeInst_var spDefault;
    ORXUnicodeString name = iName;
    if (iText.empty() || iManagement->SetCustomDefault(name, text) < 0)
        return {};
    iManagement->GetDefault(name, spDefault);
    const Value value = ValueOf(spDefault, tk_double);
    if (value.IsUnset())
        return {};
    return IsWhole<double>(iText) ? iText : WithoutNoise(value);
}

/// What default management finds in a record once the model was closed and opened.
Value Reopened(const VYRIMpaDefaultManagementProtected_var& iManagement, const VYRCfdObjectAccess& iObject,
               const ORXUnicodeString& iName, const std::string& iText, int iType)
{
    const VYRCfdObjectAccess record = RecordOn(iObject);
    record["path"].SetPlainString(iName);
    record["default"].SetPlainString(UnicodeOf(iText));
    iManagement->RemoveCustomDefault(iName);
    ORXICkeInst_var spDefault;
    iManagement->GetDefault(iName, spDefault);
    const Value value = ValueOf(spDefault, iType);
    iManagement->RemoveCustomDefault(iName);
    record["path"].SetPlainString(ORXUnicodeString());
    return value;
}
} // namespace

void DefaultTrial::Check(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    const std::string text(iItem.Text("default"));
    const std::string name = AttributeMeant(iItem, iTrial, oFindings);
    if (name.empty())
        return;
    // What a Choice takes depends on what it offers at the moment.
    const std::tuple key(std::string(iTrial.object.GetType().View()), name, text);
    const auto known = IsChoice(iTrial.object) ? m_verdicts.end() : m_verdicts.find(key);
    const Verdict verdict = known != m_verdicts.end() ? known->second : Try(iTrial, name, text);
    m_verdicts.insert_or_assign(key, verdict);
    // Where the default fits the word alone, it is the attribute that is not the one that was meant.
    const std::string_view word = iItem.Text("type");
    if (verdict.isGood || verdict.kind != FindingKind::DefaultInvalid || !Holds(TypeWords(), word) ||
        !FitsTypeWord(word, text))
        CheckTypeWord(iItem, iTrial, name, oFindings);
    if (verdict.isGood)
        return;
    oFindings.push_back({FindingAt(iItem, "default", verdict.kind,
                                   verdict.isCertain ? iTrial.Worst() : Severity::Warning, verdict.message),
                         text, verdict.known});
    oFindings.back().finding.suggestion = verdict.meant;
}

DefaultTrial::Verdict DefaultTrial::Try(const Trial& iTrial, const std::string& iName, const std::string& iText)
{
    if (iName == "value" && IsChoice(iTrial.object))
    {
        const std::vector<std::string> choices = ChoicesOf(iTrial.object);
        if (!choices.empty() && std::find(choices.begin(), choices.end(), iText) == choices.end())
            return {false, FindingKind::DefaultNotInChoices, true,
                    "the default " + Quoted(iText) + " is none of the choices " + iTrial.Where(), choices};
    }
    return TryOnAttribute(iTrial, iName, iText);
}

DefaultTrial::Verdict DefaultTrial::TryOnAttribute(const Trial& iTrial, const std::string& iName,
                                                   const std::string& iText)
{
    const VYRStandalone::AttributeInfo info = InfoOf(iTrial.object, iName);
    const std::string what = Quoted(iName) + ", " + KindOf(info) + ", ";
    const VYRIMpaDefaultManagementProtected_var spManagement = iTrial.object.Self();
    if (!spManagement)
        return {};
    const ORXUnicodeString name = UnicodeOf(iName);
    ORXUnicodeString text = UnicodeOf(iText);
    ORXICkeInst_var spDefault;
    if (!IsScalar(info.type) || spManagement->SetCustomDefault(name, text) < 0)
        return {false,
                FindingKind::DefaultInvalid,
                true,
                what + "takes no default " + iTrial.Where() + ", and the configuration fails here",
                {}};
    spManagement->GetDefault(name, spDefault);
    const Value now = ValueOf(spDefault, info.type);
    const Value later = Reopened(spManagement, iTrial.object, name, iText, info.type);
    if (now.IsUnset() && info.type == tk_double)
    {
        const MeantUnit meant = MeantQuantityOf(iText);
        const std::string taken = Taken(spManagement, name, meant.text);
        const bool isConverted = !taken.empty() && taken != meant.text;
        return {false,
                FindingKind::DefaultInvalid,
                true,
                what + "cannot take " + Quoted(iText) + " " + iTrial.Where() +
                    ", and is left without a default and a value" + meant.Remark() +
                    (isConverted ? "; " + Quoted(meant.text) + " would be " + taken : ""),
                {},
                taken};
    }
    if (now.IsUnset())
        return {false, FindingKind::DefaultInvalid, true,
                what + "cannot take " + Quoted(iText) + " " + iTrial.Where() +
                    ", and is left without a default and a value",
                info.type == tk_boolean ? std::vector<std::string>{"true", "false"} : info.values};
    if (info.type == tk_integer && !IsWhole<int>(iText))
        return {false, FindingKind::DefaultInvalid,
                false, what + "takes only " + now.Shown() + " of " + Quoted(iText) + " " + iTrial.Where(),
                {},    IntegerMeantBy(iText)};
    if (!(now == later))
        return {false,
                FindingKind::DefaultReopensDifferently,
                false,
                what + "has the default " + now.Shown() + " until the model is closed, and " +
                    (later.IsUnset() ? "none" : later.Shown()) + " once it is opened again, " + iTrial.Where(),
                {},
                // Read without its unit a number is one of the standard's.
                info.type == tk_double ? Taken(spManagement, name, WithoutNoise(now)) : std::string()};
    return {};
}
} // namespace Tool
