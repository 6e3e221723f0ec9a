#ifndef FindingList_H
#define FindingList_H

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "Finding.h"

namespace Tool
{
/// Collects findings. The same finding at the same place is kept once: an item is looked at on every object that its
/// configuration is for.
class FindingList
{
public:
    void Add(Finding iFinding);

    /// In the order of the files, and in a file by place.
    std::vector<Finding> Sorted(const ConfigurationSource& iSource) const;

    const std::vector<Finding>& All() const noexcept { return m_findings; }
    std::size_t Count(Severity iSeverity) const;

    /// @param iNumber of the finding in `All`
    void SetSuggestion(std::size_t iNumber, std::string iText);

    /// Of a list with an empty entry that is known: takes over what is worse, as it turned out on an object.
    void Raise(const Finding& iFinding);
    /// Takes the finding of the kind at the same place, under the same key, out again, if there is one.
    void Remove(const Finding& iFinding);
    /// Whether there is a finding of the kind at the same place, under the same key.
    bool Has(const Finding& iFinding) const;

private:
    using Identity = std::tuple<std::string, int, int, FindingKind, std::string, bool>;
    static Identity IdentityOf(const Finding& iFinding);

    std::vector<Finding> m_findings;
    std::set<Identity> m_known;
};
} // namespace Tool

#endif
