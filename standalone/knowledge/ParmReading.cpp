#include "ParmReading.h"

#include "ObjectValue.h"
#include "ValueCell.h"

namespace VYRStandalone
{
bool ReadParmValue(const KnowledgeType& iType, ORXIValue& iValue, Scalar& oValue)
{
    if (ObjectValue::Is(iValue))
        return false;
    if (iValue.IsValuated() == 0)
    {
        oValue = std::monostate();
        return true;
    }
    if (const ValueCell* const cell = ValueCell::Of(&iValue))
        return iType.FromScalar(cell->Type(), cell->Value(), oValue);
    // A value of somebody else's does not tell its kind: it is read as what is wanted.
    switch (iType.Kind())
    {
    case ValueKind::Real:
        return iType.FromReal(iValue.AsReal(), oValue);
    case ValueKind::Boolean:
        return iType.FromBoolean(iValue.AsBoolean() != 0, oValue);
    case ValueKind::String:
        return iType.FromText(iValue.AsString(), oValue);
    default:
        return iType.FromInteger(iValue.AsInteger(), oValue);
    }
}
} // namespace VYRStandalone
