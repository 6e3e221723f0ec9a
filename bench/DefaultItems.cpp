#include "DefaultItems.h"

namespace Bench
{
std::vector<DefaultItem> DefaultItems(int iNumber)
{
    std::vector<DefaultItem> made;
    made.reserve(static_cast<std::size_t>(iNumber));
    for (int i = 0; i < iNumber; ++i)
    {
        const std::string name = "parameter" + std::to_string(i);
        if (i % 10 < 6)
            made.push_back({name, Entry::Kind::Real, std::to_string(i % 97) + ".25"});
        else if (i % 10 < 8)
            made.push_back({name, Entry::Kind::Integer, std::to_string(i)});
        else
            made.push_back({name, Entry::Kind::String, "option" + std::to_string(i % 13)});
    }
    return made;
}
} // namespace Bench
