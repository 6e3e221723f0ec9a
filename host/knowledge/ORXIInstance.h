#ifndef ORXIInstance_H
#define ORXIInstance_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXICkeType.h"
#include "ORXIValue.h"
#include "ORXListValORXUnicodeString.h"

class ORXMetaClass;

/**
 * The knowledge side of an object. The host calls `AdviseAttributeChanged` from within every successful write, on the
 * same thread; the status that comes back is not looked at.
 */
class ORXHostExport ORXIInstance : public ORXBaseUnknown
{
public:
    /// Name by which rules and formulas know the object.
    virtual HRESULT GetLogicalName(ORXUnicodeString& oName) = 0;
    /// Gives the object that name.
    virtual HRESULT SetLogicalName(const ORXUnicodeString& iName) = 0;
    /// Whether rules and formulas may see the object.
    virtual ORXCke::Boolean IsPublic() = 0;
    /// Knowledge type of the object as a whole; null where it has none.
    virtual ORXICkeType_var Type() = 0;
    /// Whether the object as a whole is of the knowledge type.
    virtual ORXCke::Boolean IsSupporting(const ORXICkeType_var& iType) = 0;
    /// Appends the names of the feature types that the object supports, most derived first.
    virtual HRESULT ListSupportedTypes(ORXListValORXUnicodeString& oTypes) = 0;
    /// A listener is itself an `ORXIInstance`; it is told what this instance is told, in the order of subscription.
    virtual HRESULT AddInstanceListener(const ORXBaseUnknown_var& iListener) = 0;
    /// Ends a subscription.
    virtual HRESULT RemoveInstanceListener(const ORXBaseUnknown_var& iListener) = 0;

    /// An attribute has changed. @param iValue its new value, never null from the host; not valuated when the value
    /// was taken away
    virtual HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) = 0;
    /// An attribute was added to, taken from or renamed on this object alone; the object was removed, changed as a
    /// whole or given another type.
    /// @{
    virtual HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName) = 0;
    virtual HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName) = 0;
    virtual HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName,
                                                  const ORXUnicodeString& iNewName) = 0;
    virtual HRESULT AdviseRemoved() = 0;
    virtual HRESULT AdviseModification() = 0;
    virtual HRESULT AdviseTypeChanged(const ORXICkeType_var& iType) = 0;
    /// @}

    /// Writes an attribute by name. @return E_FAIL for an unknown name
    virtual HRESULT SetValue(const ORXUnicodeString& iName, const ORXIValue_var& iValue) = 0;
    /// Reads an attribute by name; null for an unknown name.
    virtual ORXIValue_var GetValue(const ORXUnicodeString& iName) = 0;
    /// The object that aggregates this one; null at the top.
    virtual ORXBaseUnknown_var GetOwner() = 0;
    /// An event of the application, by its name.
    virtual HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent) = 0;

    static const IID& ClassId() noexcept { return IID_ORXIInstance; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using ORXIInstance_var = ORXHandle<ORXIInstance>;

#endif
