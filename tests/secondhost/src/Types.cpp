#include "Types.h"

#include <map>

#include "ORXSpecAttrKeyServices.h"

namespace SecondHost
{
namespace
{
/// Never destroyed: keys live until the process ends.
std::map<std::string, Type>& Types()
{
    static auto* const types = new std::map<std::string, Type>;
    return *types;
}
} // namespace

const Type* FindType(const std::string& iName)
{
    const auto found = Types().find(iName);
    return found != Types().end() ? &found->second : nullptr;
}

void Declare(const char* iType, const char* iBase, const std::vector<Attribute>& iAttributes)
{
    if (FindType(iType) != nullptr)
        return;
    Type type{iType, FindType(iBase), {}};
    if (type.base != nullptr)
        type.keys = type.base->keys;
    for (const Attribute& attribute : iAttributes)
        type.keys.push_back(::new Key(attribute, type.keys.size()));
    Types().emplace(iType, type);
}
} // namespace SecondHost

ORXISpecAttrKey* ORXSpecAttrKeyServices::Get(ORXISpecAttrAccess* iAccess)
{
    const ORXISpecObject_var object = ORXISpecObject_var::Cast(iAccess);
    if (key == nullptr && !!object && object->IsSubTypeOf(featureType) != ORXFalse)
        // What this adds to the key's count is kept with it.
        key = iAccess->GetAttrKey(attribute);
    return key;
}
