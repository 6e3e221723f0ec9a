#include "ORXCkeGlobalFunctions.h"

#include "Instruments.h"
#include "ParmDictionary.h"
#include "VolatileFactory.h"

using VYRStandalone::Instruments;

ORXIParmDictionary_var ORXCkeGlobalFunctions::GetParmDictionary()
{
    if (Instruments::Active() && Instruments::Fails("GetParmDictionary", std::string_view(), nullptr))
        return {};
    return ORXIParmDictionary_var::Share(&VYRStandalone::ParmDictionary::Instance());
}

ORXICkeParmFactory_var ORXCkeGlobalFunctions::GetVolatileFactory()
{
    if (Instruments::Active() && Instruments::Fails("GetVolatileFactory", std::string_view(), nullptr))
        return {};
    return ORXICkeParmFactory_var::Share(&VYRStandalone::VolatileFactory::Instance());
}
