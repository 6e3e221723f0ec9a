#include "WordCompletion.h"

#include "ConfigurationFiles.h"
#include "Installation.h"
#include "PathCompletion.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Candidates = std::vector<WordCompletion::Candidate>;

bool LooksLikeOption(const std::string& iWord)
{
    return iWord.size() > 1 && iWord.front() == '-';
}

/// The words in front of the one that is completed, taken as the program would take them.
class WordsBefore
{
public:
    WordsBefore(const CommandDescription& iProgram, const std::vector<std::string>& iWords) : m_command(&iProgram)
    {
        for (std::size_t i = 0; i + 1 < iWords.size(); ++i)
            Take(iWords[i]);
    }

    const CommandDescription& Command() const { return *m_command; }
    /// What waits for its value; null for none.
    const OptionDescription* Waiting() const { return m_waiting; }
    bool MayBeOption() const { return !m_areArguments; }
    const std::vector<std::string>& Arguments() const { return m_arguments; }
    const CommonOptions& Options() const { return m_options; }

private:
    void Take(const std::string& iWord)
    {
        if (m_waiting != nullptr)
            TakeValue(iWord);
        else if (!m_areArguments && iWord == "--")
            m_areArguments = true;
        else if (!m_areArguments && LooksLikeOption(iWord))
            TakeOption(iWord);
        else if (const CommandDescription* command = m_command->Command(iWord); command != nullptr)
            m_command = command;
        else
            m_arguments.push_back(iWord);
    }

    void TakeOption(const std::string& iWord)
    {
        const std::size_t sign = iWord.find('=');
        const OptionDescription* option = m_command->Option(iWord.substr(0, sign));
        if (option == nullptr || option->kind == ValueKind::None)
            return;
        m_waiting = option;
        if (sign != std::string::npos)
            TakeValue(iWord.substr(sign + 1));
    }

    void TakeValue(const std::string& iValue)
    {
        // Some shells make a word of the sign between an option and its value.
        if (iValue == "=")
            return;
        if (m_waiting->IsCalled("--installation"))
            m_options.installation = iValue;
        if (m_waiting->IsCalled("--catalog"))
            m_options.catalogs.push_back(iValue);
        m_waiting = nullptr;
    }

    const CommandDescription* m_command;
    const OptionDescription* m_waiting = nullptr;
    bool m_areArguments = false;
    std::vector<std::string> m_arguments;
    CommonOptions m_options;
};

WordCompletion OnDisk(WordCompletion::Source iSource, std::string iSuffix = {})
{
    return {iSource, std::move(iSuffix), {}};
}

Candidates Configurations(const CommonOptions& iOptions)
{
    Candidates candidates;
    for (const std::string& name : ConfigurationNames(ReadConfigurationFiles(Installation(iOptions))))
        candidates.push_back({name, ""});
    return candidates;
}

Candidates Paths(const WordsBefore& iBefore, const std::string& iWord, bool iHasAttributes)
{
    if (iBefore.Arguments().empty())
        return {};
    const VYRStandalone::Model model = Installation(iBefore.Options()).LoadModel(iBefore.Arguments().front());
    std::vector<PathCandidate> paths = PathCandidates(model, iWord);
    std::erase_if(paths, [&](const PathCandidate& iOne) {
        return !iOne.text.starts_with(iWord) || !(iHasAttributes || iOne.leadsOn);
    });
    Candidates candidates;
    for (const PathCandidate& path : paths)
        candidates.push_back({path.text, ""});
    // Two that begin alike keep the shell from ending the word where a path may go on.
    if (paths.size() == 1 && paths.front().leadsOn)
        candidates.push_back({paths.front().text + "/", ""});
    return candidates;
}

