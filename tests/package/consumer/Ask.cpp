/**
 * @file
 * Names no function of the module and meets it all the same: an object of the model is asked for an interface, and the
 * host's dictionary knows that the module offers it. So it finds out whether linking with the module brings it into the
 * program.
 *
 *     ask INSTALLATION
 */

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "ORXISpecAttrAccess.h"
#include "VYRICfdChoice.h"
#include "VYRStandaloneHost.h"

namespace
{
ORXISpecObject_var ObjectOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName));
    return ORXISpecObject_var::Adopt(access->GetSpecObject(key));
}

int Run(const std::string& iInstallation)
{
    const VYRStandalone::Model model =
        VYRStandalone::Model::Load(iInstallation + "/models/externalFlow.model.json", {iInstallation + "/catalogs"});
    const VYRICfdChoice_var choice = ObjectOf(ObjectOf(model.Find("Solver.1"), "freestream"), "state");
    if (!choice)
    {
        std::printf("nobody makes a Choice of it\n");
        return 1;
    }
    ORXUnicodeString value;
    choice->GetChoice(value);
    std::vector<ORXUnicodeString> choices;
    choice->GetListOfChoices(choices);
    std::printf("%s of", value.CastToCharPtr());
    for (const ORXUnicodeString& other : choices)
        std::printf(" %s", other.CastToCharPtr());
    std::printf("\n");
    return 0;
}
} // namespace

int main(int iCount, char** iArguments)
{
    try
    {
        return iCount == 2 ? Run(iArguments[1]) : 2;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "ask: %s\n", error.what());
        return 1;
    }
}
