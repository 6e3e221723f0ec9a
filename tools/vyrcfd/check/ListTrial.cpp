#include "ItemTrial.h"
#include "MeantLists.h"
#include "ScratchObjects.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "Wording.h"

namespace Tool
{
namespace
{
void AddFailed(const SourceItem& iItem, const Trial& iTrial, const char* iKey, FindingKind iKind,
               const std::string& iMessage, TrialFindings& oFindings)
{
    oFindings.push_back({FindingAt(iItem, iKey, iKind, iTrial.Worst(),
                                   iMessage + " " + iTrial.Where() + ", and the configuration fails here")});
}

/// A manager offers nothing that the type does not declare, and wants a default.
void TryManager(const SourceItem& iItem, const Trial& iTrial, const VYRICfdChoiceMgr_var& iManager,
                const MeantLists& iLists, TrialFindings& oFindings)
{
    std::vector<ORXUnicodeString> all;
    ORXUnicodeString standard;
    iManager->GetAllChoices(all, standard);
    std::vector<std::string> declared;
    for (const ORXUnicodeString& choice : all)
        declared.emplace_back(choice.View());
    for (const std::string& choice : SplitTexts(iLists.choices))
        if (choice.empty() && !Holds(declared, choice))
            return AddFailed(iItem, iTrial, "choices", FindingKind::BlankInList,
                             "an entry of \"choices\" is empty, and is none of the choices that are declared",
                             oFindings);
        else if (!Holds(declared, choice))
        {
            AddFailed(iItem, iTrial, "choices", FindingKind::DefaultNotInChoices,
                      "the choice " + Quoted(choice) + " is none of those that are declared", oFindings);
            oFindings.back().unknown = choice;
            oFindings.back().known = declared;
            // Then the default is no mistake of its own.
            const std::string_view chosen = iItem.Text("default");
            if (Holds(declared, chosen) && Nearest(choice, declared) == chosen)
                oFindings.back().replaced =
                    FindingAt(iItem, "default", FindingKind::DefaultNotInChoices, Severity::Error, {});
            // Neither is a blank in it.
            else if (!Holds(WrittenEntries(iLists.choices), choice))
                oFindings.back().replaced = FindingAt(iItem, "choices", FindingKind::BlankInList, Severity::Error, {});
            return;
        }
    const std::string_view chosen = iItem.Text("default");
    if (chosen.empty() && HasWrongKey(iItem.value))
        return;
    if (chosen.empty())
        AddFailed(iItem, iTrial, "default", FindingKind::DefaultNotInChoices,
                  "a Choice that has a manager wants a \"default\" beside \"choices\"", oFindings);
    else if (iManager->ConfigureChoiceMgr(SplitList(iLists.choices), UnicodeOf(chosen),
                                          UnicodeOf(iItem.Text("display"))) < 0 &&
             Holds(SplitTexts(iLists.choices), chosen))
        AddFailed(iItem, iTrial, "choices", FindingKind::DoesNothing, "the manager refuses these choices", oFindings);
}
} // namespace

void TryValues(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    const std::string name = AttributeMeant(iItem, iTrial, oFindings);
    if (name.empty())
        return;
    if (iTrial.object[UnicodeOf(name)].SetStrings(SplitList(iItem.Text("value"))) < 0)
        AddFailed(iItem, iTrial, "path", FindingKind::DefaultInvalid, Quoted(name) + " is no list of texts", oFindings);
}

bool TryChoice(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    // As they were meant, since what follows from a mistake in them is none.
    const MeantLists lists = MeantListsOf(iItem);
    const std::vector<ORXUnicodeString> choices = SplitList(lists.choices);
    std::vector<ORXUnicodeString> startups;
    if (lists.hasStartups)
        startups = SplitList(lists.startups);
    const VYRICfdChoice_var spChoice = iTrial.object.Self();
    const VYRICfdChoiceMgr_var spManager = iTrial.object.Self();
    if (startups.empty() && !!spManager)
    {
        TryManager(iItem, iTrial, spManager, lists, oFindings);
        return true;
    }
    if (!spChoice)
    {
        AddFailed(iItem, iTrial, "choices", FindingKind::PathNowhere,
                  "an item with \"choices\" is for a Choice, and there is none", oFindings);
        return false;
    }
    const ORXUnicodeString chosen = UnicodeOf(iItem.Text("default"));
    const bool isEqual = startups.empty() || startups.size() == choices.size();
    if (spChoice->Configure(choices, startups, chosen, UnicodeOf(iItem.Text("display"))) < 0 && isEqual)
        AddFailed(iItem, iTrial, "choices", FindingKind::DoesNothing, "the Choice refuses these choices", oFindings);
    return true;
}
} // namespace Tool
