#include <filesystem>
#include <map>
#include <tuple>

#include "GraphText.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// References between the same two that stand as one line.
struct Edge
{
    std::size_t from;
    std::size_t to;
    bool isConditional;

    bool operator<(const Edge& iOther) const
    {
        return std::tie(from, to, isConditional) < std::tie(iOther.from, iOther.to, iOther.isConditional);
    }
};

struct EdgeWords
{
    std::vector<std::string> conditions;
    /// What stands beside the pointer: where each item applies, and by which one.
    std::vector<std::string> items;
    bool isInCircle = false;
};

/// A text between quotation marks, as DOT reads it: nothing but a quotation mark and a backslash means anything.
std::string Dotted(const std::vector<std::string>& iLines)
{
    std::string text;
    for (const std::string& line : iLines)
    {
        if (!text.empty())
            text += "\\n";
        for (const char letter : OneLine(line))
        {
            if (letter == '"' || letter == '\\')
                text += '\\';
            text += letter;
            // An ampersand would begin the name of a character.
            if (letter == '&')
                text += "amp;";
        }
    }
    return '"' + text + '"';
}

std::string Dotted(const std::string& iText)
{
    return Dotted(std::vector<std::string>{iText});
}

std::string FileName(const SourceFile& iFile)
{
    return std::filesystem::path(iFile.Path()).filename().string();
}

std::string NodeName(std::size_t iNode)
{
    return "c" + std::to_string(iNode + 1);
}

std::string NodeText(const ReferenceNode& iNode, std::size_t iNumber)
{
    const std::string start = NodeName(iNumber) + " [label=" + Dotted(iNode.name.empty() ? "(no name)" : iNode.name);
    if (iNode.configuration == nullptr)
        return start + ", tooltip=\"no configuration has this name\", color=red, fontcolor=red, style=dashed];\n";
    const std::string place = FileName(*iNode.configuration->file) + ":" +
                              std::to_string(iNode.configuration->position.line) + ", " +
                              Counted(iNode.configuration->items.size(), "item");
    return start + ", tooltip=" + Dotted(place) + "];\n";
}

/// The configurations of each file in a box, and behind them what is in none.
std::string NodesText(const ReferenceGraph& iGraph)
{
    std::string text;
    const SourceFile* open = nullptr;
    std::size_t boxes = 0;
    for (std::size_t i = 0; i < iGraph.nodes.size(); ++i)
    {
        const SourceFile* const file =
            iGraph.nodes[i].configuration != nullptr ? iGraph.nodes[i].configuration->file : nullptr;
        if (file != open && open != nullptr)
            text += "  }\n";
        if (file != open && file != nullptr)
            text += "  subgraph cluster" + std::to_string(++boxes) + " {\n    label=" + Dotted(FileName(*file)) + ";\n";
        open = file;
        text += (open != nullptr ? "    " : "  ") + NodeText(iGraph.nodes[i], i);
    }
    return text + (open != nullptr ? "  }\n" : "");
}

std::string EdgeText(const Edge& iEdge, const EdgeWords& iWords)
{
    std::string text =
        "  " + NodeName(iEdge.from) + " -> " + NodeName(iEdge.to) + " [edgetooltip=" + Dotted(iWords.items);
    if (iEdge.isConditional)
        text += ", style=dashed, label=" + Dotted(iWords.conditions) + ", labeltooltip=" + Dotted(iWords.items);
    if (iWords.isInCircle)
        text += ", color=red, fontcolor=red";
    return text + "];\n";
}

std::string EdgesText(const ReferenceGraph& iGraph)
{
    std::map<Edge, EdgeWords> edges;
    for (const Reference& reference : iGraph.references)
    {
        const SourceItem& item = reference.item;
        const bool isConditional = item.role == ItemRole::Conditional;
        EdgeWords& words = edges[{reference.from, reference.to, isConditional}];
        const std::string path(item.Text("path"));
        std::string told =
            "item " + std::to_string(item.number) + ", on " + (path.empty() ? "the object itself" : path);
        if (isConditional)
            told += ", if " + std::string(item.Text("condition"));
        words.items.push_back(told);
        if (isConditional)
            words.conditions.emplace_back(item.Text("condition"));
        words.isInCircle = words.isInCircle || reference.isInCircle;
    }
    std::string text;
    for (const auto& [edge, words] : edges)
        text += EdgeText(edge, words);
    return text;
}
} // namespace

std::string GraphDot(const ReferenceGraph& iGraph)
{
    return "digraph configurations {\n"
           "  rankdir=LR;\n"
           "  ranksep=1.2;\n"
           "  nodesep=0.12;\n"
           "  fontname=\"Helvetica\";\n"
           "  graph [style=rounded, color=gray60, fontcolor=gray30, labeljust=l];\n"
           "  node [shape=box, style=\"rounded,filled\", fillcolor=white, height=0.3, fontname=\"Helvetica\", "
           "fontsize=11];\n"
           "  edge [color=gray40, fontname=\"Helvetica\", fontsize=9, arrowsize=0.7];\n" +
           NodesText(iGraph) + EdgesText(iGraph) + "}\n";
}
} // namespace Tool
