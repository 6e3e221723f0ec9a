#ifndef ORXSimBCInitializeServices_H
#define ORXSimBCInitializeServices_H

/**
 * @file
 * Creation of feature objects. Link-time seam.
 */

#include "ORXIContainer.h"
#include "ORXISpecObject.h"

/// Where objects are made.
class ORXHostExport ORXSimBCInitializeServices
{
public:
    /**
     * Makes an object of a feature type in a container, at its end. It takes its values from its type's start-up;
     * nothing is thereby set and nobody is told.
     * @param oObject receives the object; null on failure, and null is possible on success
     * @return S_OK; E_FAIL for an unknown type or a null container
     */
    static HRESULT CreateBasicComponent(const ORXUnicodeString& iType, const ORXUnicodeString& iName,
                                        ORXIContainer_var& ioContainer, ORXISpecObject_var& oObject);
};

#endif
