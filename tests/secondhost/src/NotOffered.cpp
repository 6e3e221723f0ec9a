/**
 * @file
 * What the module is linked with, and the cursor and the conditions do not call: extensions and the dictionary,
 * notifications, documents. Whoever brings the whole module to a host begins here.
 */

#include "Component.h"
#include "JIStream.h"
#include "ORXEnvironment.h"
#include "ORXIParmPublisher.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "ORXTie.h"
#include "VYRCfdAttributeNotification.h"
#include "VYRCfdConfigurableTransaction.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRIMpaDefaultManagementProtected.h"

using SecondHost::NotOffered;

// ---- dictionary and extensions --------------------------------------------------------------------------------------

// The library's load makes the module object. Its entries are never run, so no object has an extension.
ORXOMModule::ORXOMModule(const ORXOMModuleInfo& iInfo) : m_info(iInfo) {}

ORXOMModule::~ORXOMModule() = default;

void ORXFillDictionary::Register(ORXMetaClass*, ORXMetaClass*, ORXInterfaceCreator, void*, int)
{
    NotOffered("ORXFillDictionary::Register");
}

ORXBaseUnknown* ToCreateBOA(ORXBaseUnknown*, ORXBaseUnknown*, ORXMetaClass*, const IID&, ORXInstanceConstructor)
{
    NotOffered("ToCreateBOA");
}

ORXBaseUnknown* Tie_Link(ORXBaseUnknown*, ORXBaseUnknown*, const IID&)
{
    NotOffered("Tie_Link");
}

void Tie_Construct(ORXTieRecord&, ORXBaseUnknown*, ORXMetaClass*, ORXBaseUnknown*, const IID&, ENUMTypeOfClass, void**,
                   ORXInstanceConstructor, ORXBaseUnknown*)
{
    NotOffered("Tie_Construct");
}

HRESULT Tie_Query(ORXTieRecord&, const IID&, void**)
{
    NotOffered("Tie_Query");
}

unsigned int Tie_AddRef(ORXTieRecord&)
{
    NotOffered("Tie_AddRef");
}

unsigned int Tie_Release(int*, ORXTieRecord&, ENUMTypeOfClass)
{
    NotOffered("Tie_Release");
}

void Tie_Destruct(ORXTieRecord&, ENUMTypeOfClass)
{
    NotOffered("Tie_Destruct");
}

ORXMetaClass::ORXMetaClass(const char* iClassName, ENUMTypeOfClass iKind, const IID& iInterface, ORXMetaClass* iBase,
                           const char* iLateType, ORXMetaClass* iServed)
    : m_className(iClassName), m_kind(iKind), m_interface(iInterface), m_base(iBase), m_lateType(iLateType),
      m_served(iServed)
{
    NotOffered("ORXMetaClass");
}

int ORXMetaClass::IsAKindOf(const char*) const noexcept
{
    NotOffered("ORXMetaClass");
}

namespace qlx::internal
{
ORXMetaClass* fct_RetrieveMetaObject(const char*, ENUMTypeOfClass, ORXMetaClass*, const char*, const char*, std::size_t)
{
    NotOffered("fct_RetrieveMetaObject");
}

ORXMetaClass* Tie_InitMetaObject(const GUID&, const char*, ORXMetaClass*, ORXMetaClass*, ENUMTypeOfClass)
{
    NotOffered("Tie_InitMetaObject");
}

om_guard::om_guard() = default;
om_guard::~om_guard() = default;
} // namespace qlx::internal

ORXMetaClass* ORXIInstance::MetaObject()
{
    NotOffered("ORXIInstance::MetaObject");
}

ORXMetaClass* ORXIParmPublisher::MetaObject()
{
    NotOffered("ORXIParmPublisher::MetaObject");
}

ORXMetaClass* VYRICfdChoice::MetaObject()
{
    NotOffered("VYRICfdChoice::MetaObject");
}

ORXMetaClass* VYRICfdChoiceMgr::MetaObject()
{
    NotOffered("VYRICfdChoiceMgr::MetaObject");
}

ORXMetaClass* VYRICfdConfigurable::MetaObject()
{
    NotOffered("VYRICfdConfigurable::MetaObject");
}

ORXMetaClass* VYRIMpaDefaultManagement::MetaObject()
{
    NotOffered("VYRIMpaDefaultManagement::MetaObject");
}

ORXMetaClass* VYRIMpaDefaultManagementProtected::MetaObject()
{
    NotOffered("VYRIMpaDefaultManagementProtected::MetaObject");
}

// ---- the knowledge side of objects ----------------------------------------------------------------------------------

