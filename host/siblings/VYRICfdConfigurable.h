#ifndef VYRICfdConfigurable_H
#define VYRICfdConfigurable_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"

class ORXMetaClass;

/// A feature whose update can be held back while several of its attributes are written. See
/// VYRCfdConfigurableTransaction.
class ORXHostExport VYRICfdConfigurable : public ORXBaseUnknown
{
public:
    /// Opens a configuration bracket. @return S_FALSE when one is open already; brackets do not nest
    virtual HRESULT StartConfiguration() = 0;
    /// Closes the bracket and runs the update that it held back.
    virtual HRESULT CompleteConfiguration() = 0;

    static const IID& ClassId() noexcept { return IID_VYRICfdConfigurable; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using VYRICfdConfigurable_var = ORXHandle<VYRICfdConfigurable>;

#endif
