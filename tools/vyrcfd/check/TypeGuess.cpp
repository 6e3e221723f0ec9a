#include "TypeGuess.h"

#include <algorithm>
#include <set>

#include "ConditionText.h"
#include "ORXISpecAttrKey.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
namespace
{
/// As many unrelated types cannot be told apart by a few names.
constexpr std::size_t MostTypes = 8;

std::string FirstName(std::string_view iPath)
{
    return std::string(iPath.substr(0, iPath.find('/')));
}

/// The names of attributes that an item wants of the object it is for.
std::vector<std::string> NamesWanted(const SourceItem& iItem)
{
    std::vector<std::string> names;
    if (iItem.role != ItemRole::Choice && !iItem.Text("path").empty())
        names.push_back(FirstName(iItem.Text("path")));
    if (iItem.role == ItemRole::Conditional)
        if (const auto parts = PartsOf(iItem.Text("condition")))
            names.push_back(FirstName(parts->path));
    return names;
}
} // namespace

TypeGuess::TypeGuess(ScratchObjects& ioObjects, Suggestions& ioSuggestions)
    : m_objects(ioObjects), m_suggestions(ioSuggestions), m_types(VYRStandalone::TypeNames())
{
}

std::vector<std::string> TypeGuess::TypesFor(const SourceConfiguration& iConfiguration)
{
    std::unordered_map<std::size_t, std::size_t> votes;
    std::size_t wanted = 0;
    const auto vote = [&](const Types& iFitting) {
        ++wanted;
        for (const std::size_t type : iFitting)
            ++votes[type];
    };
    for (const SourceItem& item : ItemsOf(iConfiguration))
    {
        if (item.role == ItemRole::Choice)
            vote(Choices());
        for (const std::string& name : NamesWanted(item))
            vote(TypesMeant(name));
    }
    std::size_t most = 0;
    for (const auto& [type, count] : votes)
        most = std::max(most, count);
    // Where more go astray, the names say nothing of the type, and every finding would follow from a wrong guess.
    if (most == 0 || most * 3 < wanted * 2)
        return {};
    Types best;
    for (const auto& [type, count] : votes)
        if (count == most)
            best.push_back(type);
    std::sort(best.begin(), best.end());
    best = WithoutDerived(best);
    std::vector<std::string> names;
    if (best.size() <= MostTypes)
        for (const std::size_t type : best)
            names.push_back(m_types[type]);
    return names;
}

TypeGuess::Types TypeGuess::WithoutDerived(const Types& iTypes)
{
    Types roots;
    for (const std::size_t type : iTypes)
    {
        const VYRCfdObjectAccess object = m_objects.At({m_types[type]});
        const bool isDerived = std::any_of(iTypes.begin(), iTypes.end(), [&](std::size_t iOther) {
            return iOther != type && object.IsSubTypeOf(UnicodeOf(m_types[iOther]));
        });
        if (!isDerived)
            roots.push_back(type);
    }
    return roots;
}

const TypeGuess::Types& TypeGuess::TypesWith(const std::string& iName)
{
    const auto [found, isNew] = m_typesWith.try_emplace(iName);
    if (isNew)
        for (std::size_t type = 0; type < m_types.size(); ++type)
        {
            const ORXISpecAttrAccess_var spAccess = m_objects.At({m_types[type]}).Access();
            // Only what has default management can be configured.
            if (!!VYRIMpaDefaultManagementProtected_var(spAccess) &&
                !!ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(UnicodeOf(iName))))
                found->second.push_back(type);
        }
    return found->second;
}

const TypeGuess::Types& TypeGuess::TypesMeant(const std::string& iName)
{
    const Types& exact = TypesWith(iName);
    if (!exact.empty())
        return exact;
    const auto [found, isNew] = m_meant.try_emplace(iName);
    if (isNew)
        found->second = m_suggestions.OnlySlipOf(iName, AllNames());
    return found->second.empty() ? exact : TypesWith(found->second);
}

const std::vector<std::string>& TypeGuess::AllNames()
{
    if (!m_names.empty())
        return m_names;
    std::set<std::string> names;
    for (const std::string& type : m_types)
    {
        const VYRCfdObjectAccess object = m_objects.At({type});
        if (!VYRIMpaDefaultManagementProtected_var(object.Self()))
            continue;
        for (std::string& name : NamesOn(object))
            names.insert(std::move(name));
    }
    m_names.assign(names.begin(), names.end());
    return m_names;
}

const TypeGuess::Types& TypeGuess::Choices()
{
    return TypesWith("choices");
}
} // namespace Tool
