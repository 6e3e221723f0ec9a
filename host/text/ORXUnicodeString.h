#ifndef ORXUnicodeString_H
#define ORXUnicodeString_H

/**
 * @file
 * The host's string. A value class: its storage and what every chain of a cursor needs of it are here; the rest is a
 * link-time seam.
 */

#include <cstdint>
#include <cstring>
#include <string_view>

#include "ORXExport.h"

/**
 * Unicode text, kept as UTF-8, with positions and lengths in characters, from 0.
 *
 * Up to 23 bytes are held without the heap. A byte that continues a UTF-8 sequence belongs to the character before it;
 * bytes that are no UTF-8 are kept as they are and never refused.
 */
class ORXHostExport ORXUnicodeString
{
public:
    ORXUnicodeString() noexcept : m_bytes(0), m_characters(0) { m_text.inlined[0] = '\0'; }

    ORXUnicodeString(const ORXUnicodeString& iOther)
    {
        if (iOther.IsInlined())
            CopyWhole(iOther);
        else
            Assign(iOther.m_text.heap, iOther.m_bytes);
    }

    ORXUnicodeString(ORXUnicodeString&& ioOther) noexcept
    {
        CopyWhole(ioOther);
        ioOther.Clear();
    }

    /// Up to the terminating zero; null gives the empty string.
    ORXUnicodeString(const char* iText) { Assign(iText, iText != nullptr ? std::strlen(iText) : 0); }
    /// As many bytes, zeros among them.
    ORXUnicodeString(const char* iText, std::size_t iBytes) { Assign(iText, iBytes); }

    ~ORXUnicodeString()
    {
        if (!IsInlined())
            FreeHeap();
    }

    ORXUnicodeString& operator=(const ORXUnicodeString& iOther)
    {
        if (this != &iOther)
        {
            ORXUnicodeString copy(iOther);
            Swap(copy);
        }
        return *this;
    }

    ORXUnicodeString& operator=(ORXUnicodeString&& ioOther) noexcept
    {
        Swap(ioOther);
        return *this;
    }

    /// Up to the terminating zero; null gives the empty string.
    ORXUnicodeString& operator=(const char* iText)
    {
        ORXUnicodeString copy(iText);
        Swap(copy);
        return *this;
    }

    /// True for no characters. `IsNull` is the same question.
    bool IsEmpty() const noexcept { return m_bytes == 0; }
    /// The same as `IsEmpty`.
    bool IsNull() const noexcept { return m_bytes == 0; }

    /// Exact comparison, character by character.
    bool operator==(const ORXUnicodeString& iOther) const noexcept { return View() == iOther.View(); }
    bool operator==(const char* iOther) const noexcept
    {
        return iOther != nullptr ? View() == std::string_view(iOther) : IsEmpty();
    }

    /// Strict order, by code points.
    bool operator<(const ORXUnicodeString& iOther) const noexcept { return View() < iOther.View(); }

    /// 2 when the two are equal; otherwise 0 when this one stands first and 1 when the other does.
    int Compare(const ORXUnicodeString& iOther) const noexcept;

    /// Equal strings give equal hashes.
    unsigned int ComputeHashKey() const noexcept;

    /// Appends in place and returns the string itself.
    ORXUnicodeString& Append(const ORXUnicodeString& iTail);

    /// A new string with the other behind this one.
    ORXUnicodeString operator+(const ORXUnicodeString& iTail) const;
    ORXUnicodeString operator+(const char* iTail) const;

    /// Number of characters, which are code points.
    int GetLengthInChar() const noexcept { return static_cast<int>(m_characters); }

    /// New string of up to `iLength` characters from the 0-based `iStart`; what lies outside the text is left out.
    ORXUnicodeString SubString(int iStart, int iLength) const;

    /**
     * 0-based position of the first occurrence at or behind `iFrom`, negative if there is none. A text at the very
     * start is a hit at 0; an empty text is found nowhere.
     * @param iMode 1 searches forward; no other mode is offered, and any other finds nothing
     */
    int SearchSubString(const ORXUnicodeString& iText, int iFrom = 0, int iMode = 1) const;

    /// The same search, always forward.
    int FindPosition(const ORXUnicodeString& iText, int iFrom = 0) const;

    /// Replaces the first occurrence; nothing happens when there is none.
    void ReplaceSubString(const ORXUnicodeString& iOld, const ORXUnicodeString& iNew);

