#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <set>
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

using Edges = std::map<Edge, EdgeWords>;

Edges EdgesOf(const ReferenceGraph& iGraph)
{
    Edges edges;
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
    return edges;
}

/// What is drawn, and where.
struct Drawing
{
    std::vector<std::size_t> boxes;
    Edges edges;
    /// By box, configurations of other boxes that stand in it once more: so many lines lead from them into other boxes
    /// that side by side they could not be told apart.
    std::map<std::size_t, std::set<std::size_t>> guests;

    /// A circle is to be seen as one.
    bool LeadsOut(const Edge& iEdge, const EdgeWords& iWords) const
    {
        return boxes[iEdge.from] != boxes[iEdge.to] && boxes[iEdge.to] != 0 && !iWords.isInCircle;
    }
    bool IsFromGuest(const Edge& iEdge, const EdgeWords& iWords) const
    {
        const auto found = guests.find(boxes[iEdge.to]);
        return LeadsOut(iEdge, iWords) && found != guests.end() && found->second.count(iEdge.from) != 0;
    }
};

Drawing DrawingOf(const ReferenceGraph& iGraph)
{
    constexpr std::size_t MostLines = 8;
    Drawing drawing{BoxesOf(iGraph), EdgesOf(iGraph), {}};
    std::map<std::size_t, std::size_t> lines;
    for (const auto& [edge, words] : drawing.edges)
        lines[edge.from] += drawing.LeadsOut(edge, words) ? 1 : 0;
    for (const auto& [edge, words] : drawing.edges)
        if (drawing.LeadsOut(edge, words) && lines[edge.from] > MostLines)
            drawing.guests[drawing.boxes[edge.to]].insert(edge.from);
    return drawing;
}

std::string GuestName(std::size_t iNode, std::size_t iBox)
{
    return NodeName(iNode) + "_" + std::to_string(iBox);
}

std::string GuestsText(const ReferenceGraph& iGraph, const Drawing& iDrawing, std::size_t iBox)
{
    const auto guests = iDrawing.guests.find(iBox);
    std::string text;
    if (guests == iDrawing.guests.end())
        return text;
    for (const std::size_t guest : guests->second)
    {
        const SourceConfiguration& configuration = *iGraph.nodes[guest].configuration;
        const std::size_t home = iDrawing.boxes[guest];
        text += "    " + GuestName(guest, iBox) + " [label=" + Dotted(configuration.name) +
                ", tooltip=" + Dotted("stands in " + FileName(*configuration.file)) +
                ", style=\"rounded,dashed\", color=" + Colour(home, "0.70 0.60") +
                ", fontcolor=" + Colour(home, "0.70 0.50") + "];\n";
    }
    return text;
}

/// The configurations of each file in a box, and behind them what is in none.
std::string NodesText(const ReferenceGraph& iGraph, const Drawing& iDrawing)
{
    const std::vector<std::size_t>& boxes = iDrawing.boxes;
    std::string text;
    std::size_t open = 0;
    for (std::size_t i = 0; i < iGraph.nodes.size(); ++i)
    {
        if (boxes[i] != open)
            text += open != 0 ? "  }\n" : "";
        if (boxes[i] != open && boxes[i] != 0)
            text += "  subgraph cluster" + std::to_string(boxes[i]) +
                    " {\n    label=" + Dotted(FileName(*iGraph.nodes[i].configuration->file)) +
                    "; bgcolor=" + Colour(boxes[i], "0.06 1.00") + ";\n" + GuestsText(iGraph, iDrawing, boxes[i]);
        open = boxes[i];
        text += (open != 0 ? "    " : "  ") + NodeText(iGraph.nodes[i], i);
    }
    return text + (open != 0 ? "  }\n" : "");
}

/// @param iFrom what the line begins at. @param iBox of the configuration that the reference begins at
std::string EdgeText(const std::string& iFrom, const Edge& iEdge, const EdgeWords& iWords, std::size_t iBox)
{
    std::string text = "  " + iFrom + " -> " + NodeName(iEdge.to) + " [edgetooltip=" + Dotted(iWords.items);
    if (iEdge.isConditional)
        text += ", style=dashed, label=" + Dotted(iWords.conditions) + ", labeltooltip=" + Dotted(iWords.items);
    if (iWords.isInCircle)
        text += ", color=red, fontcolor=red";
    else
        text += ", color=" + Colour(iBox, "0.70 0.60") + ", fontcolor=" + Colour(iBox, "0.70 0.50");
    return text + "];\n";
}

std::string EdgesText(const Drawing& iDrawing)
{
    std::string text;
    for (const auto& [edge, words] : iDrawing.edges)
    {
        const bool isFromGuest = iDrawing.IsFromGuest(edge, words);
        const std::string from = isFromGuest ? GuestName(edge.from, iDrawing.boxes[edge.to]) : NodeName(edge.from);
        text += EdgeText(from, edge, words, iDrawing.boxes[edge.from]);
    }
    return text;
}
} // namespace

std::string GraphDot(const ReferenceGraph& iGraph)
{
    const Drawing drawing = DrawingOf(iGraph);
    return "digraph configurations {\n"
           "  rankdir=LR;\n"
           "  ranksep=1;\n"
           "  nodesep=0.12;\n"
           "  fontname=\"Helvetica\";\n"
           "  graph [style=rounded, color=gray60, fontcolor=gray30, labeljust=l];\n"
           "  node [shape=box, style=\"rounded,filled\", fillcolor=white, height=0.3, fontname=\"Helvetica\", "
           "fontsize=11];\n"
           "  edge [fontname=\"Helvetica\", fontsize=10, arrowsize=0.7];\n" +
           NodesText(iGraph, drawing) + EdgesText(drawing) + "}\n";
}
} // namespace Tool
