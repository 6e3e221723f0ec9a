#include "FastJson.h"

#include <algorithm>
#include <bit>
#include <new>

#include "StrictJson.h"

namespace
{
constexpr std::string_view ByteOrderMarkAhead = "\xEF\xBB\xBF";
/// Room of a parser that is made: that of files of usual size, so that it is made once for all of them.
constexpr std::size_t LeastCapacity = std::size_t{128} * 1024;

/// Whether digits that end at that place, a point among them, are all 0.
bool AreZeros(std::string_view iText, std::size_t iLast)
{
    std::size_t begin = iLast;
    while (begin > 0 && (iText[begin - 1] == '0' || iText[begin - 1] == '.'))
        --begin;
    return begin == 0 || iText[begin - 1] < '1' || iText[begin - 1] > '9';
}

bool IsDigit(char iByte)
{
    return iByte >= '0' && iByte <= '9';
}

/// Whether so many digits stand around a place that a number of them may be too large, whatever its exponent.
bool AreManyDigits(std::string_view iText, std::size_t iPlace)
{
    constexpr std::size_t Many = 300;
    std::size_t begin = iPlace;
    std::size_t end = iPlace;
    while (begin > 0 && IsDigit(iText[begin - 1]))
        --begin;
    while (end < iText.size() && IsDigit(iText[end]))
        ++end;
    return end - begin >= Many;
}

/// Whether there may be a number that the two readers take differently: a zero with an exponent, or one of very many
/// digits. It may be part of a text.
bool HasDisputedNumber(std::string_view iText)
{
    constexpr std::size_t Block = 256;
    constexpr unsigned LowerCase = 0x20;
    // Blocks without a branch inside, so that the compiler takes many bytes at a time; they nearly never have one.
    for (std::size_t start = 0; start + 1 < iText.size(); start += Block)
    {
        const std::size_t end = std::min(start + Block, iText.size() - 1);
        const char* const text = iText.data();
        // So many digits reach into the next block in any case.
        if (IsDigit(text[start]) && AreManyDigits(iText, start))
            return true;
        unsigned char found = 0;
        for (std::size_t i = start; i < end; ++i)
            found |= static_cast<unsigned char>((text[i] == '0') & ((text[i + 1] | LowerCase) == 'e'));
        for (std::size_t i = start; found != 0 && i < end; ++i)
            if (text[i] == '0' && (text[i + 1] | LowerCase) == 'e' && AreZeros(iText, i))
                return true;
    }
    return false;
}

/**
 * Brings what simdjson has read into a draft. It walks over the library's tape as it is: the way over its elements
 * takes as long as the parsing. The form of the tape is part of the library's documentation: one word for each value
 * and for each end, in the highest byte what it is, below where its text stands or its end is; a number has a second
 * word.
 */
class TapeWalk
{
public:
    TapeWalk(const simdjson::dom::document& iJson, JsonDraft& oDraft)
        : m_tape(iJson.tape.get()), m_texts(reinterpret_cast<const char*>(iJson.string_buf.get())), m_draft(oDraft)
    {
    }

    /// @return false if the root is no object
    bool Go()
    {
        constexpr std::size_t Root = 1;
        if (TypeAt(Root) != '{')
            return false;
        Object(Root);
        return true;
    }

    /// Whether a number was met that is no integer.
    bool HasReal() const noexcept { return m_hasReal; }

private:
    using Word = JsonDraft::Word;

    static constexpr int PayloadBits = 56;
    static constexpr std::uint64_t Payload = (std::uint64_t{1} << PayloadBits) - 1;
    // Behind a text simdjson keeps its padding, too.
    static_assert(JsonDraft::Overread <= simdjson::SIMDJSON_PADDING);

    char TypeAt(std::size_t iPlace) const noexcept { return static_cast<char>(m_tape[iPlace] >> PayloadBits); }
    std::string_view TextAt(std::size_t iPlace) const noexcept
    {
        const char* const text = m_texts + (m_tape[iPlace] & Payload);
        std::uint32_t bytes = 0;
        std::memcpy(&bytes, text, sizeof(bytes));
        return {text + sizeof(bytes), bytes};
    }

