#include "ParmDictionary.h"

#include "Instruments.h"
#include "KnowledgeType.h"
#include "ORXComponentLink.h"

namespace VYRStandalone
{
namespace
{
ORXICkeType_var BaseType(const char* iOperation, KnowledgeType* iType)
{
    if (Instruments::Active() && Instruments::Fails(iOperation, iType->Name().View(), nullptr))
        return {};
    return ORXICkeType_var::Share(iType);
}
} // namespace

ParmDictionary::ParmDictionary()
{
    ORXComponentLink::CountAt(*this, nullptr);
}

ParmDictionary& ParmDictionary::Instance()
{
    static ParmDictionary* const dictionary = ::new ParmDictionary;
    return *dictionary;
}

HRESULT ParmDictionary::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXIParmDictionary || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    return isOffered ? S_OK : E_NOINTERFACE;
}

unsigned int ParmDictionary::AddRef()
{
    return 1;
}

unsigned int ParmDictionary::Release()
{
    return 1;
}

ORXICkeType_var ParmDictionary::GetRealType()
{
    return BaseType("GetRealType", KnowledgeType::Real());
}

ORXICkeType_var ParmDictionary::GetIntegerType()
{
    return BaseType("GetIntegerType", KnowledgeType::Integer());
}

ORXICkeType_var ParmDictionary::GetBooleanType()
{
    return BaseType("GetBooleanType", KnowledgeType::Boolean());
}

ORXICkeType_var ParmDictionary::GetEnumType()
{
    return BaseType("GetEnumType", KnowledgeType::Enum());
}
} // namespace VYRStandalone
