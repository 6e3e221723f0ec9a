/**
 * @file
 * Commands on Choices: choices, choose, prohibit, allow, reset.
 */

#include <algorithm>
#include <set>

#include "ChoiceView.h"
#include "Failure.h"
#include "ListNames.h"
#include "QuietDefaults.h"
#include "ShellCommands.h"
#include "SourceItem.h"
#include "VYRCfdObjectAccess.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Texts = std::vector<ORXUnicodeString>;

bool Contains(const Texts& iTexts, const std::string& iText)
{
    return std::find(iTexts.begin(), iTexts.end(), UnicodeOf(iText)) != iTexts.end();
}

std::vector<std::string> ToStrings(const Texts& iTexts)
{
    std::vector<std::string> strings;
    for (const ORXUnicodeString& text : iTexts)
        strings.push_back(TextOf(text));
    return strings;
}

/// @throws Failure for an object that is no Choice
VYRICfdChoice_var ChoiceAt(const ShellSession& iSession, const std::string& iPath)
{
    const ORXISpecObject_var spObject = iSession.Object(iPath);
    const VYRICfdChoice_var spChoice = spObject;
    if (!spChoice)
        throw Failure(Quoted(iPath) + " is no Choice, but of type " + OneLine(spObject->GetType().View()));
    return spChoice;
}

/// @throws Failure for an object that is no Choice, and for a Choice without manager
VYRICfdChoiceMgr_var ManagerAt(const ShellSession& iSession, const std::string& iPath)
{
    const VYRICfdChoice_var spChoice = ChoiceAt(iSession, iPath);
    const VYRICfdChoiceMgr_var spManager = spChoice;
    if (!spManager)
        throw Failure(Quoted(iPath) + " has no manager: the catalog does not mark its type " +
                      OneLine(ORXISpecObject_var(spChoice)->GetType().View()) + " with \"manager\": true");
    return spManager;
}

Texts OfferedBy(const VYRICfdChoice_var& iChoice)
{
    Texts choices;
    iChoice->GetListOfChoices(choices);
    return choices;
}

/// The manager passes over what it does not know; whoever has misspelt it should hear of it.
void NoteUnknown(ShellSession& ioSession, const ShellArguments& iArguments, const Texts& iKnown, const char* iWhat)
{
    for (auto choice = iArguments.begin() + 1; choice != iArguments.end(); ++choice)
        if (!Contains(iKnown, *choice))
            ioSession.Reports().Note(Quoted(*choice) + " is not " + iWhat + ", and passed over" +
                                     DidYouMean(*choice, ToStrings(iKnown)));
}

std::set<ORXUnicodeString> ChoicesIn(const ShellArguments& iArguments)
{
    std::set<ORXUnicodeString> choices;
    for (auto choice = iArguments.begin() + 1; choice != iArguments.end(); ++choice)
        choices.insert(UnicodeOf(*choice));
    return choices;
}

bool HasDeclaredStartups(const ORXISpecObject_var& iChoice)
{
    const ORXISpecObject_var spStartup = ORXISpecObject_var::Adopt(iChoice->GetStartup());
    Texts startups;
    if (!!spStartup)
        VYRCfdObjectAccess(ORXBaseUnknown_var(spStartup))["Startups"].GetStrings(startups);
    return !startups.empty();
}

void Succeed(HRESULT iStatus, const std::string& iFailure)
{
    if (iStatus < 0)
        throw Failure(iFailure);
}
} // namespace

void ShellChoices(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ChoiceAt(ioSession, iArguments[0]);
    const Snapshot snapshot = TakeSnapshot(ioSession.Model(), spObject, iArguments[0]);
    QuietDefaults defaults(ioSession.Model());
    const std::optional<ChoiceView> choice = ChoiceViewOf(snapshot.front(), defaults.Ask());
    if (!choice)
        throw Failure(Quoted(iArguments[0]) + " has no choices");
    std::string text = "value    " + choice->value.Shown() + "\n";
    if (choice->byDefault.origin != DefaultOrigin::None)
        text += "default  " + choice->byDefault.Shown() + "\n";
    if (!choice->display.Text().empty())
        text += "display  " + choice->display.Shown() + "\n";
    text += "data     " + choice->data.Shown() + "\n";
    ioSession.Say(
        MakeAnswer(text + ChoiceText(*choice, {}), [&](JsonWriter& oWriter) { WriteChoice(oWriter, *choice); }));
}

void ShellChoose(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const VYRICfdChoice_var spChoice = ChoiceAt(ioSession, iArguments[0]);
    const Texts offered = OfferedBy(spChoice);
    const std::string& choice = iArguments[1];
    if (!Contains(offered, choice))
        throw Failure(Quoted(choice) + " is none of the choices of " + Quoted(iArguments[0]) +
                      DidYouMeanOneOf(choice, ToStrings(offered)));
    ioSession.Change([&] {
        Succeed(spChoice->SetChoice(UnicodeOf(choice)), Quoted(iArguments[0]) + " did not take " + Quoted(choice));
    });
}

void ShellProhibit(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const VYRICfdChoiceMgr_var spManager = ManagerAt(ioSession, iArguments[0]);
    NoteUnknown(ioSession, iArguments, OfferedBy(ChoiceAt(ioSession, iArguments[0])), "offered");
    ioSession.Change(
        [&] { Succeed(spManager->ProhibitChoices(ChoicesIn(iArguments)), "the choices could not be prohibited"); });
}

void ShellAllow(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const VYRICfdChoiceMgr_var spManager = ManagerAt(ioSession, iArguments[0]);
    Texts declared;
    ORXUnicodeString declaredDefault;
    spManager->GetAllChoices(declared, declaredDefault);
    NoteUnknown(ioSession, iArguments, declared, "declared");
    if (HasDeclaredStartups(ORXISpecObject_var(spManager)))
        ioSession.Reports().Warn(
            Quoted(iArguments[0]) +
            " is declared with startups: where its choices change, the names of the startups take their place");
    ioSession.Change([&] {
        std::set<ORXUnicodeString> added = ChoicesIn(iArguments);
        Succeed(spManager->AddChoices(added), "the choices could not be allowed");
    });
}

void ShellReset(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const bool isKept = iArguments.size() == 2;
    if (isKept && iArguments[1] != "keep")
        throw Failure(Quoted(iArguments[1]) + " is not keep");
    const VYRICfdChoiceMgr_var spManager = ManagerAt(ioSession, iArguments[0]);
    ioSession.Change([&] { Succeed(spManager->Reset(isKept ? 1 : 0), Quoted(iArguments[0]) + " could not be reset"); },
                     ShellSession::Touches::CustomDefaults);
}
} // namespace Tool
