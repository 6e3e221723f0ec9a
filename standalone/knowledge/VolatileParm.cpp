#include "VolatileParm.h"

#include "Census.h"
#include "Instruments.h"
#include "Manipulator.h"
#include "ParmReading.h"

namespace VYRStandalone
{
VolatileParm::VolatileParm(const KnowledgeType& iType, const ORXUnicodeString& iName)
    : m_type(iType), m_name(iName), m_current(ValueCell::Make(iType, false))
{
    Census::Born(Census::VolatileParm);
}

VolatileParm::~VolatileParm()
{
    m_current->Leave();
    Census::Died(Census::VolatileParm);
}

bool VolatileParm::Fails(const char* iOperation) const
{
    return Instruments::Active() && Instruments::Fails(iOperation, m_name.View(), nullptr);
}

void VolatileParm::Store(Scalar&& iValue)
{
    if (m_current->Holds() != 0)
    {
        ValueCell* const former = m_current;
        m_current = ValueCell::Make(m_type, false);
        former->Leave();
    }
    m_current->Write(std::move(iValue));
}

HRESULT VolatileParm::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    if (!(iInterface == IID_ORXICkeParm))
        return ORXICkeParm::QueryInterface(iInterface, oInterface);
    *oInterface = this;
    AddRef();
    return S_OK;
}

ORXICkeType_var VolatileParm::GetType()
{
    if (Fails("GetType"))
        return {};
    return ORXICkeType_var::Share(const_cast<KnowledgeType*>(&m_type));
}

ORXIValue_var VolatileParm::GetValue()
{
    if (Instruments::Active())
        return m_current->Answer(Instruments::AnswerOf("GetValue", m_name.View(), nullptr));
    return ORXIValue_var::Share(m_current);
}

void VolatileParm::Valuate(const ORXCke::Boolean& iValue)
{
    Scalar stored;
    if (!Fails("Valuate") && m_type.FromBoolean(iValue != 0, stored))
        Store(std::move(stored));
}

void VolatileParm::Valuate(const ORXUnicodeString& iText)
{
    Scalar stored;
    if (!Fails("Valuate") && m_type.FromText(iText, stored))
        Store(std::move(stored));
}

void VolatileParm::Valuate(double iValue)
{
    Scalar stored;
    if (!Fails("Valuate") && m_type.FromReal(iValue, stored))
        Store(std::move(stored));
}

void VolatileParm::Valuate(int iValue)
{
    Scalar stored;
    if (!Fails("Valuate") && m_type.FromInteger(iValue, stored))
        Store(std::move(stored));
}

void VolatileParm::ValuateFromValue(const ORXIValue_var& iValue)
{
    Scalar stored;
    if (iValue.Pointer() != nullptr && !Fails("ValuateFromValue") && ReadParmValue(m_type, *iValue.Pointer(), stored))
        Store(std::move(stored));
}

void VolatileParm::ValuateFromString(const ORXUnicodeString& iText)
{
    Scalar stored;
    if (!Fails("ValuateFromString") && m_type.Kind() == ValueKind::Real && m_type.FromText(iText, stored))
        Store(std::move(stored));
}

ORXICkeManipulator_var VolatileParm::CreateManipulator()
{
    if (Fails("CreateManipulator"))
        return {};
    m_manipulator = ORXICkeManipulator_var::Adopt(new Manipulator(nullptr));
    return m_manipulator;
}

ORXICkeManipulator_var VolatileParm::GetManipulator()
{
    if (Fails("GetManipulator"))
        return {};
    return m_manipulator;
}
} // namespace VYRStandalone
