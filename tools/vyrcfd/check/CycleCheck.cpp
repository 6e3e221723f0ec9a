#include <algorithm>
#include <deque>
#include <unordered_map>

#include "CheckRun.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Configurations that hold, and which of them each applies.
class ReferenceGraph
{
public:
    struct Edge
    {
        std::size_t to;
        SourceItem item;
    };

    explicit ReferenceGraph(const ConfigurationSource& iSource)
    {
        std::unordered_map<const SourceConfiguration*, std::size_t> numbers;
        for (const SourceConfiguration& configuration : iSource.Configurations())
            if (configuration.hiddenBy == nullptr)
            {
                numbers.emplace(&configuration, m_nodes.size());
                m_nodes.push_back(&configuration);
            }
        m_edges.resize(m_nodes.size());
        for (std::size_t node = 0; node < m_nodes.size(); ++node)
            for (const SourceItem& item : ItemsOf(*m_nodes[node]))
                if (Refers(item.role))
                    if (const SourceConfiguration* target = iSource.Find(item.Text("config")))
                        m_edges[node].push_back({numbers.at(target), item});
    }

    std::size_t Size() const noexcept { return m_nodes.size(); }
    const SourceConfiguration& At(std::size_t iNode) const { return *m_nodes[iNode]; }
    const std::vector<Edge>& From(std::size_t iNode) const { return m_edges[iNode]; }

private:
    std::vector<const SourceConfiguration*> m_nodes;
    std::vector<std::vector<Edge>> m_edges;
};

/// Gives every node the number of its group: nodes that lead to each other have the same. Not recursive, since chains
/// may be long.
class Groups
{
public:
    explicit Groups(const ReferenceGraph& iGraph)
        : m_graph(iGraph), m_order(iGraph.Size(), Unseen), m_low(iGraph.Size()), m_group(iGraph.Size(), Unseen)
    {
        for (std::size_t node = 0; node < iGraph.Size(); ++node)
            if (m_order[node] == Unseen)
                Visit(node);
    }

    std::size_t Of(std::size_t iNode) const { return m_group[iNode]; }

private:
    static constexpr std::size_t Unseen = static_cast<std::size_t>(-1);

    struct Step
    {
        std::size_t node;
        std::size_t nextEdge;
    };

    void Visit(std::size_t iStart)
    {
        std::vector<Step> trail;
        Enter(iStart, trail);
        while (!trail.empty())
        {
            Step& step = trail.back();
            if (step.nextEdge < m_graph.From(step.node).size())
            {
                const std::size_t node = step.node;
                const std::size_t next = m_graph.From(node)[step.nextEdge++].to;
                if (m_order[next] == Unseen)
                    Enter(next, trail);
                else if (m_group[next] == Unseen)
                    m_low[node] = std::min(m_low[node], m_order[next]);
                continue;
            }
            Leave(trail);
        }
    }

    void Enter(std::size_t iNode, std::vector<Step>& ioTrail)
    {
        m_order[iNode] = m_low[iNode] = m_seen++;
        m_open.push_back(iNode);
        ioTrail.push_back({iNode, 0});
    }

    void Leave(std::vector<Step>& ioTrail)
    {
        const std::size_t node = ioTrail.back().node;
        ioTrail.pop_back();
        if (!ioTrail.empty())
            m_low[ioTrail.back().node] = std::min(m_low[ioTrail.back().node], m_low[node]);
        if (m_low[node] != m_order[node])
            return;
        // Everything that was entered behind it leads back to it.
        std::size_t member;
        do
        {
            member = m_open.back();
            m_open.pop_back();
            m_group[member] = node;
        } while (member != node);
    }

    const ReferenceGraph& m_graph;
    std::vector<std::size_t> m_order;
    std::vector<std::size_t> m_low;
    std::vector<std::size_t> m_group;
    std::vector<std::size_t> m_open;
    std::size_t m_seen = 0;
};

using Chain = std::vector<const ReferenceGraph::Edge*>;

/// The shortest way from a node back to itself inside its group; empty when there is none. It looks at the edges of the
/// group once.
Chain ShortestCycle(const ReferenceGraph& iGraph, const Groups& iGroups, std::size_t iStart)
{
    struct Reached
    {
        const ReferenceGraph::Edge* by;
        std::size_t from;
    };
    std::unordered_map<std::size_t, Reached> reached;
    std::deque<std::size_t> waiting{iStart};
    while (!waiting.empty() && reached.count(iStart) == 0)
    {
        const std::size_t node = waiting.front();
        waiting.pop_front();
        for (const ReferenceGraph::Edge& edge : iGraph.From(node))
            if (iGroups.Of(edge.to) == iGroups.Of(iStart) && reached.try_emplace(edge.to, Reached{&edge, node}).second)
                waiting.push_back(edge.to);
    }
    Chain chain;
    if (reached.count(iStart) == 0)
        return chain;
    std::size_t node = iStart;
    do
    {
        const Reached& last = reached.at(node);
        chain.push_back(last.by);
        node = last.from;
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
    for (const ReferenceGraph::Edge* edge : iChain)
        if (edge != iChain.front())
        {
            const Finding place = FindingAt(edge->item, "config", FindingKind::Cycle, Severity::Warning, {});
            finding.related.push_back({place.file, place.position.line});
        }
    ioRun.Add(std::move(finding));
}
} // namespace

void CheckCycles(CheckRun& ioRun)
{
    const ReferenceGraph graph(ioRun.source);
    const Groups groups(graph);
    std::vector<bool> isDone(graph.Size(), false);
    for (std::size_t node = 0; node < graph.Size(); ++node)
    {
        // Of several nodes of a group the first in the files begins the chain.
        if (isDone[groups.Of(node)])
            continue;
        isDone[groups.Of(node)] = true;
        const Chain chain = ShortestCycle(graph, groups, node);
        if (!chain.empty())
            AddCycle(chain, ioRun);
    }
}
} // namespace Tool
