#include "SourceValue.h"

namespace Tool
{
const char* SourceValue::KindText() const noexcept
{
    switch (kind)
    {
    case Kind::Null:
        return "null";
    case Kind::Boolean:
        return "a boolean";
    case Kind::Number:
        return "a number";
    case Kind::Text:
        return "a text";
    case Kind::Array:
        return "an array";
    case Kind::Object:
        break;
    }
    return "an object";
}

const SourceMember* SourceValue::Find(std::string_view iKey) const noexcept
{
    for (const SourceMember& member : members)
        if (member.key == iKey)
            return &member;
    return nullptr;
}

std::string_view SourceValue::TextOf(std::string_view iKey) const noexcept
{
    const SourceMember* member = Find(iKey);
    return member != nullptr && member->value->Is(Kind::Text) ? std::string_view(member->value->text)
                                                              : std::string_view();
}

bool SourceValue::IsTrueAt(std::string_view iKey) const noexcept
{
    const SourceMember* member = Find(iKey);
    return member != nullptr && member->value->isTrue;
}

const std::vector<const SourceValue*>& SourceValue::ElementsOf(std::string_view iKey) const noexcept
{
    static const std::vector<const SourceValue*> none;
    const SourceMember* member = Find(iKey);
    return member != nullptr ? member->value->elements : none;
}
} // namespace Tool
