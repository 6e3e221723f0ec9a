#include "FastDocument.h"

#include <algorithm>
#include <bit>

#include "StrictJson.h"

namespace
{
using simdjson::dom::array;
using simdjson::dom::element;
using simdjson::dom::object;
using Place = JSON::Document::Place;

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
/// Room of a parser that is made: that of files of usual size, so that it is made once for all of them.
constexpr std::size_t LeastCapacity = std::size_t{128} * 1024;

static_assert(sizeof(object) == sizeof(Place), "an object is a document and a place on its tape");

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

Place PlaceOf(const object& iObject)
{
    return std::bit_cast<Place>(iObject);
}

/// False when there is no such member.
bool FindMember(const Place& iObject, std::string_view iKey, element& oValue)
{
    return std::bit_cast<object>(iObject).at_key(iKey).get(oValue) == simdjson::SUCCESS;
}
} // namespace

FastDocument::Verdict FastDocument::Parse(simdjson::dom::parser& ioParser, std::string_view iText, Place& oRoot)
{
    if (iText.substr(0, ByteOrderMark.size()) == ByteOrderMark || HasDisputedNumber(iText))
        return Verdict::Undecided;
    // Never left to the parser, whose own limit of nesting is another one.
    const std::size_t room = std::max(LeastCapacity, std::bit_ceil(iText.size()));
    if (ioParser.capacity() < room && ioParser.allocate(room, StrictJson::DeepestNesting) != simdjson::SUCCESS)
        return Verdict::Undecided;
    element root;
    if (ioParser.parse_into_document(m_json, iText.data(), iText.size(), false).get(root) != simdjson::SUCCESS)
        return Verdict::Undecided;
    object whole;
    if (root.get_object().get(whole) != simdjson::SUCCESS)
        return Verdict::NoObject;
    oRoot = PlaceOf(whole);
    return Verdict::Object;
}

bool FastDocument::Has(const Place& iObject, std::string_view iKey) const
{
    element value;
    return FindMember(iObject, iKey, value);
}

std::string_view FastDocument::Text(const Place& iObject, std::string_view iKey) const
{
    element value;
    std::string_view text;
    if (!FindMember(iObject, iKey, value) || value.get_string().get(text) != simdjson::SUCCESS)
        return {};
    return text;
}

bool FastDocument::IsTrue(const Place& iObject, std::string_view iKey) const
{
    element value;
    bool boolean = false;
    return FindMember(iObject, iKey, value) && value.get_bool().get(boolean) == simdjson::SUCCESS && boolean;
}

std::vector<JSON::JIStream> FastDocument::Objects(const Place& iObject, std::string_view iKey,
                                                  const std::shared_ptr<const Document>& iOwner) const
{
    std::vector<JSON::JIStream> objects;
    element value;
    array elements;
    if (!FindMember(iObject, iKey, value) || value.get_array().get(elements) != simdjson::SUCCESS)
        return objects;
    // The size is no more than a hint: it ends at 16 millions.
    objects.reserve(elements.size());
    for (const element one : elements)
    {
        JSON::JIStream& stream = objects.emplace_back();
        if (object inner; one.get_object().get(inner) == simdjson::SUCCESS)
            Stand(stream, iOwner, PlaceOf(inner));
    }
    return objects;
}
