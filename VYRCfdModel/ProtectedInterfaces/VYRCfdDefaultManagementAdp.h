#ifndef VYRCfdDefaultManagementAdp_H
#define VYRCfdDefaultManagementAdp_H

/**
 * @file
 * Default management of an object's attributes.
 */

#include <map>

#include "VYRCfdObjectAccess.h"
#include "VYRIMpaDefaultManagementProtected.h"

class ORXISpecAttribute;

/**
 * Base of the extension classes that give a feature its default management.
 *
 * Three objects take part: the extended object, which has the attributes; its default-management sub-feature, which
 * holds the flags (`name` + "_isset", `name` + "_isauto", boolean attributes that are added when they are first needed)
 * and the list `configuration` of records; and the extended object's start-up, which holds the declared defaults.
 *
 * A default is resolved in this order: custom default, record, start-up. Custom defaults live in this instance only and
 * are not stored with the model; a record that has been found once is kept among them.
 *
 * An empty name answers E_FAIL in silence, except for `Unset`; a sub-feature or a parameter that is missing is reported.
 * A flag costs a look-up by name, a default one among the custom ones, and where there is none a walk over the records.
 */
class VYRCfdBaseExport VYRCfdDefaultManagementAdp : public VYRIMpaDefaultManagementProtected
{
public:
    VYRCfdDefaultManagementAdp();
    ~VYRCfdDefaultManagementAdp() override;

    /// Makes the flag where there is none yet, as one that is not set.
    HRESULT IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet) override;
    /// Puts the attribute back on its default, tells those who listen to it, and clears the flag. @return S_FALSE for an
    /// empty name; S_OK also where no default was found, which is reported
    HRESULT Unset(const ORXUnicodeString& iAttrName) override;
    /// The custom default, else the recorded one, else the declared one. `oValue` shares the value that is kept.
    /// @return E_FAIL where there is none of them, with `oValue` as it was
    HRESULT GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue) override;
    /// Does nothing, successfully, while a default is being written.
    HRESULT SetIsSet(const ORXUnicodeString& iAttrName, unsigned char iIsSet) override;
    /// A text that does not read as the attribute's type is kept as a default without value. An attribute that is not
    /// set takes the default at once, as by `Unset`.
    HRESULT SetCustomDefault(const ORXUnicodeString& iAttrName, ORXUnicodeString& iValue) override;
    /// The value is kept as it is, and held; the attribute is not touched.
    HRESULT SetCustomDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& iValue) override;
    /// @return S_OK also when there was none
    HRESULT RemoveCustomDefault(const ORXUnicodeString& iAttrName) override;
    /// Leaves records and declared defaults.
    HRESULT RemoveAllCustomDefaults() override;
    /// Whether there is a custom default; records that have been read count among them.
    HRESULT HasCustomDefault(const ORXUnicodeString& iAttrName, unsigned char& oHas) override;
    /// Whether the attribute has an auto flag. Unlike `IsSet` it makes none.
    HRESULT HasAuto(const ORXUnicodeString& iAttrName, unsigned char& oHasAuto) override;
    /// False without a flag, and makes none.
    HRESULT GetIsAuto(const ORXUnicodeString& iAttrName, unsigned char& oIsAuto) override;
    /// Writes the flag; true on a flag that exists also puts the attribute back on its default. The first call, which
    /// makes the flag, leaves the attribute alone.
    HRESULT SetIsAuto(const ORXUnicodeString& iAttrName, unsigned char iIsAuto) override;

protected:
    /// Looks the attribute up in the records; a hit is kept as a custom default.
    unsigned char isConfigured(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue);

    /// Stands at the default-management sub-feature; the extension class fills it.
    VYRCfdObjectAccess m_defMgmt;

private:
    struct Companion;
    HRESULT FindCompanion(const char* iFunction, const ORXUnicodeString& iAttrName, const char* iSuffix,
                          Companion& oCompanion) const;

    std::map<ORXUnicodeString, ORXICkeInst_var> m_customDefaults;
    /// Up while a default or an auto flag is written, so that the notification of that write marks nothing as set. A
    /// plain flag, not a counter.
    ORXBoolean m_updating;
};

#endif
