#ifndef ORXIComponentIdentity_H
#define ORXIComponentIdentity_H

/**
 * @file
 * Run-time seam. Optional: a host without it is asked `ORXBaseUnknown::IsEqual` for each pair instead.
 */

#include "ORXBaseUnknown.h"

/**
 * Identity of components as something that can be hashed, so that many of them can be compared in linear time.
 *
 * A host that offers it does so on every object that has attributes, and answers through it for all components, not
 * only for the one that was asked. It is part of the object like any other interface, and is counted with it.
 */
class ORXHostExport ORXIComponentIdentity : public ORXBaseUnknown
{
public:
    /**
     * The canonical pointer of a component: the same for two pointers, of whatever interfaces, exactly if `IsEqual`
     * called on either of them with the other would be nonzero. It is for comparing only, and says nothing of order.
     * @param iComponent borrowed; null is possible
     * @return valid, and taken by no other component, as long as the component lives. Null for null, and for a
     *         component of whose identity the host cannot be sure, such as one that is not its own; such a component
     *         has to be compared by `IsEqual`. Null is no failure, and nothing is reported.
     */
    virtual const void* IdentityOf(const ORXBaseUnknown* iComponent) const = 0;

    static const IID& ClassId() noexcept { return IID_ORXIComponentIdentity; }
};

using ORXIComponentIdentity_var = ORXHandle<ORXIComponentIdentity>;

#endif
