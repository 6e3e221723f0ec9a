#ifndef RecordingInstance_H
#define RecordingInstance_H

/**
 * @file
 * A listener that notes what it is told.
 */

#include <string>
#include <vector>

#include "ORXIInstance.h"

/// A component of its own. It is told what the instance to which it subscribes is told.
class RecordingInstance : public ORXIInstance
{
public:
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
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName) override;
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName) override;
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName, const ORXUnicodeString& iNewName) override;
    HRESULT AdviseRemoved() override;
    HRESULT AdviseModification() override;
    HRESULT AdviseTypeChanged(const ORXICkeType_var&) override;
    HRESULT SetValue(const ORXUnicodeString&, const ORXIValue_var&) override { return E_NOTIMPL; }
    ORXIValue_var GetValue(const ORXUnicodeString&) override { return NULL_var; }
    ORXBaseUnknown_var GetOwner() override { return NULL_var; }
    HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent) override;

    /// One line each, such as "changed iterations = 40".
    std::vector<std::string> told;

private:
    HRESULT Note(const std::string& iText);
};

using RecordingInstance_var = ORXHandle<RecordingInstance>;

#endif
