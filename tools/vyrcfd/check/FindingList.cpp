#include "FindingList.h"

#include <algorithm>
#include <unordered_map>

#include "Wording.h"

namespace Tool
{
namespace
{
/// A text of the file that is quoted may be longer than anybody wants to read.
constexpr std::size_t LongestMessage = 1000;
} // namespace

FindingList::Identity FindingList::IdentityOf(const Finding& iFinding)
{
    return {iFinding.file, iFinding.position.line, iFinding.position.column,
            iFinding.kind, iFinding.key,           iFinding.isBehind};
}

void FindingList::Add(Finding iFinding)
{
    iFinding.message = Shortened(std::move(iFinding.message), LongestMessage);
    if (m_known.insert(IdentityOf(iFinding)).second)
        m_findings.push_back(std::move(iFinding));
}

void FindingList::SetSuggestion(std::size_t iNumber, std::string iText)
{
    m_findings[iNumber].suggestion = std::move(iText);
}

void FindingList::Raise(const Finding& iFinding)
{
    // Of one kind only, since each call looks through all findings.
    if (iFinding.kind != FindingKind::BlankInList)
        return;
    for (Finding& known : m_findings)
        if (IdentityOf(known) == IdentityOf(iFinding) && iFinding.severity < known.severity)
        {
            known.severity = iFinding.severity;
            known.message = Shortened(iFinding.message, LongestMessage);
        }
}

void FindingList::Remove(const Finding& iFinding)
{
    if (m_known.erase(IdentityOf(iFinding)) == 0)
        return;
    const auto isIt = [&](const Finding& iOne) { return IdentityOf(iOne) == IdentityOf(iFinding); };
    m_findings.erase(std::remove_if(m_findings.begin(), m_findings.end(), isIt), m_findings.end());
}

bool FindingList::Has(const Finding& iFinding) const
{
    return m_known.count(IdentityOf(iFinding)) != 0;
}

std::vector<Finding> FindingList::Sorted(const ConfigurationSource& iSource) const
{
    std::unordered_map<std::string, std::size_t> order;
    for (const std::string& path : iSource.Paths())
        order.emplace(OneLine(path), order.size());
    // Catalogs, and files that nothing reads, stand behind all configuration files.
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
