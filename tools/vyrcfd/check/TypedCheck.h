#ifndef TypedCheck_H
#define TypedCheck_H

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <unordered_set>
#include <vector>

#include "CatalogSource.h"
#include "CheckRun.h"
#include "ConditionOverlap.h"
#include "ItemTrial.h"
#include "PresentData.h"
#include "ScratchObjects.h"
#include "TypeGuess.h"

namespace Tool
{
/**
 * The checks that need catalogs: every configuration is tried out on objects that it is for. These are the types for
 * which catalogs mean it, and where the paths of other configurations lead; for the rest, the types that most of its
 * paths fit.
 */
class TypedCheck
{
public:
    explicit TypedCheck(CheckRun& ioRun);

    void Check(const CatalogSource& iCatalogs);

private:
    struct Task
    {
        const SourceConfiguration* configuration;
        ObjectPlace place;
        bool isGuessed;
        bool isConditional;
        /// The item that leads there; nothing for what a catalog says.
        std::optional<SourceItem> origin{};
        /// Something misspelt leads there, so that it may have been meant for something else.
        bool isSupposed = false;
    };

    void TakeBack(std::size_t iTasks);
    void Put(std::string_view iConfiguration, Task iTask);
    void WorkOff();
    void GuessRest();
    void SpreadUnclear();
    void Guess(const SourceConfiguration& iConfiguration);
    TrialFindings Try(const Task& iTask);
    void TryItems(const Task& iTask, const Trial& iTrial, TrialFindings& oFindings);
    void TakeUnofferedDefault(const SourceItem& iItem);
    void MergeUnoffered(const SourceItem& iItem, std::size_t iFound, TrialFindings& ioFindings);
    bool IsBrokenChoice(const SourceItem& iItem, bool iHasFailed) const;
    void TryItem(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);
    void TryPathAlone(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);
    void TryReference(const SourceItem& iItem, const Trial& iTrial, TrialFindings& oFindings);
    enum class Guard
    {
        /// The condition itself is none or leads nowhere.
        None,
        /// It compares a Choice with something that is not meant, so that to which of its data objects something is
        /// applied under it is not known.
        Odd,
        Clear
    };
    Guard TryCondition(const SourceItem& iItem, const Trial& iTrial, PathWalk& ioWalk, TrialFindings& oFindings);
    void TryTarget(const SourceItem& iItem, const Trial& iTrial, const PathEnd& iEnd, TrialFindings& oFindings);
    void CheckTypeNames();
    void CheckTypeNames(const SourceItem& iItem);
    void ReportPresentData();
    void Report(TrialFindings iFindings);

    CheckRun& m_run;
    ScratchObjects m_objects;
    DefaultTrial m_defaults;
    TypeGuess m_guess;
    /// Of the configuration that is being tried.
    ConditionOverlap m_overlap;
    PresentData m_presentData;
    /// Texts that the Choice does not offer, each with the finding that tells so, among those of the trial; past the
    /// end where that is one of the texts. Where one of them stands again it is the same mistake.
    std::map<std::string, std::size_t, std::less<>> m_unoffered;
    std::deque<Task> m_tasks;
    std::set<std::tuple<const SourceConfiguration*, std::string, std::string>> m_known;
    std::unordered_set<const SourceConfiguration*> m_tried;
    /// False while several types are tried for one configuration: where its paths lead on each of them says nothing.
    /// And for an item with an odd condition.
    bool m_followsReferences = true;
};
} // namespace Tool

#endif
