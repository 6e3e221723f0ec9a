#include "DocumentMessage.h"

#include "Wording.h"

namespace Tool
{
namespace
{
/// A message, or what ends in one, with what helps its reader.
std::string Explained(std::string iText)
{
    if (iText.find("Invalid escape") == std::string::npos)
        return iText;
    if (iText.back() == '.')
        iText.pop_back();
    return iText + "; behind a backslash stands one of \" \\ / b f n r t, or u and four digits, and a backslash "
                   "itself is written \\\\";
}
} // namespace

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
    return Explained(std::move(message));
}

std::string ErrorLineOf(const VYRStandalone::DocumentError& iError)
{
    return Explained(OneLine(iError.what()));
}
} // namespace Tool
