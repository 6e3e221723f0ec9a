#include "Manipulator.h"

#include "Census.h"
#include "Instruments.h"

namespace VYRStandalone
{
Manipulator::Manipulator()
{
    Census::Born(Census::Manipulator);
}

Manipulator::~Manipulator()
{
    Census::Died(Census::Manipulator);
}

HRESULT Manipulator::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (!(iInterface == IID_ORXICkeManipulator))
        return ORXICkeManipulator::QueryInterface(iInterface, oInterface);
    *oInterface = this;
    AddRef();
    return S_OK;
}

HRESULT Manipulator::SetAllowedValues(const ORXListValORXUnicodeString& iValues)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::Fails("SetAllowedValues", std::string_view(), nullptr, planted))
        return planted;
    m_values = iValues;
    return S_OK;
}

HRESULT Manipulator::GetAllowedValues(ORXListValORXUnicodeString& oValues)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::Fails("GetAllowedValues", std::string_view(), nullptr, planted))
        return planted;
    oValues = m_values;
    return S_OK;
}
} // namespace VYRStandalone
