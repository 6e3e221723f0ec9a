#include "PresentData.h"

#include <algorithm>

#include "ScratchObjects.h"
#include "Wording.h"

namespace Tool
{
void PresentData::Begin(const Trial& iTrial)
{
    m_firstChoice = FirstChoiceOf(iTrial.object);
    m_isCertain = false;
}

void PresentData::Follow(const SourceItem& iItem)
{
    const bool chooses = iItem.role == ItemRole::Choice || (SetsDefault(iItem.role) && iItem.Text("path") == "value");
    if (chooses)
        m_firstChoice = iItem.Text("default");
    // What it applies to the Choice may choose for it.
    else if (Refers(iItem.role) && iItem.Text("path").empty())
        m_firstChoice.clear();
    m_isCertain = m_isCertain || chooses;
}

/// Whether it has a choice without data, beside such as have data.
bool PresentData::HasNoData(const VYRCfdObjectAccess& iChoice) const
{
    const std::vector<std::string> choices = ChoicesOf(iChoice);
    const std::vector<std::string> startups = StartupsOf(iChoice);
    const auto first = std::find(choices.begin(), choices.end(), m_firstChoice);
    if (first == choices.end() || startups.size() != choices.size())
        return false;
    const bool hasAny =
        std::any_of(startups.begin(), startups.end(), [](const std::string& iStartup) { return !iStartup.empty(); });
    return hasAny && startups[static_cast<std::size_t>(first - choices.begin())].empty();
}

bool PresentData::Try(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings)
{
    const std::string_view path = iItem.Text("path");
    const bool leadsToData = path == "Data" || path.substr(0, 5) == "Data/";
    if (iItem.role != ItemRole::Nested || !leadsToData || !HasNoData(iTrial.object))
        return false;
    TrialFinding finding{FindingAt(iItem, "path", FindingKind::PathNowhere, Severity::Warning,
                                   Quoted(path) + " leads to no object as long as the Choice has " +
                                       Quoted(m_firstChoice) + " " + iTrial.Where() +
                                       ", which it has at first: nothing is applied then; a \"condition\" says "
                                       "when there is something")};
    if (m_isCertain)
        oFindings.push_back(std::move(finding));
    else if (!iTrial.isConditional)
        m_doubtful.push_back({std::move(finding), iTrial.place});
    return m_isCertain;
}
} // namespace Tool
