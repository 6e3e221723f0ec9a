#ifndef EventListener_H
#define EventListener_H

/**
 * @file
 * A listener of an `ORXIInstance` that keeps what it was told.
 */

#include <string>
#include <utility>
#include <vector>

#include "ORXIInstance.h"

/// A component of its own. It answers every event with a failure, which nobody may mind.
class EventListener : public ORXIInstance
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        if (!(iInterface == IID_ORXIInstance))
            return ORXIInstance::QueryInterface(iInterface, oInterface);
        AddRef();
        *oInterface = static_cast<ORXIInstance*>(this);
        return S_OK;
    }

    HRESULT GetLogicalName(ORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT SetLogicalName(const ORXUnicodeString&) override { return E_NOTIMPL; }
    ORXCke::Boolean IsPublic() override { return ORXCke::False; }
    ORXICkeType_var Type() override { return NULL_var; }
    ORXCke::Boolean IsSupporting(const ORXICkeType_var&) override { return ORXCke::False; }
    HRESULT ListSupportedTypes(ORXListValORXUnicodeString&) override { return E_NOTIMPL; }
    HRESULT AddInstanceListener(const ORXBaseUnknown_var&) override { return E_NOTIMPL; }
    HRESULT RemoveInstanceListener(const ORXBaseUnknown_var&) override { return E_NOTIMPL; }
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override
    {
        return Keep("changed " + Text(iName) + '=' + Text(iValue->AsString()));
    }
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName) override { return Keep("added " + Text(iName)); }
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName) override
    {
        return Keep("removed " + Text(iName));
    }
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName, const ORXUnicodeString& iNewName) override
    {
        return Keep("renamed " + Text(iOldName) + ' ' + Text(iNewName));
    }
    HRESULT AdviseRemoved() override { return Keep("removed"); }
    HRESULT AdviseModification() override { return Keep("modified"); }
    HRESULT AdviseTypeChanged(const ORXICkeType_var&) override { return Keep("type changed"); }
    HRESULT SetValue(const ORXUnicodeString&, const ORXIValue_var&) override { return E_NOTIMPL; }
    ORXIValue_var GetValue(const ORXUnicodeString&) override { return NULL_var; }
    ORXBaseUnknown_var GetOwner() override { return NULL_var; }
    HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent) override { return Keep("event " + Text(iEvent)); }

    /// What it was told since the last call.
    std::vector<std::string> Told() { return std::exchange(m_told, {}); }

private:
    static std::string Text(const ORXUnicodeString& iText) { return std::string(iText.View()); }

    HRESULT Keep(const std::string& iLine)
    {
        m_told.push_back(iLine);
        return E_FAIL;
    }

    std::vector<std::string> m_told;
};

using EventListener_var = ORXHandle<EventListener>;

#endif
