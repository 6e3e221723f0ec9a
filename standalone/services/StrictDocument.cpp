#include "StrictDocument.h"

#include "StrictJson.h"

namespace
{
using JsonValue = rapidjson::Value;

/// The first member of that name, null when there is none.
const JsonValue* FindMember(const void* iObject, std::string_view iKey)
{
    const JsonValue& object = *static_cast<const JsonValue*>(iObject);
    const JsonValue key(rapidjson::StringRef(iKey.data(), static_cast<rapidjson::SizeType>(iKey.size())));
    const JsonValue::ConstMemberIterator member = object.FindMember(key);
    return member != object.MemberEnd() ? &member->value : nullptr;
}
} // namespace

std::shared_ptr<const JSON::Document> StrictDocument::Parse(std::string_view iText, Place& oRoot)
{
    auto document = std::make_shared<StrictDocument>();
    if (StrictJson::Parse(iText, document->m_json) || !document->m_json.IsObject())
        return nullptr;
    oRoot = {static_cast<const JsonValue*>(&document->m_json), 0};
    return document;
}

bool StrictDocument::Has(const Place& iObject, std::string_view iKey) const
{
    return FindMember(iObject.base, iKey) != nullptr;
}

std::string_view StrictDocument::Text(const Place& iObject, std::string_view iKey) const
{
    const JsonValue* value = FindMember(iObject.base, iKey);
    if (value == nullptr || !value->IsString())
        return {};
    return {value->GetString(), value->GetStringLength()};
}

bool StrictDocument::IsTrue(const Place& iObject, std::string_view iKey) const
{
    const JsonValue* value = FindMember(iObject.base, iKey);
    return value != nullptr && value->IsTrue();
}

std::vector<JSON::JIStream> StrictDocument::Objects(const Place& iObject, std::string_view iKey,
                                                    const std::shared_ptr<const Document>& iOwner) const
{
    std::vector<JSON::JIStream> objects;
    const JsonValue* array = FindMember(iObject.base, iKey);
    if (array == nullptr || !array->IsArray())
        return objects;
    objects.resize(array->Size());
    for (rapidjson::SizeType i = 0; i < array->Size(); ++i)
        if ((*array)[i].IsObject())
            Stand(objects[i], iOwner, {&(*array)[i], 0});
    return objects;
}
