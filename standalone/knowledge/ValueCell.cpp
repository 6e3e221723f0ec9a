#include "ValueCell.h"

#include <limits>
#include <mutex>
#include <new>
#include <typeinfo>
#include <vector>

#include "Census.h"
#include "ORXComponentLink.h"
#include "SlotBlock.h"

namespace VYRStandalone
{
namespace
{
/// A start-up's value that was replaced may still be held, which nobody counts. It stays reachable.
void KeepReplaced(ValueCell* iCell)
{
    static std::mutex* const mutex = new std::mutex;
    static std::vector<ValueCell*>* const kept = new std::vector<ValueCell*>;
    const std::lock_guard<std::mutex> lock(*mutex);
    kept->push_back(iCell);
}

int WithoutFraction(double iValue)
{
    // Written so that a value that is no number gives 0.
    if (iValue >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (iValue <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return iValue == iValue ? static_cast<int>(iValue) : 0;
}
} // namespace

ValueCell::ValueCell(const KnowledgeType& iType, SlotBlock* iBlock, bool iIsImmortal)
    : m_type(&iType), m_block(iBlock), m_isImmortal(iIsImmortal)
{
    ORXComponentLink::CountAt(*this, iIsImmortal ? nullptr : &m_count);
}

ValueCell::~ValueCell() = default;

ValueCell* ValueCell::Make(const KnowledgeType& iType, bool iIsImmortal)
{
    // Past the allocation that the census counts: a value counts only once its holder has left it.
    return ::new ValueCell(iType, nullptr, iIsImmortal);
}

const ValueCell* ValueCell::Of(const ORXICkeInst* iValue) noexcept
{
    if (iValue == nullptr || typeid(*iValue) != typeid(ValueCell))
        return nullptr;
    return static_cast<const ValueCell*>(iValue);
}

ORXIValue_var ValueCell::Answer(Instruments::Answer iAnswer)
{
    switch (iAnswer)
    {
    case Instruments::Answer::Value:
        return ORXIValue_var::Share(this);
    case Instruments::Answer::Unset:
    {
        ValueCell* const unset = Make(*m_type, false);
        const ORXIValue_var given = ORXIValue_var::Share(unset);
        unset->Leave();
        return given;
    }
    case Instruments::Answer::Null:
        break;
    }
    return {};
}

void ValueCell::Leave()
{
    if (m_isImmortal)
    {
        if (m_block == nullptr)
            KeepReplaced(this);
        return;
    }
    if (Holds() == 0)
    {
        if (m_block == nullptr)
            ::delete this;
        else
            this->~ValueCell();
        return;
    }
    m_isLeft = true;
    --m_count;
    Census::Born(Census::Value);
    if (m_block != nullptr)
        m_block->Hold();
}

void ValueCell::Bury()
{
    Census::Died(Census::Value);
    SlotBlock* const block = m_block;
    if (block == nullptr)
    {
        ::delete this;
        return;
    }
    this->~ValueCell();
    block->Drop();
}

HRESULT ValueCell::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered =
        iInterface == IID_ORXIValue || iInterface == IID_ORXICkeInst || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    if (!isOffered)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

unsigned int ValueCell::AddRef()
{
    if (m_isImmortal)
        return 1;
    ++m_count;
    return Holds();
}

unsigned int ValueCell::Release()
{
    if (m_isImmortal)
        return 1;
    --m_count;
    const unsigned int left = Holds();
    if (m_count == 0)
        Bury();
    return left;
}

int ValueCell::IsValuated()
{
    return std::holds_alternative<std::monostate>(m_value) ? 0 : 1;
}

int ValueCell::AsInteger()
{
    if (const int* const integer = std::get_if<int>(&m_value))
        return *integer;
    if (const double* const real = std::get_if<double>(&m_value))
        return WithoutFraction(*real);
    const bool* const boolean = std::get_if<bool>(&m_value);
    return boolean != nullptr && *boolean ? 1 : 0;
}

double ValueCell::AsReal()
{
    const double* const real = std::get_if<double>(&m_value);
    return real != nullptr ? *real : static_cast<double>(AsInteger());
}

ORXUnicodeString ValueCell::AsString()
{
    return m_type->ToText(m_value);
}

ORXCke::Boolean ValueCell::AsBoolean()
{
    return ORXCke::Boolean::Of(AsReal() != 0.0);
}

bool ValueCell::IsTrue()
{
    const bool* const boolean = std::get_if<bool>(&m_value);
    return boolean != nullptr && *boolean;
}
} // namespace VYRStandalone
