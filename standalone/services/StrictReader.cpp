#include "StrictReader.h"

#include "StrictJson.h"

bool StrictReader::Read(std::string_view iText)
{
    rapidjson::Document document;
    if (StrictJson::Parse(iText, document) || !document.IsObject())
        return false;
    m_draft.Clear();
    Object(document);
    return true;
}

void StrictReader::Object(const rapidjson::Value& iObject)
{
    const std::size_t open = m_draft.OpenObject();
    Word shape = JSON::Document::NoKeys;
    for (const auto& member : iObject.GetObject())
    {
        const std::string_view key = Padded(member.name);
        shape = m_draft.Shape(shape, key.data(), key.size());
        m_draft.AddValue(Value(member.value));
    }
    m_draft.CloseObject(open, shape);
}

StrictReader::Word StrictReader::Value(const rapidjson::Value& iValue)
{
    if (iValue.IsString())
    {
        const std::string_view text = Padded(iValue);
        return m_draft.Text(text.data(), text.size());
    }
    if (!iValue.IsArray())
        return iValue.IsTrue() ? JSON::Document::True : JSON::Document::Other;
    const std::size_t open = m_draft.OpenArray();
    for (const rapidjson::Value& element : iValue.GetArray())
        if (element.IsObject())
            Object(element);
        else
            m_draft.CloseObject(m_draft.OpenObject(), JSON::Document::NoKeys);
    return m_draft.CloseArray(open, iValue.Size());
}

std::string_view StrictReader::Padded(const rapidjson::Value& iText)
{
    m_text.assign(iText.GetString(), iText.GetStringLength());
    m_text.append(JsonDraft::Overread, '\0');
    return {m_text.data(), iText.GetStringLength()};
}
