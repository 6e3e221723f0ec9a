#ifndef StandingAdapter_H
#define StandingAdapter_H

/**
 * @file
 * Default management outside the object model.
 */

#include "ORXISpecObject.h"
#include "VYRCfdDefaultManagementAdp.h"

/**
 * Default management over any pair of a feature and a cursor on its sub-feature, also over one that the object model
 * would not put together. It is a component of its own, but casts as the feature does, like an extension. Not linked:
 * the feature's writes do not reach it.
 */
class StandingAdapter : public VYRCfdDefaultManagementAdp
{
public:
    /// @param iFeature what `GetImpl(0)` gives; null is possible
    StandingAdapter(const ORXISpecObject_var& iFeature, const VYRCfdObjectAccess& iSubFeature);
    /// Without a sub-feature: the cursor is as the base class leaves it.
    explicit StandingAdapter(const ORXISpecObject_var& iFeature);

    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    using ORXBaseUnknown::QueryInterface;
    ORXBaseUnknown* GetImpl(int iKind) const override;

    using VYRCfdDefaultManagementAdp::isConfigured;
    using VYRCfdDefaultManagementAdp::m_defMgmt;

private:
    ORXISpecObject_var m_feature;
};

using StandingAdapter_var = ORXHandle<StandingAdapter>;

#endif
