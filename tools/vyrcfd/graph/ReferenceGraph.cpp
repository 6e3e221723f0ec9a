#include "ReferenceGraph.h"

#include <algorithm>
#include <unordered_map>

namespace Tool
{
namespace
{
using Successors = std::vector<std::vector<std::size_t>>;

/// The whole graph, before anything is left out.
class Builder
{
public:
    explicit Builder(const ConfigurationSource& iSource)
    {
        for (const SourceConfiguration& configuration : iSource.Configurations())
            if (configuration.hiddenBy == nullptr)
                NodeOf(configuration.name, &configuration);
        const std::size_t known = graph.nodes.size();
        for (std::size_t i = 0; i < known; ++i)
            for (const SourceItem& item : ItemsOf(*graph.nodes[i].configuration))
                if (Refers(item.role))
                    graph.references.push_back({i, NodeOf(std::string(item.Text("config")), nullptr), item});
    }

    ReferenceGraph graph;

private:
    std::size_t NodeOf(const std::string& iName, const SourceConfiguration* iConfiguration)
    {
        const auto [node, isNew] = m_nodes.try_emplace(iName, graph.nodes.size());
        if (isNew)
            graph.nodes.push_back({iName, iConfiguration});
        return node->second;
    }

    std::unordered_map<std::string, std::size_t> m_nodes;
};

Successors SuccessorsOf(const ReferenceGraph& iGraph)
{
    Successors successors(iGraph.nodes.size());
    for (const Reference& reference : iGraph.references)
        successors[reference.from].push_back(reference.to);
    return successors;
}

std::vector<bool> ReachedFrom(std::size_t iStart, const Successors& iSuccessors)
{
    std::vector<bool> reached(iSuccessors.size(), false);
    std::vector<std::size_t> open{iStart};
    reached[iStart] = true;
    while (!open.empty())
    {
        const std::size_t node = open.back();
        open.pop_back();
        for (const std::size_t next : iSuccessors[node])
            if (!reached[next])
            {
                reached[next] = true;
                open.push_back(next);
            }
    }
    return reached;
}

/// Strongly connected components, by Tarjan's algorithm, without recursion: chains may have any length.
class Components
{
public:
    explicit Components(const Successors& iSuccessors)
        : number(iSuccessors.size(), 0), m_successors(iSuccessors), m_index(iSuccessors.size(), 0),
          m_lowest(iSuccessors.size(), 0), m_isOnStack(iSuccessors.size(), false)
    {
        for (std::size_t node = 0; node < iSuccessors.size(); ++node)
            if (m_index[node] == 0)
                Visit(node);
    }

    /// Nodes that lead to each other have the same.
    std::vector<std::size_t> number;

private:
    struct Visited
    {
        std::size_t node;
        std::size_t next;
    };

    void Enter(std::size_t iNode)
    {
        m_index[iNode] = m_lowest[iNode] = ++m_count;
        m_stack.push_back(iNode);
        m_isOnStack[iNode] = true;
        m_path.push_back({iNode, 0});
    }

    void Visit(std::size_t iStart)
    {
        Enter(iStart);
        while (!m_path.empty())
        {
            const std::size_t node = m_path.back().node;
            if (m_path.back().next < m_successors[node].size())
                Look(node, m_successors[node][m_path.back().next++]);
            else
                Leave(node);
        }
    }

    void Look(std::size_t iNode, std::size_t iNext)
    {
        if (m_index[iNext] == 0)
            Enter(iNext);
        else if (m_isOnStack[iNext])
            m_lowest[iNode] = std::min(m_lowest[iNode], m_index[iNext]);
    }

    void Leave(std::size_t iNode)
    {
        m_path.pop_back();
        if (!m_path.empty())
            m_lowest[m_path.back().node] = std::min(m_lowest[m_path.back().node], m_lowest[iNode]);
        if (m_lowest[iNode] != m_index[iNode])
            return;
        ++m_components;
        std::size_t member = 0;
        do
        {
            member = m_stack.back();
            m_stack.pop_back();
            m_isOnStack[member] = false;
            number[member] = m_components;
        } while (member != iNode);
    }

    const Successors& m_successors;
    std::vector<std::size_t> m_index;
    std::vector<std::size_t> m_lowest;
    std::vector<bool> m_isOnStack;
    std::vector<std::size_t> m_stack;
    std::vector<Visited> m_path;
    std::size_t m_count = 0;
    std::size_t m_components = 0;
};

void MarkCircles(ReferenceGraph& ioGraph)
{
    const Successors successors = SuccessorsOf(ioGraph);
    const Components components(successors);
    for (Reference& reference : ioGraph.references)
        reference.isInCircle = components.number[reference.from] == components.number[reference.to];
}

std::vector<bool> WantedNodes(const ReferenceGraph& iGraph, const GraphExtent& iExtent)
{
    if (iExtent.from != nullptr)
    {
        const auto start = std::find_if(iGraph.nodes.begin(), iGraph.nodes.end(), [&](const ReferenceNode& iNode) {
            return iNode.configuration == iExtent.from;
        });
        return ReachedFrom(static_cast<std::size_t>(start - iGraph.nodes.begin()), SuccessorsOf(iGraph));
    }
    std::vector<bool> wanted(iGraph.nodes.size(), iExtent.isAll);
    for (const Reference& reference : iGraph.references)
        wanted[reference.from] = wanted[reference.to] = true;
    return wanted;
}

ReferenceGraph PartOf(const ReferenceGraph& iGraph, const std::vector<bool>& iWanted)
{
    ReferenceGraph part;
    std::vector<std::size_t> numbers(iGraph.nodes.size(), 0);
    for (std::size_t i = 0; i < iGraph.nodes.size(); ++i)
    {
        numbers[i] = part.nodes.size();
        if (iWanted[i])
            part.nodes.push_back(iGraph.nodes[i]);
    }
    for (const Reference& reference : iGraph.references)
        if (iWanted[reference.from] && iWanted[reference.to])
            part.references.push_back(
                {numbers[reference.from], numbers[reference.to], reference.item, reference.isInCircle});
    return part;
}
} // namespace

ReferenceGraph ReferencesOf(const ConfigurationSource& iSource, const GraphExtent& iExtent)
{
    Builder builder(iSource);
    MarkCircles(builder.graph);
    return PartOf(builder.graph, WantedNodes(builder.graph, iExtent));
}
} // namespace Tool
