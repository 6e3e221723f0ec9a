#ifndef ORXIParmPublisher_H
#define ORXIParmPublisher_H

/**
 * @file
 * Base interface of objects that publish parameters. Only its meta class is used here. Link-time seam.
 */

#include "ORXBaseUnknown.h"

class ORXMetaClass;

/// Stands for the interface in the meta classes of extensions.
class ORXHostExport ORXIParmPublisher : public ORXBaseUnknown
{
public:
    static const IID& ClassId() noexcept { return IID_ORXIParmPublisher; }
    /// Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

#endif
