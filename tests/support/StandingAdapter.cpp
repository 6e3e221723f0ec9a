#include "StandingAdapter.h"

StandingAdapter::StandingAdapter(const ORXISpecObject_var& iFeature, const VYRCfdObjectAccess& iSubFeature)
    : m_feature(iFeature)
{
    m_defMgmt = iSubFeature;
}

StandingAdapter::StandingAdapter(const ORXISpecObject_var& iFeature) : m_feature(iFeature) {}

HRESULT StandingAdapter::QueryInterface(const IID& iInterface, void** oInterface)
{
    return !m_feature ? VYRCfdDefaultManagementAdp::QueryInterface(iInterface, oInterface)
                      : m_feature->QueryInterface(iInterface, oInterface);
}

ORXBaseUnknown* StandingAdapter::GetImpl(int iKind) const
{
    return iKind == 0 ? m_feature.Pointer() : nullptr;
}
