#ifndef StrictReader_H
#define StrictReader_H

#include <string>

#include <rapidjson/document.h>

#include "JsonDraft.h"

/// Reads what StrictJson takes: whatever is valid.
class StrictReader
{
public:
    explicit StrictReader(JsonDraft& oDraft) : m_draft(oDraft) {}

    /// @return false for a text that is no strict JSON or no object
    bool Read(std::string_view iText);

private:
    using Word = JsonDraft::Word;

    void Object(const rapidjson::Value& iObject);
    Word Value(const rapidjson::Value& iValue);
    /// The text where more bytes behind it can be read; valid until the next one.
    std::string_view Padded(const rapidjson::Value& iText);

    JsonDraft& m_draft;
    std::string m_text;
};

#endif
