#ifndef JsonDocument_H
#define JsonDocument_H

/**
 * @file
 * What streams stand in: one file that was read, whoever has read it.
 */

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "JIStream.h"

namespace JSON
{
/**
 * What streams can ask of a file, in words of 32 bits that stand behind this header: of a large installation each page
 * counts that is touched. Read only, and therefore from any thread; lives as long as a stream that stands in it.
 *
 * Everything is named by the word at which it begins. JsonDraft writes
 * - a text: its bytes, counted, and the bytes,
 * - a shape, which objects with the same keys share: its last key, a text; the shape without it; how many keys it has,
 * - an object: its own place, by which the document is found; its shape; a value for each key,
 * - an array: its elements, counted, and an object for each, without keys where the element is no object.
 * The lowest bits of a value tell what it is, the others where. What is in none of them is not kept.
 */
class Document
{
public:
    using Word = std::uint32_t;

    /// What the lowest bits of a value say.
    enum Tag : Word
    {
        Other,
        True,
        Text,
        Array
    };
    static constexpr int TagBits = 2;
    static constexpr Word TagMask = (Word{1} << TagBits) - 1;
    /// No word may stand behind it, since values say where.
    static constexpr std::size_t MostWords = std::size_t{1} << (32 - TagBits);

    /// The shape without keys. Reads like every other one.
    static constexpr Word NoKeys = 0;
    static constexpr std::size_t ShapeWords = 3;
    static constexpr std::size_t HeadWords = 2;

    /// A document with a copy of the words. @return a stream that stands at an object of it
    static JIStream Make(const Word* iWords, std::size_t iCount, Word iObject);

    static void CountIn(const Word* iObject, std::size_t iStreams) noexcept;
    static void CountOut(const Word* iObject) noexcept;

    /// @name Reads of an object
    /// Of a key that stands twice the first counts. What is missing or of another kind reads as nothing.
    /// @{
    static bool Has(const Word* iObject, std::string_view iKey) noexcept;
    static std::string_view TextOf(const Word* iObject, std::string_view iKey) noexcept;
    static bool IsTrue(const Word* iObject, std::string_view iKey) noexcept;
    /// One stream for each element.
    static std::vector<JIStream> Objects(const Word* iObject, std::string_view iKey);
    /// @}

private:
    Document() = default;
    ~Document() = default;

    static const Word* WordsOf(const Word* iObject) noexcept { return iObject - *iObject; }
    static Document& Of(const Word* iObject) noexcept;
    /// The value of a key; null for a key that is missing.
    static const Word* Find(const Word* iObject, std::string_view iKey) noexcept;

    std::atomic<std::size_t> m_streams{1};
};
} // namespace JSON

#endif
