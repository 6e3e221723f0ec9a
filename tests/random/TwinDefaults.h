#ifndef TwinDefaults_H
#define TwinDefaults_H

/**
 * @file
 * The twin's default management: flags, defaults, and what makes an attribute follow its default.
 */

#include "TwinCursor.h"

namespace Twin
{
class DefaultManagement : public Cursor
{
public:
    /// Values features and Choices have it.
    bool HasDefaults(const Object& iObject) const;

    virtual HRESULT IsSet(Object& ioObject, const std::string& iName, bool& oIsSet);
    HRESULT SetIsSet(Object& ioObject, const std::string& iName, bool iIsSet);
    HRESULT HasAuto(Object& ioObject, const std::string& iName, bool& oHas);
    HRESULT GetIsAuto(Object& ioObject, const std::string& iName, bool& oIsAuto);
    virtual HRESULT SetIsAuto(Object& ioObject, const std::string& iName, bool iIsAuto);
    HRESULT Unset(Object& ioObject, const std::string& iName);
    virtual HRESULT GetDefault(Object& ioObject, const std::string& iName, std::optional<Value>& oValue);
    HRESULT SetCustomDefault(Object& ioObject, const std::string& iName, const std::string& iValue);
    HRESULT SetCustomDefaultValue(Object& ioObject, const std::string& iName, const std::optional<Value>& iValue);
    HRESULT RemoveCustomDefault(Object& ioObject, const std::string& iName);
    HRESULT RemoveAllCustomDefaults(Object& ioObject);
    HRESULT HasCustomDefault(Object& ioObject, const std::string& iName, bool& oHas);

protected:
    /// A cast to default management, which makes it on the first time.
    Defaults& DefaultsOf(Object& ioObject);
    void AdviseValues(Object& ioObject, const std::string& iName, bool iIsThere);
    void AdviseFlags(Object& ioFlags, const std::string& iName, bool iIsTrue);

    /// A Choice is brought up to date when it gets a default.
    virtual HRESULT UpdateChoice(Object& ioChoice, const std::string& iDefault) = 0;

private:
    bool IsConfigured(Object& ioObject, const std::string& iName, std::optional<Value>& oValue);
    HRESULT SetOwnDefault(Object& ioObject, const std::string& iName, const std::string& iValue);
};
} // namespace Twin

#endif
