#include "MeantSource.h"

#include <algorithm>
#include <optional>

#include "Suggestions.h"

namespace Tool
{
namespace
{
using Kind = SourceValue::Kind;

bool IsList(std::string_view iKey)
{
    return iKey == "choices" || iKey == "Startups" || iKey == "value";
}

/// What an array of texts is as a list with commas; nothing for any other.
std::optional<std::string> JoinedTexts(const SourceValue& iArray)
{
    std::string joined;
    for (const SourceValue* element : iArray.elements)
    {
        if (!element->Is(Kind::Text) || element->text.find(',') != std::string::npos)
            return std::nullopt;
        joined += (element == iArray.elements.front() ? "" : ", ") + element->text;
    }
    return iArray.elements.empty() ? std::nullopt : std::optional(std::move(joined));
}

/// The text that a value of another kind stands for, which is not that of a name.
std::optional<std::string> TextFor(std::string_view iKey, const SourceValue& iValue)
{
    if (iKey != "default" && !IsList(iKey))
        return std::nullopt;
    switch (iValue.kind)
    {
    case Kind::Number:
        return iValue.text;
    case Kind::Boolean:
        return iValue.isTrue ? "true" : "false";
    case Kind::Array:
        return IsList(iKey) ? JoinedTexts(iValue) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// The value with the kind that its key wants; nothing where that is not known, and where it has it.
std::optional<SourceValue> WithKind(const SourceMember& iMember, Kind iWanted)
{
    const SourceValue& value = *iMember.value;
    SourceValue meant;
    meant.kind = iWanted;
    meant.position = value.position;
    if (iWanted == Kind::Boolean && value.Is(Kind::Text) && (value.text == "true" || value.text == "false"))
    {
        meant.isTrue = value.text == "true";
        return meant;
    }
    if (iMember.key == "config" && iWanted == Kind::Array && value.Is(Kind::Object))
    {
        meant.elements.push_back(&value);
        return meant;
    }
    std::optional<std::string> text = iWanted == Kind::Text ? TextFor(iMember.key, value) : std::nullopt;
    if (!text)
        return std::nullopt;
    meant.text = std::move(*text);
    return meant;
}

/// The key that was meant, if nothing else stands under it.
std::string MeantKey(const std::string& iKey, const SourceValue& iObject, const KindsByKey& iKeys)
{
    const std::string meant = OnlySlip(iKey, NamesOf(iKeys));
    return iObject.Has(meant) ? std::string() : meant;
}

bool IsLost(const SourceMember& iMember)
{
    return iMember.key == "configurations" ? !iMember.value->Is(Kind::Array)
                                           : FileKeys().count(iMember.key) == 0 && iMember.value->Is(Kind::Array);
}
} // namespace

MeantSource::MeantSource(const ConfigurationSource& iWritten)
{
    for (const SourceFile& file : iWritten.Files())
    {
        const SourceValue& root = Meant(file.Root(), FileKeys());
        m_hasLostConfigurations =
            m_hasLostConfigurations || std::any_of(root.members.begin(), root.members.end(), IsLost);
        for (const SourceValue* definition : root.ElementsOf("configurations"))
        {
            const SourceValue& meant = Meant(*definition, ConfigurationKeys());
            std::vector<const SourceValue*> items;
            for (const SourceValue* item : meant.ElementsOf("config"))
                items.push_back(&Meant(*item, ItemKeys()));
            m_source.Add(file, meant, items);
            m_written.push_back({definition, meant.ElementsOf("config")});
        }
    }
}

const SourceValue& MeantSource::Meant(const SourceValue& iWritten, const KindsByKey& iKeys)
{
    SourceValue* meant = nullptr;
    for (std::size_t i = 0; i < iWritten.members.size(); ++i)
    {
        SourceMember member = iWritten.members[i];
        if (iKeys.count(member.key) == 0)
            member.key = MeantKey(member.key, meant != nullptr ? *meant : iWritten, iKeys);
        const auto wanted = iKeys.find(member.key);
        if (wanted == iKeys.end())
            continue;
        if (!member.value->Is(wanted->second))
        {
            std::optional<SourceValue> value = WithKind(member, wanted->second);
            if (!value)
                continue;
            member.value = &m_values.emplace_back(std::move(*value));
        }
        else if (member.key == iWritten.members[i].key)
            continue;
        if (meant == nullptr)
            meant = &m_values.emplace_back(iWritten);
        meant->members[i] = std::move(member);
    }
    return meant != nullptr ? *meant : iWritten;
}

void MeantSource::SetText(const SourceItem& iItem, std::string_view iKey, std::string iText)
{
    // It may have been replaced since.
    SourceValue& item = m_values.emplace_back(*iItem.configuration.items[iItem.number - 1]);
    const auto member = std::find_if(item.members.begin(), item.members.end(),
                                     [&](const SourceMember& iOne) { return iOne.key == iKey; });
    if (member == item.members.end())
        return;
    SourceValue& text = m_values.emplace_back(*member->value);
    text.text = std::move(iText);
    member->value = &text;
    m_texts.insert(&text);
    m_source.Replace(iItem.configuration, iItem.number, item);
}

bool MeantSource::HasOtherText(const SourceConfiguration& iConfiguration, std::size_t iItem,
                               std::string_view iKey) const
{
    const SourceMember* member = iItem != 0 ? iConfiguration.items[iItem - 1]->Find(iKey) : nullptr;
    return member != nullptr && m_texts.count(member->value) != 0;
}
} // namespace Tool
