#include "ChoiceManager.h"

#include <algorithm>
#include <deque>
#include <string>

#include "ORXFillDictionary.h"
#include "ORXISpecObject.h"
#include "ORXTie.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
namespace
{
constexpr char ClassName[] = "ChoiceManager";

struct ManagedType
{
    /// The meta class refers to it.
    std::string name;
    ORXMetaClass* meta = nullptr;
};

/// In the order of their declaration, so that a type stands behind its base. Entries stay where they are, and are never
/// destroyed, as meta classes are not.
std::deque<ManagedType>& ManagedTypes()
{
    static auto* const types = new std::deque<ManagedType>;
    return *types;
}

void Enter(const std::string& iType)
{
    std::deque<ManagedType>& types = ManagedTypes();
    const bool stands =
        std::any_of(types.begin(), types.end(), [&](const ManagedType& iKnown) { return iKnown.name == iType; });
    if (stands)
        return;
    const qlx::internal::om_guard guard;
    ManagedType& type = types.emplace_back(ManagedType{iType, nullptr});
    type.meta = qlx::internal::fct_RetrieveMetaObject(ClassName, ORXExtensionClass, VYRICfdChoiceMgr::MetaObject(),
                                                      type.name.c_str(), "vyrcfd", sizeof(ChoiceManager));
}

/// Meta class of the manager of an object: of the marked types from which its type derives, the nearest. Null for none.
ORXMetaClass* MetaOf(ORXBaseUnknown* iComponent)
{
    const ORXISpecObject_var spObject = ORXISpecObject_var::Cast(iComponent);
    ORXMetaClass* meta = nullptr;
    if (!!spObject)
        for (const ManagedType& type : ManagedTypes())
            if (spObject->IsSubTypeOf(ORXUnicodeString(type.name.c_str())) != ORXFalse)
                meta = type.meta;
    return meta;
}
} // namespace

void ChoiceManager::Register()
{
    for (const std::string& type : VYRStandalone::ManagedTypes())
        Enter(type);
    // A pair that stands already is left as it is.
    for (const ManagedType& type : ManagedTypes())
        ORXFillDictionary::Register(type.meta, VYRICfdChoiceMgr::MetaObject(), &Create, nullptr, 1);
}

ORXMetaClass* ChoiceManager::GetMetaObject() const
{
    return MetaOf(GetImpl(0));
}

const char* ChoiceManager::IsA() const
{
    return ClassName;
}

int ChoiceManager::IsAKindOf(const char* iClassName) const
{
    const ORXMetaClass* meta = GetMetaObject();
    return meta != nullptr ? meta->IsAKindOf(iClassName) : 0;
}

ORXBaseUnknown* ChoiceManager::Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, MetaOf(iExtended), VYRICfdChoiceMgr::ClassId(), &Construct);
}

ORXBaseUnknown* ChoiceManager::Construct()
{
    return new ChoiceManager;
}
} // namespace Tool
