#include "NaiveText.h"

#include <locale>
#include <sstream>

namespace Naive
{
Characters CharactersOf(std::string_view iText)
{
    Characters characters;
    for (const char byte : iText)
    {
        const bool continues = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        if (continues && !characters.empty())
            characters.back() += byte;
        else
            characters.emplace_back(1, byte);
    }
    return characters;
}

std::string TextOf(const Characters& iCharacters, std::size_t iFrom, std::size_t iEnd)
{
    std::string text;
    for (std::size_t at = iFrom; at < iEnd && at < iCharacters.size(); ++at)
        text += iCharacters[at];
    return text;
}

int Find(const Characters& iText, const Characters& iWanted, std::size_t iFrom)
{
    if (iWanted.empty())
        return -1;
    for (std::size_t at = iFrom; at + iWanted.size() <= iText.size(); ++at)
    {
        std::size_t same = 0;
        while (same < iWanted.size() && iText[at + same] == iWanted[same])
            ++same;
        if (same == iWanted.size())
            return static_cast<int>(at);
    }
    return -1;
}

std::vector<std::string> Split(std::string_view iText, std::string_view iDelimiter)
{
    const Characters text = CharactersOf(iText);
    const Characters delimiter = CharactersOf(iDelimiter);
    std::vector<std::string> tokens;
    const auto append = [&](std::size_t iFrom, std::size_t iEnd) {
        std::string token;
        for (std::size_t at = iFrom; at < iEnd; ++at)
            if (text[at] != " ")
                token += text[at];
        tokens.push_back(token);
    };
    std::size_t start = 0;
    for (int at = Find(text, delimiter, start); at >= 0; at = Find(text, delimiter, start))
    {
        append(start, static_cast<std::size_t>(at));
        start = static_cast<std::size_t>(at) + 1;
    }
    append(start, text.size());
    return tokens;
}

HeadAndTail SplitPath(std::string_view iPath)
{
    const Characters path = CharactersOf(iPath);
    std::size_t at = 0;
    while (at < path.size() && path[at] != "/")
        ++at;
    return {TextOf(path, 0, at), TextOf(path, at + 1, path.size())};
}

bool Normalize(std::string_view iPath, std::string& oNormalized)
{
    std::vector<std::string> components{""};
    for (const std::string& character : CharactersOf(iPath))
        if (character == "/")
            components.emplace_back();
        else
            components.back() += character;

    oNormalized.clear();
    for (std::size_t i = 0; i < components.size();)
    {
        const auto here = components.begin() + static_cast<std::ptrdiff_t>(i);
        if (components[i].empty() || components[i] == ".")
            components.erase(here);
        else if (components[i] != "..")
            ++i;
        else if (i == 0)
            return false;
        else
        {
            components.erase(here - 1, here + 1);
            --i;
        }
    }
    for (const std::string& component : components)
        oNormalized += (oNormalized.empty() ? "" : "/") + component;
    return true;
}

template <class Number> bool Extract(const std::string& iText, Number& oNumber)
{
    std::istringstream stream(iText.c_str());
    stream.imbue(std::locale::classic());
    stream >> oNumber;
    return !stream.fail() && !stream.bad();
}

template bool Extract<double>(const std::string& iText, double& oNumber);
template bool Extract<int>(const std::string& iText, int& oNumber);
} // namespace Naive
