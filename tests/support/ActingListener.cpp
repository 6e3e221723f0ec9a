#include "ActingListener.h"

#include <utility>

#include <gtest/gtest.h>

ActingListener::ActingListener(Action iAction) : m_action(std::move(iAction)) {}

HRESULT ActingListener::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (!(iInterface == IID_ORXIInstance))
        return ORXIInstance::QueryInterface(iInterface, oInterface);
    AddRef();
    *oInterface = static_cast<ORXIInstance*>(this);
    return S_OK;
}

HRESULT ActingListener::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    m_action(iName, iValue);
    return S_OK;
}

void Listen(const ORXBaseUnknown_var& iObject, ActingListener::Action iAction)
{
    const ORXIInstance_var instance = iObject;
    ASSERT_FALSE(!instance);
    const ActingListener_var listener = ActingListener_var::Adopt(new ActingListener(std::move(iAction)));
    ASSERT_EQ(instance->AddInstanceListener(listener), S_OK);
}
