#ifndef BenchCountingListener_H
#define BenchCountingListener_H

/**
 * @file
 * A listener that counts what it is told.
 */

#include <cstddef>
#include <memory>

#include "ORXIInstance.h"

namespace Bench
{
class CountingListener final : public ORXIInstance
{
public:
    /// Subscribes one to the changes of an object's attributes. @return its count
    static std::shared_ptr<const std::size_t> Listen(const ORXBaseUnknown_var& iObject);

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
    std::shared_ptr<std::size_t> m_told = std::make_shared<std::size_t>(0);
};
} // namespace Bench

#endif
