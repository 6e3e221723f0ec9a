#include "ReportTable.h"

#include "TestManager.h"

namespace
{
std::string In(const std::string& iOperation)
{
    return "VYRCfdChoiceMgrAdp::" + iOperation;
}

using Call = std::string (*)(VYRICfdChoiceMgr& ioManager);

std::string Manage(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.ConfigureChoiceMgr(Texts({"alpha", "beta"}), "alpha", "Model"));
}

std::string ManageNothing(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.ConfigureChoiceMgr({}, "alpha", "Model"));
}

std::string ManageUnknown(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.ConfigureChoiceMgr(Texts({"omega"}), "omega", "Model"));
}

std::string ManageWithoutDefault(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.ConfigureChoiceMgr(Texts({"alpha", "beta"}), "gamma", "Model"));
}

std::string Reset(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.Reset(ORXFalse));
}

std::string GetAll(VYRICfdChoiceMgr& ioManager)
{
    std::vector<ORXUnicodeString> choices;
    ORXUnicodeString value;
    return AnswerOf(ioManager.GetAllChoices(choices, value));
}

std::string Prohibit(VYRICfdChoiceMgr& ioManager)
{
    return AnswerOf(ioManager.ProhibitChoice("beta"));
}

std::string Allow(VYRICfdChoiceMgr& ioManager)
{
    std::set<ORXUnicodeString> added{"beta"};
    return AnswerOf(ioManager.AddChoices(added));
}

const ChoiceDeclaration& Unequal()
{
    static const ChoiceDeclaration unequal = {{"alpha", "beta"}, {"TypeAlpha"}, "alpha", "", ""};
    return unequal;
}

/// @param iFault the host's operation that fails; empty for none
void Add(ReportRows& ioRows, const Record& iRecord, Call iCall, const char* iFault = "", const char* iSubject = "",
         const Records& iBefore = {}, const ChoiceDeclaration& iDeclaration = ThreeChoices())
{
    ioRows.push_back({iRecord,
                      [=](ReportBench& ioBench) {
                          const VYRICfdChoiceMgr_var manager = ManagerOf(ioBench.Choice(iDeclaration));
                          if (*iFault != '\0')
                              FailCall(iFault, iSubject);
                          return iCall(*manager.Pointer());
                      },
                      "E_FAIL", iBefore});
}
} // namespace

void AddManagerReports(ReportRows& ioRows)
{
    for (const auto& [name, call] : {std::pair<const char*, Call>{"ConfigureChoiceMgr", &Manage},
                                     {"Reset", &Reset},
                                     {"GetAllChoices", &GetAll},
                                     {"AddChoices", &Allow}})
    {
        Add(ioRows, Assertion("spSpec", In(name)), call, "QueryInterface", "ORXISpecObject");
        Add(ioRows, Assertion("spStartupSpec", In(name)), call, "GetStartup");
    }
    for (const auto& [name, call] : {std::pair<const char*, Call>{"ConfigureChoiceMgr", &Manage}, {"Reset", &Reset}})
    {
        Add(ioRows, Assertion("spChoice", In(name)), call, "QueryInterface", "VYRICfdChoice");
        Add(ioRows, Assertion("startupChoices.size() == startupStartups.size()", In(name)), call, "", "", {},
            Unequal());
    }
    Add(ioRows, Assertion("originalChoices.size() == originalStartups.size()", In("AddChoices")), &Allow, "", "", {},
        Unequal());
    Add(ioRows, Assertion("currentChoices.size() == currentStartups.size()", In("ProhibitChoices")), &Prohibit, "", "",
        {}, Unequal());

    Add(ioRows, Assertion("iChoices.size() > 0", In("ConfigureChoiceMgr")), &ManageNothing);
    Add(ioRows, Error("Invalid choice omega", In("ConfigureChoiceMgr")), &ManageUnknown);
    ioRows.back().source = R"("Invalid choice %s")";
    Add(ioRows, Assertion("defaultFound", In("ConfigureChoiceMgr")), &ManageWithoutDefault);
    Add(ioRows, Assertion("spDefMgmt != NULL_var", In("Reset")), &Reset, "QueryInterface",
        "VYRIMpaDefaultManagementProtected");
    Add(ioRows, FailedCall("startup[VYRCFDBASE(Choice, choices)].GetStrings(oChoices)", In("GetAllChoices")), &GetAll,
        "Get", "choices", {Error("Null key", "VYRCfdObjectAccess::GetStrings")});
    Add(ioRows, FailedCall("startup[VYRCFDBASE(Choice, value)].GetString(oDefaultChoice)", In("GetAllChoices")),
        &GetAll, "GetParm", "value", {Assertion("spParm", "VYRCfdObjectAccess::GetString")});
}
