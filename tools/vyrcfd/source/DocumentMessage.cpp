#include "DocumentMessage.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "SyntaxFault.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char UnknownCatalog[] = "unknown catalog ";

/// Of a catalog that another one uses: the folder of that one is usually among those of the installation.
std::string WithEachFolderOnce(std::string iMessage)
{
    constexpr std::string_view Begin = "\" in \"";
    constexpr std::string_view End = "\", and none of that name is declared";
    constexpr std::string_view Between = "\", \"";
    const std::size_t found = iMessage.find(Begin);
    const std::size_t end = iMessage.rfind(End);
    if (found == std::string::npos || end == std::string::npos)
        return iMessage;
    const std::size_t begin = found + Begin.size();
    std::vector<std::string> folders;
    std::string kept;
    for (std::size_t at = begin; at < end;)
    {
        const std::size_t next = std::min(iMessage.find(Between, at), end);
        const std::string folder = iMessage.substr(at, next - at);
        const std::string place = std::filesystem::path(folder).lexically_normal().string();
        if (std::find(folders.begin(), folders.end(), place) == folders.end())
            kept += (folders.empty() ? "" : std::string(Between)) + folder;
        folders.push_back(place);
        at = next + Between.size();
    }
    return iMessage.replace(begin, end - begin, kept);
}
} // namespace

VYRStandalone::DocumentError Retold(const VYRStandalone::DocumentError& iError)
{
    if (iError.Line() == 0 && !iError.Path().empty() && MessageOf(iError).rfind(UnknownCatalog, 0) == 0)
        return VYRStandalone::DocumentError(iError.File(), iError.Path(), WithEachFolderOnce(MessageOf(iError)));
    std::error_code ignored;
    if (iError.Line() == 0 || !std::filesystem::is_regular_file(iError.File(), ignored))
        return iError;
    std::ifstream stream(iError.File(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    const std::optional<SyntaxFault> fault = SyntaxFaultOf(text);
    if (!fault)
        return iError;
    return VYRStandalone::DocumentError(iError.File(), fault->position.line, fault->position.column, fault->message);
}

std::string MessageOf(const VYRStandalone::DocumentError& iError)
{
    std::string place = iError.File();
    if (iError.Line() > 0)
        place += ":" + std::to_string(iError.Line()) + ":" + std::to_string(iError.Column());
    else if (!iError.Path().empty())
        place += ": " + iError.Path();
    place = OneLine(place) + ": ";
    std::string message = iError.what();
    if (message.compare(0, place.size(), place) == 0)
        message.erase(0, place.size());
    if (!message.empty() && message.back() == '.')
        message.pop_back();
    return message;
}
} // namespace Tool
