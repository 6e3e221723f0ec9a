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

/// The shortest way from a node back to itself; empty when there is none. All nodes of its group are done then.
Chain ShortestCycle(const Circles& iCircles, std::size_t iStart, std::vector<bool>& ioDone)
{
    std::unordered_map<std::size_t, const Reference*> reachedBy;
    std::deque<std::size_t> waiting{iStart};
    while (!waiting.empty())
    {
        const std::size_t node = waiting.front();
        waiting.pop_front();
        ioDone[node] = true;
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
    ioRun.Add(std::move(finding));
}
} // namespace

void CheckCycles(CheckRun& ioRun)
{
    const ReferenceGraph graph = ReferencesOf(ioRun.source, {nullptr, true});
    const Circles circles = CirclesOf(graph);
    std::vector<bool> isDone(graph.nodes.size(), false);
    // Of several nodes of a group the first in the files begins the chain.
    for (std::size_t node = 0; node < graph.nodes.size(); ++node)
    {
        const Chain chain = isDone[node] ? Chain() : ShortestCycle(circles, node, isDone);
        if (!chain.empty())
            AddCycle(chain, ioRun);
    }
}
} // namespace Tool
