#include "IdentityFacet.h"

#include "FeatureObject.h"
#include "ORXComponentLink.h"

namespace VYRStandalone
{
IdentityFacet::IdentityFacet(ORXBaseUnknown& iObject)
{
    ORXComponentLink::Link(*this, iObject);
}

const void* IdentityFacet::IdentityOf(const ORXBaseUnknown* iComponent) const
{
    // A root of another class may compare in a way of its own.
    return FeatureObject::Of(iComponent);
}
} // namespace VYRStandalone