    /// @return the place behind it, as the others
    std::size_t Object(std::size_t iPlace)
    {
        const std::size_t open = m_draft.OpenObject();
        Word shape = JSON::Document::NoKeys;
        std::size_t at = iPlace + 1;
        while (TypeAt(at) != '}')
        {
            const std::string_view key = TextAt(at);
            shape = m_draft.Shape(shape, key.data(), key.size());
            at = Value(at + 1);
        }
        m_draft.CloseObject(open, shape);
        return at + 1;
    }

    std::size_t Value(std::size_t iPlace)
    {
        if (TypeAt(iPlace) == '"')
        {
            const std::string_view text = TextAt(iPlace);
            m_draft.AddValue(m_draft.Text(text.data(), text.size()));
            return iPlace + 1;
        }
        if (TypeAt(iPlace) == '[')
            return Array(iPlace);
        m_draft.AddValue(TypeAt(iPlace) == 't' ? JSON::Document::True : JSON::Document::Other);
        return Pass(iPlace);
    }

    std::size_t Array(std::size_t iPlace)
    {
        const std::size_t open = m_draft.OpenArray();
        std::size_t elements = 0;
        std::size_t at = iPlace + 1;
        for (; TypeAt(at) != ']'; ++elements)
            if (TypeAt(at) == '{')
                at = Object(at);
            else
            {
                m_draft.CloseObject(m_draft.OpenObject(), JSON::Document::NoKeys);
                at = Pass(at);
            }
        m_draft.AddValue(m_draft.CloseArray(open, elements));
        return at + 1;
    }

    /// Passes over a value, and what is in it.
    std::size_t Pass(std::size_t iPlace)
    {
        const bool isContainer = TypeAt(iPlace) == '{' || TypeAt(iPlace) == '[';
        const std::size_t end = isContainer ? static_cast<std::uint32_t>(m_tape[iPlace]) : iPlace + 1;
        std::size_t at = iPlace;
        while (at < end)
        {
            const char type = TypeAt(at);
            m_hasReal = m_hasReal || type == 'd';
            at += type == 'd' || type == 'l' || type == 'u' ? 2 : 1;
        }
        return at;
    }

    const std::uint64_t* m_tape;
    const char* m_texts;
    JsonDraft& m_draft;
    bool m_hasReal = false;
};
} // namespace

void FastJson::MakeRoom(std::size_t iBytes)
{
    // Never left to the parser, whose own limit of nesting is another one.
    const std::size_t room = std::max(LeastCapacity, std::bit_ceil(iBytes));
    if (m_parser.capacity() >= room)
        return;
    // The parser, which is asked above, has room when both have.
    if (m_json.allocate(room) != simdjson::SUCCESS ||
        m_parser.allocate(room, StrictJson::DeepestNesting) != simdjson::SUCCESS)
        throw std::bad_alloc();
}

FastJson::Verdict FastJson::Read(std::string_view iText, JsonDraft& oDraft)
{
    if (iText.substr(0, ByteOrderMarkAhead.size()) == ByteOrderMarkAhead)
        return Verdict::Undecided;
    MakeRoom(iText.size());
    simdjson::dom::element root;
    const simdjson::error_code error =
        m_parser.parse_into_document(m_json, iText.data(), iText.size(), false).get(root);
    // The other reader would need more memory still, and not look whether it gets it.
    if (error == simdjson::MEMALLOC)
        throw std::bad_alloc();
    if (error != simdjson::SUCCESS)
        return Verdict::Undecided;
    oDraft.Clear();
    TapeWalk walk(m_json, oDraft);
    if (!walk.Go())
        return Verdict::NoObject;
    // Only where a real was read can there be one that is disputed.
    return walk.HasReal() && HasDisputedNumber(iText) ? Verdict::Undecided : Verdict::Object;
}
