#include "ORXMetaClass.h"

#include <cstring>
#include <mutex>
#include <vector>

namespace
{
/// Never destroyed: libraries may ask for meta classes while the process ends.
std::recursive_mutex& ObjectModelMutex()
{
    static std::recursive_mutex* const mutex = new std::recursive_mutex;
    return *mutex;
}

/// Keeps what is made, so that it stays reachable also when the library that asked for it has gone.
ORXMetaClass* Keep(ORXMetaClass* iMeta)
{
    const qlx::internal::om_guard guard;
    static std::vector<ORXMetaClass*>* const kept = new std::vector<ORXMetaClass*>;
    kept->push_back(iMeta);
    return iMeta;
}
} // namespace

ORXMetaClass::ORXMetaClass(const char* iClassName, ENUMTypeOfClass iKind, const IID& iInterface, ORXMetaClass* iBase,
                           const char* iLateType, ORXMetaClass* iServed)
    : m_className(iClassName), m_kind(iKind), m_interface(iInterface), m_base(iBase),
      m_lateType(iLateType != nullptr ? iLateType : ""), m_served(iServed)
{
}

int ORXMetaClass::IsAKindOf(const char* iClassName) const noexcept
{
    if (iClassName == nullptr)
        return 0;
    for (const ORXMetaClass* meta = this; meta != nullptr; meta = meta->m_base)
        if (std::strcmp(meta->m_className, iClassName) == 0)
            return 1;
    return 0;
}

namespace qlx::internal
{
ORXMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iKind, ORXMetaClass* iBase,
                                     const char* iLateType, const char*, std::size_t)
{
    return Keep(new ORXMetaClass(iClassName, iKind, iBase != nullptr ? iBase->InterfaceId() : IID{}, iBase, iLateType));
}

ORXMetaClass* Tie_InitMetaObject(const GUID& iInterfaceId, const char* iInterfaceName, ORXMetaClass* iInterface,
                                 ORXMetaClass* iClass, ENUMTypeOfClass iKind)
{
    return Keep(new ORXMetaClass(iInterfaceName, iKind, iInterfaceId, iInterface, nullptr, iClass));
}

om_guard::om_guard()
{
    ObjectModelMutex().lock();
}

om_guard::~om_guard()
{
    ObjectModelMutex().unlock();
}
} // namespace qlx::internal
