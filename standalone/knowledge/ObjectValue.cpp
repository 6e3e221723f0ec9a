#include "ObjectValue.h"

#include <typeinfo>

#include "Instruments.h"

namespace VYRStandalone
{
ObjectValue* ObjectValue::OfObject(bool iIsValuated)
{
    static ObjectValue* const something = ::new ObjectValue(true);
    static ObjectValue* const nothing = ::new ObjectValue(false);
    return iIsValuated ? something : nothing;
}

bool ObjectValue::Is(const ORXICkeInst& iValue) noexcept
{
    return typeid(iValue) == typeid(ObjectValue);
}

HRESULT ObjectValue::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered =
        iInterface == IID_ORXIValue || iInterface == IID_ORXICkeInst || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    return isOffered ? S_OK : E_NOINTERFACE;
}

unsigned int ObjectValue::AddRef()
{
    return 1;
}

unsigned int ObjectValue::Release()
{
    return 1;
}

int ObjectValue::IsValuated()
{
    return m_isValuated ? 1 : 0;
}

int ObjectValue::AsInteger()
{
    return 0;
}

double ObjectValue::AsReal()
{
    return 0.0;
}

ORXUnicodeString ObjectValue::AsString()
{
    return {};
}

ORXCke::Boolean ObjectValue::AsBoolean()
{
    return ORXCke::False;
}

bool ObjectValue::IsTrue()
{
    return false;
}
} // namespace VYRStandalone
