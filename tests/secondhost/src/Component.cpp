/**
 * @file
 * The component model: counting, casting, identity.
 */

#include "Component.h"

#include <cstring>

#include "ORXOmxInternals.h"
#include "SecondHost.h"

namespace
{
int liveComponents = 0;

// The count stands above the two bits by which handles know a component that is counted elsewhere. Both are 0 here, so
// that handles call AddRef and Release.
constexpr std::uintptr_t OneReference = 4;
} // namespace

void SecondHost::NotOffered(const char* iWhat)
{
    throw FatalError(Fault::NotOffered, std::string(iWhat) + " is not offered");
}

int SecondHost::LiveComponents()
{
    return liveComponents;
}

void ORXThrowErrorNullVar()
{
    throw SecondHost::FatalError(SecondHost::Fault::NullHandle, "a call through a null handle");
}

void ORXOmx::Internals::NullPointerAssertion()
{
    throw SecondHost::FatalError(SecondHost::Fault::NullPointer, "a null pointer where there must be none");
}

bool ORXSameComponent(IUnknown* iLeft, IUnknown* iRight) noexcept
{
    if (iLeft == nullptr || iRight == nullptr)
        return iLeft == iRight;
    return static_cast<ORXBaseUnknown*>(iLeft)->IsEqual(static_cast<ORXBaseUnknown*>(iRight)) != 0;
}

ORXBaseUnknown::ORXBaseUnknown() noexcept : m_state(OneReference) {}

ORXBaseUnknown::~ORXBaseUnknown() = default;

void* ORXBaseUnknown::operator new(std::size_t iSize)
{
    ++liveComponents;
    return ::operator new(iSize);
}

void* ORXBaseUnknown::operator new(std::size_t iSize, const std::nothrow_t& iNothrow) noexcept
{
    void* const memory = ::operator new(iSize, iNothrow);
    liveComponents += memory != nullptr ? 1 : 0;
    return memory;
}

void ORXBaseUnknown::operator delete(void* iMemory, std::size_t) noexcept
{
    --liveComponents;
    ::operator delete(iMemory);
}

void ORXBaseUnknown::operator delete(void* iMemory, const std::nothrow_t&) noexcept
{
    --liveComponents;
    ::operator delete(iMemory);
}

HRESULT ORXBaseUnknown::QueryInterface(const IID& iInterface, void** oInterface)
{
    *oInterface = nullptr;
    if (!(iInterface == IID_ORXBaseUnknown))
        return E_NOINTERFACE;
    *oInterface = this;
    AddRef();
    return S_OK;
}

HRESULT ORXBaseUnknown::QueryInterface(const char*, void**)
{
    SecondHost::NotOffered("a cast by the name of the interface");
}

unsigned int ORXBaseUnknown::AddRef()
{
    m_state += OneReference;
    return static_cast<unsigned int>(m_state / OneReference);
}

unsigned int ORXBaseUnknown::Release()
{
    m_state -= OneReference;
    const unsigned int left = static_cast<unsigned int>(m_state / OneReference);
    if (left == 0)
    {
        // A destructor may hand itself out for a moment; that must not delete it again.
        m_state = OneReference;
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

ORXMetaClass* ORXBaseUnknown::GetMetaObject() const
{
    return nullptr;
}

const char* ORXBaseUnknown::IsA() const
{
    return "ORXBaseUnknown";
}

int ORXBaseUnknown::IsAKindOf(const char* iClassName) const
{
    return iClassName != nullptr && std::strcmp(iClassName, IsA()) == 0 ? 1 : 0;
}

ORXBaseUnknown* ORXBaseUnknown::GetImpl(int iKind) const
{
    return iKind == 0 ? const_cast<ORXBaseUnknown*>(this) : nullptr;
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
