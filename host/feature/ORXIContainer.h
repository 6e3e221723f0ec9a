#ifndef ORXIContainer_H
#define ORXIContainer_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXListValORXBaseUnknown_var.h"
#include "ORXUnicodeString.h"

/// Holds the top-level objects of one model, in the order in which they came.
class ORXHostExport ORXIContainer : public ORXBaseUnknown
{
public:
    /**
     * The top-level objects whose type is `iType` or derives from it; the empty text means all.
     * @return new object, caller deletes
     */
    virtual ORXListValORXBaseUnknown_var* ListMembers(const ORXUnicodeString& iType) = 0;

    static const IID& ClassId() noexcept { return IID_ORXIContainer; }
};

using ORXIContainer_var = ORXHandle<ORXIContainer>;

#endif
