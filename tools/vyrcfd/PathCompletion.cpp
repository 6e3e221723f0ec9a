#include "PathCompletion.h"

#include "AttributeReader.h"
#include "ListNames.h"
#include "ORXTypeCode.h"
#include "ObjectPath.h"

namespace Tool
{
namespace
{
std::vector<PathCandidate> Entries(const std::vector<ORXISpecObject_var>& iEntries, const std::string& iStart)
{
    std::vector<PathCandidate> candidates;
    const std::vector<std::string> names = ListNames(iEntries);
    for (std::size_t i = 0; i < iEntries.size(); ++i)
        if (!!iEntries[i])
            candidates.push_back({iStart + names[i], true});
    return candidates;
}

/// Whether a path goes on behind the attribute.
bool LeadsOn(const VYRStandalone::AttributeInfo& iAttribute)
{
    return !IsScalar(iAttribute.type == tk_list ? iAttribute.listType : iAttribute.type);
}
} // namespace

std::vector<PathCandidate> PathCandidates(const VYRStandalone::Model& iModel, const std::string& iPath)
{
    const std::size_t slash = iPath.rfind('/');
    if (slash == std::string::npos)
        return Entries(iModel.Objects(), {});
    const std::string start = iPath.substr(0, slash + 1);
    const Target target = FollowPath(iModel, {}, iPath.substr(0, slash));
    if (!target.attribute.empty())
        return Entries(ReadObjects(target.object, target.attribute), start);
    std::vector<PathCandidate> candidates;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(target.object))
        candidates.push_back({start + attribute.name, LeadsOn(attribute)});
    return candidates;
}
} // namespace Tool
