#ifndef JIStream_H
#define JIStream_H

/**
 * @file
 * Reader of JSON objects. A value class over a shared document; the reading is a link-time seam.
 */

#include <cstdint>
#include <utility>
#include <vector>

#include "ORXExport.h"
#include "ORXUnicodeString.h"

namespace JSON
{
/// What a stream stands in. Its shape is the provider's.
class Document;

/**
 * Stands at one JSON object. Copies read the same data, and an object that came out of `ReadObjects` stays readable
 * when the stream that it came from is gone. A default-made stream reads as an empty object. Of a key that stands
 * twice in an object the first counts.
 */
class ORXHostExport JIStream
{
public:
    JIStream() noexcept = default;
    JIStream(const JIStream& iOther) noexcept;
    JIStream(JIStream&& ioOther) noexcept : m_object(std::exchange(ioOther.m_object, nullptr)) {}
    /// To where the other stands, in its document.
    JIStream& operator=(JIStream iOther) noexcept
    {
        std::swap(m_object, iOther.m_object);
        return *this;
    }
    ~JIStream()
    {
        if (m_object != nullptr)
            Leave();
    }

    /**
     * Reads a file that holds one JSON object, as strict JSON in UTF-8.
     * @param iReplace true drops what the stream held before also when the file cannot be read
     * @return false if the file cannot be read, is not valid JSON or holds something else than an object. A provider
     *         may refuse files that are larger than any that is meant.
     */
    bool ParseFile(const char* iPath, bool iReplace);

    /// The objects of the array under the key, in order; elements that are no objects read as empty ones. Empty if
    /// there is no array.
    std::vector<JIStream> ReadObjects(const char* iKey) const;

    /// The text under the key; empty if it is missing or no text.
    ORXUnicodeString ReadString(const char* iKey) const;
    ORXUnicodeString ReadString(const ORXUnicodeString& iKey) const;

    /// The boolean under the key; false if it is missing or no boolean.
    bool ReadBoolean(const ORXUnicodeString& iKey) const;

    /// Whether the key stands in the object, whatever its value.
    bool Exist(const ORXUnicodeString& iKey) const;

private:
    friend class Document;

    /// Lets go of the document, which lives as long as a stream stands in it.
    void Leave() noexcept;

    /// The object in its document, whose form the provider knows; null reads as an empty object. One word, since an
    /// installation has many items.
    const std::uint32_t* m_object = nullptr;
};
} // namespace JSON

#endif
