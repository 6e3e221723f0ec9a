#include "Description.h"
#include "ItemWords.h"
#include "Output.h"
#include "Unfolding.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// A number of two digits, a full stop and a blank stand in front of what an item does.
constexpr std::size_t NumberWidth = 4;
constexpr std::size_t LevelIndent = 6;

const char* FoldWords(UnfoldingReader::Fold iFold)
{
    switch (iFold)
    {
    case UnfoldingReader::Fold::ToldBefore:
        return "told above";
    case UnfoldingReader::Fold::Circle:
        return "in a circle: this is one of those that lead here";
    case UnfoldingReader::Fold::TooDeep:
        return "not told: too deep";
    case UnfoldingReader::Fold::Open:
    case UnfoldingReader::Fold::Nothing:
    case UnfoldingReader::Fold::NotAsked:
        break;
    }
    return "";
}

std::string PlaceText(const SourceConfiguration& iConfiguration)
{
    return OneLine(iConfiguration.file->Path()) + ":" + std::to_string(iConfiguration.position.line);
}

class TextWriter final : public UnfoldingReader
{
public:
    explicit TextWriter(const ConfigurationSource& iSource) : m_source(iSource) {}

    std::string text;

    void Begin(const SourceConfiguration& iConfiguration, std::size_t iDepth) override
    {
        const std::string name = iConfiguration.name.empty() ? "\"\"" : OneLine(iConfiguration.name);
        text += Indent(iDepth) + m_colours.Heading(name) + "  " + Counted(iConfiguration.items.size(), "item") + "  " +
                PlaceText(iConfiguration) + "\n";
        if (iDepth == 0)
            for (const SourceConfiguration& other : m_source.Configurations())
                if (other.hiddenBy == &iConfiguration)
                    text += Indent(iDepth) +
                            m_colours.Removed("without effect: the definition in " + PlaceText(other)) + "\n";
        if (iConfiguration.items.empty())
            text += Indent(iDepth) + "    does nothing: it has no items\n";
    }

    void Tell(const SourceItem& iItem, std::size_t iDepth, Fold iFold) override
    {
        const std::string number = std::to_string(iItem.number) + ".";
        std::string indent = Indent(iDepth) + "  ";
        std::string lead =
            indent + std::string(NumberWidth - std::min(NumberWidth, number.size() + 1), ' ') + number + " ";
        for (std::string line : WordsOf(iItem, m_source))
        {
            if (RoleText(iItem.role) == std::string("nothing"))
                line = m_colours.Noted(line);
            text += lead + line + "\n";
            lead = indent + std::string(NumberWidth, ' ') + "    ";
        }
        if (const std::string fold = FoldWords(iFold); !fold.empty())
            text += lead + fold + "\n";
    }

    void End(const SourceConfiguration& /*iConfiguration*/, std::size_t /*iDepth*/) override {}
    void Leave(std::size_t /*iDepth*/) override {}

private:
    static std::string Indent(std::size_t iDepth) { return std::string(iDepth * LevelIndent, ' '); }

    const ConfigurationSource& m_source;
    Colours m_colours;
};
} // namespace

std::string DescriptionText(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource,
                            bool iIsNested)
{
    TextWriter writer(iSource);
    Unfold(iConfiguration, iSource, iIsNested, writer);
    return writer.text;
}
} // namespace Tool
