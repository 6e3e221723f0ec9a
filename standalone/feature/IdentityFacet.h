#ifndef IdentityFacet_H
#define IdentityFacet_H

#include "ORXIComponentIdentity.h"

namespace VYRStandalone
{
/// Facet that is part of every object. It is linked to the object, which counts, casts and compares for it.
class IdentityFacet final : public ORXIComponentIdentity
{
public:
    explicit IdentityFacet(ORXBaseUnknown& iObject);

    const void* IdentityOf(const ORXBaseUnknown* iComponent) const override;
};
} // namespace VYRStandalone

#endif
