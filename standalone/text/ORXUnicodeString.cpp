#include "ORXUnicodeString.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <stdexcept>
#include <string>

namespace
{
constexpr std::string_view WhiteSpace = " \t\n\v\f\r";

bool ContinuesCharacter(char iByte) noexcept
{
    return (static_cast<unsigned char>(iByte) & 0xC0U) == 0x80U;
}

/// Blocks grow in powers of two, and the size of one follows from the text's length alone: appending piece by piece
/// allocates seldom, though no capacity is kept.
std::size_t BlockSize(std::size_t iBytes) noexcept
{
    return std::bit_ceil(iBytes + 1);
}

void CheckLength(std::size_t iBytes)
{
    if (iBytes > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("ORXUnicodeString: text of more than 4 GiB");
}

bool StandsBetweenCharacters(std::string_view iText, std::size_t iOffset) noexcept
{
    return iOffset == 0 || iOffset >= iText.size() || !ContinuesCharacter(iText[iOffset]);
}

/// Offset of the first occurrence of whole characters, npos for none. An empty text is found nowhere, so that
/// whoever replaces or splits by it comes to an end.
std::size_t FindWhole(std::string_view iText, std::string_view iWanted, std::size_t iFrom) noexcept
{
    if (iWanted.empty())
        return std::string_view::npos;
    std::size_t at = iText.find(iWanted, iFrom);
    while (at != std::string_view::npos &&
           !(StandsBetweenCharacters(iText, at) && StandsBetweenCharacters(iText, at + iWanted.size())))
        at = iText.find(iWanted, at + 1);
    return at;
}

/// Made once and kept: the separators of the process's locale must not change how numbers read.
locale_t CLocale() noexcept
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

bool IsDigit(char iCharacter) noexcept
{
    return iCharacter >= '0' && iCharacter <= '9';
}

/**
 * Reads a decimal number of the usual kind, as the C library's scan does. False for any other text: no number,
 * infinity, hexadecimal numbers, an exponent without digits, what is too large or too small.
 */
bool ReadPlainReal(std::string_view iText, double& oNumber) noexcept
{
    iText.remove_prefix(std::min(iText.find_first_not_of(WhiteSpace), iText.size()));
    const bool isSigned = !iText.empty() && (iText[0] == '+' || iText[0] == '-');
    const std::string_view digits = iText.substr(isSigned ? 1 : 0);
    if (digits.empty() || !(IsDigit(digits[0]) || digits[0] == '.'))
        return false;
    // from_chars reads a minus sign, but no plus sign.
    const char* const begin = iText[0] == '+' ? digits.data() : iText.data();
    const char* const end = iText.data() + iText.size();
    double number = 0.0;
    const std::from_chars_result read = std::from_chars(begin, end, number);
    if (read.ec != std::errc() || !std::isfinite(number))
        return false;
    if (read.ptr != end && std::string_view("eExX").find(*read.ptr) != std::string_view::npos)
        return false;
    // A zero that does not stand there was too small.
    const std::size_t telling = number == 0.0 ? digits.find_first_not_of("0.") : std::string_view::npos;
    if (telling != std::string_view::npos && IsDigit(digits[telling]))
        return false;
    oNumber = number;
    return true;
}

ORXUnicodeString FromView(std::string_view iText)
{
    return ORXUnicodeString(iText.data(), iText.size());
}
} // namespace

/// A continuation byte at the very start has no character before it, so it begins one.
std::uint32_t ORXUnicodeString::CountCharacters(const char* iText, std::size_t iBytes) noexcept
{
    if (iBytes == 0)
        return 0;
    // Texts are mostly ASCII: by words as far as they are.
    constexpr std::uint64_t BeyondAscii = 0x8080808080808080U;
    std::size_t plain = 0;
    for (std::uint64_t word = 0; plain + sizeof word <= iBytes; plain += sizeof word)
    {
        std::memcpy(&word, iText + plain, sizeof word);
        if ((word & BeyondAscii) != 0)
            break;
    }
    const auto inner = std::count_if(iText + std::max<std::size_t>(plain, 1), iText + iBytes, ContinuesCharacter);
    return static_cast<std::uint32_t>(iBytes - static_cast<std::size_t>(inner));
}

void ORXUnicodeString::AssignHeap(const char* iText, std::size_t iBytes)
{
    CheckLength(iBytes);
    char* const target = static_cast<char*>(::operator new(BlockSize(iBytes)));
    m_text.heap = target;
    std::memcpy(target, iText, iBytes);
    target[iBytes] = '\0';
    m_bytes = static_cast<std::uint32_t>(iBytes);
    m_characters = CountCharacters(target, iBytes);
}

void ORXUnicodeString::FreeHeap() noexcept
{
    ::operator delete(m_text.heap);
}

std::size_t ORXUnicodeString::ByteOffset(std::size_t iCharacter) const noexcept
{
    if (iCharacter >= m_characters)
        return m_bytes;
    if (m_characters == m_bytes || iCharacter == 0)
        return iCharacter;
    const std::string_view text = View();
    std::size_t left = iCharacter;
    std::size_t offset = 0;
    while (left > 0)
    {
        ++offset;
        if (!ContinuesCharacter(text[offset]))
            --left;
    }
    return offset;
}

int ORXUnicodeString::Compare(const ORXUnicodeString& iOther) const noexcept
{
    const int order = View().compare(iOther.View());
    if (order == 0)
        return 2;
    return order < 0 ? 0 : 1;
}

unsigned int ORXUnicodeString::ComputeHashKey() const noexcept
{
    constexpr std::uint64_t Factor = 0x9E3779B97F4A7C15ULL;
    const char* text = CastToCharPtr();
    std::size_t left = m_bytes;
    std::uint64_t hash = left * Factor;
    while (left > 0)
    {
        std::uint64_t piece = 0;
        const std::size_t size = std::min(left, sizeof(piece));
        std::memcpy(&piece, text, size);
        hash = (hash ^ piece) * Factor;
        hash ^= hash >> 32U;
        text += size;
        left -= size;
    }
    return static_cast<unsigned int>(hash);
}

ORXUnicodeString& ORXUnicodeString::Append(const ORXUnicodeString& iTail)
{
    const std::size_t added = iTail.m_bytes;
    if (added == 0)
        return *this;
    const std::size_t bytes = m_bytes + added;
    CheckLength(bytes);

    // A tail that begins with a continuation byte carries on the last character. The text that is appended may be
    // this very string: its bytes are copied before anything of it changes.
    const bool joins = m_bytes > 0 && ContinuesCharacter(iTail.CastToCharPtr()[0]);
    const std::uint32_t characters = m_characters + iTail.m_characters - (joins ? 1U : 0U);
    const bool fits = bytes < InlinedBytes || (!IsInlined() && BlockSize(m_bytes) == BlockSize(bytes));
    if (fits)
    {
        char* text = IsInlined() ? m_text.inlined : m_text.heap;
        std::memmove(text + m_bytes, iTail.CastToCharPtr(), added);
        text[bytes] = '\0';
    }
    else
    {
        char* block = static_cast<char*>(::operator new(BlockSize(bytes)));
        std::memcpy(block, CastToCharPtr(), m_bytes);
        std::memcpy(block + m_bytes, iTail.CastToCharPtr(), added);
        block[bytes] = '\0';
        if (!IsInlined())
            FreeHeap();
        m_text.heap = block;
    }
    m_bytes = static_cast<std::uint32_t>(bytes);
    m_characters = characters;
    return *this;
}

ORXUnicodeString ORXUnicodeString::operator+(const ORXUnicodeString& iTail) const
{
    ORXUnicodeString whole(*this);
    whole.Append(iTail);
    return whole;
}

ORXUnicodeString ORXUnicodeString::operator+(const char* iTail) const
{
    return *this + ORXUnicodeString(iTail);
}

ORXUnicodeString operator+(const char* iHead, const ORXUnicodeString& iTail)
{
    return ORXUnicodeString(iHead) + iTail;
}

ORXUnicodeString ORXUnicodeString::SubString(int iStart, int iLength) const
{
    const std::int64_t all = m_characters;
    const std::int64_t start = std::max<std::int64_t>(iStart, 0);
    const std::int64_t end = std::min<std::int64_t>(all, static_cast<std::int64_t>(iStart) + iLength);
    if (iLength <= 0 || start >= end)
        return {};
    const std::size_t from = ByteOffset(static_cast<std::size_t>(start));
    const std::size_t to = ByteOffset(static_cast<std::size_t>(end));
    return FromView(View().substr(from, to - from));
}

int ORXUnicodeString::SearchSubString(const ORXUnicodeString& iText, int iFrom, int iMode) const
{
    return iMode == 1 ? FindPosition(iText, iFrom) : -1;
}

int ORXUnicodeString::FindPosition(const ORXUnicodeString& iText, int iFrom) const
{
    const std::size_t from = ByteOffset(static_cast<std::size_t>(std::max(iFrom, 0)));
    const std::size_t at = FindWhole(View(), iText.View(), from);
    if (at == std::string_view::npos)
        return -1;
    return static_cast<int>(m_characters == m_bytes ? at : CountCharacters(CastToCharPtr(), at));
}

void ORXUnicodeString::ReplaceSubString(const ORXUnicodeString& iOld, const ORXUnicodeString& iNew)
{
    const std::string_view text = View();
    const std::size_t at = FindWhole(text, iOld.View(), 0);
    if (at == std::string_view::npos)
        return;
    ORXUnicodeString result = FromView(text.substr(0, at));
    result.Append(iNew).Append(FromView(text.substr(at + iOld.m_bytes)));
    Swap(result);
}

void ORXUnicodeString::ReplaceAll(const ORXUnicodeString& iOld, const ORXUnicodeString& iNew)
{
    const std::string_view text = View();
    std::string result;
    std::size_t done = 0;
    std::size_t at = FindWhole(text, iOld.View(), 0);
    if (at == std::string_view::npos)
        return;
    while (at != std::string_view::npos)
    {
        result.append(text, done, at - done).append(iNew.View());
        done = at + iOld.m_bytes;
        at = FindWhole(text, iOld.View(), done);
    }
    result.append(text, done);
    ORXUnicodeString replaced = FromView(result);
    Swap(replaced);
}

void ORXUnicodeString::ToLower()
{
    char* text = IsInlined() ? m_text.inlined : m_text.heap;
    std::transform(text, text + m_bytes, text, [](char iByte) {
        return iByte >= 'A' && iByte <= 'Z' ? static_cast<char>(iByte - 'A' + 'a') : iByte;
    });
}

int ORXUnicodeString::ConvertToNum(int* oNumber, const char* iFormat) const
{
    if (oNumber == nullptr || iFormat == nullptr || std::strcmp(iFormat, "%d") != 0)
        return 0;
    std::string_view text = View();
    text.remove_prefix(std::min(text.find_first_not_of(WhiteSpace), text.size()));
    // from_chars reads a minus sign, but no plus sign.
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    int number = 0;
    const std::from_chars_result read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc())
        return 0;
    *oNumber = number;
    return 1;
}

int ORXUnicodeString::ConvertToNum(double* oNumber, const char* iFormat) const
{
    static constexpr std::string_view Formats[] = {"%le", "%lf", "%lg", "%e", "%f", "%g"};
    if (oNumber == nullptr || iFormat == nullptr ||
        std::find(std::begin(Formats), std::end(Formats), iFormat) == std::end(Formats))
        return 0;
    if (ReadPlainReal(CastToCharPtr(), *oNumber))
        return 1;
    const int savedError = errno;
    const locale_t savedLocale = uselocale(CLocale());
    errno = 0;
    double number = 0.0;
    // All these formats scan alike. The C library knows more kinds of numbers, but takes its time.
    const bool isRead = std::sscanf(CastToCharPtr(), "%le", &number) == 1;
    // A number too small for a double is read as what is next to it, one too large is none.
    const bool overflown = errno == ERANGE && std::isinf(number);
    uselocale(savedLocale);
    errno = savedError;
    if (!isRead || overflown)
        return 0;
    *oNumber = number;
    return 1;
}
