#include "Description.h"
#include "ItemWords.h"
#include "JsonWriter.h"
#include "Unfolding.h"
#include "Wording.h"

namespace Tool
{
namespace
{
const char* FoldText(UnfoldingReader::Fold iFold)
{
    switch (iFold)
    {
    case UnfoldingReader::Fold::ToldBefore:
        return "told before";
    case UnfoldingReader::Fold::Circle:
        return "circle";
    case UnfoldingReader::Fold::TooDeep:
        return "too deep";
    case UnfoldingReader::Fold::Open:
    case UnfoldingReader::Fold::Nothing:
    case UnfoldingReader::Fold::NotAsked:
        break;
    }
    return nullptr;
}

class JsonTeller final : public UnfoldingReader
{
public:
    JsonTeller(const ConfigurationSource& iSource, JsonWriter& oWriter) : m_source(iSource), m_writer(oWriter) {}

    void Begin(const SourceConfiguration& iConfiguration, std::size_t iDepth) override
    {
        if (iDepth > 0)
            WriteKey(m_writer, "nested");
        m_writer.StartObject();
        WriteMember(m_writer, "name", iConfiguration.name);
        WritePlace(iConfiguration.file->Path(), iConfiguration.position);
        WriteKey(m_writer, "items");
        m_writer.StartArray();
    }

    void Tell(const SourceItem& iItem, std::size_t /*iDepth*/, Fold iFold) override
    {
        m_writer.StartObject();
        WriteKey(m_writer, "item");
        m_writer.Uint64(iItem.number);
        WritePlace(iItem.configuration.file->Path(), iItem.value.position);
        WriteMember(m_writer, "role", RoleText(iItem.role));
        for (const char* key : {"path", "config", "condition"})
            WriteMember(m_writer, key, iItem.Text(key));
        WriteKey(m_writer, "words");
        m_writer.StartArray();
        for (const std::string& line : WordsOf(iItem, m_source))
            WriteText(m_writer, line);
        m_writer.EndArray();
        if (const char* fold = FoldText(iFold); fold != nullptr)
            WriteMember(m_writer, "notNested", fold);
    }

    void End(const SourceConfiguration& /*iConfiguration*/, std::size_t /*iDepth*/) override
    {
        m_writer.EndArray();
        m_writer.EndObject();
    }

    void Leave(std::size_t /*iDepth*/) override { m_writer.EndObject(); }

private:
    void WritePlace(const std::string& iFile, const SourcePosition& iPosition)
    {
        WriteMember(m_writer, "file", OneLine(iFile));
        WriteKey(m_writer, "line");
        m_writer.Int(iPosition.line);
        WriteKey(m_writer, "column");
        m_writer.Int(iPosition.column);
    }

    const ConfigurationSource& m_source;
    JsonWriter& m_writer;
};
} // namespace

std::string DescriptionJson(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource,
                            bool iIsNested)
{
    return JsonText([&](JsonWriter& oWriter) {
        JsonTeller teller(iSource, oWriter);
        Unfold(iConfiguration, iSource, iIsNested, teller);
    });
}
} // namespace Tool
