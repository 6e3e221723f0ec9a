#include "Configuring.h"

#include <algorithm>

#include "Failure.h"
#include "VYRCfdConfigurator.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Why the configuration could not be applied, in one line.
std::string Why(const ORXISpecObject_var& iObject, const Configuring& iConfiguring)
{
    const std::string& name = iConfiguring.configuration;
    const std::vector<std::string>& known = iConfiguring.known;
    const bool hasFile = !iConfiguring.file.empty();
    if (std::find(known.begin(), known.end(), name) == known.end())
    {
        const std::string meant = DidYouMean(name, known);
        return (hasFile ? "vyrcfd: no configuration " : "no configuration ") + Quoted(name) +
               (meant.empty() ? "; see vyrcfd list" : meant);
    }
    const std::string file = hasFile ? OneLine(iConfiguring.file) + ": " : "";
    if (!VYRIMpaDefaultManagementProtected_var(iObject))
        return file + Quoted(iConfiguring.object) + " has no default management, and cannot be configured";
    return file + Quoted(name) + " failed on " + Quoted(iConfiguring.object);
}
} // namespace

bool Configure(const ORXISpecObject_var& iObject, const Configuring& iConfiguring)
{
    const ORXUnicodeString name(iConfiguring.configuration.data(), iConfiguring.configuration.size());
    long status = E_FAIL;
    try
    {
        status = VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(iObject, name);
    }
    catch (const std::logic_error& fatal)
    {
        // Where the application would have ended, as on a path through a list with an empty entry.
        throw Failure(Why(iObject, iConfiguring) + ", fatally: " + OneLine(fatal.what()));
    }
    if (status < 0)
        throw Failure(Why(iObject, iConfiguring));
    return status != S_FALSE;
}
} // namespace Tool
