#ifndef ORXISpecAttrKey_H
#define ORXISpecAttrKey_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXTypeCode.h"
#include "ORXUnicodeString.h"

/**
 * One attribute of a feature type, independent of any object. Keys are compared by `IsEqual`: an inherited attribute
 * has one key on all types; attributes that were added to single objects have equal keys when name and type agree.
 * Keys of declared attributes live until the process ends, and counting them does nothing.
 */
class ORXHostExport ORXISpecAttrKey : public ORXBaseUnknown
{
public:
    /// Type code of the entries of a list attribute; 0 for every other attribute.
    virtual int GetListType() = 0;
    /// Type code of the attribute.
    virtual int GetType() = 0;
    /// Name of the attribute.
    virtual ORXUnicodeString GetName() = 0;

    static const IID& ClassId() noexcept { return IID_ORXISpecAttrKey; }
};

using ORXISpecAttrKey_var = ORXHandle<ORXISpecAttrKey>;

#endif
