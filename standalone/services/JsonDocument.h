#ifndef JsonDocument_H
#define JsonDocument_H

/**
 * @file
 * What streams stand in: one file that was read, whoever has read it.
 */

#include <memory>
#include <string_view>
#include <vector>

#include "JIStream.h"

namespace JSON
{
/// Read only, and therefore from any thread. Lives as long as a stream that stands in it.
class Document
{
public:
    using Place = JIStream::Place;

    Document() = default;
    virtual ~Document() = default;
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    /// @name Reads of an object
    /// Of a key that stands twice the first counts. What is missing or of another kind reads as nothing.
    /// @{
    virtual bool Has(const Place& iObject, std::string_view iKey) const = 0;
    virtual std::string_view Text(const Place& iObject, std::string_view iKey) const = 0;
    virtual bool IsTrue(const Place& iObject, std::string_view iKey) const = 0;
    /// One stream for each element. @param iOwner this document
    virtual std::vector<JIStream> Objects(const Place& iObject, std::string_view iKey,
                                          const std::shared_ptr<const Document>& iOwner) const = 0;
    /// @}

protected:
    static void Stand(JIStream& oStream, const std::shared_ptr<const Document>& iOwner, const Place& iObject)
    {
        oStream.m_document = iOwner;
        oStream.m_object = iObject;
    }
};
} // namespace JSON

#endif
