#include "ForeignManager.h"

#include "ORXFillDictionary.h"
#include "ORXTie.h"

namespace
{
ORXMetaClass* Meta()
{
    static ORXMetaClass* const meta = qlx::internal::fct_RetrieveMetaObject(
        "ForeignManager", ORXExtensionClass, VYRIMpaDefaultManagementProtected::MetaObject(), "FlowTestForeign", "Test",
        sizeof(ForeignManager));
    return meta;
}

ORXBaseUnknown* Construct()
{
    return new ForeignManager;
}

ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, Meta(), IID_VYRIMpaDefaultManagementProtected, &Construct);
}
} // namespace

ForeignManager::ForeignManager()
{
    m_defMgmt = VYRCfdObjectAccess(ORXBaseUnknown_var::Share(this)).Get("flags");
}

ORXMetaClass* ForeignManager::GetMetaObject() const
{
    return Meta();
}

void ForeignManager::Register()
{
    ORXFillDictionary::Register(Meta(), VYRIMpaDefaultManagementProtected::MetaObject(), &Create, nullptr, 1);
}
