#ifndef ORXISamAnalysisEntityInit_H
#define ORXISamAnalysisEntityInit_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"

class ORXMetaClass;

/// The two steps of its own that a new object may want to take while it gets its place in a model. What they answer
/// stops nobody.
class ORXHostExport ORXISamAnalysisEntityInit : public ORXBaseUnknown
{
public:
    /// Before the object has a place: it has no owner yet.
    virtual HRESULT Init() = 0;
    /// Once it stands in its place.
    virtual HRESULT PostInit() = 0;

    static const IID& ClassId() noexcept { return IID_ORXISamAnalysisEntityInit; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using ORXISamAnalysisEntityInit_var = ORXHandle<ORXISamAnalysisEntityInit>;

#endif
