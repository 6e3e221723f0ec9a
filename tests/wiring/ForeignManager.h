#ifndef ForeignManager_H
#define ForeignManager_H

/**
 * @file
 * Default management of a feature that is no Values feature, by an extension class of the test.
 */

#include "VYRCfdDefaultManagementAdp.h"

/// Extends "FlowTestForeign", whose sub-feature stands in the attribute "flags".
class ForeignManager : public VYRCfdDefaultManagementAdp
{
public:
    ForeignManager();

    ORXMetaClass* GetMetaObject() const override;

    /// Enters the class into the dictionary, for the life of the process. May be called again.
    static void Register();
};

#endif
