#include "CountingListener.h"

#include <stdexcept>

namespace Bench
{
std::shared_ptr<const std::size_t> CountingListener::Listen(const ORXBaseUnknown_var& iObject)
{
    const auto listener = ORXHandle<CountingListener>::Adopt(new CountingListener);
    const ORXIInstance_var instance = iObject;
    if (!instance || instance->AddInstanceListener(listener) != S_OK)
        throw std::runtime_error("the object takes no listener");
    return listener->m_told;
}

HRESULT CountingListener::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (!(iInterface == IID_ORXIInstance))
        return ORXIInstance::QueryInterface(iInterface, oInterface);
    AddRef();
    *oInterface = static_cast<ORXIInstance*>(this);
    return S_OK;
}

HRESULT CountingListener::AdviseAttributeChanged(const ORXUnicodeString&, const ORXIValue_var&)
{
    ++*m_told;
    return S_OK;
}
} // namespace Bench
