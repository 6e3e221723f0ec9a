#include "JIStream.h"

#include "FileName.h"
#include "Instruments.h"
#include "StrictJson.h"
#include "WholeFile.h"

namespace
{
using VYRStandalone::Instruments;
using JsonValue = rapidjson::Value;

/// The first member of that name, null when there is none.
const JsonValue* FindMember(const void* iObject, std::string_view iKey)
{
    if (iObject == nullptr)
        return nullptr;
    const JsonValue& object = *static_cast<const JsonValue*>(iObject);
    const JsonValue key(rapidjson::StringRef(iKey.data(), static_cast<rapidjson::SizeType>(iKey.size())));
    const JsonValue::ConstMemberIterator member = object.FindMember(key);
    return member != object.MemberEnd() ? &member->value : nullptr;
}

ORXUnicodeString ReadText(const void* iObject, std::string_view iKey)
{
    const JsonValue* value = FindMember(iObject, iKey);
    if (value == nullptr || !value->IsString())
        return {};
    return ORXUnicodeString(value->GetString(), value->GetStringLength());
}

std::string_view KeyView(const char* iKey)
{
    return iKey != nullptr ? std::string_view(iKey) : std::string_view("");
}
} // namespace

namespace JSON
{
bool JIStream::ParseFile(const char* iPath, bool iReplace)
{
    if (iReplace)
        *this = JIStream();
    if (Instruments::Active() && iPath != nullptr && Instruments::Fails("ParseFile", FileName(iPath), nullptr))
        return false;
    std::string text;
    if (iPath == nullptr || !ReadWholeFile(iPath, text).empty())
        return false;
    const auto document = std::make_shared<rapidjson::Document>();
    if (StrictJson::Parse(text, *document) || !document->IsObject())
        return false;
    m_object = static_cast<const JsonValue*>(document.get());
    m_document = document;
    return true;
}

std::vector<JIStream> JIStream::ReadObjects(const char* iKey) const
{
    std::vector<JIStream> objects;
    const JsonValue* array = FindMember(m_object, KeyView(iKey));
    if (array == nullptr || !array->IsArray())
        return objects;
    objects.resize(array->Size());
    for (rapidjson::SizeType i = 0; i < array->Size(); ++i)
    {
        if (!(*array)[i].IsObject())
            continue;
        objects[i].m_document = m_document;
        objects[i].m_object = &(*array)[i];
    }
    return objects;
}

ORXUnicodeString JIStream::ReadString(const char* iKey) const
{
    return ReadText(m_object, KeyView(iKey));
}

ORXUnicodeString JIStream::ReadString(const ORXUnicodeString& iKey) const
{
    return ReadText(m_object, iKey.View());
}

bool JIStream::ReadBoolean(const ORXUnicodeString& iKey) const
{
    const JsonValue* value = FindMember(m_object, iKey.View());
    return value != nullptr && value->IsTrue();
}

bool JIStream::Exist(const ORXUnicodeString& iKey) const
{
    return FindMember(m_object, iKey.View()) != nullptr;
}
} // namespace JSON
