#ifndef ActingListener_H
#define ActingListener_H

/**
 * @file
 * A listener that does something when it is told of a change.
 */

#include <functional>

#include "ORXIInstance.h"

/// A component of its own, to be given to `ORXIInstance::AddInstanceListener`, which holds it.
class ActingListener : public ORXIInstance
{
public:
    using Action = std::function<void(const ORXUnicodeString& iName, const ORXIValue_var& iValue)>;

    explicit ActingListener(Action iAction);

    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    using ORXBaseUnknown::QueryInterface;

    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;

    HRESULT GetLogicalName(ORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT SetLogicalName(const ORXUnicodeString&) override { return E_NOTIMPL; }
    ORXCke::Boolean IsPublic() override { return ORXCke::False; }
    ORXICkeType_var Type() override { return NULL_var; }
    ORXCke::Boolean IsSupporting(const ORXICkeType_var&) override { return ORXCke::False; }
    HRESULT ListSupportedTypes(ORXListValORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT AddInstanceListener(const ORXBaseUnknown_var&) override { return E_NOTIMPL; }
    HRESULT RemoveInstanceListener(const ORXBaseUnknown_var&) override { return E_NOTIMPL; }
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString&, const ORXUnicodeString&) override
    {
        return E_NOTIMPL;
    }
    HRESULT AdviseRemoved() override { return E_NOTIMPL; }
    HRESULT AdviseModification() override { return E_NOTIMPL; }
    HRESULT AdviseTypeChanged(const ORXICkeType_var&) override { return E_NOTIMPL; }
    HRESULT SetValue(const ORXUnicodeString&, const ORXIValue_var&) override { return E_NOTIMPL; }
    ORXIValue_var GetValue(const ORXUnicodeString&) override { return NULL_var; }
    ORXBaseUnknown_var GetOwner() override { return NULL_var; }
    HRESULT AdviseSpecificEvent(const ORXUnicodeString&) override { return E_NOTIMPL; }

private:
    Action m_action;
};

using ActingListener_var = ORXHandle<ActingListener>;

/// Subscribes an action to the changes of an object's attributes.
void Listen(const ORXBaseUnknown_var& iObject, ActingListener::Action iAction);

#endif