// No adapter is ever made, so that the other operations are for the linker only.
ORXKweInstanceAdapter::ORXKweInstanceAdapter()
{
    NotOffered("ORXKweInstanceAdapter");
}

ORXKweInstanceAdapter::~ORXKweInstanceAdapter() = default;

ORXSimFeatureInstanceAdp::ORXSimFeatureInstanceAdp() = default;

ORXSimFeatureInstanceAdp::~ORXSimFeatureInstanceAdp() = default;

HRESULT ORXSimFeatureInstanceAdp::AdviseAttributeChanged(const ORXUnicodeString&, const ORXIValue_var&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseAttributeChanged(const ORXUnicodeString&, const ORXIValue_var&)
{
    return E_NOTIMPL;
}

ORXBaseUnknown_var ORXKweInstanceAdapter::GetOwner()
{
    return NULL_var;
}

HRESULT ORXKweInstanceAdapter::GetLogicalName(ORXUnicodeString&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::SetLogicalName(const ORXUnicodeString&)
{
    return E_NOTIMPL;
}

ORXCke::Boolean ORXKweInstanceAdapter::IsPublic()
{
    return ORXCke::True;
}

ORXICkeType_var ORXKweInstanceAdapter::Type()
{
    return NULL_var;
}

ORXCke::Boolean ORXKweInstanceAdapter::IsSupporting(const ORXICkeType_var&)
{
    return ORXCke::False;
}

HRESULT ORXKweInstanceAdapter::ListSupportedTypes(ORXListValORXUnicodeString&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AddInstanceListener(const ORXBaseUnknown_var&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::RemoveInstanceListener(const ORXBaseUnknown_var&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeAdded(const ORXUnicodeString&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeRemoved(const ORXUnicodeString&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeRenamed(const ORXUnicodeString&, const ORXUnicodeString&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseRemoved()
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseModification()
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::AdviseTypeChanged(const ORXICkeType_var&)
{
    return E_NOTIMPL;
}

HRESULT ORXKweInstanceAdapter::SetValue(const ORXUnicodeString&, const ORXIValue_var&)
{
    return E_NOTIMPL;
}

ORXIValue_var ORXKweInstanceAdapter::GetValue(const ORXUnicodeString&)
{
    return NULL_var;
}

HRESULT ORXKweInstanceAdapter::AdviseSpecificEvent(const ORXUnicodeString&)
{
    return E_NOTIMPL;
}

// ---- notifications and brackets -------------------------------------------------------------------------------------

ORXNotification::ORXNotification()
{
    NotOffered("ORXNotification");
}

ORXNotification::~ORXNotification() = default;

void DispatchCallbacks(ORXBaseUnknown*, ORXNotification*)
{
    NotOffered("DispatchCallbacks");
}

VYRCfdAttributeNotification::VYRCfdAttributeNotification() = default;

VYRCfdAttributeNotification::~VYRCfdAttributeNotification() = default;

const char* VYRCfdAttributeNotification::IsA() const
{
    return "VYRCfdAttributeNotification";
}

int VYRCfdAttributeNotification::IsAKindOf(const char* iClassName) const
{
    return ORXNotification::IsAKindOf(iClassName);
}

VYRCfdConfigurableTransaction::VYRCfdConfigurableTransaction(const VYRICfdConfigurable_var&)
{
    NotOffered("VYRCfdConfigurableTransaction");
}

VYRCfdConfigurableTransaction::~VYRCfdConfigurableTransaction() noexcept(false) = default;

// ---- documents ------------------------------------------------------------------------------------------------------

const char* ORXFindPath(const char*, const char*)
{
    NotOffered("ORXFindPath");
}

// Where nothing is read no stream stands in a document.
JSON::JIStream::JIStream(const JIStream& /*iOther*/) noexcept {}

void JSON::JIStream::Leave() noexcept {}

bool JSON::JIStream::ParseFile(const char*, bool)
{
    NotOffered("JIStream::ParseFile");
}

std::vector<JSON::JIStream> JSON::JIStream::ReadObjects(const char*) const
{
    NotOffered("JIStream::ReadObjects");
}

ORXUnicodeString JSON::JIStream::ReadString(const char*) const
{
    NotOffered("JIStream::ReadString");
}

ORXUnicodeString JSON::JIStream::ReadString(const ORXUnicodeString&) const
{
    NotOffered("JIStream::ReadString");
}

bool JSON::JIStream::ReadBoolean(const ORXUnicodeString&) const
{
    NotOffered("JIStream::ReadBoolean");
}

bool JSON::JIStream::Exist(const ORXUnicodeString&) const
{
    NotOffered("JIStream::Exist");
}
