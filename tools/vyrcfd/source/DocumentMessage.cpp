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
    const std::string whole = iError.what();
    return whole.compare(0, place.size(), place) == 0 ? whole.substr(place.size()) : whole;
}
} // namespace Tool
