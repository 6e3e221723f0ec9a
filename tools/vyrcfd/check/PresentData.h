#ifndef PresentData_H
#define PresentData_H

#include <string>
#include <utility>
#include <vector>

#include "ItemTrial.h"

namespace Tool
{
/// Finds items that apply a configuration to the data object of a Choice, whatever the Choice has: it may offer data
/// objects, and have none at first.
class PresentData
{
public:
    /// What is wrong unless another configuration that is for the same Choice chooses for it.
    struct Doubtful
    {
        TrialFinding finding;
        ObjectPlace place;
    };

    /// A configuration is going to be tried.
    void Begin(const Trial& iTrial);
    /// To be asked in front of `Follow`.
    /// @return whether it is one of these
    bool Try(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);
    /// Follows what each item makes of the value of the Choice.
    void Follow(const SourceItem& iItem);

    std::vector<Doubtful> TakeDoubtful() { return std::exchange(m_doubtful, {}); }

private:
    bool HasNoData(const VYRCfdObjectAccess& iChoice) const;

    /// What the Choice has before anybody chooses; empty where that is not known.
    std::string m_firstChoice;
    /// Whether the configuration says so itself.
    bool m_isCertain = false;
    std::vector<Doubtful> m_doubtful;
};
} // namespace Tool

#endif
