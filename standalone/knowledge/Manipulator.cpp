#include "Manipulator.h"

#include "AttributeParm.h"
#include "Census.h"
#include "FeatureObject.h"
#include "Instruments.h"
#include "RecordLines.h"

namespace VYRStandalone
{
Manipulator::Manipulator(const AttributeParm* iParm) : m_parm(iParm)
{
    Census::Born(Census::Manipulator);
}

Manipulator::~Manipulator()
{
    Census::Died(Census::Manipulator);
}

HRESULT Manipulator::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    if (!(iInterface == IID_ORXICkeManipulator))
        return ORXICkeManipulator::QueryInterface(iInterface, oInterface);
    *oInterface = this;
    AddRef();
    return S_OK;
}

bool Manipulator::Fails(const char* iOperation, HRESULT& oStatus) const
{
    return m_parm != nullptr ? Instruments::Fails(iOperation, m_parm->Key().Name().View(), &m_parm->Object(), oStatus)
                             : Instruments::Fails(iOperation, std::string_view(), nullptr, oStatus);
}

HRESULT Manipulator::SetAllowedValues(const ORXListValORXUnicodeString& iValues)
{
    HRESULT planted = S_OK;
    if (Instruments::Active())
    {
        if (Instruments::IsRecording() && m_parm != nullptr)
            Instruments::Record(RecordLines::Allow(m_parm->Object(), m_parm->Key(), iValues));
        if (Fails("SetAllowedValues", planted))
            return planted;
    }
    m_values = iValues;
    return S_OK;
}

HRESULT Manipulator::GetAllowedValues(ORXListValORXUnicodeString& oValues)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Fails("GetAllowedValues", planted))
        return planted;
    oValues = m_values;
    return S_OK;
}
} // namespace VYRStandalone
