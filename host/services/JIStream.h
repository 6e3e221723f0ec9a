#ifndef JIStream_H
#define JIStream_H

/**
 * @file
 * Reader of JSON objects. A value class over a shared document; the reading is a link-time seam.
 */

#include <cstddef>
#include <memory>
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
    JIStream() = default;

    /**
     * Reads a file that holds one JSON object, as strict JSON in UTF-8.
     * @param iReplace true drops what the stream held before also when the file cannot be read
     * @return false if the file cannot be read, is not valid JSON or holds something else than an object
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

    /// Which object of the document; what the two say is known to the document alone.
    struct Place
    {
        const void* base = nullptr;
        std::size_t index = 0;
    };

    std::shared_ptr<const Document> m_document;
    Place m_object;
};
} // namespace JSON

#endif
