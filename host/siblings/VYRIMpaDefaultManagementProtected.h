#ifndef VYRIMpaDefaultManagementProtected_H
#define VYRIMpaDefaultManagementProtected_H

/**
 * @file
 * Default management as the modules of this model use it. Run-time seam.
 */

#include "ORXIValue.h"

class ORXMetaClass;

/**
 * Set and auto flags and defaults of an object's attributes, which are given by their names. An empty name is a
 * failure, but for `Unset`, which answers S_FALSE. The first three operations are those of
 * `VYRIMpaDefaultManagement`.
 */
class ORXHostExport VYRIMpaDefaultManagementProtected : public ORXBaseUnknown
{
public:
    /// See `VYRIMpaDefaultManagement`.
    /// @{
    virtual HRESULT IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet) = 0;
    virtual HRESULT Unset(const ORXUnicodeString& iAttrName) = 0;
    virtual HRESULT GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue) = 0;
    /// @}
    /// Writes the set flag, and makes it where there is none; the value stays.
    virtual HRESULT SetIsSet(const ORXUnicodeString& iAttrName, unsigned char iIsSet) = 0;
    /// Gives this object a default of its own, as text; an attribute that is not set follows it at once.
    virtual HRESULT SetCustomDefault(const ORXUnicodeString& iAttrName, ORXUnicodeString& iValue) = 0;
    /// The same as a value; the attribute is not touched.
    virtual HRESULT SetCustomDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& iValue) = 0;
    /// Takes the object's own default away; the value stays.
    virtual HRESULT RemoveCustomDefault(const ORXUnicodeString& iAttrName) = 0;
    /// The same for all attributes.
    virtual HRESULT RemoveAllCustomDefaults() = 0;
    /// Whether the object has a default of its own.
    virtual HRESULT HasCustomDefault(const ORXUnicodeString& iAttrName, unsigned char& oHas) = 0;
    /// Whether the attribute has an auto flag, whatever it says.
    virtual HRESULT HasAuto(const ORXUnicodeString& iAttrName, unsigned char& oHasAuto) = 0;
    /// Whether the attribute follows its default by itself; 0 without a flag.
    virtual HRESULT GetIsAuto(const ORXUnicodeString& iAttrName, unsigned char& oIsAuto) = 0;
    /// Writes the auto flag, and makes it where there is none. On a flag that is there already, nonzero also puts the
    /// attribute back on its default, as `Unset` does.
    virtual HRESULT SetIsAuto(const ORXUnicodeString& iAttrName, unsigned char iIsAuto) = 0;

    static const IID& ClassId() noexcept { return IID_VYRIMpaDefaultManagementProtected; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using VYRIMpaDefaultManagementProtected_var = ORXHandle<VYRIMpaDefaultManagementProtected>;

#endif
