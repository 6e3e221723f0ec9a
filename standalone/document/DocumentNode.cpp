#include "DocumentNode.h"

#include <algorithm>
#include <utility>

#include "StrictJson.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace
{
std::string_view ViewOf(const rapidjson::Value& iText)
{
    return {iText.GetString(), iText.GetStringLength()};
}

/// As in a JSON pointer, so that a "/" in a name cannot be taken for a step. For readers: a long key is cut.
std::string Escaped(std::string_view iKey)
{
    std::string escaped;
    for (const char character : VYRStandalone::Shortened(iKey))
    {
        if (character == '~')
            escaped += "~0";
        else if (character == '/')
            escaped += "~1";
        else
            escaped += character;
    }
    return escaped;
}

/// The first key that stands behind itself. Few keys, as nearly every object has, are compared with one another.
std::optional<std::string_view> FirstDoubled(const rapidjson::Value& iObject)
{
    constexpr rapidjson::SizeType Few = 32;
    const auto keyAt = [first = iObject.MemberBegin()](rapidjson::SizeType iIndex) {
        return ViewOf(first[static_cast<std::ptrdiff_t>(iIndex)].name);
    };
    const rapidjson::SizeType count = iObject.MemberCount();
    if (count <= Few)
    {
        for (rapidjson::SizeType i = 1; i < count; ++i)
            for (rapidjson::SizeType before = 0; before < i; ++before)
                if (keyAt(before) == keyAt(i))
                    return keyAt(i);
        return std::nullopt;
    }
    std::vector<std::pair<std::string_view, rapidjson::SizeType>> keys;
    keys.reserve(count);
    for (rapidjson::SizeType i = 0; i < count; ++i)
        keys.emplace_back(keyAt(i), i);
    std::sort(keys.begin(), keys.end());
    rapidjson::SizeType first = count;
    for (std::size_t i = 1; i < keys.size(); ++i)
        if (keys[i].first == keys[i - 1].first)
            first = std::min(first, keys[i].second);
    return first < count ? std::optional(keyAt(first)) : std::nullopt;
}

std::vector<std::string> Copied(std::initializer_list<std::string_view> iTexts)
{
    return {iTexts.begin(), iTexts.end()};
}
} // namespace

namespace VYRStandalone
{
void DocumentNode::Parse(std::string_view iJson, const std::string& iFile, rapidjson::Document& oDocument)
{
    if (const auto error = StrictJson::Parse(iJson, oDocument))
        throw DocumentError(iFile, error->line, error->column, error->message);
}

std::string DocumentNode::Path() const
{
    if (m_parent == nullptr)
        return {};
    return m_parent->Path() + "/" + (m_key.data() != nullptr ? Escaped(m_key) : std::to_string(m_index));
}

void DocumentNode::Fail(const std::string& iMessage) const
{
    throw DocumentError(*m_file, Path(), iMessage);
}

void DocumentNode::FailAt(std::string_view iKey, const std::string& iMessage) const
{
    throw DocumentError(*m_file, Path() + "/" + Escaped(iKey), iMessage);
}

const char* DocumentNode::KindText() const
{
    if (IsNull())
        return "null";
    if (IsObject())
        return "an object";
    if (IsArray())
        return "an array";
    if (IsText())
        return "a text";
    if (m_value->IsBool())
        return "a boolean";
    return IsWhole() ? "an integer" : "a real number";
}

void DocumentNode::FailKind(const char* iWanted) const
{
    Fail(std::string("must be ") + iWanted + ", not " + KindText());
}

void DocumentNode::ExpectObject() const
{
    if (!IsObject())
        FailKind("an object");
    if (const std::optional<std::string_view> doubled = FirstDoubled(*m_value))
        FailAt(*doubled, "stands twice");
}

void DocumentNode::ExpectKeys(std::initializer_list<std::string_view> iAllowed) const
{
    ExpectObject();
    for (const auto& member : m_value->GetObject())
    {
        const std::string_view key = ViewOf(member.name);
        if (std::find(iAllowed.begin(), iAllowed.end(), key) == iAllowed.end())
            FailAt(key, "unknown key" + InsteadOf(key, Copied(iAllowed)));
    }
}

std::optional<DocumentNode> DocumentNode::Find(std::string_view iKey) const&
{
    for (const auto& member : m_value->GetObject())
        if (ViewOf(member.name) == iKey)
            return DocumentNode(*this, member.value, ViewOf(member.name), 0);
    return std::nullopt;
}

DocumentNode DocumentNode::Require(std::string_view iKey) const&
{
    if (const std::optional<DocumentNode> found = Find(iKey))
        return *found;
    FailAt(iKey, "is missing");
}

std::vector<DocumentNode> DocumentNode::Members() const&
{
    std::vector<DocumentNode> members;
    members.reserve(m_value->MemberCount());
    for (const auto& member : m_value->GetObject())
        members.push_back(DocumentNode(*this, member.value, ViewOf(member.name), 0));
    return members;
}

std::vector<DocumentNode> DocumentNode::Elements() const&
{
    if (!IsArray())
        FailKind("an array");
    std::vector<DocumentNode> elements;
    elements.reserve(m_value->Size());
    for (const rapidjson::Value& element : m_value->GetArray())
        elements.push_back(DocumentNode(*this, element, {}, elements.size()));
    return elements;
}

std::string DocumentNode::Text() const
{
    if (!IsText())
        FailKind("a text");
    return std::string(ViewOf(*m_value));
}

std::string DocumentNode::NonEmptyText() const
{
    std::string text = Text();
    if (text.empty())
        Fail("must not be empty");
    return text;
}

ORXUnicodeString DocumentNode::UnicodeText() const
{
    if (!IsText())
        FailKind("a text");
    return ORXUnicodeString(m_value->GetString(), m_value->GetStringLength());
}

bool DocumentNode::Boolean() const
{
    if (!m_value->IsBool())
        FailKind("true or false");
    return m_value->GetBool();
}

std::int64_t DocumentNode::Whole() const
{
    if (!m_value->IsInt64())
        FailKind(m_value->IsUint64() ? "an integer of 64 bits" : "an integer");
    return m_value->GetInt64();
}

double DocumentNode::Number() const
{
    if (!m_value->IsNumber())
        FailKind("a number");
    return m_value->GetDouble();
}

std::vector<std::string> DocumentNode::Texts() const
{
    std::vector<std::string> texts;
    for (const DocumentNode& element : Elements())
        texts.push_back(element.NonEmptyText());
    return texts;
}

DeclaredScalar DocumentNode::Single() const
{
    if (IsNull())
        return std::monostate{};
    if (m_value->IsBool())
        return m_value->GetBool();
    if (m_value->IsInt())
        return m_value->GetInt();
    if (m_value->IsNumber())
        return m_value->GetDouble();
    if (!IsText())
        FailKind("a single value");
    return Text();
}
} // namespace VYRStandalone
