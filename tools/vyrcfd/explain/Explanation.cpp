#include "Explanation.h"

#include "ApplyText.h"
#include "Output.h"
#include "RecordOrigin.h"
#include "Wording.h"

namespace Tool
{
std::vector<CatalogPlace> DeclarationsOf(const Explanation& iExplanation, const CatalogSource& iCatalogs)
{
    const VYRStandalone::AttributeInfo& info = iExplanation.attribute.info;
    return info.declaredBy.empty() ? std::vector<CatalogPlace>() : iCatalogs.DeclarationsOf(info.declaredBy, info.name);
}

std::vector<CatalogPlace> ValuesOf(const PrototypeRung& iPrototype, const CatalogSource& iCatalogs)
{
    std::vector<CatalogPlace> places;
    for (const PrototypeRung::Level& level : iPrototype.levels)
        for (const CatalogPlace& place : iCatalogs.ValuesOf(level.type, level.names))
            places.push_back(place);
    return places;
}

namespace
{
constexpr char Indent[] = "    ";
constexpr std::size_t LabelWidth = 16;

/// A label and what stands behind it; the first column is for the mark of the rung that counts.
std::string Line(const std::string& iLabel, const std::string& iText, bool iCounts = false)
{
    return std::string(iCounts ? "  > " : Indent) + iLabel +
           std::string(LabelWidth - std::min(LabelWidth, iLabel.size()), ' ') + iText + "\n";
}

std::string Below(const std::string& iText)
{
    return Line("", Indent + iText);
}

std::string Indented(const std::string& iLines, const std::string& iIndent)
{
    std::string text = iIndent;
    for (const char letter : iLines)
        text += letter == '\n' ? "\n" + iIndent : std::string(1, letter);
    return text.substr(0, text.size() - iIndent.size());
}

std::string PlaceText(const std::string& iFile, const SourcePosition& iPosition)
{
    return OneLine(iFile) + ":" + std::to_string(iPosition.line) + ":" + std::to_string(iPosition.column);
}

std::string ComesFrom(const AttributeSnapshot& iAttribute, const Ladder& iLadder)
{
    const std::string source = SourceText(iAttribute, iLadder.byDefault);
    if (source == "set")
        return "set on purpose";
    if (source == "none")
        return iLadder.isFound ? "none of its defaults, and it is not set" : "not set, and it has no default";
    return "its default, by the " + source;
}

std::string CustomDefaultText(const Explanation& iExplanation, const Colours& iColours)
{
    if (const std::optional<Value>& custom = iExplanation.ladder->customDefault; custom)
        return Line("custom default", iColours.Added(custom->Shown()), true);
    return Line("custom default", iExplanation.origin == ModelOrigin::Session
                                      ? "none"
                                      : "none: it lives in memory only, and the model comes from a file");
}

/// The records, which alone cannot be passed over for want of a value.
std::string RecordsText(const Ladder& iLadder, const ConfigurationSource& iSource, const Colours& iColours)
{
    if (iLadder.records.empty())
        return Line("record", "none");
    std::string text;
    for (const RecordRung& rung : iLadder.records)
    {
        const bool counts = !iLadder.customDefault && &rung == &iLadder.records.front();
        const std::string about = std::to_string(rung.position) + ". " + rung.record.Shown();
        text += Line("record",
                     (counts ? iColours.Added(rung.value.Shown()) : rung.value.Shown() + ", passed over") + "  (" +
                         about + ")",
                     counts);
        const std::vector<SourceItem> items = ItemsThatLeave(rung.record, iSource);
        for (const SourceItem& item : items)
            text += Below((item.configuration.name.empty() ? "\"\"" : OneLine(item.configuration.name)) + ", item " +
                          std::to_string(item.number) + "  " +
                          PlaceText(item.configuration.file->Path(), item.value.position));
        if (items.empty())
            text += Below("no item of the configurations leaves such a record now");
    }
    return text;
}

/// "declared by Case in the catalog Small  Small.catalog.json:27:9".
std::string CatalogPlaceText(const char* iWhat, const CatalogPlace& iPlace)
{
    return iWhat + OneLine(iPlace.type) + " in the catalog " + OneLine(iPlace.catalog) + "  " +
           PlaceText(iPlace.file->Path(), iPlace.position);
}

std::string DeclarationsText(const Explanation& iExplanation, const CatalogSource& iCatalogs)
{
    std::string text;
    const std::vector<CatalogPlace> declarations = DeclarationsOf(iExplanation, iCatalogs);
    if (declarations.empty())
        text += Below("declared by " + OneLine(iExplanation.attribute.info.declaredBy) + ", which comes with the host");
    for (const CatalogPlace& place : declarations)
        text += Below(CatalogPlaceText("declared by ", place));
    return text;
}

std::string WithoutPrototypeText(const Explanation& iExplanation, const CatalogSource& iCatalogs)
{
    const VYRStandalone::AttributeInfo& info = iExplanation.attribute.info;
    if (info.added)
        return Line("start-up", "none: the attribute was added to this object alone");
    if (!info.optional)
        return Line("start-up", "none");
    return Line("start-up", "none: the attribute is optional, and was added to this object") +
           DeclarationsText(iExplanation, iCatalogs);
}

std::string PrototypeText(const Explanation& iExplanation, const CatalogSource& iCatalogs, const Colours& iColours)
{
    const Ladder& ladder = *iExplanation.ladder;
    if (!ladder.prototype)
        return WithoutPrototypeText(iExplanation, iCatalogs);
    const bool counts = ladder.isFound && !ladder.customDefault && ladder.byDefault.origin != DefaultOrigin::Record;
    const std::string value = ladder.prototype->value.Shown();
    std::string text = Line(
        "start-up", (counts ? iColours.Added(value) : value) + "  (" + OneLine(ladder.prototype->path) + ")", counts);
    text += DeclarationsText(iExplanation, iCatalogs);
    if (const std::vector<CatalogPlace> values = ValuesOf(*ladder.prototype, iCatalogs); !values.empty())
        text += Below(CatalogPlaceText("value given by ", values.back()));
    return text;
}

bool ChangesMore(const Explanation& iExplanation)
{
    const std::vector<ObjectChange>& objects = iExplanation.unsetting->difference.objects;
    if (objects.size() > 1)
        return true;
    for (const ObjectChange& object : objects)
        if (object.object->path != iExplanation.object || object.attributes.size() > 1)
            return true;
    return false;
}

std::string UnsettingText(const Explanation& iExplanation, const Colours& iColours)
{
    const AttributeSnapshot& after = iExplanation.unsetting->attribute;
    const Ladder& ladder = *iExplanation.ladder;
    std::string text = after.value.Shown();
    if (!ladder.isFound)
        text += ", as before: it has no default";
    else if (ladder.customDefault)
        text += ", by the custom default";
    else if (ladder.byDefault.origin == DefaultOrigin::Record)
        text += ", by the record";
    else
        text += ", by the start-up";
    text = Line("after unset", iColours.Added(text));
    if (ChangesMore(iExplanation))
        text += "\n" + std::string(Indent) + "all that unset changes\n" +
                Indented(DifferenceText(iExplanation.unsetting->difference), std::string(Indent) + Indent);
    return text;
}
} // namespace

std::string ExplanationText(const Explanation& iExplanation, const ExplanationSources& iSources)
{
    const Colours colours;
    const AttributeSnapshot& attribute = iExplanation.attribute;
    std::string text = colours.Heading(OneLine(iExplanation.path)) + "  " + attribute.KindText() +
                       (attribute.info.optional ? ", optional\n" : "\n");
    text += Line("value", attribute.value.Shown());
    if (!iExplanation.ladder)
        return text + Line("default", "none: the object has no default management, and nothing unsets it");
    text += Line("set", attribute.set.value_or(false) ? "yes" : "no");
    text += Line("auto", !attribute.automatic ? "no flag" : *attribute.automatic ? "on" : "off");
    text += Line("comes from", ComesFrom(attribute, *iExplanation.ladder)) + "\n";
    text += CustomDefaultText(iExplanation, colours);
    text += RecordsText(*iExplanation.ladder, iSources.configurations, colours);
    text += PrototypeText(iExplanation, iSources.catalogs, colours) + "\n";
    return text + UnsettingText(iExplanation, colours);
}
} // namespace Tool
