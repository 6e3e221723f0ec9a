#ifndef VYRIMpaDefaultManagement_H
#define VYRIMpaDefaultManagement_H

/**
 * @file
 * Default management as every module may use it. Run-time seam.
 */

#include "ORXIValue.h"

class ORXMetaClass;

/// Whether an attribute of the object has been set, and what its default is. Attributes are given by their names.
class ORXHostExport VYRIMpaDefaultManagement : public ORXBaseUnknown
{
public:
    /// @param oIsSet 1 when the attribute was given a value on purpose. Asking makes the flag if there is none yet.
    virtual HRESULT IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet) = 0;
    /// Puts the attribute back on its default. @return S_FALSE for an empty name
    virtual HRESULT Unset(const ORXUnicodeString& iAttrName) = 0;
    /// The value that the attribute has when it is unset: a custom default, a recorded one, or the declared one.
    virtual HRESULT GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue) = 0;

    static const IID& ClassId() noexcept { return IID_VYRIMpaDefaultManagement; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using VYRIMpaDefaultManagement_var = ORXHandle<VYRIMpaDefaultManagement>;

#endif