WordCompletion Values(ValueKind iKind, const WordsBefore& iBefore, const std::string& iWord)
{
    using Source = WordCompletion::Source;
    switch (iKind)
    {
    case ValueKind::ModelFile:
        return OnDisk(Source::Files, ".model.json");
    case ValueKind::CatalogFile:
        return OnDisk(Source::Files, ".catalog.json");
    case ValueKind::File:
        return OnDisk(Source::Files);
    case ValueKind::Folder:
        return OnDisk(Source::Folders);
    case ValueKind::Configuration:
        return {Source::Candidates, "", Configurations(iBefore.Options())};
    case ValueKind::ObjectPath:
        return {Source::Candidates, "", Paths(iBefore, iWord, false)};
    case ValueKind::AttributePath:
        return {Source::Candidates, "", Paths(iBefore, iWord, true)};
    case ValueKind::None:
    case ValueKind::Text:
    case ValueKind::Command:
        break;
    }
    return {};
}

Candidates Options(const CommandDescription& iCommand)
{
    Candidates candidates;
    for (const OptionDescription& option : iCommand.options)
        for (const std::string& name : option.names)
            candidates.push_back({name, option.description});
    return candidates;
}

Candidates Commands(const CommandDescription& iCommand, const std::vector<std::string>& iBefore)
{
    // A command that is not offered stands where a command would.
    if (iBefore == std::vector<std::string>{"interface"})
        return {{"man", "manual page"}, {"bash", "completion"}, {"zsh", "completion"}, {"fish", "completion"}};
    if (!iBefore.empty())
        return {};
    Candidates candidates;
    for (const CommandDescription& one : iCommand.commands)
        candidates.push_back({one.name, one.description});
    return candidates;
}

WordCompletion Argument(const WordsBefore& iBefore, const std::string& iWord)
{
    const std::vector<ArgumentDescription>& arguments = iBefore.Command().arguments;
    const std::size_t index = iBefore.Arguments().size();
    if (index < arguments.size())
        return Values(arguments[index].kind, iBefore, iWord);
    if (!arguments.empty() && arguments.back().isRepeated)
        return Values(arguments.back().kind, iBefore, iWord);
    return {};
}

/// The words with the sign between an option and its value as a word of its own, as some shells give them.
std::vector<std::string> Cut(const std::vector<std::string>& iWords)
{
    const std::size_t sign = iWords.empty() ? std::string::npos : iWords.back().find('=');
    if (sign == std::string::npos || !iWords.back().starts_with("--"))
        return iWords;
    std::vector<std::string> words(iWords.begin(), iWords.end() - 1);
    words.push_back(iWords.back().substr(0, sign));
    words.push_back(iWords.back().substr(sign + 1));
    return words;
}

WordCompletion Everything(const CommandDescription& iProgram, const std::vector<std::string>& iWords,
                          const std::string& iWord)
{
    const WordsBefore before(iProgram, iWords);
    if (before.Waiting() != nullptr)
        return Values(before.Waiting()->kind, before, iWord);
    if (before.MayBeOption() && iWord.starts_with('-'))
        return {WordCompletion::Source::Candidates, "", Options(before.Command())};
    if (!before.Command().commands.empty())
        return {WordCompletion::Source::Candidates, "", Commands(before.Command(), before.Arguments())};
    return Argument(before, iWord);
}
} // namespace

std::string WordCompletion::Text() const
{
    std::string text = source == Source::Candidates ? "words" : source == Source::Files ? "files" : "folders";
    text += (suffix.empty() ? "" : " " + suffix) + "\n";
    for (const Candidate& candidate : candidates)
        text += candidate.text + (candidate.description.empty() ? "" : "\t" + candidate.description) + "\n";
    return text;
}

WordCompletion CompleteWord(const CommandDescription& iProgram, const std::vector<std::string>& iWords)
{
    try
    {
        const std::vector<std::string> words = Cut(iWords);
        const std::string word = words.empty() || words.back() == "=" ? std::string() : words.back();
        WordCompletion completion = Everything(iProgram, words, word);
        std::erase_if(completion.candidates, [&](const WordCompletion::Candidate& iOne) {
            // What does not fit on a line cannot be typed either.
            return !iOne.text.starts_with(word) || OneLine(iOne.text) != iOne.text;
        });
        return completion;
    }
    catch (const std::exception&)
    {
        // Somebody is typing, and is not to be told of it now.
        return {};
    }
}
} // namespace Tool
