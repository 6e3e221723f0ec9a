#ifndef ParmReading_H
#define ParmReading_H

#include "KnowledgeType.h"
#include "ORXIValue.h"

namespace VYRStandalone
{
/// What a parameter of a type stores for a value: unset for one that is not valuated. False for the wrong kind.
bool ReadParmValue(const KnowledgeType& iType, ORXIValue& iValue, Scalar& oValue);
} // namespace VYRStandalone

#endif
