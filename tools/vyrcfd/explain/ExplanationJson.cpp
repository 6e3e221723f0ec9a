#include "Explanation.h"
#include "JsonWriter.h"
#include "RecordOrigin.h"
#include "Wording.h"

namespace Tool
{
namespace
{
void WriteState(JsonWriter& oWriter, const AttributeSnapshot& iAttribute)
{
    WriteKey(oWriter, "value");
    iAttribute.value.Write(oWriter);
    WriteFlag(oWriter, "set", iAttribute.set);
    WriteFlag(oWriter, "auto", iAttribute.automatic);
}

void WritePlace(JsonWriter& oWriter, const std::string& iFile, const SourcePosition& iPosition)
{
    WriteMember(oWriter, "file", OneLine(iFile));
    WriteKey(oWriter, "line");
    oWriter.Int(iPosition.line);
    WriteKey(oWriter, "column");
    oWriter.Int(iPosition.column);
}

void WriteRecord(JsonWriter& oWriter, const RecordRung& iRung, const ConfigurationSource& iSource)
{
    oWriter.StartObject();
    WriteKey(oWriter, "position");
    oWriter.Uint64(iRung.position);
    for (const AttributeSnapshot& attribute : iRung.record.attributes)
    {
        WriteKey(oWriter, attribute.info.name);
        attribute.value.Write(oWriter);
    }
    WriteKey(oWriter, "value");
    iRung.value.Write(oWriter);
    WriteKey(oWriter, "items");
    oWriter.StartArray();
    for (const SourceItem& item : ItemsThatLeave(iRung.record, iSource))
    {
        oWriter.StartObject();
        WriteMember(oWriter, "configuration", item.configuration.name);
        WriteKey(oWriter, "item");
        oWriter.Uint64(item.number);
        WritePlace(oWriter, item.configuration.file->Path(), item.value.position);
        oWriter.EndObject();
    }
    oWriter.EndArray();
    oWriter.EndObject();
}

void WritePlaces(JsonWriter& oWriter, const char* iKey, const std::vector<CatalogPlace>& iPlaces)
{
    WriteKey(oWriter, iKey);
    oWriter.StartArray();
    for (const CatalogPlace& place : iPlaces)
    {
        oWriter.StartObject();
        WriteMember(oWriter, "catalog", place.catalog);
        WriteMember(oWriter, "type", place.type);
        WritePlace(oWriter, place.file->Path(), place.position);
        oWriter.EndObject();
    }
    oWriter.EndArray();
}

void WritePrototype(JsonWriter& oWriter, const Explanation& iExplanation, const CatalogSource& iCatalogs)
{
    const std::optional<PrototypeRung>& prototype = iExplanation.ladder->prototype;
    WriteKey(oWriter, "prototype");
    if (!prototype)
    {
        oWriter.Null();
        return;
    }
    oWriter.StartObject();
    WriteMember(oWriter, "path", prototype->path);
    WriteKey(oWriter, "value");
    prototype->value.Write(oWriter);
    WriteMember(oWriter, "declaredBy", iExplanation.attribute.info.declaredBy);
    WritePlaces(oWriter, "declarations", DeclarationsOf(iExplanation, iCatalogs));
    WritePlaces(oWriter, "values", ValuesOf(*prototype, iCatalogs));
    oWriter.EndObject();
}

void WriteLadder(JsonWriter& oWriter, const Explanation& iExplanation, const ExplanationSources& iSources)
{
    WriteKey(oWriter, "ladder");
    if (!iExplanation.ladder)
    {
        oWriter.Null();
        return;
    }
    oWriter.StartObject();
    WriteKey(oWriter, "customDefault");
    iExplanation.ladder->customDefault.value_or(Value()).Write(oWriter);
    WriteKey(oWriter, "records");
    oWriter.StartArray();
    for (const RecordRung& rung : iExplanation.ladder->records)
        WriteRecord(oWriter, rung, iSources.configurations);
    oWriter.EndArray();
    WritePrototype(oWriter, iExplanation, iSources.catalogs);
    oWriter.EndObject();
}

/// Of the ladder, what `unset` would take; a start-up without value is one all the same.
const char* WinnerText(const std::optional<Ladder>& iLadder)
{
    if (!iLadder || !iLadder->isFound)
        return OriginText(DefaultOrigin::None);
    if (iLadder->customDefault)
        return OriginText(DefaultOrigin::CustomDefault);
    return OriginText(iLadder->byDefault.origin == DefaultOrigin::Record ? DefaultOrigin::Record
                                                                         : DefaultOrigin::Startup);
}
} // namespace

std::string ExplanationJson(const Explanation& iExplanation, const ExplanationSources& iSources)
{
    return JsonText([&](JsonWriter& oWriter) {
        const AttributeSnapshot& attribute = iExplanation.attribute;
        oWriter.StartObject();
        WriteMember(oWriter, "path", iExplanation.path);
        WriteMember(oWriter, "object", iExplanation.object);
        WriteMember(oWriter, "attribute", attribute.info.name);
        WriteMember(oWriter, "kind", attribute.KindName());
        WriteKey(oWriter, "optional");
        oWriter.Bool(attribute.info.optional);
        WriteState(oWriter, attribute);
        WriteMember(oWriter, "source",
                    SourceText(attribute, iExplanation.ladder ? iExplanation.ladder->byDefault : AttributeDefault()));
        WriteLadder(oWriter, iExplanation, iSources);
        WriteMember(oWriter, "winner", WinnerText(iExplanation.ladder));
        WriteKey(oWriter, "afterUnset");
        if (iExplanation.unsetting)
        {
            oWriter.StartObject();
            WriteState(oWriter, iExplanation.unsetting->attribute);
            oWriter.EndObject();
        }
        else
            oWriter.Null();
        oWriter.EndObject();
    });
}
} // namespace Tool
