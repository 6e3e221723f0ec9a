#include "DocumentMessage.h"

#include "Wording.h"

namespace Tool
{
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
