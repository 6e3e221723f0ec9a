/**
 * @file
 * Commands on attributes: get, set, unset, default, auto.
 */

#include "AttributeReader.h"
#include "Failure.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeParm.h"
#include "ORXTypeCode.h"
#include "Output.h"
#include "QuietDefaults.h"
#include "ShellCommands.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "Wording.h"

namespace Tool
{
namespace
{
ORXUnicodeString ToOrx(const std::string& iText)
{
    return ORXUnicodeString(iText.data(), iText.size());
}

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
        throw Failure(Quoted(iPath) + " is a " + iAttribute.KindText() + ", which no text can be read for");
    return spParm;
}

/// Why a text is no value of the attribute.
std::string WhyUnreadable(const AttributeSnapshot& iAttribute, const std::string& iText)
{
    if (iAttribute.info.type == tk_boolean)
        return Quoted(iText) + " is neither true nor false";
    if (iAttribute.info.type != tk_enum)
        return Quoted(iText) + " is no " + iAttribute.KindText();
    std::string texts;
    for (const std::string& text : iAttribute.info.values)
        texts += (texts.empty() ? "" : ", ") + Quoted(text);
    return Quoted(iText) + " is none of " + texts + DidYouMean(iText, iAttribute.info.values);
}

/// Tries the text on a parameter of the same type that belongs to nobody, since a text that cannot be read is passed
/// over in silence. @throws Failure
void CheckReadable(const ORXICkeParm_var& iParm, const AttributeSnapshot& iAttribute, const std::string& iText,
                   const std::string& iPath)
{
    const ORXICkeParm_var spTrial =
        ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(iParm->GetType(), ORXUnicodeString("trial"));
    spTrial->Valuate(ToOrx(iText));
    if (spTrial->GetValue()->IsValuated() == 0)
        throw Failure(Quoted(iPath) + ": " + WhyUnreadable(iAttribute, iText));
}

void SetDefault(ShellSession& ioSession, const Target& iTarget, const ShellArguments& iArguments)
{
    const std::string& path = iArguments[0];
    const AttributeSnapshot attribute = ioSession.Read(iTarget, path).attributes.front();
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(iTarget, path);
    CheckReadable(ParameterOf(iTarget, attribute, path), attribute, iArguments[1], path);
    ioSession.Change([&] {
        ORXUnicodeString value = ToOrx(iArguments[1]);
        if (spDefMgmt->SetCustomDefault(ToOrx(iTarget.attribute), value) < 0)
            throw Failure(Quoted(path) + " did not take the default");
    });
}

void ShowDefault(ShellSession& ioSession, const Target& iTarget, const std::string& iPath)
{
    const ObjectSnapshot object = ioSession.Read(iTarget, iPath);
    DefaultManagementOf(iTarget, iPath);
    const AttributeDefault byDefault = QuietDefaults(ioSession.Model()).Of(object, object.attributes.front());
    Print((byDefault.origin == DefaultOrigin::None ? "(none)" : byDefault.Shown()) + "\n");
}
} // namespace

void ShellGet(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    Print(ioSession.Read(target, iArguments[0]).attributes.front().value.Shown() + "\n");
}

void ShellSet(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const std::string& path = iArguments[0];
    const Target target = ioSession.Attribute(path);
    const AttributeSnapshot attribute = ioSession.Read(target, path).attributes.front();
    const ORXICkeParm_var spParm = ParameterOf(target, attribute, path);
    CheckReadable(spParm, attribute, iArguments[1], path);
    ioSession.Change([&] { spParm->Valuate(ToOrx(iArguments[1])); });
}

void ShellUnset(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(target, iArguments[0]);
    ioSession.Change([&] {
        if (spDefMgmt->Unset(ToOrx(target.attribute)) < 0)
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

void ShellAuto(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = DefaultManagementOf(target, iArguments[0]);
    if (iArguments.size() == 1)
    {
        const std::optional<bool> flag = ioSession.Read(target, iArguments[0]).attributes.front().automatic;
        Print(!flag ? "(none)\n" : *flag ? "on\n" : "off\n");
        return;
    }
    if (iArguments[1] != "on" && iArguments[1] != "off")
        throw Failure(Quoted(iArguments[1]) + " is neither on nor off");
    ioSession.Change([&] {
        if (spDefMgmt->SetIsAuto(ToOrx(target.attribute), iArguments[1] == "on" ? 1 : 0) < 0)
            throw Failure(Quoted(iArguments[0]) + " did not take the flag");
    });
}
} // namespace Tool
