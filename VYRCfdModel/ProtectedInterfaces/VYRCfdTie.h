#ifndef VYRCfdTie_H
#define VYRCfdTie_H

/**
 * @file
 * Ties: small objects that implement an interface and forward each operation to an extension instance. The module
 * writes its own by them, and so may a library that derives from the adapters.
 */

#include <atomic>
#include <memory>
#include <new>

#include "ORXIInstance.h"
#include "ORXTie.h"
#include "VYRICfdChoice.h"
#include "VYRICfdConfigurable.h"
#include "VYRIMpaDefaultManagement.h"

/**
 * What a tie does beyond forwarding.
 * @tparam Tie the concrete tie, which names its interface by the static member `InterfaceName`
 * @tparam Kind ORXTieClass for a tie that is made at each request, ORXSharedTieClass for one that is shared
 */
template <class Tie, class Interface, class Extension, ENUMTypeOfClass Kind> class VYRCfdTie : public Interface
{
public:
    /// The interface itself by its identifier, anything else from the object. New reference.
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        return Tie_Query(m_record, iInterface, oInterface);
    }
    using Interface::QueryInterface;

    /// Adds a reference to the tie.
    unsigned int AddRef() override { return Tie_AddRef(m_record); }

    /// Gives a reference back; the last one deletes the tie. Returns those that are left.
    unsigned int Release() override
    {
        int mustDelete = 0;
        const unsigned int count = Tie_Release(&mustDelete, m_record, Kind);
        if (mustDelete != 0)
            delete this;
        return count;
    }

    ~VYRCfdTie() override { Tie_Destruct(m_record, Kind); }

    /// New reference; null when there is no memory for it.
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        if constexpr (Kind == ORXSharedTieClass)
        {
            ORXBaseUnknown* shared = Tie_Link(iExtended, iExtension, Interface::ClassId());
            if (shared != nullptr)
                return shared;
        }
        std::unique_ptr<Tie> tie(new (std::nothrow) Tie);
        if (tie == nullptr)
            return nullptr;
        Tie_Construct(tie->m_record, tie.get(), MetaObject(), iExtended, Interface::ClassId(),
                      Extension::MetaObject()->Kind(), &Extension::s_sharedSlot, &Extension::Construct, iExtension);
        return tie.release();
    }

protected:
    /// What the tie forwards to; borrowed, valid as long as the tie.
    Extension* Instance() const { return static_cast<Extension*>(m_record.instance); }

private:
    static ORXMetaClass* MetaObject()
    {
        ORXMetaClass* meta = s_meta.load(std::memory_order_acquire);
        if (meta != nullptr)
            return meta;
        ORXMetaClass* extension = Extension::MetaObject();
        const qlx::internal::om_guard guard;
        meta = s_meta.load(std::memory_order_relaxed);
        if (meta == nullptr)
        {
            meta = qlx::internal::Tie_InitMetaObject(Interface::ClassId(), Tie::InterfaceName, Interface::MetaObject(),
                                                     extension, Kind);
            s_meta.store(meta, std::memory_order_release);
        }
        return meta;
    }

    static inline std::atomic<ORXMetaClass*> s_meta = nullptr;

    ORXTieRecord m_record;
};

/// Made at each request.
template <class Extension>
class TIEVYRIMpaDefaultManagement final
    : public VYRCfdTie<TIEVYRIMpaDefaultManagement<Extension>, VYRIMpaDefaultManagement, Extension, ORXTieClass>
{
public:
    static constexpr const char* InterfaceName = "VYRIMpaDefaultManagement";

    HRESULT IsSet(const ORXUnicodeString& iAttrName, unsigned char& oIsSet) override
    {
        return this->Instance()->IsSet(iAttrName, oIsSet);
    }
    HRESULT Unset(const ORXUnicodeString& iAttrName) override { return this->Instance()->Unset(iAttrName); }
    HRESULT GetDefault(const ORXUnicodeString& iAttrName, ORXICkeInst_var& oValue) override
    {
        return this->Instance()->GetDefault(iAttrName, oValue);
    }
};

