/**
 * @file
 * Applies a configuration of an installation to one of its models and prints what became of it.
 *
 *     apply INSTALLATION
 */

#include <cstdio>
#include <exception>
#include <string>

#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectAccess.h"
#include "VYRCfdObjectCondition.h"
#include "VYRStandaloneHost.h"

namespace
{
void Print(const VYRCfdObjectAccess& iObject, const char* iPath)
{
    ORXUnicodeString text;
    const HRESULT status = iObject.GetByPath(iPath).GetString(text);
    std::printf("%s = %s\n", iPath, status < 0 ? "(failed)" : text.CastToCharPtr());
}

int Run(const std::string& iInstallation)
{
    VYRStandalone::SetOfficialVariable("ORXInstallPath", iInstallation);
    VYRStandalone::Model model =
        VYRStandalone::Model::Load(iInstallation + "/models/externalFlow.model.json", {iInstallation + "/catalogs"});
    const ORXBaseUnknown_var solver(model.Find("Solver.1"));
    const VYRCfdObjectAccess access(solver);
    constexpr const char* paths[] = {"caseName", "iterations", "freestream/freestreamMach", "turbulence/model/value"};
    for (const char* path : paths)
        Print(access, path);
    std::printf("turbulence is SST: %s\n", VYRCfdObjectCondition(access, "turbulence/model/value==SST") ? "yes" : "no");

    const long status = VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(solver, "externalFlow");
    std::printf("externalFlow: status %ld, %zu reports\n", status, VYRStandalone::TakeReports().size());
    for (const char* path : paths)
        Print(access, path);

    access.GetByPath("turbulence/model/value").SetString("SA");
    std::printf("turbulence is SST: %s\n", VYRCfdObjectCondition(access, "turbulence/model/value==SST") ? "yes" : "no");
    Print(access, "turbulence/model/SA/cw2");

    // A failed chain, and its one report.
    double value = 0.0;
    if (access["turbulence"]["nothing"].GetDouble(value) >= 0)
        std::printf("an attribute that is not there was read\n");
    for (const VYRStandalone::Report& report : VYRStandalone::TakeReports())
        std::printf("%s: %s\n", report.function.c_str(), report.text.c_str());
    return status < 0 ? 1 : 0;
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
        std::fprintf(stderr, "apply: %s\n", error.what());
        return 1;
    }
}
