#ifndef ORXCkeGlobalFunctions_H
#define ORXCkeGlobalFunctions_H

/**
 * @file
 * Link-time seam.
 */

#include "ORXICkeParmFactory.h"
#include "ORXIParmDictionary.h"

/// Where the services of parameters are found.
class ORXHostExport ORXCkeGlobalFunctions
{
public:
    /// The base types of parameters; may be null.
    static ORXIParmDictionary_var GetParmDictionary();
    /// The factory of free-standing parameters; may be null.
    static ORXICkeParmFactory_var GetVolatileFactory();
};

#endif
