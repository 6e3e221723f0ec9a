#include "GraphText.h"
#include "JsonWriter.h"
#include "Wording.h"

namespace Tool
{
namespace
{
void WriteLine(JsonWriter& oWriter, const SourcePosition& iPosition)
{
    WriteKey(oWriter, "line");
    oWriter.Int(iPosition.line);
}

void WriteNode(JsonWriter& oWriter, const ReferenceNode& iNode)
{
    oWriter.StartObject();
    WriteMember(oWriter, "name", iNode.name);
    if (iNode.configuration != nullptr)
    {
        WriteMember(oWriter, "file", OneLine(iNode.configuration->file->Path()));
        WriteLine(oWriter, iNode.configuration->position);
    }
    else
    {
        WriteKey(oWriter, "file");
        oWriter.Null();
        WriteKey(oWriter, "line");
        oWriter.Null();
    }
    oWriter.EndObject();
}

void WriteReference(JsonWriter& oWriter, const ReferenceGraph& iGraph, const Reference& iReference)
{
    oWriter.StartObject();
    WriteMember(oWriter, "from", iGraph.nodes[iReference.from].name);
    WriteMember(oWriter, "to", iGraph.nodes[iReference.to].name);
    WriteKey(oWriter, "item");
    oWriter.Uint64(iReference.item.number);
    WriteLine(oWriter, iReference.item.value.position);
    WriteMember(oWriter, "path", iReference.item.Text("path"));
    WriteKey(oWriter, "condition");
    if (iReference.item.role == ItemRole::Conditional)
        WriteText(oWriter, iReference.item.Text("condition"));
    else
        oWriter.Null();
    WriteKey(oWriter, "inCircle");
    oWriter.Bool(iReference.isInCircle);
    oWriter.EndObject();
}
} // namespace

std::string GraphJson(const ReferenceGraph& iGraph)
{
    return JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "configurations");
        oWriter.StartArray();
        for (const ReferenceNode& node : iGraph.nodes)
            WriteNode(oWriter, node);
        oWriter.EndArray();
        WriteKey(oWriter, "references");
        oWriter.StartArray();
        for (const Reference& reference : iGraph.references)
            WriteReference(oWriter, iGraph, reference);
        oWriter.EndArray();
        oWriter.EndObject();
    });
}
} // namespace Tool
