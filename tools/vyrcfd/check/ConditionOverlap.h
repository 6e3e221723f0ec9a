#ifndef ConditionOverlap_H
#define ConditionOverlap_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ItemTrial.h"

namespace Tool
{
/// Finds items of one configuration that apply different configurations to the same object, under conditions on the
/// same attribute that may hold at the same time, so that the records of the first are lost. Only such are told for
/// which there is a value that meets both.
class ConditionOverlap
{
public:
    explicit ConditionOverlap(const ConfigurationSource& iSource) : m_source(&iSource) {}

    /// @param iAttribute what the item's condition compares
    void Enter(const SourceItem& iItem, const Trial& iTrial, const ConditionText& iParts,
               const VYRCfdObjectAccess& iAttribute, TrialFindings& oFindings);

private:
    struct Entry
    {
        SourceItem item;
        ConditionText parts;
    };

    bool LeavesRecords(std::string_view iConfiguration) const;

    /// Borrowed.
    const ConfigurationSource* m_source;
    /// By the path of the item and that of its condition.
    std::map<std::pair<std::string, std::string>, std::vector<Entry>> m_entries;
};
} // namespace Tool

#endif
