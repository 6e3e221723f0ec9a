/**
 * @file
 * Commands on attributes: get, set, unset, default, isset, auto.
 */

#include <array>

#include "AttributeReader.h"
#include "Failure.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeParm.h"
#include "ORXTypeCode.h"
#include "ObjectRemoval.h"
#include "QuietDefaults.h"
#include "ShellCommands.h"
#include "SourceItem.h"
#include "Unreadable.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "WholeNumber.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// @throws Failure for an object without default management
VYRIMpaDefaultManagementProtected_var DefaultManagementOf(const Target& iTarget, const std::string& iPath)
{
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = iTarget.object;
    if (!spDefMgmt)
        throw Failure("the object of " + Quoted(iPath) + " has no default management");
    return spDefMgmt;
}

/// The parameter behind an attribute. @throws Failure for an attribute that has none
ORXICkeParm_var ParameterOf(const Target& iTarget, const AttributeSnapshot& iAttribute, const std::string& iPath)
{
    const ORXISpecAttrAccess_var spAccess = iTarget.object;
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(iTarget.attribute.c_str()));
    const ORXICkeParm_var spParm = ORXCke_GetParm(spAccess, spKey, 1);
    if (!spParm)
        throw Failure(Quoted(iPath) + " is a " + iAttribute.KindText() + ", which is changed by insert and delete");
    return spParm;
}

/// Tries the text on a parameter of the same type that belongs to nobody, since a text that cannot be read is passed
/// over in silence. @throws Failure
void CheckReadable(const ORXICkeParm_var& iParm, const AttributeSnapshot& iAttribute, const std::string& iText,
                   const std::string& iPath)
{
    const ORXICkeParm_var spTrial =
        ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(iParm->GetType(), ORXUnicodeString("trial"));
    spTrial->Valuate(UnicodeOf(iText));
    // An integer at the head of a text is enough for the engine, which cuts the rest off.
    const bool isCut = iAttribute.info.type == tk_integer && !IsWhole<int>(iText);
    if (isCut || spTrial->GetValue()->IsValuated() == 0)
        throw Failure(Quoted(iPath) + ": " + WhyUnreadable(iAttribute.info, iText));
}

void SetDefault(ShellSession& ioSession, const Target& iTarget, const ShellArguments& iArguments)
{
    const std::string& path = iArguments[0];
    const AttributeSnapshot attribute = ioSession.Read(iTarget, path);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(iTarget, path);
    CheckReadable(ParameterOf(iTarget, attribute, path), attribute, iArguments[1], path);
    ioSession.Change(
        [&] {
            ORXUnicodeString value = UnicodeOf(iArguments[1]);
            if (spDefMgmt->SetCustomDefault(UnicodeOf(iTarget.attribute), value) < 0)
                throw Failure(Quoted(path) + " did not take the default");
        },
        ShellSession::Touches::CustomDefaults);
}

void ShowDefault(ShellSession& ioSession, const Target& iTarget, const std::string& iPath)
{
    DefaultManagementOf(iTarget, iPath);
    const ObjectSnapshot object = TakeSnapshot(ioSession.Model(), iTarget.object, iPath, iTarget.attribute).front();
    const AttributeDefault byDefault = QuietDefaults(ioSession.Model()).Of(object, ioSession.Read(iTarget, iPath));
    ioSession.Say(MakeAnswer((byDefault.origin == DefaultOrigin::None ? "(none)" : byDefault.Shown()) + "\n",
                             [&](JsonWriter& oWriter) { byDefault.value.Write(oWriter); }));
}

/// @param iWords for true, false and no flag
void ShowFlag(ShellSession& ioSession, const std::optional<bool>& iFlag, const std::array<const char*, 3>& iWords)
{
    const std::string word = !iFlag ? iWords[2] : *iFlag ? iWords[0] : iWords[1];
    ioSession.Say({word + "\n", !iFlag ? "null" : *iFlag ? "true" : "false"});
}

/// @param iType of the attribute @throws Failure
void SetObject(ShellSession& ioSession, const Target& iTarget, int iType, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ioSession.Object(iArguments[1]);
    const ORXISpecAttrAccess_var spAccess = iTarget.object;
    const ORXISpecObject_var spFormer = ReadObject(spAccess, iTarget.attribute);
    if (iType == tk_component)
        CheckMayLeave(spObject, iArguments[1]);
    if (iType == tk_component && !!spFormer)
        CheckMayLeave(spFormer, iArguments[0]);
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(iTarget.attribute.c_str()));
    ioSession.Change([&] {
        if (spAccess->SetSpecObject(spKey, spObject) < 0)
            throw Failure(Quoted(iArguments[0]) + " did not take " + Quoted(iArguments[1]));
    });
}
} // namespace

void ShellGet(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const Value value = ioSession.Read(target, iArguments[0]).value;
    ioSession.Say(MakeAnswer(value.Shown() + "\n", [&](JsonWriter& oWriter) { value.Write(oWriter); }));
}

void ShellSet(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const std::string& path = iArguments[0];
    const Target target = ioSession.Attribute(path);
    const AttributeSnapshot attribute = ioSession.Read(target, path);
    if (attribute.info.type == tk_component || attribute.info.type == tk_specobject)
    {
        SetObject(ioSession, target, attribute.info.type, iArguments);
        return;
    }
    const ORXICkeParm_var spParm = ParameterOf(target, attribute, path);
    CheckReadable(spParm, attribute, iArguments[1], path);
    ioSession.Change([&] { spParm->Valuate(UnicodeOf(iArguments[1])); });
}

void ShellUnset(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(target, iArguments[0]);
    ioSession.Change([&] {
        if (spDefMgmt->Unset(UnicodeOf(target.attribute)) < 0)
            throw Failure(Quoted(iArguments[0]) + " could not be put back on its default");
    });
}

void ShellDefault(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    if (iArguments.size() == 2)
        SetDefault(ioSession, target, iArguments);
    else
        ShowDefault(ioSession, target, iArguments[0]);
}

void ShellIsSet(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    DefaultManagementOf(target, iArguments[0]);
    // Default management would make the flag when it was asked.
    ShowFlag(ioSession, ioSession.Read(target, iArguments[0]).set, {"true", "false", "(none)"});
}

void ShellAuto(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(target, iArguments[0]);
    if (iArguments.size() == 1)
    {
        ShowFlag(ioSession, ioSession.Read(target, iArguments[0]).automatic, {"on", "off", "(none)"});
        return;
    }
    if (iArguments[1] != "on" && iArguments[1] != "off")
        throw Failure(Quoted(iArguments[1]) + " is neither on nor off");
    ioSession.Change([&] {
        if (spDefMgmt->SetIsAuto(UnicodeOf(target.attribute), iArguments[1] == "on" ? 1 : 0) < 0)
            throw Failure(Quoted(iArguments[0]) + " did not take the flag");
    });
}
} // namespace Tool
