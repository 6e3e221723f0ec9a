#include "FindingList.h"

#include <algorithm>
#include <unordered_map>

#include "Wording.h"

namespace Tool
{
FindingList::Identity FindingList::IdentityOf(const Finding& iFinding)
{
    return {iFinding.file, iFinding.position.line, iFinding.position.column, iFinding.kind, iFinding.key};
}

void FindingList::Add(Finding iFinding)
{
    if (m_known.insert(IdentityOf(iFinding)).second)
        m_findings.push_back(std::move(iFinding));
}

bool FindingList::Has(const Finding& iFinding) const
{
    return m_known.count(IdentityOf(iFinding)) != 0;
}

std::vector<Finding> FindingList::Sorted(const ConfigurationSource& iSource) const
{
    std::unordered_map<std::string, std::size_t> order;
    for (const SourceFile& file : iSource.Files())
        order.emplace(OneLine(file.Path()), order.size());
    // Catalogs stand behind all configuration files.
    const auto place = [&](const Finding& iFinding) {
        const auto known = order.find(iFinding.file);
        return std::tuple(known != order.end() ? known->second : order.size(), std::string_view(iFinding.file),
                          iFinding.position.line, iFinding.position.column, iFinding.severity, iFinding.kind);
    };
    std::vector<Finding> sorted = m_findings;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const Finding& iLeft, const Finding& iRight) { return place(iLeft) < place(iRight); });
    return sorted;
}

std::size_t FindingList::Count(Severity iSeverity) const
{
    return static_cast<std::size_t>(std::count_if(
        m_findings.begin(), m_findings.end(), [=](const Finding& iFinding) { return iFinding.severity == iSeverity; }));
}
} // namespace Tool
