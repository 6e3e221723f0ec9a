#ifndef StrictDocument_H
#define StrictDocument_H

#include <rapidjson/document.h>

#include "JsonDocument.h"

/// A document as StrictJson builds it: whatever is valid.
class StrictDocument : public JSON::Document
{
public:
    /// @return the object at its root, null for a text that is no strict JSON or no object
    static std::shared_ptr<const JSON::Document> Parse(std::string_view iText, Place& oRoot);

    bool Has(const Place& iObject, std::string_view iKey) const override;
    std::string_view Text(const Place& iObject, std::string_view iKey) const override;
    bool IsTrue(const Place& iObject, std::string_view iKey) const override;
    std::vector<JSON::JIStream> Objects(const Place& iObject, std::string_view iKey,
                                        const std::shared_ptr<const Document>& iOwner) const override;

private:
    rapidjson::Document m_json;
};

#endif
