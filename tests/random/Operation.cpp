#include "Operation.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

std::string Operation::Text() const
{
    std::ostringstream text;
    text << verb;
    for (const std::string& word : words)
    {
        text << ' ';
        if (word.empty() || word.find_first_of(" \"\\") != std::string::npos)
            text << std::quoted(word);
        else
            text << word;
    }
    return text.str();
}

Operation Operation::Parse(const std::string& iLine)
{
    std::istringstream stream(iLine);
    Operation operation;
    stream >> operation.verb;
    std::string word;
    while (stream >> std::quoted(word))
        operation.words.push_back(word);
    const OperationKind* kind = FindOperationKind(operation.verb);
    const bool isWhole = operation.verb == "save" || operation.verb == "drop";
    const std::size_t count = isWhole                      ? 0
                              : operation.verb == "create" ? 1
                              : kind != nullptr            ? std::string_view(kind->signature).size()
                                                           : std::string::npos;
    if (count != operation.words.size())
        throw std::invalid_argument("no operation: " + iLine);
    return operation;
}

const std::vector<OperationKind>& OperationKinds()
{
    static const std::vector<OperationKind> kinds = [] {
        std::vector<OperationKind> all;
        for (const auto& some : {ValueOperations(), ListOperationKinds(), DefaultOperations(), ChoiceOperations()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return kinds;
}

const OperationKind* FindOperationKind(const std::string& iVerb)
{
    for (const OperationKind& kind : OperationKinds())
        if (iVerb == kind.verb)
            return &kind;
    return nullptr;
}

std::string StatusText(HRESULT iStatus)
{
    return iStatus == S_OK ? "S_OK" : iStatus == S_FALSE ? "S_FALSE" : iStatus == E_FAIL ? "E_FAIL" : "other status";
}

std::vector<std::string> SplitWords(const std::string& iWord)
{
    std::vector<std::string> words;
    if (iWord == "-")
        return words;
    words.emplace_back();
    for (const char letter : iWord)
    {
        if (letter == ',')
            words.emplace_back();
        else
            words.back() += letter;
    }
    return words;
}
