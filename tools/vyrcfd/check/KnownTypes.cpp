#include "KnownTypes.h"

#include <unordered_set>

#include "VYRStandaloneCatalog.h"

namespace Tool
{
const std::vector<std::string>& KnownTypes()
{
    static const std::vector<std::string> names = VYRStandalone::TypeNames();
    return names;
}

bool IsKnownType(const std::string& iName)
{
    static const std::unordered_set<std::string> names(KnownTypes().begin(), KnownTypes().end());
    return names.count(iName) != 0;
}
} // namespace Tool
