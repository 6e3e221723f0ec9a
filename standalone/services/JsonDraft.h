#ifndef JsonDraft_H
#define JsonDraft_H

#include <bit>
#include <cstring>

#include "JsonDocument.h"

/**
 * A document while it is read, from the inside out: an object stands open until its array is closed, with which it is
 * written. What is of no use to a stream is told as Document::Other.
 *
 * Texts, and the keys of objects, repeat in most files. What was met shortly before is found again in two small tables
 * and kept once; that is all that is wanted of them, so that what falls to the same place simply replaces it.
 */
class JsonDraft
{
public:
    using Word = JSON::Document::Word;

    /// How many bytes behind the beginning of a text or key can be read, whatever its length.
    static constexpr std::size_t Overread = 24;

    JsonDraft() : m_texts(std::size_t{1} << TextBits), m_shapes(std::size_t{1} << ShapeBits) {}

    /// Begins a new document.
    void Clear();

    /// @return where the object stands open
    std::size_t OpenObject()
    {
        static_assert(JSON::Document::HeadWords == 2);
        m_open.push_back(0);
        m_open.push_back(JSON::Document::NoKeys);
        return m_open.size() - JSON::Document::HeadWords;
    }
    void AddValue(Word iValue) { m_open.push_back(iValue); }
    void CloseObject(std::size_t iPlace, Word iShape) { m_open[iPlace + 1] = iShape; }

    /// Where elements of an array will stand open.
    std::size_t OpenArray() const noexcept { return m_open.size(); }
    /// Writes the array. @param iPlace of its first element @return its value
    Word CloseArray(std::size_t iPlace, std::size_t iElements);

    /// Shape of an object so far, and one more key.
    Word Shape(Word iShape, const char* iKey, std::size_t iBytes)
    {
        return iBytes <= ShortBytes ? ShapeOf<true>(iShape, iKey, iBytes) : ShapeOf<false>(iShape, iKey, iBytes);
    }

    /// Value of a text.
    Word Text(const char* iText, std::size_t iBytes)
    {
        const Word place = iBytes <= ShortBytes ? Keep<true>(iText, iBytes) : Keep<false>(iText, iBytes);
        return (place << JSON::Document::TagBits) | JSON::Document::Text;
    }

    /// Writes the one object that stands open. @return a stream at it
    JSON::JIStream Finish();

    /// Gives back what takes more than so many bytes. What was drafted is lost.
    void Trim(std::size_t iBytes);

private:
    static constexpr int TextBits = 10;
    static constexpr int ShapeBits = 8;
    /// Texts that are compared at once.
    static constexpr std::size_t ShortBytes = 8;

    /// The first bytes of a text, with zeros behind it: hashed and compared without a branch for its length. Of a short
    /// one the first word alone counts.
    struct Start
    {
        std::uint64_t first;
        std::uint64_t second;
        std::uint64_t third;
    };
    static_assert(sizeof(Start) == Overread);

    /// A text that was met. All zeros where none was.
    struct MetText
    {
        Start start;
        /// One more than the text has.
        Word bytes;
        Word place;
    };
    /// A key that was met, and the shapes without and with it.
    struct MetKey
    {
        MetText key;
        Word before;
        Word shape;
    };

    static std::uint64_t Load(const void* iBytes, std::size_t iOffset) noexcept
    {
        std::uint64_t word = 0;
        std::memcpy(&word, static_cast<const char*>(iBytes) + iOffset, sizeof(word));
        return word;
    }
    static const unsigned char* Mask(std::size_t iBytes) noexcept;

    template <bool IsShort> static Start StartOf(const char* iText, std::size_t iBytes) noexcept
    {
        const unsigned char* const mask = Mask(iBytes);
        Start start = {};
        start.first = Load(iText, 0) & Load(mask, 0);
        if constexpr (!IsShort)
        {
            start.second = Load(iText, 8) & Load(mask, 8);
            start.third = Load(iText, 16) & Load(mask, 16);
        }
        return start;
    }

    /// The highest bits are the best mixed ones.
    template <bool IsShort> static std::uint64_t Hash(const Start& iStart, std::uint64_t iMore) noexcept
    {
        std::uint64_t hash = iStart.first ^ iMore;
        if constexpr (!IsShort)
            hash ^= std::rotl(iStart.second, 21) ^ std::rotl(iStart.third, 43);
        return hash * std::uint64_t{0x9e3779b97f4a7c15};
    }

    template <bool IsShort>
    bool IsIt(const MetText& iMet, const Start& iStart, const char* iText, std::size_t iBytes) const noexcept
    {
        if (iMet.bytes != iBytes + 1 || iMet.start.first != iStart.first)
            return false;
        if constexpr (IsShort)
            return true;
        return iMet.start.second == iStart.second && iMet.start.third == iStart.third &&
               (iBytes <= Overread || HasSameEnd(iMet.place, iText, iBytes));
    }
    bool HasSameEnd(Word iText, const char* iOther, std::size_t iBytes) const noexcept;

    /// Where the text stands.
    template <bool IsShort> Word Keep(const char* iText, std::size_t iBytes)
    {
        const Start start = StartOf<IsShort>(iText, iBytes);
        MetText& met = m_texts[Hash<IsShort>(start, iBytes) >> (64 - TextBits)];
        if (!IsIt<IsShort>(met, start, iText, iBytes))
            met = {start, static_cast<Word>(iBytes + 1), NewText(iText, iBytes)};
        return met.place;
    }

    template <bool IsShort> Word ShapeOf(Word iShape, const char* iKey, std::size_t iBytes)
    {
        const Start start = StartOf<IsShort>(iKey, iBytes);
        MetKey& met = m_shapes[Hash<IsShort>(start, iBytes + (std::uint64_t{iShape} << 32)) >> (64 - ShapeBits)];
        if (met.before != iShape || !IsIt<IsShort>(met.key, start, iKey, iBytes))
        {
            const Word key = Keep<IsShort>(iKey, iBytes);
            met = {{start, static_cast<Word>(iBytes + 1), key}, iShape, NewShape(iShape, key)};
        }
        return met.shape;
    }

    Word NewText(const char* iText, std::size_t iBytes);
    Word NewShape(Word iShape, Word iKey);
    /// Words at the end of the document.
    Word Take(std::size_t iWords);
    /// Those that stand open from a place on. @return where
    Word WriteObjects(std::size_t iPlace);

    /// The document so far, and room behind it.
    std::vector<Word> m_words;
    std::size_t m_size = 0;
    std::vector<Word> m_open;

    std::vector<MetText> m_texts;
    std::vector<MetKey> m_shapes;
};

inline const unsigned char* JsonDraft::Mask(std::size_t iBytes) noexcept
{
    struct Bytes
    {
        constexpr Bytes()
        {
            for (std::size_t i = 0; i < Overread; ++i)
                values[i] = 0xFF;
        }
        unsigned char values[2 * Overread] = {};
    };
    static constexpr Bytes bytes;
    return bytes.values + Overread - (iBytes < Overread ? iBytes : Overread);
}

#endif
