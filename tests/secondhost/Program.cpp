/**
 * @file
 * The cursor and the conditions on the second host. The program says what it sees, and exits with 0 when that is what
 * it should see.
 */

#include <cstdio>
#include <string>
#include <vector>

#include "ORXKeySetVYRCfdBase.h"
#include "SecondHost.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectAccess.h"
#include "VYRCfdObjectCondition.h"

#ifndef SecondHost_Status
#error "The headers of host/ are seen in the place of the second host's"
#endif

namespace
{
std::vector<std::string> seen;

void See(const std::string& iLine)
{
    std::printf("%s\n", iLine.c_str());
    seen.push_back(iLine);
}

/// Prints what was reported since the last call.
void SeeReports()
{
    for (const std::string& report : SecondHost::TakeReports())
        See("  " + report);
}

void SeeText(const VYRCfdObjectAccess& iFrom, const char* iPath)
{
    ORXUnicodeString text;
    const HRESULT status = iFrom.GetByPath(iPath).GetString(text);
    See(std::string(iPath) + " = " + (status < 0 ? "(failed)" : text.CastToCharPtr()));
    SeeReports();
}

void SeeCondition(const VYRCfdObjectAccess& iFrom, const char* iCondition)
{
    See(std::string(iCondition) + ": " + (VYRCfdObjectCondition(iFrom, iCondition) ? "yes" : "no"));
    SeeReports();
}

void DeclareTypes()
{
    SecondHost::Declare("VYRCfdChoice", "",
                        {{"value", tk_string}, {"choices", tk_list, tk_string}, {"Data", tk_component}});
    SecondHost::Declare("Model", "VYRCfdChoice", {{"label", tk_string}});
    SecondHost::Declare("Constants", "", {{"prandtl", tk_double}});
    SecondHost::Declare("Wall", "", {{"roughness", tk_double}});
    SecondHost::Declare("Solver", "",
                        {{"steps", tk_integer},
                         {"relaxation", tk_double},
                         {"steady", tk_boolean},
                         {"title", tk_string},
                         {"turbulence", tk_component},
                         {"walls", tk_list, tk_component},
                         {"monitors", tk_list, tk_string}});
}

/// A solver with a turbulence model, which is a Choice with an object of its own, and two walls.
ORXISpecObject_var MakeSolver()
{
    const ORXISpecObject_var solver = SecondHost::Make("Solver", "Solver.1");
    const VYRCfdObjectAccess access{ORXBaseUnknown_var(solver)};
    access.Ref("turbulence").SetObject(ORXBaseUnknown_var(SecondHost::Make("Model", "Turbulence.1")), 0);
    const VYRCfdObjectAccess turbulence = access["turbulence"];
    turbulence["value"].SetString("SST");
    turbulence.Ref("Data").SetObject(ORXBaseUnknown_var(SecondHost::Make("Constants", "Constants.1")), 0);
    std::vector<VYRCfdObjectAccess> walls;
    for (const char* name : {"Inner", "Outer"})
        walls.push_back(VYRCfdObjectAccess(ORXBaseUnknown_var(SecondHost::Make("Wall", name))));
    access["walls"].SetList(walls);
    return solver;
}

void ReadAndWrite(const VYRCfdObjectAccess& iSolver)
{
    See("* written by name, by path and by key");
    iSolver["steps"].SetInteger(500);
    iSolver["steady"].SetBoolean(true);
    iSolver.GetByPath("turbulence/SST/prandtl").SetDouble(0.9);
    const ORXISpecAttrAccess_var access = iSolver.Access();
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("relaxation"));
    iSolver[key].SetString("0.75");
    iSolver["turbulence"][VYRCFDBASE(Choice, value)].SetString("SA");
    iSolver["walls"][2]["roughness"].SetDouble(1e-5);
    iSolver["monitors"].SetStrings(std::vector<ORXUnicodeString>{"lift", "drag"});

    See("* read");
    for (const char* path : {"steps", "steady", "relaxation", "turbulence/value", "turbulence/SA/prandtl",
                             "walls/Outer/roughness", "walls/1/roughness"})
        SeeText(iSolver, path);
    ORXUnicodeString monitor;
    iSolver["monitors"].GetString(monitor, 2);
    See(std::string("second monitor = ") + monitor.CastToCharPtr());
    See(std::string("owner of the model = ") + iSolver["turbulence"].GetParent().GetType().CastToCharPtr());
}

void FailAndReport(const VYRCfdObjectAccess& iSolver)
{
    See("* what fails");
    SeeText(iSolver, "turbulence/SST/prandtl");
    SeeText(iSolver, "walls/3/roughness");
    double number = 0.0;
    See("walls as a number: " + std::to_string(iSolver["walls"].GetDouble(number)));
    SeeReports();
    See("title as a number: " + std::to_string(iSolver["title"].SetDouble(1.0)));
    SeeReports();
}

void Compare(const VYRCfdObjectAccess& iSolver)
{
    See("* conditions");
    for (const char* condition :
         {"steps>=500", "steps<500", "relaxation=0.75", "turbulence/value==SA", "turbulence/value!=SA", "steady==false",
          "walls/Outer/roughness<1e-4", "nothing==1", "steps"})
        SeeCondition(iSolver, condition);
}

const std::vector<std::string> expected = {
    "* written by name, by path and by key",
    "* read",
    "steps = 500",
    "steady = true",
    "relaxation = 0.75",
    "turbulence/value = SA",
    "turbulence/SA/prandtl = 0.9",
    "walls/Outer/roughness = 1e-05",
    "walls/1/roughness = 0",
    "second monitor = drag",
    "owner of the model = Solver",
    "* what fails",
    "turbulence/SST/prandtl = (failed)",
    "  error \"No attribute SST\" VYRCfdObjectAccess::GetString -2147467259",
    "walls/3/roughness = (failed)",
    "  error \"No matching object to 3\" VYRCfdObjectAccess::GetString -2147467259",
    "walls as a number: -2147467259",
    "  assertion \"spParm\" VYRCfdObjectAccess::GetDouble -2147467259",
    "title as a number: -2147467259",
    "  assertion \"!!spType && spType->IsaKindOf(\"Real\")\" VYRCfdObjectAccess::SetDouble -2147467259",
    "* conditions",
    "steps>=500: yes",
    "steps<500: no",
    "relaxation=0.75: yes",
    "turbulence/value==SA: yes",
    "turbulence/value!=SA: no",
    "steady==false: yes",
    "walls/Outer/roughness<1e-4: yes",
    "nothing==1: no",
    "steps: no",
};
} // namespace

int main()
{
    DeclareTypes();
    const int before = SecondHost::LiveComponents();
    {
        const ORXISpecObject_var solver = MakeSolver();
        const VYRCfdObjectAccess access{ORXBaseUnknown_var(solver)};
        ReadAndWrite(access);
        FailAndReport(access);
        Compare(access);
    }
    SeeReports();
    const int left = SecondHost::LiveComponents() - before;
    if (seen != expected || left != 0)
    {
        std::fprintf(stderr, "second host: this is not what it should be (%d components left alive)\n", left);
        return 1;
    }
    return 0;
}
