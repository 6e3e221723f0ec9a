#include "ORXKweInstanceAdapter.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "FeatureObject.h"
#include "Instruments.h"
#include "ORXInstanceListeners.h"

using namespace VYRStandalone;

namespace
{
/// The parameter of an attribute of an extension's object; null when there is none of that name.
ORXICkeParm_var ParmOf(const ORXBaseUnknown& iExtension, const ORXUnicodeString& iName)
{
    const ORXISpecAttrAccess_var access = ORXISpecAttrAccess_var::Cast(iExtension.GetImpl(0));
    if (!access)
        return {};
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName.CastToCharPtr()));
    return ORXCke_GetParm(access, key, 1);
}

using Listeners = std::vector<ORXIInstance_var>;

/// Tells all listeners, from a snapshot, since a listener may unsubscribe while it is told. Few are copied to the
/// stack.
template <class Advise> HRESULT Tell(const Listeners& iListeners, const Advise& iAdvise)
{
    constexpr std::size_t Few = 4;
    const std::size_t size = iListeners.size();
    if (size <= Few)
    {
        ORXIInstance_var listeners[Few];
        std::copy(iListeners.begin(), iListeners.end(), listeners);
        std::for_each_n(listeners, size, [&](const ORXIInstance_var& iListener) { iAdvise(*iListener.Pointer()); });
        return S_OK;
    }
    for (const ORXIInstance_var& listener : Listeners(iListeners))
        iAdvise(*listener.Pointer());
    return S_OK;
}

/// Whether a planted fault meets an operation of an extension's adapter.
bool IsStopped(const char* iOperation, const ORXBaseUnknown& iExtension, std::string_view iSubject, HRESULT& oStatus)
{
    return Instruments::Active() && Instruments::Fails(iOperation, iSubject, FeatureObject::Of(&iExtension), oStatus);
}
} // namespace

ORXKweInstanceAdapter::ORXKweInstanceAdapter() = default;

ORXKweInstanceAdapter::~ORXKweInstanceAdapter() = default;

HRESULT ORXKweInstanceAdapter::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseAttributeChanged", *this, iName.View(), planted))
        return planted;
    return Tell(m_listeners, [&](ORXIInstance& ioListener) { ioListener.AdviseAttributeChanged(iName, iValue); });
}

void ORXInstanceListeners::LetGo(ORXKweInstanceAdapter& ioAdapter)
{
    // Let go once they are out of the list.
    const std::vector<ORXIInstance_var> gone = std::exchange(ioAdapter.m_listeners, {});
}

ORXBaseUnknown_var ORXKweInstanceAdapter::GetOwner()
{
    HRESULT planted = S_OK;
    if (IsStopped("GetOwner", *this, {}, planted))
        return {};
    const ORXISpecObject_var object = ORXISpecObject_var::Cast(GetImpl(0));
    return !object ? ORXBaseUnknown_var() : ORXBaseUnknown_var::Adopt(object->GetOwner());
}

HRESULT ORXKweInstanceAdapter::GetLogicalName(ORXUnicodeString& oName)
{
    HRESULT planted = S_OK;
    if (IsStopped("GetLogicalName", *this, {}, planted))
        return planted;
    oName = m_logicalName;
    if (!oName.IsEmpty())
        return S_OK;
    const ORXISpecObject_var object = ORXISpecObject_var::Cast(GetImpl(0));
    if (!object)
        return E_FAIL;
    oName = object->GetName();
    return S_OK;
}

HRESULT ORXKweInstanceAdapter::SetLogicalName(const ORXUnicodeString& iName)
{
    HRESULT planted = S_OK;
    if (IsStopped("SetLogicalName", *this, iName.View(), planted))
        return planted;
    m_logicalName = iName;
    return S_OK;
}

ORXCke::Boolean ORXKweInstanceAdapter::IsPublic()
{
    return ORXCke::True;
}

ORXICkeType_var ORXKweInstanceAdapter::Type()
{
    return {};
}

ORXCke::Boolean ORXKweInstanceAdapter::IsSupporting(const ORXICkeType_var&)
{
    return ORXCke::False;
}

