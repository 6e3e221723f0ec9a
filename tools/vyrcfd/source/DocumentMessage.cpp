#include "DocumentMessage.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "SyntaxFault.h"
#include "Wording.h"

namespace Tool
{
VYRStandalone::DocumentError Retold(const VYRStandalone::DocumentError& iError)
{
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
