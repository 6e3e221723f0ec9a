#include "ORXBaseUnknown.h"

#include <cstring>
#include <new>

#include "Census.h"
#include "InterfaceNames.h"
#include "ORXComponentLink.h"
#include "ORXMetaClass.h"

using VYRStandalone::Census;
using VYRStandalone::InterfaceNames;

ORXBaseUnknown::ORXBaseUnknown() noexcept : m_state(ORXComponentLink::InitialState(this)) {}

ORXBaseUnknown::~ORXBaseUnknown() = default;

void* ORXBaseUnknown::operator new(std::size_t iSize)
{
    void* const memory = ::operator new(iSize);
    Census::Allocated();
    ORXComponentLink::NoteAllocation(memory, iSize);
    return memory;
}

void* ORXBaseUnknown::operator new(std::size_t iSize, const std::nothrow_t& iNothrow) noexcept
{
    void* const memory = ::operator new(iSize, iNothrow);
    if (memory == nullptr)
        return nullptr;
    Census::Allocated();
    ORXComponentLink::NoteAllocation(memory, iSize);
    return memory;
}

void ORXBaseUnknown::operator delete(void* iMemory, const std::nothrow_t&) noexcept
{
    operator delete (iMemory, std::size_t{});
}

void ORXBaseUnknown::operator delete(void* iMemory, std::size_t) noexcept
{
    if (iMemory == nullptr)
        return;
    Census::Freed();
    ::operator delete(iMemory);
}

HRESULT ORXBaseUnknown::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (ORXComponentLink::IsLinked(*this))
        return ORXComponentLink::Root(*this)->QueryInterface(iInterface, oInterface);
    const bool isOffered = iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    if (!isOffered)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

unsigned int ORXBaseUnknown::AddRef()
{
    if (ORXComponentLink::IsLinked(*this))
        return ORXComponentLink::Root(*this)->AddRef();
    m_state += 2;
    return ORXComponentLink::Count(*this);
}

unsigned int ORXBaseUnknown::Release()
{
    if (ORXComponentLink::IsLinked(*this))
        return ORXComponentLink::Root(*this)->Release();
    m_state -= 2;
    const unsigned int left = ORXComponentLink::Count(*this);
    if (left == 0)
    {
        // A destructor may hand itself out for a moment; that must not delete it again.
        m_state = ORXComponentLink::OneReference;
        delete this;
    }
    return left;
}

HRESULT ORXBaseUnknown::GetTypeInfoCount(unsigned int*)
{
    return E_NOTIMPL;
}

HRESULT ORXBaseUnknown::GetTypeInfo(unsigned int, unsigned int, void**)
{
    return E_NOTIMPL;
}

HRESULT ORXBaseUnknown::GetIDsOfNames(const IID&, const char**, unsigned int, unsigned int, int*)
{
    return E_NOTIMPL;
}

HRESULT ORXBaseUnknown::Invoke(int, const IID&, unsigned int, void*)
{
    return E_NOTIMPL;
}

HRESULT ORXBaseUnknown::QueryInterface(const char* iInterfaceName, void** oInterface)
{
    IID interfaceId;
    if (iInterfaceName != nullptr && InterfaceNames::Find(iInterfaceName, interfaceId))
        return QueryInterface(interfaceId, oInterface);
    *oInterface = nullptr;
    return E_NOINTERFACE;
}

ORXMetaClass* ORXBaseUnknown::GetMetaObject() const
{
    return nullptr;
}

const char* ORXBaseUnknown::IsA() const
{
    const ORXMetaClass* const meta = GetMetaObject();
    return meta != nullptr ? meta->ClassName() : "ORXBaseUnknown";
}

int ORXBaseUnknown::IsAKindOf(const char* iClassName) const
{
    const ORXMetaClass* const meta = GetMetaObject();
    if (meta != nullptr && meta->IsAKindOf(iClassName) != 0)
        return 1;
    return iClassName != nullptr && std::strcmp(iClassName, "ORXBaseUnknown") == 0 ? 1 : 0;
}

ORXBaseUnknown* ORXBaseUnknown::GetImpl(int iKind) const
{
    if (iKind != 0)
        return nullptr;
    return ORXComponentLink::IsLinked(*this) ? ORXComponentLink::Root(*this) : const_cast<ORXBaseUnknown*>(this);
}

int ORXBaseUnknown::IsNull() const
{
    return 0;
}

int ORXBaseUnknown::IsEqual(const ORXBaseUnknown* iOther) const
{
    return iOther != nullptr && iOther->GetImpl(0) == GetImpl(0) ? 1 : 0;
}

HRESULT ORXBaseUnknown::ChangeComponentState(int, int, const void*)
{
    return E_NOTIMPL;
}
