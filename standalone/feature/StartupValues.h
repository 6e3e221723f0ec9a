#ifndef StartupValues_H
#define StartupValues_H

#include "TypeDeclaration.h"

namespace VYRStandalone
{
class FeatureKey;
class FeatureObject;

/// Values that a catalog gives to start-ups. They have been checked by the plan.
class StartupValues
{
public:
    /// Writes a value to a start-up, or to a component of it.
    static void Apply(FeatureObject& ioPrototype, const PrototypeValue& iValue);

    /// True when the attribute of an object holds just that. @param iValue its path is not looked at
    static bool Holds(const FeatureObject& iObject, const FeatureKey& iKey, const PrototypeValue& iValue);
};
} // namespace VYRStandalone

#endif
