#include "ShellCompletion.h"

#include <sstream>

#include "AttributeReader.h"
#include "EntryList.h"
#include "Failure.h"
#include "ListNames.h"
#include "ORXTypeCode.h"
#include "PathCompletion.h"
#include "ShellWords.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRStandaloneErrors.h"

namespace Tool
{
namespace
{
std::vector<Completion> Plain(const std::vector<std::string>& iTexts)
{
    std::vector<Completion> completions;
    for (const std::string& text : iTexts)
        completions.push_back({text, false});
    return completions;
}

bool TakesChoice(const std::string& iCommand)
{
    for (const char* name : {"choices", "choose", "prohibit", "allow", "reset"})
        if (iCommand == name)
            return true;
    return false;
}

/// Whether the path that the command begins with is that of an object.
bool TakesObject(const std::string& iCommand)
{
    return iCommand == "apply" || iCommand == "records" || TakesChoice(iCommand);
}

/// Words that stand in the usage line as they are to be typed.
std::vector<std::string> Alternatives(const std::string& iArgument)
{
    std::vector<std::string> words;
    std::istringstream stream(iArgument);
    for (std::string word; std::getline(stream, word, '|');)
        words.push_back(word);
    return words;
}
} // namespace

Completions ShellCompletion::Of(std::string_view iLine, std::size_t iStart, const std::string& iWord)
{
    const std::vector<std::string> before = WordsBefore(iLine, iStart);
    Completions completions;
    if (before.empty())
        completions.candidates = Plain(ShellCommandNames());
    else if (const ShellCommand* const command = FindShellCommand(before.front()); command != nullptr)
    {
        const std::vector<std::string> arguments = command->ArgumentNames();
        const std::size_t index = before.size() - 1;
        if (command->Takes(index + 1) || index < arguments.size())
        {
            const std::string& argument = arguments[std::min(index, arguments.size() - 1)];
            completions.areFiles = argument == "FILE";
            completions.candidates = Meanings(argument, before, iWord);
        }
    }
    std::erase_if(completions.candidates, [&](const Completion& iOne) { return !iOne.text.starts_with(iWord); });
    if (!before.empty())
        SettlePath(before.front(), completions.candidates);
    VYRStandalone::TakeReports();
    return completions;
}

std::vector<Completion> ShellCompletion::Meanings(const std::string& iArgument, const ShellArguments& iBefore,
                                                  const std::string& iWord)
{
    if (iArgument == "PATH")
    {
        std::vector<Completion> paths = Paths(iWord);
        if (TakesObject(iBefore[0]))
            std::erase_if(paths, [](const Completion& iOne) { return !iOne.leadsOn; });
        return paths;
    }
    if (iArgument == "CHOICE")
        return Choices(iBefore[0], m_session.Object(iBefore[1]));
    if (iArgument == "CONFIG")
        return Plain(m_session.Configurations());
    if (iArgument == "COMMAND")
        return Plain(ShellCommandNames());
    if (iArgument == "TYPE")
        return Plain(VYRStandalone::TypeNames());
    if (iArgument == "VALUE" || iArgument == "ENTRY")
        return Values(iBefore[1], iWord);
    const bool isFree =
        iArgument == "CONDITION" || iArgument == "FILE" || iArgument == "NAME" || iArgument == "POSITION";
    return isFree ? std::vector<Completion>() : Plain(Alternatives(iArgument));
}

void ShellCompletion::SettlePath(const std::string& iCommand, std::vector<Completion>& ioCandidates) const
{
    // Behind a Choice comes what is to be done with it; what it owns is no Choice as a rule.
    const bool isPath = ioCandidates.size() == 1 && ioCandidates.front().leadsOn && TakesChoice(iCommand);
    if (!isPath)
        return;
    Completion& path = ioCandidates.front();
    try
    {
        path.leadsOn = !VYRICfdChoice_var(m_session.Object(path.text));
    }
    catch (const Failure&)
    {
        // A list, or an attribute that holds no object now.
        return;
    }
}

std::vector<Completion> ShellCompletion::Values(const std::string& iPath, const std::string& iWord) const
{
    const Target target = m_session.Attribute(iPath);
    const VYRStandalone::AttributeInfo info = InfoOf(target);
    if (info.name == "value" && !!VYRICfdChoice_var(target.object))
        return Choices({}, target.object);
    const int type = info.type == tk_list ? info.listType : info.type;
    if (!IsScalar(type))
        return Paths(iWord);
    return Plain(type == tk_boolean ? std::vector<std::string>{"true", "false"} : info.values);
}

std::vector<Completion> ShellCompletion::Paths(const std::string& iWord) const
{
    std::vector<Completion> completions;
    for (const PathCandidate& candidate : PathCandidates(m_session.Model(), iWord))
        completions.push_back({candidate.text, candidate.leadsOn});
    return completions;
}

std::vector<Completion> ShellCompletion::Choices(const std::string& iCommand, const ORXISpecObject_var& iObject) const
{
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString byDefault;
    // What is to be put back is not offered now.
    if (const VYRICfdChoiceMgr_var spManager = iObject; iCommand == "allow" && !!spManager)
        spManager->GetAllChoices(choices, byDefault);
    else if (const VYRICfdChoice_var spChoice = iObject; !!spChoice)
        spChoice->GetListOfChoices(choices);
    std::vector<Completion> completions;
    for (const ORXUnicodeString& choice : choices)
        completions.push_back({TextOf(choice), false});
    return completions;
}
} // namespace Tool
