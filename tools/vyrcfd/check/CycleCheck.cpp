#include <algorithm>
#include <deque>
#include <unordered_map>

#include "CheckRun.h"
#include "ReferenceGraph.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Chain = std::vector<const Reference*>;
/// By the node that they come from. Those only that lead back to it, so that none leads out of a group of nodes that
/// lead to each other.
using Circles = std::vector<Chain>;

Circles CirclesOf(const ReferenceGraph& iGraph)
{
    Circles circles(iGraph.nodes.size());
    for (const Reference& reference : iGraph.references)
        if (reference.isInCircle)
            circles[reference.from].push_back(&reference);
    return circles;
}

/// Configurations that lead to each other, in no order.
using Group = std::vector<std::size_t>;

/// The shortest way from a node back to itself; empty when there is none. @param oGroup all that lead to each other
/// with the node
Chain ShortestCycle(const Circles& iCircles, std::size_t iStart, Group& oGroup)
{
    std::unordered_map<std::size_t, const Reference*> reachedBy;
    std::deque<std::size_t> waiting{iStart};
    while (!waiting.empty())
    {
        const std::size_t node = waiting.front();
        waiting.pop_front();
        oGroup.push_back(node);
        for (const Reference* const reference : iCircles[node])
            if (reachedBy.try_emplace(reference->to, reference).second && reference->to != iStart)
                waiting.push_back(reference->to);
    }
    Chain chain;
    if (reachedBy.count(iStart) == 0)
        return chain;
    std::size_t node = iStart;
    do
    {
        chain.push_back(reachedBy.at(node));
        node = chain.back()->from;
    } while (node != iStart);
    std::reverse(chain.begin(), chain.end());
    return chain;
}

void AddCycle(const Chain& iChain, CheckRun& ioRun)
{
    constexpr std::size_t MostTold = 20;
    const SourceItem& first = iChain.front()->item;
    std::string names = Quoted(first.configuration.name);
    for (std::size_t i = 0; i < iChain.size(); ++i)
    {
        const bool isTold = i < MostTold || i + 1 == iChain.size();
        if (isTold)
            names += " -> " + Quoted(iChain[i]->item.Text("config"));
        else if (i == MostTold)
            names += " -> ...";
    }
    Finding finding = FindingAt(first, "config", FindingKind::Cycle, Severity::Warning,
                                "the configuration applies itself in the end: " + names +
                                    "; this goes on until a path or a condition fails, or the engine stops it");
    for (const Reference* const reference : iChain)
        if (reference != iChain.front())
        {
            const Finding place = FindingAt(reference->item, "config", FindingKind::Cycle, Severity::Warning, {});
            finding.related.push_back({place.file, place.position.line});
        }
    if (iChain.size() == 1)
        finding.suggestion = ioRun.meantInsteadOfItself;
    ioRun.closing.emplace(&iChain.back()->item.configuration, iChain.back()->item.number);
    ioRun.Add(std::move(finding));
}

/// By node, whether it is applied by another than those that it applies in the end.
std::vector<bool> AppliedByOthers(const ReferenceGraph& iGraph)
{
    std::vector<bool> applied(iGraph.nodes.size(), false);
    for (const Reference& reference : iGraph.references)
        if (!reference.isInCircle)
            applied[reference.to] = true;
    return applied;
}

/// What is applied by its own group alone is applied by nothing. One that applies itself only is told by its name.
void CheckUse(const Group& iGroup, const ReferenceGraph& iGraph, const std::vector<bool>& iApplied, CheckRun& ioRun)
{
    const bool isUsed = std::any_of(iGroup.begin(), iGroup.end(), [&](std::size_t iNode) {
        return iApplied[iNode] || ioRun.wanted.count(iGraph.nodes[iNode].name) != 0;
    });
    if (isUsed || iGroup.size() < 2 || !ioRun.isWhole)
        return;
    const SourceConfiguration& first = *iGraph.nodes[iGroup.front()].configuration;
    AddUnused(first, "only configurations that it applies itself in the end refer to " + Quoted(first.name), ioRun);
}
} // namespace

void CheckCycles(CheckRun& ioRun)
{
    const ReferenceGraph graph = ReferencesOf(ioRun.source, {nullptr, true});
    const Circles circles = CirclesOf(graph);
    const std::vector<bool> applied = AppliedByOthers(graph);
    std::vector<bool> isDone(graph.nodes.size(), false);
    // Of several nodes of a group the first in the files begins the chain.
    for (std::size_t node = 0; node < graph.nodes.size(); ++node)
    {
        Group group;
        const Chain chain = isDone[node] ? Chain() : ShortestCycle(circles, node, group);
        for (const std::size_t one : group)
            isDone[one] = true;
        const bool isDoubtful = std::any_of(chain.begin(), chain.end(), [&](const Reference* iOne) {
            // What leads back by a misspelt name may have been meant for something else.
            return ioRun.ambiguous.count(iOne->item.configuration.name) != 0 ||
                   ioRun.meant.HasOtherText(iOne->item.configuration, iOne->item.number, "config");
        });
        if (chain.empty() || isDoubtful)
            continue;
        AddCycle(chain, ioRun);
        CheckUse(group, graph, applied, ioRun);
    }
}
} // namespace Tool