HRESULT ORXKweInstanceAdapter::ListSupportedTypes(ORXListValORXUnicodeString& oTypes)
{
    HRESULT planted = S_OK;
    if (IsStopped("ListSupportedTypes", *this, {}, planted))
        return planted;
    const FeatureObject* const object = FeatureObject::Of(this);
    if (object == nullptr)
        return E_FAIL;
    for (const FeatureType* const type : object->Type().Chain())
        oTypes.Append(type->Name().c_str());
    return S_OK;
}

HRESULT ORXKweInstanceAdapter::AddInstanceListener(const ORXBaseUnknown_var& iListener)
{
    HRESULT planted = S_OK;
    if (IsStopped("AddInstanceListener", *this, {}, planted))
        return planted;
    const ORXIInstance_var listener = iListener;
    if (!listener)
        return E_FAIL;
    m_listeners.push_back(listener);
    return S_OK;
}

HRESULT ORXKweInstanceAdapter::RemoveInstanceListener(const ORXBaseUnknown_var& iListener)
{
    HRESULT planted = S_OK;
    if (IsStopped("RemoveInstanceListener", *this, {}, planted))
        return planted;
    for (auto listener = m_listeners.begin(); listener != m_listeners.end(); ++listener)
        if (iListener != NULL_var && *listener == iListener)
        {
            // Let go once it is out of the list: its end may change the list again.
            const ORXIInstance_var gone = *listener;
            m_listeners.erase(listener);
            return S_OK;
        }
    return S_FALSE;
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeAdded(const ORXUnicodeString& iName)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseDynamicAttributeAdded", *this, iName.View(), planted))
        return planted;
    return Tell(m_listeners, [&](ORXIInstance& ioListener) { ioListener.AdviseDynamicAttributeAdded(iName); });
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseDynamicAttributeRemoved", *this, iName.View(), planted))
        return planted;
    return Tell(m_listeners, [&](ORXIInstance& ioListener) { ioListener.AdviseDynamicAttributeRemoved(iName); });
}

HRESULT ORXKweInstanceAdapter::AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName,
                                                             const ORXUnicodeString& iNewName)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseDynamicAttributeRenamed", *this, iOldName.View(), planted))
        return planted;
    return Tell(m_listeners,
                [&](ORXIInstance& ioListener) { ioListener.AdviseDynamicAttributeRenamed(iOldName, iNewName); });
}

HRESULT ORXKweInstanceAdapter::AdviseRemoved()
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseRemoved", *this, {}, planted))
        return planted;
    return Tell(m_listeners, [](ORXIInstance& ioListener) { ioListener.AdviseRemoved(); });
}

HRESULT ORXKweInstanceAdapter::AdviseModification()
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseModification", *this, {}, planted))
        return planted;
    return Tell(m_listeners, [](ORXIInstance& ioListener) { ioListener.AdviseModification(); });
}

HRESULT ORXKweInstanceAdapter::AdviseTypeChanged(const ORXICkeType_var& iType)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseTypeChanged", *this, {}, planted))
        return planted;
    return Tell(m_listeners, [&](ORXIInstance& ioListener) { ioListener.AdviseTypeChanged(iType); });
}

HRESULT ORXKweInstanceAdapter::SetValue(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    HRESULT planted = S_OK;
    if (IsStopped("SetValue", *this, iName.View(), planted))
        return planted;
    const ORXICkeParm_var parm = ParmOf(*this, iName);
    if (!parm)
        return E_FAIL;
    parm->ValuateFromValue(iValue);
    return S_OK;
}

ORXIValue_var ORXKweInstanceAdapter::GetValue(const ORXUnicodeString& iName)
{
    HRESULT planted = S_OK;
    if (IsStopped("GetValue", *this, iName.View(), planted))
        return {};
    const ORXICkeParm_var parm = ParmOf(*this, iName);
    return !parm ? ORXIValue_var() : parm->GetValue();
}

HRESULT ORXKweInstanceAdapter::AdviseSpecificEvent(const ORXUnicodeString& iEvent)
{
    HRESULT planted = S_OK;
    if (IsStopped("AdviseSpecificEvent", *this, iEvent.View(), planted))
        return planted;
    return Tell(m_listeners, [&](ORXIInstance& ioListener) { ioListener.AdviseSpecificEvent(iEvent); });
}
