#include <cmath>
#include <cstdio>
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

/// The boxes of files, numbered from 1 in their order; 0 stands for what is in none.
std::vector<std::size_t> BoxesOf(const ReferenceGraph& iGraph)
{
    std::vector<std::size_t> boxes;
    const SourceFile* last = nullptr;
    std::size_t count = 0;
    for (const ReferenceNode& node : iGraph.nodes)
    {
        const SourceFile* const file = node.configuration != nullptr ? node.configuration->file : nullptr;
        if (file != nullptr && file != last)
            ++count;
        last = file;
        boxes.push_back(file != nullptr ? count : 0);
    }
    return boxes;
}

/// A colour for what belongs to a box, far from those of its neighbours, and from red, which means something.
std::string Colour(std::size_t iBox, const char* iSaturationAndBrightness)
{
    constexpr double GoldenRatio = 0.618034;
    constexpr double FirstHue = 0.08;
    constexpr double Hues = 0.84;
    char hue[16];
    std::snprintf(hue, sizeof(hue), "%.3f", FirstHue + Hues * std::fmod(static_cast<double>(iBox) * GoldenRatio, 1.0));
    return std::string("\"") + hue + " " + iSaturationAndBrightness + "\"";
}

/// The configurations of each file in a box, and behind them what is in none.
std::string NodesText(const ReferenceGraph& iGraph)
{
    const std::vector<std::size_t> boxes = BoxesOf(iGraph);
    std::string text;
    std::size_t open = 0;
    for (std::size_t i = 0; i < iGraph.nodes.size(); ++i)
    {
        if (boxes[i] != open)
            text += open != 0 ? "  }\n" : "";
        if (boxes[i] != open && boxes[i] != 0)
            text += "  subgraph cluster" + std::to_string(boxes[i]) +
                    " {\n    label=" + Dotted(FileName(*iGraph.nodes[i].configuration->file)) +
                    "; bgcolor=" + Colour(boxes[i], "0.06 1.00") + ";\n";
        open = boxes[i];
        text += (open != 0 ? "    " : "  ") + NodeText(iGraph.nodes[i], i);
    }
    return text + (open != 0 ? "  }\n" : "");
}

/// @param iBox of the configuration that the reference begins at
std::string EdgeText(const Edge& iEdge, const EdgeWords& iWords, std::size_t iBox)
{
    std::string text =
        "  " + NodeName(iEdge.from) + " -> " + NodeName(iEdge.to) + " [edgetooltip=" + Dotted(iWords.items);
    if (iEdge.isConditional)
        text += ", style=dashed, label=" + Dotted(iWords.conditions) + ", labeltooltip=" + Dotted(iWords.items);
    if (iWords.isInCircle)
        text += ", color=red, fontcolor=red";
    else
        text += ", color=" + Colour(iBox, "0.70 0.60") + ", fontcolor=" + Colour(iBox, "0.70 0.50");
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
    const std::vector<std::size_t> boxes = BoxesOf(iGraph);
    std::string text;
    for (const auto& [edge, words] : edges)
        text += EdgeText(edge, words, boxes[edge.from]);
    return text;
}
} // namespace

std::string GraphDot(const ReferenceGraph& iGraph)
{
    return "digraph configurations {\n"
           "  rankdir=LR;\n"
           "  ranksep=1;\n"
           "  nodesep=0.12;\n"
           "  fontname=\"Helvetica\";\n"
           "  graph [style=rounded, color=gray60, fontcolor=gray30, labeljust=l];\n"
           "  node [shape=box, style=\"rounded,filled\", fillcolor=white, height=0.3, fontname=\"Helvetica\", "
           "fontsize=11];\n"
           "  edge [fontname=\"Helvetica\", fontsize=10, arrowsize=0.7];\n" +
           NodesText(iGraph) + EdgesText(iGraph) + "}\n";
}
} // namespace Tool
