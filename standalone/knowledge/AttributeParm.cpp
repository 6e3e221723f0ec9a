#include "AttributeParm.h"

#include <new>
#include <typeinfo>

#include "FeatureObject.h"
#include "Instruments.h"
#include "ORXComponentLink.h"
#include "ParmReading.h"
#include "RecordLines.h"

namespace VYRStandalone
{
AttributeParm::AttributeParm(FeatureObject& iObject, const FeatureKey& iKey, SlotBlock& iBlock)
    : m_key(iKey), m_current(nullptr), m_cell(*iKey.Knowledge(), &iBlock, iObject.IsPrototype())
{
    m_current = &m_cell;
    ORXComponentLink::CountAt(*this, iObject.PlaceOfCount());
}

AttributeParm::~AttributeParm() {}

void AttributeParm::Destroy()
{
    Object().Manipulators().Drop(m_key);
    if (m_current != &m_cell)
        m_current->Leave();
    m_cell.Leave();
    this->~AttributeParm();
}

void AttributeParm::DestroyUnseen() noexcept
{
    if (m_current != &m_cell)
        ::delete m_current;
    m_cell.~ValueCell();
    this->~AttributeParm();
}

void AttributeParm::Renew()
{
    ValueCell* const former = m_current;
    // The cell in the slot is taken again as soon as nobody holds it any more.
    const bool cellIsFree = former != &m_cell && m_cell.Holds() == 0 && !m_cell.IsImmortal();
    m_current = cellIsFree ? &m_cell : ValueCell::Make(former->Type(), former->IsImmortal());
    if (former != &m_cell)
        former->Leave();
}

void AttributeParm::Write(Scalar&& iValue)
{
    const bool isTaken = std::holds_alternative<std::monostate>(iValue);
    if (isTaken && std::holds_alternative<std::monostate>(Value()))
        return;
    Store(std::move(iValue));
    Object().Tell(m_key, m_current);
}

HRESULT AttributeParm::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXICkeParm || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    if (!isOffered)
        return E_NOINTERFACE;
    Object().AddReference();
    return S_OK;
}

unsigned int AttributeParm::AddRef()
{
    return Object().AddRef();
}

unsigned int AttributeParm::Release()
{
    return Object().DropReference();
}

ORXICkeType_var AttributeParm::GetType()
{
    if (Instruments::Active() && Instruments::Fails("GetType", m_key.Name().View(), &Object()))
        return {};
    return ORXICkeType_var::Share(m_key.Knowledge());
}

ORXIValue_var AttributeParm::GetValue()
{
    if (Instruments::Active())
        return m_current->Answer(Instruments::AnswerOf("GetValue", m_key.Name().View(), &Object()));
    return ORXIValue_var::Share(m_current);
}

/// The head of every write: the line for recorders, and the fault point.
template <class Text> bool AttributeParm::IsStopped(const char* iOperation, const Text& iText)
{
    if (Instruments::IsRecording())
        Instruments::Record(RecordLines::Write(Object(), m_key.Name().View(), 0, iText()));
    return Instruments::Fails(iOperation, m_key.Name().View(), &Object());
}

void AttributeParm::Valuate(const ORXCke::Boolean& iValue)
{
    const bool value = iValue != 0;
    if (Instruments::Active() && IsStopped("Valuate", [&] { return RecordLines::Text(value); }))
        return;
    Scalar stored;
    if (m_key.Knowledge()->FromBoolean(value, stored))
        Write(std::move(stored));
}

void AttributeParm::Valuate(const ORXUnicodeString& iText)
{
    if (Instruments::Active() && IsStopped("Valuate", [&] { return std::string(iText.View()); }))
        return;
    Scalar stored;
    if (m_key.Knowledge()->FromText(iText, stored))
        Write(std::move(stored));
}

void AttributeParm::Valuate(double iValue)
{
    if (Instruments::Active() && IsStopped("Valuate", [&] { return RecordLines::Text(iValue); }))
        return;
    if (m_key.Knowledge()->Kind() != ValueKind::Real)
        return;
    // Past what the other kinds need: numbers are written most.
    CellToWrite().WriteReal(iValue);
    Object().Tell(m_key, m_current);
}

void AttributeParm::Valuate(int iValue)
{
    if (Instruments::Active() && IsStopped("Valuate", [&] { return RecordLines::Text(*m_key.Knowledge(), iValue); }))
        return;
    Scalar stored;
    if (m_key.Knowledge()->FromInteger(iValue, stored))
        Write(std::move(stored));
}

void AttributeParm::ValuateFromValue(const ORXIValue_var& iValue)
{
    if (!iValue)
        return;
    if (Instruments::Active() && IsStopped("ValuateFromValue", [&] { return RecordLines::Text(*iValue.Pointer()); }))
        return;
    Scalar stored;
    if (ReadParmValue(*m_key.Knowledge(), *iValue.Pointer(), stored))
        Write(std::move(stored));
}

void AttributeParm::ValuateFromString(const ORXUnicodeString& iText)
{
    if (Instruments::Active() && IsStopped("ValuateFromString", [&] { return std::string(iText.View()); }))
        return;
    Scalar stored;
    if (m_key.Knowledge()->Kind() == ValueKind::Real && m_key.Knowledge()->FromText(iText, stored))
        Write(std::move(stored));
}

ORXICkeManipulator_var AttributeParm::CreateManipulator()
{
    if (Instruments::Active() && Instruments::Fails("CreateManipulator", m_key.Name().View(), &Object()))
        return {};
    return Object().Manipulators().Make(*this);
}

ORXICkeManipulator_var AttributeParm::GetManipulator()
{
    if (Instruments::Active() && Instruments::Fails("GetManipulator", m_key.Name().View(), &Object()))
        return {};
    return Object().Manipulators().Find(m_key);
}
} // namespace VYRStandalone