    /// Replaces every occurrence, from the start, without looking at what it has put in.
    void ReplaceAll(const ORXUnicodeString& iOld, const ORXUnicodeString& iNew);

    /// In place, by the simple mapping of ASCII letters; other characters stay.
    void ToLower();

    /**
     * Reads the longest prefix that is a number, after leading white space, as the C library's scan in the C locale
     * does. @return nonzero when a number was read; out of range is no number, and then the target is left alone.
     */
    int ConvertToNum(int* oNumber, const char* iFormat = "%d") const;
    int ConvertToNum(double* oNumber, const char* iFormat = "%le") const;

    /// Zero-terminated UTF-8; borrowed, valid as long as the string is neither changed nor destroyed.
    const char* CastToCharPtr() const noexcept { return IsInlined() ? m_text.inlined : m_text.heap; }
    operator const char*() const noexcept { return CastToCharPtr(); }

    /// All bytes, embedded zeros included; borrowed as `CastToCharPtr`.
    std::string_view View() const noexcept { return {CastToCharPtr(), m_bytes}; }

private:
    static constexpr std::size_t InlinedBytes = 24;

    bool IsInlined() const noexcept { return m_bytes < InlinedBytes; }

    void CopyWhole(const ORXUnicodeString& iOther) noexcept
    {
        m_text = iOther.m_text;
        m_bytes = iOther.m_bytes;
        m_characters = iOther.m_characters;
    }

    void Clear() noexcept
    {
        m_bytes = 0;
        m_characters = 0;
        m_text.inlined[0] = '\0';
    }

    void Swap(ORXUnicodeString& ioOther) noexcept
    {
        const Text text = m_text;
        const std::uint32_t bytes = m_bytes;
        const std::uint32_t characters = m_characters;
        CopyWhole(ioOther);
        ioOther.m_text = text;
        ioOther.m_bytes = bytes;
        ioOther.m_characters = characters;
    }

    /// Fills a string that holds nothing yet. More than 4 GiB throw std::length_error.
    void Assign(const char* iText, std::size_t iBytes)
    {
        if (iBytes < InlinedBytes)
            AssignInlined(iText, iBytes);
        else
            AssignHeap(iText, iBytes);
    }

    /// In one or two pieces that may overlap: names have a few bytes, and a call costs more than copying them. Pure
    /// ASCII needs no count.
    void AssignInlined(const char* iText, std::size_t iBytes) noexcept
    {
        constexpr std::uint64_t BeyondAscii = 0x8080808080808080U;
        std::uint64_t seen = 0;
        char* const target = m_text.inlined;
        if (iBytes >= sizeof(std::uint64_t))
        {
            std::uint64_t words[3] = {};
            std::memcpy(&words[0], iText, sizeof words[0]);
            std::memcpy(&words[2], iText + iBytes - sizeof words[2], sizeof words[2]);
            seen = words[0] | words[2];
            if (iBytes > 2 * sizeof words[0])
            {
                std::memcpy(&words[1], iText + sizeof words[0], sizeof words[1]);
                std::memcpy(target + sizeof words[0], &words[1], sizeof words[1]);
                seen |= words[1];
            }
            std::memcpy(target, &words[0], sizeof words[0]);
            std::memcpy(target + iBytes - sizeof words[2], &words[2], sizeof words[2]);
        }
        else
            for (std::size_t at = 0; at < iBytes; ++at)
            {
                target[at] = iText[at];
                seen |= static_cast<unsigned char>(iText[at]);
            }
        target[iBytes] = '\0';
        m_bytes = static_cast<std::uint32_t>(iBytes);
        m_characters = (seen & BeyondAscii) == 0 ? m_bytes : CountCharacters(target, iBytes);
    }

    void AssignHeap(const char* iText, std::size_t iBytes);
    static std::uint32_t CountCharacters(const char* iText, std::size_t iBytes) noexcept;
    void FreeHeap() noexcept;
    std::size_t ByteOffset(std::size_t iCharacter) const noexcept;

    union Text
    {
        char inlined[InlinedBytes];
        char* heap;
    };

    Text m_text;
    std::uint32_t m_bytes;
    std::uint32_t m_characters;
};

/// A new string of both.
ORXHostExport ORXUnicodeString operator+(const char* iHead, const ORXUnicodeString& iTail);

#endif
