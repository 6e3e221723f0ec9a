#include "KnownConfiguration.h"

#include "Failure.h"
#include "Wording.h"

namespace Tool
{
const SourceConfiguration& KnownConfiguration(const ConfigurationSource& iSource, const std::string& iName)
{
    if (const SourceConfiguration* const found = iSource.Find(iName); found != nullptr)
        return *found;
    std::vector<std::string> known;
    for (const SourceConfiguration& configuration : iSource.Configurations())
        known.push_back(configuration.name);
    throw Failure("vyrcfd: no configuration " + Quoted(iName) + DidYouMean(iName, known) + "; see vyrcfd list");
}
} // namespace Tool