/// Shared by all requests on one object.
template <class Extension>
class TIEVYRICfdChoice final
    : public VYRCfdTie<TIEVYRICfdChoice<Extension>, VYRICfdChoice, Extension, ORXSharedTieClass>
{
public:
    static constexpr const char* InterfaceName = "VYRICfdChoice";

    HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices, const std::vector<ORXUnicodeString>& iStartups,
                      const ORXUnicodeString& iDefault, const ORXUnicodeString& iDisplay) override
    {
        return this->Instance()->Configure(iChoices, iStartups, iDefault, iDisplay);
    }
    HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                      const ORXUnicodeString& iDisplay) override
    {
        return this->Instance()->Configure(iChoices, iDefault, iDisplay);
    }
    HRESULT SetChoice(const ORXUnicodeString& iChoice) override { return this->Instance()->SetChoice(iChoice); }
    HRESULT GetChoice(ORXUnicodeString& oChoice) override { return this->Instance()->GetChoice(oChoice); }
    HRESULT GetListOfChoices(std::vector<ORXUnicodeString>& oListChoices) override
    {
        return this->Instance()->GetListOfChoices(oListChoices);
    }
    HRESULT GetListOfChoicesNLS(std::vector<ORXUnicodeString>& oListChoices) override
    {
        return this->Instance()->GetListOfChoicesNLS(oListChoices);
    }
    HRESULT GetDefaultDisplay(ORXUnicodeString& oDisplay) override
    {
        return this->Instance()->GetDefaultDisplay(oDisplay);
    }
    HRESULT Update() override { return this->Instance()->Update(ORXUnicodeString()); }
};

/// Shared by all requests on one object.
template <class Extension>
class TIEVYRICfdConfigurable final
    : public VYRCfdTie<TIEVYRICfdConfigurable<Extension>, VYRICfdConfigurable, Extension, ORXSharedTieClass>
{
public:
    static constexpr const char* InterfaceName = "VYRICfdConfigurable";

    HRESULT StartConfiguration() override { return this->Instance()->StartConfiguration(); }
    HRESULT CompleteConfiguration() override { return this->Instance()->CompleteConfiguration(); }
};

/// Shared by all requests on one object.
template <class Extension>
class TIEORXIInstance final : public VYRCfdTie<TIEORXIInstance<Extension>, ORXIInstance, Extension, ORXSharedTieClass>
{
public:
    static constexpr const char* InterfaceName = "ORXIInstance";

    HRESULT GetLogicalName(ORXUnicodeString& oName) override { return this->Instance()->GetLogicalName(oName); }
    HRESULT SetLogicalName(const ORXUnicodeString& iName) override { return this->Instance()->SetLogicalName(iName); }
    ORXCke::Boolean IsPublic() override { return this->Instance()->IsPublic(); }
    ORXICkeType_var Type() override { return this->Instance()->Type(); }
    ORXCke::Boolean IsSupporting(const ORXICkeType_var& iType) override
    {
        return this->Instance()->IsSupporting(iType);
    }
    HRESULT ListSupportedTypes(ORXListValORXUnicodeString& oTypes) override
    {
        return this->Instance()->ListSupportedTypes(oTypes);
    }
    HRESULT AddInstanceListener(const ORXBaseUnknown_var& iListener) override
    {
        return this->Instance()->AddInstanceListener(iListener);
    }
    HRESULT RemoveInstanceListener(const ORXBaseUnknown_var& iListener) override
    {
        return this->Instance()->RemoveInstanceListener(iListener);
    }
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override
    {
        return this->Instance()->AdviseAttributeChanged(iName, iValue);
    }
    HRESULT AdviseDynamicAttributeAdded(const ORXUnicodeString& iName) override
    {
        return this->Instance()->AdviseDynamicAttributeAdded(iName);
    }
    HRESULT AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName) override
    {
        return this->Instance()->AdviseDynamicAttributeRemoved(iName);
    }
    HRESULT AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName, const ORXUnicodeString& iNewName) override
    {
        return this->Instance()->AdviseDynamicAttributeRenamed(iOldName, iNewName);
    }
    HRESULT AdviseRemoved() override { return this->Instance()->AdviseRemoved(); }
    HRESULT AdviseModification() override { return this->Instance()->AdviseModification(); }
    HRESULT AdviseTypeChanged(const ORXICkeType_var& iType) override
    {
        return this->Instance()->AdviseTypeChanged(iType);
    }
    HRESULT SetValue(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override
    {
        return this->Instance()->SetValue(iName, iValue);
    }
    ORXIValue_var GetValue(const ORXUnicodeString& iName) override { return this->Instance()->GetValue(iName); }
    ORXBaseUnknown_var GetOwner() override { return this->Instance()->GetOwner(); }
    HRESULT AdviseSpecificEvent(const ORXUnicodeString& iEvent) override
    {
        return this->Instance()->AdviseSpecificEvent(iEvent);
    }
};

#endif
