#include "ORXSimFeatureInstanceAdp.h"

ORXSimFeatureInstanceAdp::ORXSimFeatureInstanceAdp() = default;

ORXSimFeatureInstanceAdp::~ORXSimFeatureInstanceAdp() = default;

HRESULT ORXSimFeatureInstanceAdp::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    return ORXKweInstanceAdapter::AdviseAttributeChanged(iName, iValue);
}
