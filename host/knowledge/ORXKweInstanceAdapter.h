#ifndef ORXKweInstanceAdapter_H
#define ORXKweInstanceAdapter_H

/**
 * @file
 * Link-time seam.
 */

#include <vector>

#include "ORXIInstance.h"

/**
 * Implementation of the operations of `ORXIInstance`, for extension classes to derive from. It does not derive from
 * the interface: a tie forwards to it. What is virtual here reaches an override.
 */
class ORXHostExport ORXKweInstanceAdapter : public ORXBaseUnknown
{
public:
    ~ORXKweInstanceAdapter() override;

    /// Tells the listeners, in the order of subscription, from a snapshot. @return S_OK
    virtual HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue);

    /// See `ORXIInstance::GetOwner`.
    virtual ORXBaseUnknown_var GetOwner();
    /// The text that was set, otherwise the object's internal name.
    virtual HRESULT GetLogicalName(ORXUnicodeString& oName);
    /// Kept by this instance, and not with the model. @return S_OK
    virtual HRESULT SetLogicalName(const ORXUnicodeString& iName);
    /// True.
    virtual ORXCke::Boolean IsPublic();

    /// Null: features have no knowledge type as a whole.
    ORXICkeType_var Type();
    /// False.
    ORXCke::Boolean IsSupporting(const ORXICkeType_var& iType);
    /// See `ORXIInstance::ListSupportedTypes`. @return E_FAIL when linked to no feature object
    HRESULT ListSupportedTypes(ORXListValORXUnicodeString& oTypes);
    /// @return S_OK; E_FAIL for null or a component that is no `ORXIInstance`
    HRESULT AddInstanceListener(const ORXBaseUnknown_var& iListener);
    /// @return S_OK; S_FALSE when the listener is not subscribed
    HRESULT RemoveInstanceListener(const ORXBaseUnknown_var& iListener);
    /// Tells the listeners, as `AdviseAttributeChanged` does. @return S_OK
    /// @{
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName);
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName);
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName, const ORXUnicodeString& iNewName);
    HRESULT AdviseRemoved();
    HRESULT AdviseModification();
    HRESULT AdviseTypeChanged(const ORXICkeType_var& iType);
    /// @}
    /// See `ORXIInstance::SetValue`.
    HRESULT SetValue(const ORXUnicodeString& iName, const ORXIValue_var& iValue);
    /// See `ORXIInstance::GetValue`.
    ORXIValue_var GetValue(const ORXUnicodeString& iName);
    /// Tells the listeners. @return S_OK
    HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent);

protected:
    ORXKweInstanceAdapter();

private:
    /// The host's way to let listeners go when it closes a model.
    friend class ORXInstanceListeners;

    ORXUnicodeString m_logicalName;
    /// The listeners are held.
    std::vector<ORXIInstance_var> m_listeners;
};

#endif
